# The install rules: library, headers, the host tool for catalogues, and what find_package and pkg-config read.

include(GNUInstallDirs)
include(CMakePackageConfigHelpers)

set(package_dir ${CMAKE_INSTALL_LIBDIR}/cmake/msglib)

install(TARGETS geom EXPORT geomTargets)
install(TARGETS msglib EXPORT msglibTargets)
if(TARGET msglib_tool AND NOT CMAKE_CROSSCOMPILING)
    install(TARGETS msglib_tool EXPORT msglibTargets)
endif()
install(EXPORT geomTargets NAMESPACE zem:: DESTINATION ${package_dir})
install(EXPORT msglibTargets NAMESPACE msglib:: DESTINATION ${package_dir})
install(DIRECTORY src/lib/msglib/include/ src/lib/geom/include/
    DESTINATION ${CMAKE_INSTALL_INCLUDEDIR} FILES_MATCHING PATTERN *.h)

configure_package_config_file(cmake/msglibConfig.cmake.in
    ${CMAKE_CURRENT_BINARY_DIR}/msglibConfig.cmake INSTALL_DESTINATION ${package_dir})
write_basic_package_version_file(${CMAKE_CURRENT_BINARY_DIR}/msglibConfigVersion.cmake
    COMPATIBILITY SameMinorVersion)
install(FILES
    ${CMAKE_CURRENT_BINARY_DIR}/msglibConfig.cmake
    ${CMAKE_CURRENT_BINARY_DIR}/msglibConfigVersion.cmake
    cmake/MsglibCatalogue.cmake
    DESTINATION ${package_dir})

# Relative to the .pc file, so that the installed tree can be moved.
file(RELATIVE_PATH pc_prefix
    ${CMAKE_INSTALL_FULL_LIBDIR}/pkgconfig ${CMAKE_INSTALL_PREFIX})
file(RELATIVE_PATH pc_libdir ${CMAKE_INSTALL_PREFIX} ${CMAKE_INSTALL_FULL_LIBDIR})
file(RELATIVE_PATH pc_includedir ${CMAKE_INSTALL_PREFIX} ${CMAKE_INSTALL_FULL_INCLUDEDIR})
get_target_property(type msglib TYPE)
if(type STREQUAL "STATIC_LIBRARY")
    set(pc_cflags -DMSGLIB_STATIC)
endif()
get_target_property(pc_link_options msglib INTERFACE_LINK_OPTIONS)
if(NOT pc_link_options)
    set(pc_link_options)
endif()
configure_file(cmake/msglib.pc.in ${CMAKE_CURRENT_BINARY_DIR}/msglib.pc @ONLY)
install(FILES ${CMAKE_CURRENT_BINARY_DIR}/msglib.pc
    DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig)
