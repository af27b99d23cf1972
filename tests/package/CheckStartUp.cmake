# Fails if LIBRARY runs code of its own when it is loaded: other modules may use it before that.

cmake_minimum_required(VERSION 3.22)
execute_process(COMMAND ${NM} ${LIBRARY} OUTPUT_VARIABLE symbols COMMAND_ERROR_IS_FATAL ANY)
string(REGEX MATCHALL "_GLOBAL__sub_I_[^\n]*" constructors "${symbols}")
if(constructors)
    list(JOIN constructors "\n  " constructors)
    message(FATAL_ERROR "start-up constructors:\n  ${constructors}")
endif()
