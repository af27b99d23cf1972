# Every digit of a text follows from plain binary64 arithmetic. A compiler that keeps more precision, contracts a*b+c or
# assumes that there is no NaN would change texts.

include_guard(GLOBAL)

set(MSGLIB_ARITHMETIC_OPTIONS -ffp-contract=off)
if(CMAKE_CXX_COMPILER_ID STREQUAL "MSVC")
    # The default, /fp:precise, contracts in some versions.
    set(MSGLIB_ARITHMETIC_OPTIONS /fp:strict)
elseif(MSVC)
    set(MSGLIB_ARITHMETIC_OPTIONS /clang:-ffp-contract=off)
endif()
set(MSGLIB_ARITHMETIC_PROBE ${CMAKE_CURRENT_LIST_DIR}/PlainArithmetic.cpp)

# Stops the configuration if the flags of any build type relax arithmetic. The result isn't cached, since flags change.
function(msglib_check_arithmetic)
    set(build_types ${CMAKE_BUILD_TYPE})
    if(CMAKE_CONFIGURATION_TYPES)
        set(build_types ${CMAKE_CONFIGURATION_TYPES})
    endif()
    foreach(CMAKE_TRY_COMPILE_CONFIGURATION IN LISTS build_types)
        _msglib_probe_arithmetic()
    endforeach()
    if(NOT build_types)
        _msglib_probe_arithmetic()
    endif()
endfunction()

function(_msglib_probe_arithmetic)
    # The options that a parent project sets for all its targets.
    get_directory_property(options COMPILE_OPTIONS)
    list(FILTER options INCLUDE REGEX "^(-O|-.*math|[-/]fp:)")
    set(probe ${CMAKE_CURRENT_BINARY_DIR} ${MSGLIB_ARITHMETIC_PROBE}
        CMAKE_FLAGS -DINCLUDE_DIRECTORIES=${CMAKE_CURRENT_SOURCE_DIR}
        COMPILE_DEFINITIONS ${options} ${MSGLIB_ARITHMETIC_OPTIONS}
        OUTPUT_VARIABLE output
        CXX_STANDARD 17)
    if(CMAKE_CROSSCOMPILING AND NOT CMAKE_CROSSCOMPILING_EMULATOR)
        set(MSGLIB_ARITHMETIC_RUNS 0)
        try_compile(MSGLIB_ARITHMETIC_COMPILES ${probe})
    else()
        try_run(MSGLIB_ARITHMETIC_RUNS MSGLIB_ARITHMETIC_COMPILES ${probe})
    endif()
    if(NOT MSGLIB_ARITHMETIC_COMPILES OR NOT MSGLIB_ARITHMETIC_RUNS EQUAL 0)
        string(TOUPPER "CMAKE_CXX_FLAGS_${CMAKE_TRY_COMPILE_CONFIGURATION}" flags)
        # CMake breaks lines that aren't indented.
        string(REPLACE "\n" "\n  " output "\n${output}")
        message(FATAL_ERROR
            "msglib needs plain binary64 arithmetic: no -Ofast, no -ffast-math or its parts, no x87, no flush to zero. "
            "The flags are ${CMAKE_CXX_FLAGS} ${${flags}} ${options}\n${output}")
    endif()
endfunction()
