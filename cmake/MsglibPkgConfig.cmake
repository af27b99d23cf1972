# Makes and installs msglib.pc. Its folders are relative to the file as far as they lie in the prefix, so that an installed
# tree can be moved. Below /usr they are absolute: pkg-config leaves out the compiler's own folders only if they are spelled
# so, and -isystem /usr/include would hide the C library from the C++ one. Which prefix it is, only the installation knows.

set(pc_dir ${CMAKE_INSTALL_LIBDIR}/pkgconfig)
cmake_path(APPEND pc_libdir "\${prefix}" "${CMAKE_INSTALL_LIBDIR}")
cmake_path(APPEND pc_includedir "\${prefix}" "${CMAKE_INSTALL_INCLUDEDIR}")

get_target_property(type msglib TYPE)
if(type STREQUAL "STATIC_LIBRARY")
    set(pc_cflags -DMSGLIB_STATIC)
endif()
get_target_property(pc_link_options msglib INTERFACE_LINK_OPTIONS)
if(NOT pc_link_options)
    set(pc_link_options)
endif()
# A linker that isn't called by the C++ compiler needs its run-time library named.
set(pc_private_libraries ${CMAKE_CXX_IMPLICIT_LINK_LIBRARIES})
list(FILTER pc_private_libraries INCLUDE REGEX "^(stdc\\+\\+|c\\+\\+|m)$")
list(REMOVE_DUPLICATES pc_private_libraries)
list(TRANSFORM pc_private_libraries PREPEND "-l")
list(JOIN pc_private_libraries " " pc_private_libraries)

if(IS_ABSOLUTE ${pc_dir})
    set(pc_prefix ${CMAKE_INSTALL_PREFIX})
else()
    file(RELATIVE_PATH pc_prefix ${CMAKE_INSTALL_PREFIX}/${pc_dir} ${CMAKE_INSTALL_PREFIX})
    string(PREPEND pc_prefix "\${pcfiledir}/")
endif()
configure_file(cmake/msglib.pc.in ${CMAKE_CURRENT_BINARY_DIR}/msglib.pc @ONLY)
set(pc_prefix /usr)
configure_file(cmake/msglib.pc.in ${CMAKE_CURRENT_BINARY_DIR}/usr/msglib.pc @ONLY)

cmake_path(APPEND pc_destination "\${CMAKE_INSTALL_PREFIX}" "${pc_dir}")
install(CODE "
    if(CMAKE_INSTALL_PREFIX STREQUAL \"/usr\")
        set(usr usr/)
    endif()
    file(INSTALL \"${CMAKE_CURRENT_BINARY_DIR}/\${usr}msglib.pc\" DESTINATION \"${pc_destination}\")"
    COMPONENT Development)
