# What the project's own targets are compiled with. Nothing here reaches the targets of a project that uses this one.

include_guard(GLOBAL)
include(MsglibArithmetic)
include(MsglibHardening)

# Lets the linker optimise the shared library as a whole in release builds. A static one stays readable for any compiler.
include(CheckIPOSupported)
check_ipo_supported(RESULT MSGLIB_LINK_TIME_OPTIMISATION OUTPUT ignored LANGUAGES CXX)

# Gives a target of this project its warnings, its hardening or sanitizers, and hides what it does not export.
function(msglib_own_target target)
    set_target_properties(${target} PROPERTIES
        CXX_STANDARD 17 CXX_STANDARD_REQUIRED ON CXX_EXTENSIONS OFF
        CXX_VISIBILITY_PRESET hidden VISIBILITY_INLINES_HIDDEN ON
        POSITION_INDEPENDENT_CODE ON)
    target_compile_options(${target} PRIVATE
        -Wall -Wextra -Wpedantic -Wconversion -Wshadow
        $<$<BOOL:${MSGLIB_WERROR}>:-Werror>
        ${MSGLIB_ARITHMETIC_OPTIONS}
        ${MSGLIB_HARDENING_COMPILE_OPTIONS})
    target_link_options(${target} PRIVATE ${MSGLIB_HARDENING_LINK_OPTIONS})
    if(MSGLIB_SANITIZE)
        target_compile_options(${target} PRIVATE
            -fsanitize=${MSGLIB_SANITIZE} -fno-sanitize-recover=all -fno-omit-frame-pointer)
        target_link_options(${target} PRIVATE -fsanitize=${MSGLIB_SANITIZE})
    endif()
endfunction()
