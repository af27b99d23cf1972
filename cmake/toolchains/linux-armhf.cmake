# Compiles for Linux on 32-bit ARM, and runs programs under QEMU.

set(CMAKE_SYSTEM_PROCESSOR arm)
set(triplet arm-linux-gnueabihf)
include(${CMAKE_CURRENT_LIST_DIR}/linux.cmake)
