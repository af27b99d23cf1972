# The install rules, in three components: Runtime, the shared library; Development, everything needed to compile and link with
# the library; Tools, the program that compiles catalogues for any target system.

include(GNUInstallDirs)
include(CMakePackageConfigHelpers)

# The target of the program that compiles catalogues.
set(MSGLIB_TOOL_TARGET msglib_tool)

set(package_dir ${CMAKE_INSTALL_LIBDIR}/cmake/msglib)

install(TARGETS geom EXPORT geomTargets
    INCLUDES DESTINATION ${CMAKE_INSTALL_INCLUDEDIR})
install(TARGETS msglib EXPORT msglibTargets
    RUNTIME COMPONENT Runtime
    LIBRARY COMPONENT Runtime NAMELINK_COMPONENT Development
    ARCHIVE COMPONENT Development
    INCLUDES DESTINATION ${CMAKE_INSTALL_INCLUDEDIR})
install(EXPORT geomTargets NAMESPACE zem:: DESTINATION ${package_dir} COMPONENT Development)
install(EXPORT msglibTargets NAMESPACE msglib:: DESTINATION ${package_dir} COMPONENT Development)
install(DIRECTORY src/lib/msglib/include/ src/lib/geom/include/
    DESTINATION ${CMAKE_INSTALL_INCLUDEDIR} COMPONENT Development FILES_MATCHING PATTERN *.h)

# Exported separately from the library, so that each works without the other. A program for the build system doesn't belong in
# a prefix for another system.
if(TARGET ${MSGLIB_TOOL_TARGET} AND NOT CMAKE_CROSSCOMPILING)
    install(TARGETS ${MSGLIB_TOOL_TARGET} EXPORT msglibToolTargets RUNTIME COMPONENT Tools)
    install(EXPORT msglibToolTargets NAMESPACE msglib:: DESTINATION ${package_dir} COMPONENT Tools)
    install(FILES docs/msglib.1 DESTINATION ${CMAKE_INSTALL_MANDIR}/man1 COMPONENT Tools)
endif()

configure_package_config_file(cmake/msglibConfig.cmake.in
    ${CMAKE_CURRENT_BINARY_DIR}/msglibConfig.cmake INSTALL_DESTINATION ${package_dir})
write_basic_package_version_file(${CMAKE_CURRENT_BINARY_DIR}/msglibConfigVersion.cmake
    COMPATIBILITY SameMajorVersion)
install(FILES
    ${CMAKE_CURRENT_BINARY_DIR}/msglibConfig.cmake
    ${CMAKE_CURRENT_BINARY_DIR}/msglibConfigVersion.cmake
    cmake/MsglibCatalogue.cmake
    DESTINATION ${package_dir} COMPONENT Development)

include(MsglibPkgConfig)
