# Configures, builds and runs the host project in BINARY_DIR, with the compiler's flags FLAGS.
file(REMOVE_RECURSE ${BINARY_DIR})
foreach(step
        "${CMAKE_COMMAND};-S;${SOURCE_DIR};-B;${BINARY_DIR};-G;${GENERATOR};-DORVANE_SOURCE_DIR=${ORVANE_SOURCE_DIR};-DCMAKE_CXX_FLAGS=${FLAGS}"
        "${CMAKE_COMMAND};--build;${BINARY_DIR};--parallel;2"
        "${BINARY_DIR}/host")
    execute_process(COMMAND ${step} RESULT_VARIABLE status OUTPUT_VARIABLE output ERROR_VARIABLE output)
    if(NOT status EQUAL 0)
        message(FATAL_ERROR "'${step}' ended with ${status}:\n${output}")
    endif()
endforeach()
