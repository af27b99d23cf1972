# CLASSES is a comma-separated list. Fails if LIBRARY exports a symbol other than the members, virtual tables and type
# information of these classes and the output operators of the stream, or exports nothing of one of them. Fails too if a symbol
# is unique in the process: the loader never unloads a library once one of its unique symbols is bound.

cmake_minimum_required(VERSION 3.22)
string(REPLACE "," ";" classes "${CLASSES}")
if(LIBRARY MATCHES "\\.dll$")
    execute_process(COMMAND ${OBJDUMP} --private-headers ${LIBRARY} COMMAND ${CXXFILT}
        OUTPUT_VARIABLE output COMMAND_ERROR_IS_FATAL ANY)
    string(REGEX REPLACE "^.*\n\\[Ordinal/Name Pointer\\] Table\n|\n\n.*$" "" output "${output}")
    set(before_name "^\t_ *[0-9]+_ ")
else()
    execute_process(COMMAND ${NM} --dynamic --demangle --defined-only ${LIBRARY}
        OUTPUT_VARIABLE output COMMAND_ERROR_IS_FATAL ANY)
    set(before_name "^[0-9a-f]* +[A-Za-z] ")
endif()
string(REGEX REPLACE "[;[]|]" "_" output "${output}")
string(REGEX MATCHALL "[^\n]+" lines "${output}")

# GNU's standard library and clang's.
set(standard_strings
    "std::__cxx11::basic_string<char, std::char_traits<char>, std::allocator<char> >"
    "std::__1::basic_string<char, std::__1::char_traits<char>, std::__1::allocator<char> >")
set(leaked)
set(seen)
foreach(line IN LISTS lines)
    if(line MATCHES "^[0-9a-f]+ u ")
        list(APPEND leaked "${line} (unique)")
    endif()
    string(REGEX REPLACE "${before_name}" "" symbol "${line}")
    string(REGEX REPLACE "^(vtable|typeinfo|typeinfo name) for " "" name "${symbol}")
    if(name MATCHES "^zem::msglib::([A-Za-z]+)(::|$)" AND CMAKE_MATCH_1 IN_LIST classes)
        list(APPEND seen ${CMAKE_MATCH_1})
    elseif(symbol MATCHES "^typeinfo for (.*)$" AND CMAKE_MATCH_1 IN_LIST standard_strings)
        continue() # shared with the program, so that comparing addresses identifies arguments
    elseif(NOT name MATCHES "^zem::msglib::operator<<\\(zem::msglib::MessageFormatStream const&")
        list(APPEND leaked ${symbol})
    endif()
endforeach()

list(REMOVE_ITEM classes ${seen})
if(leaked OR classes)
    list(JOIN leaked "\n  " leaked)
    list(JOIN classes "\n  " classes)
    message(FATAL_ERROR "exported but not listed:\n  ${leaked}\nlisted but not exported:\n  ${classes}")
endif()
