# Writes msglib.pc except for the prefix, which is only known at installation. Folders inside the prefix are relative to it.

set(pc_dir ${CMAKE_INSTALL_LIBDIR}/pkgconfig)
cmake_path(APPEND pc_libdir "\${prefix}" "${CMAKE_INSTALL_LIBDIR}")
cmake_path(APPEND pc_includedir "\${prefix}" "${CMAKE_INSTALL_INCLUDEDIR}")
foreach(folder pc_libdir pc_includedir)
    string(REGEX REPLACE "([ '\"])" "\\\\\\1" ${folder} "${${folder}}")
endforeach()

get_target_property(type msglib TYPE)
if(type STREQUAL "STATIC_LIBRARY")
    set(pc_cflags -DMSGLIB_STATIC)
endif()
get_target_property(pc_link_options msglib INTERFACE_LINK_OPTIONS)
if(NOT pc_link_options)
    set(pc_link_options)
endif()
# Another linker driver than the C++ compiler needs the names of the C++ run-time libraries.
set(pc_private_libraries ${CMAKE_CXX_IMPLICIT_LINK_LIBRARIES})
list(FILTER pc_private_libraries INCLUDE REGEX "^(stdc\\+\\+|c\\+\\+|m)$")
list(REMOVE_DUPLICATES pc_private_libraries)
list(TRANSFORM pc_private_libraries PREPEND "-l")
list(JOIN pc_private_libraries " " pc_private_libraries)

set(pc_relative_prefix)
if(NOT IS_ABSOLUTE ${pc_dir})
    file(RELATIVE_PATH pc_relative_prefix ${CMAKE_INSTALL_PREFIX}/${pc_dir} ${CMAKE_INSTALL_PREFIX})
endif()
set(pc_prefix "@pc_prefix@")
configure_file(cmake/msglib.pc.in ${CMAKE_CURRENT_BINARY_DIR}/msglib.pc.in @ONLY)
install(CODE "
    set(pc_folder [[${CMAKE_CURRENT_BINARY_DIR}]])
    set(pc_dir [[${pc_dir}]])
    set(pc_relative_prefix [[${pc_relative_prefix}]])"
    COMPONENT Development)
install(SCRIPT cmake/InstallPkgConfig.cmake COMPONENT Development)
