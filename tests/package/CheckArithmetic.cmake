# Configures the project in TREE with one set of flags after the other. Flags that relax arithmetic must be rejected,
# whatever the result of the run before was.

function(configure expected flags)
    execute_process(
        COMMAND ${CMAKE_COMMAND} -S ${SOURCE} -B ${TREE} -G ${GENERATOR} ${COMPILER}
            -D CMAKE_BUILD_TYPE=Release -D CMAKE_CXX_FLAGS_RELEASE=${flags}
            -D MSGLIB_BUILD_EXAMPLES=OFF -D MSGLIB_BUILD_TESTS=OFF -D MSGLIB_HARDENING=OFF
        RESULT_VARIABLE result OUTPUT_QUIET ERROR_VARIABLE errors)
    if(result EQUAL 0)
        set(found accepted)
    elseif(errors MATCHES "msglib needs plain binary64 arithmetic")
        set(found rejected)
    else()
        set(found "an error")
    endif()
    if(NOT found STREQUAL expected)
        message(SEND_ERROR "${flags}: expected ${expected}, found ${found}\n${errors}")
    endif()
endfunction()

file(REMOVE_RECURSE ${TREE})
configure(accepted "-O2")
configure(rejected "-Ofast")
configure(rejected "-O2 -ffinite-math-only")
configure(rejected "-O2 -funsafe-math-optimizations")
configure(rejected "-O2 -freciprocal-math")
configure(accepted "-O2 -fno-math-errno")
