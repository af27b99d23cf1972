# Fails if one of OBJECTS, comma-separated, or LIBRARY, if given, runs its own code when it is loaded. Without such code the
# library is ready before the first static object of a program, in any order of construction.

cmake_minimum_required(VERSION 3.22)
string(REPLACE "," ";" objects "${OBJECTS}")

# Stores the sizes of the lists of start-up functions in `file`, as a list of hexadecimal numbers.
function(read_start_up_lists file result)
    execute_process(COMMAND ${OBJDUMP} --section-headers ${file}
        OUTPUT_VARIABLE output COMMAND_ERROR_IS_FATAL ANY)
    string(REGEX MATCHALL " \\.(init_array|ctors)[.0-9]* +[0-9a-f]+" lists "${output}")
    list(TRANSFORM lists REPLACE ".* " "0x")
    set(${result} ${lists} PARENT_SCOPE)
endfunction()

foreach(object IN LISTS objects)
    read_start_up_lists(${object} lists)
    if(lists)
        message(SEND_ERROR "runs code at start-up: ${object}")
    endif()
endforeach()

# The run-time libraries add some functions to each library.
if(LIBRARY)
    read_start_up_lists(${LIBRARY} lists)
    math(EXPR size "${POINTER_SIZE} * ${RUN_TIME_FUNCTIONS}")
    if(NOT lists EQUAL size)
        message(SEND_ERROR "the library has more start-up functions than ${RUN_TIME_FUNCTIONS}: ${lists} bytes")
    endif()
endif()
