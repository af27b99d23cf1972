# Compiles for Linux on another processor, with a cross compiler of Debian. CMAKE_CXX_COMPILER is its name, and
# CMAKE_CROSSCOMPILING_EMULATOR the program that runs the results.

set(CMAKE_SYSTEM_NAME Linux)
include(${CMAKE_CURRENT_LIST_DIR}/boost-headers.cmake)

# Programs are linked statically, so that they run without the libraries of their system.
set(CMAKE_EXE_LINKER_FLAGS_INIT -static)
