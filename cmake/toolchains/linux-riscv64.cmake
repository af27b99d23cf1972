# Compiles for Linux on 64-bit RISC-V, and runs programs under QEMU.

set(CMAKE_SYSTEM_PROCESSOR riscv64)
set(triplet riscv64-linux-gnu)
include(${CMAKE_CURRENT_LIST_DIR}/linux.cmake)
