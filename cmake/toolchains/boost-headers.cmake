# Boost's headers work for every system, but their folder also contains headers of the build system's C library. A folder with
# a link to Boost alone hides those from the compiler.

set(headers ${CMAKE_BINARY_DIR}/foreign-headers)
file(MAKE_DIRECTORY ${headers}/include)
file(CREATE_LINK /usr/include/boost ${headers}/include/boost SYMBOLIC)

list(APPEND CMAKE_FIND_ROOT_PATH ${headers})
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE ONLY)
