# cmake -D PROGRAM=... -D PROMISE=... -D TEST=Suite.Name -P ExpectCaught.cmake: runs a conformance test twice. With all
# promises kept it has to pass; with the one promise broken it has to fail by itself, and not in a crash.
function(run_test broken)
    execute_process(
        COMMAND ${CMAKE_COMMAND} -E env TINY_HOST_BREAKS=${broken} ${PROGRAM} --gtest_filter=${TEST} --gtest_brief=0
        OUTPUT_VARIABLE output ERROR_VARIABLE output RESULT_VARIABLE result TIMEOUT 60)
    set(output "${output}" PARENT_SCOPE)
    set(result "${result}" PARENT_SCOPE)
endfunction()

run_test("")
if(NOT result EQUAL 0 OR NOT output MATCHES "\\[  PASSED  \\] 1 test\\.")
    message(FATAL_ERROR "${TEST} does not pass on the host that keeps its promises:\n${output}")
endif()

run_test(${PROMISE})
string(REPLACE "." "\\." name "${TEST}")
if(NOT result EQUAL 1 OR NOT output MATCHES "\\[  FAILED  \\] ${name}")
    message(FATAL_ERROR "${TEST} does not notice that ${PROMISE} is broken (${result}):\n${output}")
endif()
