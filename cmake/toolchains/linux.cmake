# Compiles for Linux on another processor, by a cross compiler of Debian's. Its name, and the program that runs what it
# makes, are given as CMAKE_CXX_COMPILER and CMAKE_CROSSCOMPILING_EMULATOR.

set(CMAKE_SYSTEM_NAME Linux)
include(${CMAKE_CURRENT_LIST_DIR}/boost-headers.cmake)

# Programs run without the libraries of their system.
set(CMAKE_EXE_LINKER_FLAGS_INIT -static)
