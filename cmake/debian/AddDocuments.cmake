# Adds the documents that every Debian package needs to the files that CPack has collected for it, and compresses the manual
# page.

if(NOT CPACK_GENERATOR STREQUAL "DEB")
    return()
endif()

# The time is SOURCE_DATE_EPOCH if that is set, so that packages are reproducible bit for bit.
string(TIMESTAMP date "%a, %d %b %Y %H:%M:%S +0000" UTC)
set(changelog "${CPACK_DEBIAN_PACKAGE_SOURCE} (${CPACK_PACKAGE_VERSION}-${CPACK_DEBIAN_PACKAGE_RELEASE}) unstable; urgency=medium

  * Release ${CPACK_PACKAGE_VERSION}.

 -- ${CPACK_PACKAGE_CONTACT}  ${date}
")

foreach(component IN LISTS CPACK_COMPONENTS_ALL)
    string(TOUPPER ${component} key)
    set(folder ${CPACK_TEMPORARY_DIRECTORY}/${component}/usr/share/doc/${CPACK_DEBIAN_${key}_PACKAGE_NAME})
    file(COPY ${CMAKE_CURRENT_LIST_DIR}/copyright DESTINATION ${folder})
    file(WRITE ${folder}/changelog.Debian "${changelog}")
    execute_process(COMMAND gzip -9 --no-name --force ${folder}/changelog.Debian COMMAND_ERROR_IS_FATAL ANY)
endforeach()

set(page ${CPACK_TEMPORARY_DIRECTORY}/Tools/usr/share/man/man1/msglib.1)
if(EXISTS ${page})
    execute_process(COMMAND gzip -9 --no-name --force ${page} COMMAND_ERROR_IS_FATAL ANY)
endif()
