# Compile options of the project's own targets. Nothing here affects the targets of a project that uses this one.

include_guard(GLOBAL)
include(MsglibArithmetic)
include(MsglibHardening)

# Built files contain no path of the build machine, so builds are reproducible bit for bit. Only the configuration Debug keeps
# whole paths, by which a debugger finds the sources.
set(MSGLIB_PATH_OPTIONS)
if(NOT MSVC)
    foreach(map ${PROJECT_SOURCE_DIR}=. ${PROJECT_BINARY_DIR}=build)
        list(APPEND MSGLIB_PATH_OPTIONS $<$<NOT:$<CONFIG:Debug>>:-ffile-prefix-map=${map}>)
    endforeach()
endif()
# GNU's link-time optimiser writes its own debug information and needs the option too, but can't parse a path with blanks or
# quotes.
set(MSGLIB_PATH_LINK_OPTIONS)
if(NOT "${PROJECT_SOURCE_DIR}${PROJECT_BINARY_DIR}" MATCHES "[ '\"]")
    set(MSGLIB_PATH_LINK_OPTIONS ${MSGLIB_PATH_OPTIONS})
endif()

# Optimises the shared library at link time in release builds. A static library must stay readable for any compiler. The
# objects are linked into the tool and the tests too, where GNU's linker can't read those of clang.
set(MSGLIB_LINK_TIME_OPTIMISATION OFF)
if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
    include(CheckIPOSupported)
    check_ipo_supported(RESULT MSGLIB_LINK_TIME_OPTIMISATION OUTPUT ignored LANGUAGES CXX)
endif()

set(MSGLIB_WARNING_OPTIONS -Wall -Wextra -Wpedantic -Wconversion -Wshadow $<$<BOOL:${MSGLIB_WERROR}>:-Werror>)
if(MSVC)
    # Sources are UTF-8 and follow the standard.
    set(MSGLIB_WARNING_OPTIONS /W4 $<$<BOOL:${MSGLIB_WERROR}>:/WX> /utf-8 /permissive-)
endif()

# Sets the warnings and the hardening or sanitizers of one of this project's targets, and hides symbols by default.
function(msglib_own_target target)
    set_target_properties(${target} PROPERTIES
        CXX_STANDARD 17 CXX_STANDARD_REQUIRED ON CXX_EXTENSIONS OFF
        CXX_VISIBILITY_PRESET hidden VISIBILITY_INLINES_HIDDEN ON
        POSITION_INDEPENDENT_CODE ON)
    target_compile_options(${target} PRIVATE
        ${MSGLIB_WARNING_OPTIONS}
        ${MSGLIB_ARITHMETIC_OPTIONS}
        ${MSGLIB_PATH_OPTIONS}
        ${MSGLIB_HARDENING_COMPILE_OPTIONS})
    target_link_options(${target} PRIVATE ${MSGLIB_PATH_LINK_OPTIONS} ${MSGLIB_HARDENING_LINK_OPTIONS})
    if(MSGLIB_SANITIZE)
        target_compile_options(${target} PRIVATE
            -fsanitize=${MSGLIB_SANITIZE} -fno-sanitize-recover=all -fno-omit-frame-pointer)
        target_link_options(${target} PRIVATE -fsanitize=${MSGLIB_SANITIZE})
    endif()
endfunction()
