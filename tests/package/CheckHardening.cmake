# Fails if LIBRARY lacks a protection that MSGLIB_HARDENING gives it. BRANCH_TRACKING tells whether the compiler has
# control-flow protection.

cmake_minimum_required(VERSION 3.22)

# Fails unless the output of a command, the arguments behind the pattern, shows the protection.
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
expect("a stack without code" "\n +GNU_STACK [0-9a-fx ]+ RW +0x" ${READELF} --wide --program-headers)
expect("read-only relocations" "\n +GNU_RELRO " ${READELF} --wide --program-headers)
expect("binding at start" "\\(FLAGS\\) +[A-Z_ ]*BIND_NOW" ${READELF} --wide --dynamic)
if(BRANCH_TRACKING)
    expect("the mark of shadow stacks" "x86 feature: [A-Z, ]*SHSTK" ${READELF} --wide --notes)
    expect("landing pads of branches" "<_ZN3zem6msglib14MessageLibrary8instanceEv>:\n[^\n]*endbr"
        ${OBJDUMP} --disassemble)
endif()
