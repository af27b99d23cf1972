# Options that make a memory fault in the library or its callers harder to exploit, as far as the tool chain has them.
# MSGLIB_HARDENING turns them off for packagers whose own flags have the same purpose. Sanitizers find more faults, but conflict
# with some of these options.

include_guard(GLOBAL)
include(CheckCXXCompilerFlag)
include(CheckLinkerFlag)

set(MSGLIB_HARDENING_COMPILE_OPTIONS)
set(MSGLIB_HARDENING_LINK_OPTIONS)
if(NOT MSGLIB_HARDENING OR MSGLIB_SANITIZE)
    return()
endif()

# The stack protector's functions may be in a library of the compiler, which it links if the option is given.
if(MSVC)
    # The stack protector and random addresses are the default.
    set(compile_options /guard:cf)
    set(link_options LINKER:/guard:cf LINKER:/CETCOMPAT)
elseif(WIN32)
    # On Windows, frames are always probed page by page, and GNU's tools can't mark an image for control-flow protection.
    set(compile_options -fstack-protector-strong)
    set(link_options
        -fstack-protector-strong LINKER:--dynamicbase LINKER:--nxcompat LINKER:--high-entropy-va)
else()
    set(compile_options -fstack-protector-strong -fstack-clash-protection -fcf-protection=full)
    set(link_options -fstack-protector-strong LINKER:-z,noexecstack LINKER:-z,relro LINKER:-z,now)
endif()

foreach(option IN LISTS compile_options)
    string(MAKE_C_IDENTIFIER "MSGLIB_COMPILES${option}" known)
    check_cxx_compiler_flag(${option} ${known})
    if(${known})
        list(APPEND MSGLIB_HARDENING_COMPILE_OPTIONS ${option})
    endif()
endforeach()

# The linker marks an image for shadow stacks only if every object is marked, and those of Debian's C library aren't. They all
# return to their callers, which is enough for a shadow stack, so the mark is forced. Branch tracking needs more.
if(MSGLIB_COMPILES_fcf_protection_full)
    list(APPEND link_options LINKER:-z,shstk)
endif()
foreach(option IN LISTS link_options)
    string(MAKE_C_IDENTIFIER "MSGLIB_LINKS_${option}" known)
    check_linker_flag(CXX ${option} ${known})
    if(${known})
        list(APPEND MSGLIB_HARDENING_LINK_OPTIONS ${option})
    endif()
endforeach()

if(MSVC)
    return()
endif()
# The checked variants of C functions need optimisation. Undefining the macro first avoids a warning if the compiler defines it.
list(APPEND MSGLIB_HARDENING_COMPILE_OPTIONS
    $<$<CONFIG:Release,RelWithDebInfo,MinSizeRel>:-U_FORTIFY_SOURCE>
    $<$<CONFIG:Release,RelWithDebInfo,MinSizeRel>:-D_FORTIFY_SOURCE=2>)
