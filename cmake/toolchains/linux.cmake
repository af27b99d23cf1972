# Compiles for Linux on another processor, by a cross compiler of Debian's, and runs what it makes under QEMU. Included by a
# file for each processor, which sets `triplet`, and `emulator` if the program is not qemu-user's of the processor's name.

set(CMAKE_SYSTEM_NAME Linux)
set(root /usr/${triplet})
set(CMAKE_CXX_COMPILER ${triplet}-g++)
set(CMAKE_C_COMPILER ${triplet}-gcc)
if(NOT emulator)
    set(emulator qemu-${CMAKE_SYSTEM_PROCESSOR} -L ${root})
endif()
set(CMAKE_CROSSCOMPILING_EMULATOR ${emulator})

list(APPEND CMAKE_FIND_ROOT_PATH ${root})
include(${CMAKE_CURRENT_LIST_DIR}/boost-headers.cmake)
