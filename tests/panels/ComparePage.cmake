# Fails when PAGE differs from what PROGRAM prints about the folder PANELS.
execute_process(COMMAND ${PROGRAM} ${PANELS} OUTPUT_VARIABLE printed COMMAND_ERROR_IS_FATAL ANY)
file(READ ${PAGE} page)
if(NOT printed STREQUAL page)
    message(FATAL_ERROR "${PAGE} is not what the code says; ${PROGRAM} ${PANELS} prints what it should be.")
endif()
