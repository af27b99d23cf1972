# Fails if LIBRARY depends on any library other than those of the C++ run time and the system.

cmake_minimum_required(VERSION 3.22)
execute_process(COMMAND ${OBJDUMP} --private-headers ${LIBRARY}
    OUTPUT_VARIABLE output COMMAND_ERROR_IS_FATAL ANY)
string(REGEX MATCHALL "(NEEDED +|DLL Name: )[^\n]+" lines "${output}")
if(NOT lines)
    message(FATAL_ERROR "no needed library found")
endif()

set(foreign)
foreach(line IN LISTS lines)
    string(REGEX REPLACE "^(NEEDED +|DLL Name: )" "" library "${line}")
    if(NOT library MATCHES "^(lib(stdc\\+\\+|c\\+\\+|c\\+\\+abi|unwind|m|gcc_s|c)|ld(64|-linux[^.]*))\\.so\\.[0-9]+$"
       AND NOT library MATCHES "^(ADVAPI32|KERNEL32|msvcrt)\\.dll$")
        list(APPEND foreign ${library})
    endif()
endforeach()
if(foreign)
    list(JOIN foreign "\n  " foreign)
    message(FATAL_ERROR "needed beyond the C++ run time:\n  ${foreign}")
endif()
