# What the project's own targets are compiled with. Nothing here reaches the targets of a project that uses this one.

include_guard(GLOBAL)
include(CheckCXXSourceRuns)
include(MsglibHardening)

# Every digit that the library writes follows from plain binary64 arithmetic, so a compiler that keeps more precision,
# contracts a*b+c or assumes away NaN would change texts.
set(MSGLIB_ARITHMETIC_OPTIONS -ffp-contract=off)

function(msglib_check_arithmetic)
    if(CMAKE_CROSSCOMPILING AND NOT CMAKE_CROSSCOMPILING_EMULATOR)
        return()
    endif()
    set(CMAKE_REQUIRED_FLAGS "${CMAKE_CXX_FLAGS}")
    set(CMAKE_REQUIRED_DEFINITIONS ${MSGLIB_ARITHMETIC_OPTIONS})
    check_cxx_source_runs([[
        #include <cfloat>
        #include <limits>
        #if defined(__FAST_MATH__) || FLT_EVAL_METHOD != 0
        #error "arithmetic is not plain binary64"
        #endif
        int main() {
            volatile double third = 1.0 / 3.0, three = 3.0, tiny = 0x1p-1074, zero = 0.0, big = 0x1p1023;
            volatile double square = 0x1.0000001p0, rounded = 0x1.0000002p0;
            const bool plain = std::numeric_limits<double>::is_iec559 && third * three == 1.0;
            const bool uncontracted = square * square - rounded == 0.0;
            const bool subnormal = tiny / 2.0 == 0.0 && tiny * 2.0 > tiny;
            const bool special = zero / zero != zero / zero && big * 2.0 > big;
            return plain && uncontracted && subnormal && special ? 0 : 1;
        }]] MSGLIB_PLAIN_BINARY64)
    if(NOT MSGLIB_PLAIN_BINARY64)
        message(FATAL_ERROR "msglib needs plain binary64 arithmetic: no -ffast-math, no x87, no flush to zero")
    endif()
endfunction()

# What is built holds no path of the folder that it is built in, so that it can be made again bit for bit. A debugger of the
# configuration Debug finds the sources by their whole paths.
set(MSGLIB_PATH_OPTIONS)
foreach(map ${PROJECT_SOURCE_DIR}=. ${PROJECT_BINARY_DIR}=build)
    list(APPEND MSGLIB_PATH_OPTIONS $<$<NOT:$<CONFIG:Debug>>:-ffile-prefix-map=${map}>)
endforeach()
# GNU's link-time optimiser writes debug information of its own, and can't be given a path with blanks or quotes.
set(MSGLIB_PATH_LINK_OPTIONS)
if(NOT "${PROJECT_SOURCE_DIR}${PROJECT_BINARY_DIR}" MATCHES "[ '\"]")
    set(MSGLIB_PATH_LINK_OPTIONS ${MSGLIB_PATH_OPTIONS})
endif()

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
        ${MSGLIB_PATH_OPTIONS}
        ${MSGLIB_HARDENING_COMPILE_OPTIONS})
    target_link_options(${target} PRIVATE ${MSGLIB_PATH_LINK_OPTIONS} ${MSGLIB_HARDENING_LINK_OPTIONS})
    if(MSGLIB_SANITIZE)
        target_compile_options(${target} PRIVATE
            -fsanitize=${MSGLIB_SANITIZE} -fno-sanitize-recover=all -fno-omit-frame-pointer)
        target_link_options(${target} PRIVATE -fsanitize=${MSGLIB_SANITIZE})
    endif()
endfunction()
