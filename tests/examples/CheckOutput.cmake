execute_process(COMMAND ${EMULATOR} ${PROGRAM} OUTPUT_VARIABLE printed COMMAND_ERROR_IS_FATAL ANY)
# Standard output has the line ends of its system.
string(REPLACE "\r\n" "\n" printed "${printed}")
file(READ ${EXPECTED} expected)
if(NOT printed STREQUAL expected)
    message(FATAL_ERROR "${PROGRAM} printed\n${printed}\nbut ${EXPECTED} has\n${expected}")
endif()
