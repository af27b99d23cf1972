# Builds a project of catalogues, edits them and builds again. The output of the generator shows
# what is built again.

# Runs a command, which must succeed, and stores its output in `result`.
function(run result)
    execute_process(COMMAND ${ARGN} OUTPUT_VARIABLE output ERROR_VARIABLE output RESULT_VARIABLE status)
    if(NOT status EQUAL 0)
        message(FATAL_ERROR "failed: ${ARGN}\n${output}")
    endif()
    set(${result} "${output}" PARENT_SCOPE)
endfunction()

# Checks that a text matches, or does not match, a regular expression.
function(expect text has expression)
    if((has STREQUAL "WITH" AND NOT text MATCHES "${expression}") OR
       (has STREQUAL "WITHOUT" AND text MATCHES "${expression}"))
        message(FATAL_ERROR "expected ${has} ${expression}:\n${text}")
    endif()
endfunction()

file(REMOVE_RECURSE "${TREE}")
file(COPY "${SOURCE}/" DESTINATION "${TREE}/source")
set(build ${CMAKE_COMMAND} --build "${TREE}/build" --parallel 4 --verbose)
run(ignored ${CMAKE_COMMAND} -G ${GENERATOR} -S "${TREE}/source" -B "${TREE}/build"
    -D CMAKE_CXX_COMPILER=${CXX_COMPILER} -D CMAKE_CXX_FLAGS=${CXX_FLAGS} -D MSGLIB_TOOL=${TOOL} -D LIBRARY=${LIBRARY} -D ROOT=${ROOT})
run(ignored ${build})
run(printed "${TREE}/build/app")
if(NOT printed STREQUAL "own ä\nsize\ngenerated €\nlate\narchive\nshared\n")
    message(FATAL_ERROR "the program printed\n${printed}")
endif()

# An edited file is compiled again, and nothing else; file times have to differ.
run(ignored ${CMAKE_COMMAND} -E sleep 1.1)
file(READ "${TREE}/source/generated.mc.in" text)
string(REPLACE "generated €" "edited" text "${text}")
file(WRITE "${TREE}/source/generated.mc.in" "${text}")
run(output ${build})
expect("${output}" WITH "-c [^\n]*generated\\.cpp")
expect("${output}" WITHOUT "-c [^\n]*(late|main|Archive)\\.cpp")
run(printed "${TREE}/build/app")
expect("${printed}" WITH "edited\n")

# A comment makes no difference, so nothing is compiled.
run(ignored ${CMAKE_COMMAND} -E sleep 1.1)
file(APPEND "${TREE}/source/messages.mc" "; a comment\n")
run(output ${build})
expect("${output}" WITH "msglib\"? compile")
expect("${output}" WITHOUT "-c [^\n]*\\.cpp")
run(output ${build})
expect("${output}" WITHOUT "msglib\"? compile")

# An identifier in two catalogues of a target stops the build.
file(READ "${TREE}/source/parts/late.mc" text)
string(REPLACE "0x204" "0x201" text "${text}")
file(WRITE "${TREE}/source/parts/late.mc" "${text}")
execute_process(COMMAND ${build} OUTPUT_VARIABLE output ERROR_VARIABLE output RESULT_VARIABLE status)
expect("${status}" WITHOUT "^0$")
expect("${output}" WITH "late.mc:2:11: error: MSG_LATE \\(0x02010001\\) comes twice in the language English")
expect("${output}" WITH "messages.mc:2:11: note: the first one, MSG_OWN")
