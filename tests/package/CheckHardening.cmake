# Fails if LIBRARY lacks a protection that MSGLIB_HARDENING turns on. BRANCH_TRACKING is true if the compiler supports
# control-flow protection.

cmake_minimum_required(VERSION 3.22)

# Fails unless the output of a command, given after the pattern, matches the pattern.
function(expect protection pattern)
    execute_process(COMMAND ${ARGN} ${LIBRARY} OUTPUT_VARIABLE output COMMAND_ERROR_IS_FATAL ANY)
    if(NOT output MATCHES "${pattern}")
        message(SEND_ERROR "the library lacks ${protection}")
    endif()
endfunction()

if(LIBRARY MATCHES "\\.dll$")
    expect("the stack protector" "__stack_chk_fail" ${NM})
    foreach(characteristic HIGH_ENTROPY_VA DYNAMIC_BASE NX_COMPAT)
        expect(${characteristic} "\n[ \t]+${characteristic}\n" ${OBJDUMP} --private-headers)
    endforeach()
    return()
endif()

expect("the stack protector" " __stack_chk_fail" ${NM} --dynamic --undefined-only)
expect("a non-executable stack" "\n +GNU_STACK [0-9a-fx ]+ RW +0x" ${READELF} --wide --program-headers)
expect("read-only relocations" "\n +GNU_RELRO " ${READELF} --wide --program-headers)
expect("immediate binding" "\\(FLAGS\\) +[A-Z_ ]*BIND_NOW" ${READELF} --wide --dynamic)
if(BRANCH_TRACKING)
    expect("shadow stacks" "x86 feature: [A-Z, ]*SHSTK" ${READELF} --wide --notes)
    expect("branch landing pads" "<_ZN3zem6msglib14MessageLibrary8instanceEv>:\n[^\n]*endbr"
        ${OBJDUMP} --disassemble)
endif()
