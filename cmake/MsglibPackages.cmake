# Debian packages of the installed components, made by `cpack -G DEB` in a tree that is configured with the prefix /usr.

set(CPACK_PACKAGE_NAME msglib)
set(CPACK_PACKAGE_VENDOR "msglib maintainers")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "${PROJECT_DESCRIPTION}")
if(NOT CPACK_PACKAGE_CONTACT)
    set(CPACK_PACKAGE_CONTACT "msglib maintainers <maintainers@msglib.invalid>")
endif()

get_target_property(type msglib TYPE)
set(CPACK_COMPONENTS_ALL Development)
if(NOT type STREQUAL "STATIC_LIBRARY")
    list(APPEND CPACK_COMPONENTS_ALL Runtime)
    set(CPACK_COMPONENT_DEVELOPMENT_DEPENDS Runtime)
endif()
if(TARGET ${MSGLIB_TOOL_TARGET} AND NOT CMAKE_CROSSCOMPILING)
    list(APPEND CPACK_COMPONENTS_ALL Tools)
endif()
# The prefix of packages is /usr, whatever that of the tree is.
set(CPACK_SET_DESTDIR ON)
set(CPACK_INSTALL_PREFIX /usr)
# The folders of packages have these permissions, whatever the umask of the build is.
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS
    OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)
set(CPACK_STRIP_FILES ON)

set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SOURCE msglib)
set(CPACK_DEBIAN_PACKAGE_RELEASE 1)
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)
set(CPACK_DEBIAN_ENABLE_COMPONENT_DEPENDS ON)
set(CPACK_DEBIAN_COMPRESSION_TYPE xz)
set(CPACK_PRE_BUILD_SCRIPTS ${CMAKE_CURRENT_LIST_DIR}/debian/AddDocuments.cmake)

set(CPACK_DEBIAN_RUNTIME_PACKAGE_NAME libmsglib${PROJECT_VERSION_MAJOR})
set(CPACK_DEBIAN_RUNTIME_PACKAGE_SECTION libs)
set(CPACK_DEBIAN_RUNTIME_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_RUNTIME_PACKAGE_CONTROL_EXTRA ${CMAKE_CURRENT_LIST_DIR}/debian/triggers)
set(CPACK_DEBIAN_PACKAGE_GENERATE_SHLIBS ON)
set(CPACK_DEBIAN_PACKAGE_GENERATE_SHLIBS_POLICY ">=")
set(CPACK_COMPONENT_RUNTIME_DESCRIPTION
    "Programs that render messages from catalogues and patterns with msglib\nneed this shared library.")

set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_NAME libmsglib-dev)
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_SECTION libdevel)
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_DEPENDS "libboost-dev (>= 1.71)")
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_RECOMMENDS msglib-tools)
set(CPACK_COMPONENT_DEVELOPMENT_DESCRIPTION
    "Headers of msglib, and what CMake and pkg-config need to find it.\nCatalogues are compiled by msglib-tools.")

set(CPACK_DEBIAN_TOOLS_PACKAGE_NAME msglib-tools)
set(CPACK_DEBIAN_TOOLS_PACKAGE_SECTION devel)
set(CPACK_DEBIAN_TOOLS_PACKAGE_SHLIBDEPS ON)
set(CPACK_COMPONENT_TOOLS_DESCRIPTION
    "The program that compiles message catalogues into modules, called by the\nCMake function msglib_add_catalogue.")

# CPack writes these fields from version 3.31 on. The tool's package has none, because it exports a target of its processor.
set(CPACK_DEBIAN_RUNTIME_PACKAGE_MULTIARCH same)
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_MULTIARCH same)

include(CPack)
