# What the project's own targets are compiled with. Nothing here reaches the targets of a project that uses this one.

include_guard(GLOBAL)
include(MsglibArithmetic)
include(MsglibHardening)

# What is built holds no path of the folder that it is built in, so that it can be made again bit for bit. A debugger of the
# configuration Debug finds the sources by their whole paths.
set(MSGLIB_PATH_OPTIONS)
if(NOT MSVC)
    foreach(map ${PROJECT_SOURCE_DIR}=. ${PROJECT_BINARY_DIR}=build)
        list(APPEND MSGLIB_PATH_OPTIONS $<$<NOT:$<CONFIG:Debug>>:-ffile-prefix-map=${map}>)
    endforeach()
endif()
# GNU's link-time optimiser writes debug information of its own, and can't be given a path with blanks or quotes.
set(MSGLIB_PATH_LINK_OPTIONS)
if(NOT "${PROJECT_SOURCE_DIR}${PROJECT_BINARY_DIR}" MATCHES "[ '\"]")
    set(MSGLIB_PATH_LINK_OPTIONS ${MSGLIB_PATH_OPTIONS})
endif()

# Lets the linker optimise the shared library as a whole in release builds. A static one stays readable for any compiler. The
# objects are linked into the tool and the tests too, where GNU's linker could not read clang's.
set(MSGLIB_LINK_TIME_OPTIMISATION OFF)
if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
    include(CheckIPOSupported)
    check_ipo_supported(RESULT MSGLIB_LINK_TIME_OPTIMISATION OUTPUT ignored LANGUAGES CXX)
endif()

set(MSGLIB_WARNING_OPTIONS -Wall -Wextra -Wpedantic -Wconversion -Wshadow $<$<BOOL:${MSGLIB_WERROR}>:-Werror>)
if(MSVC)
    # Sources are UTF-8, and are read by the rules of the standard.
    set(MSGLIB_WARNING_OPTIONS /W4 $<$<BOOL:${MSGLIB_WERROR}>:/WX> /utf-8 /permissive-)
endif()

# Gives a target of this project its warnings, its hardening or sanitizers, and hides what it does not export.
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
