# Compiles for Linux on 32-bit x86 with SSE2. An x86-64 system runs the programs as they are, with the cross compiler's loader and
# libraries.

set(CMAKE_SYSTEM_PROCESSOR i686)
set(triplet i686-linux-gnu)
set(emulator env)
set(CMAKE_CXX_FLAGS_INIT "-msse2 -mfpmath=sse")
# The older form of the path serves the libraries of libraries too.
set(libraries /usr/${triplet}/lib)
set(CMAKE_EXE_LINKER_FLAGS_INIT
    "-Wl,--dynamic-linker=${libraries}/ld-linux.so.2 -Wl,-rpath,${libraries} -Wl,--disable-new-dtags")
include(${CMAKE_CURRENT_LIST_DIR}/linux.cmake)
