# step(COMMAND ARGUMENTS...): runs it, leaves what it printed in output, and ends the test if it fails.
macro(step)
    execute_process(COMMAND ${ARGN} RESULT_VARIABLE status OUTPUT_VARIABLE output ERROR_VARIABLE errors)
    if(NOT status EQUAL 0)
        message(FATAL_ERROR "'${ARGN}' ended with ${status}:\n${output}${errors}")
    endif()
endmacro()
