# Compiles for Linux on another processor, with a cross compiler of Debian, and runs the results under QEMU. A file for each
# processor includes this one. It sets `triplet`, and `emulator` if that isn't the program of qemu-user for the processor's name.

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
