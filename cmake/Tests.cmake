# Tests are GoogleTest executables; CTest lists every test by its own name.

find_package(GTest REQUIRED)
include(GoogleTest)

# styleproperties_add_test(NAME SOURCES file... [LINK target...] [ENVIRONMENT name=value...])
function(styleproperties_add_test name)
    cmake_parse_arguments(PARSE_ARGV 1 arg "" "" "SOURCES;LINK;ENVIRONMENT")
    add_executable(${name} ${arg_SOURCES})
    styleproperties_target(${name})
    target_link_libraries(${name} PRIVATE ${arg_LINK} GTest::gmock_main)
    gtest_discover_tests(${name} DISCOVERY_TIMEOUT 60 PROPERTIES ENVIRONMENT "${arg_ENVIRONMENT}")
endfunction()
