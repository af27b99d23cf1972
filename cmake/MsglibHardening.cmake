# What makes a memory fault harder to exploit, in the library or in its callers: what the tool chain has of it. A
# packager's own flags may say the same otherwise, so MSGLIB_HARDENING switches it off. Sanitizers find more, and don't go
# together with all of it.

include_guard(GLOBAL)
include(CheckCXXCompilerFlag)
include(CheckLinkerFlag)

set(MSGLIB_HARDENING_COMPILE_OPTIONS)
set(MSGLIB_HARDENING_LINK_OPTIONS)
if(NOT MSGLIB_HARDENING OR MSGLIB_SANITIZE)
    return()
endif()

# The stack protector's functions may lie in a library of the compiler's, which it links for the option.
if(MSVC)
    # The stack is protected by default, and addresses are random.
    set(compile_options /guard:cf)
    set(link_options LINKER:/guard:cf LINKER:/CETCOMPAT)
elseif(WIN32)
    # Frames are probed page by page there anyway, and an image of GNU's tools can't tell of control-flow protection.
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

# The linker marks an image only if every object is marked, and those of Debian's C library aren't. They return to where
# they were called from all the same, which is all that a shadow stack asks for. Branch tracking asks for more.
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

# Checked forms of C's functions need optimisation. A level that the compiler has by itself is replaced without a warning.
if(MSVC)
    return()
endif()
list(APPEND MSGLIB_HARDENING_COMPILE_OPTIONS
    $<$<CONFIG:Release,RelWithDebInfo,MinSizeRel>:-U_FORTIFY_SOURCE>
    $<$<CONFIG:Release,RelWithDebInfo,MinSizeRel>:-D_FORTIFY_SOURCE=2>)
