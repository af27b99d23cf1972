# Boost's headers serve every system, but the folder that they lie in has headers of this one's C library too. A link
# to Boost alone keeps those away from the compiler.

set(headers ${CMAKE_BINARY_DIR}/foreign-headers)
file(MAKE_DIRECTORY ${headers}/include)
file(CREATE_LINK /usr/include/boost ${headers}/include/boost SYMBOLIC)

list(APPEND CMAKE_FIND_ROOT_PATH ${headers})
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE ONLY)
