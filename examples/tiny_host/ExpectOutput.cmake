# cmake -D PROGRAM=... -D EXPECTED=... -P ExpectOutput.cmake: runs a program and compares what it prints with a file.
execute_process(COMMAND ${PROGRAM} OUTPUT_VARIABLE printed COMMAND_ERROR_IS_FATAL ANY)
file(READ ${EXPECTED} expected)
if(NOT printed STREQUAL expected)
    message(FATAL_ERROR "Expected:\n${expected}\nPrinted:\n${printed}")
endif()
