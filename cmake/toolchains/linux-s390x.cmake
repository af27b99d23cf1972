# Compiles for Linux on IBM Z, whose byte order is big-endian, and runs programs under QEMU.

set(CMAKE_SYSTEM_PROCESSOR s390x)
set(triplet s390x-linux-gnu)
include(${CMAKE_CURRENT_LIST_DIR}/linux.cmake)
