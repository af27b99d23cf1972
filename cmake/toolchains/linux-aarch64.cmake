# Compiles for Linux on 64-bit ARM, and runs programs under QEMU.

set(CMAKE_SYSTEM_PROCESSOR aarch64)
set(triplet aarch64-linux-gnu)
include(${CMAKE_CURRENT_LIST_DIR}/linux.cmake)
