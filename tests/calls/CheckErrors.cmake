# Compiles SOURCE and compares the errors with those in its comments, exactly one for each call.

file(STRINGS ${SOURCE} expected REGEX "^ *// error: ")
list(TRANSFORM expected REPLACE "^ *// error: (.+)$" "CallTexts::\\1")

list(TRANSFORM INCLUDES PREPEND -I)
set(ENV{LC_ALL} C)
execute_process(COMMAND ${COMPILER} -std=c++17 -fsyntax-only -w ${OPTIONS} ${INCLUDES} ${SOURCE}
    RESULT_VARIABLE status ERROR_VARIABLE messages)
if(status EQUAL 0)
    message(FATAL_ERROR "${SOURCE} compiles")
endif()

string(REPLACE ";" "," messages "${messages}")
string(REGEX MATCHALL "[^\n]*(error|Error): [^\n]*" found "${messages}")
list(TRANSFORM found REPLACE "^.*(CallTexts::MSG_[^\"]*)\"?$" "\\1")
list(SORT expected)
list(SORT found)
if(NOT found STREQUAL expected)
    list(JOIN expected "\n" expected)
    list(JOIN found "\n" found)
    message(FATAL_ERROR "Expected these errors:\n${expected}\nFound these:\n${found}")
endif()
