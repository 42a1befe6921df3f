# Tests are GoogleTest executables; CTest lists every test by its own name, and runs it in a process of its own.

find_package(GTest REQUIRED)
include(GoogleTest)

# The frameworks' headers are half of what a test's source compiles, so they are compiled once for all tests. Not where
# ccache is: it keeps whole sources, and then each source shows that it includes what it uses.
if(STYLEPROPERTIES_CCACHE)
    set(without_ccache OFF)
else()
    set(without_ccache ON)
endif()
option(STYLEPROPERTIES_PRECOMPILED_TEST_HEADERS "Compile the headers of the test framework once" ${without_ccache})

if(STYLEPROPERTIES_PRECOMPILED_TEST_HEADERS)
    add_library(test_headers OBJECT ${PROJECT_SOURCE_DIR}/tests/Headers.cpp)
    styleproperties_target(test_headers)
    target_link_libraries(test_headers PRIVATE GTest::gmock)
    target_precompile_headers(test_headers PRIVATE <gmock/gmock.h> <gtest/gtest.h>)
endif()

# styleproperties_precompiled_headers(TARGET): for a target that consists of tests.
function(styleproperties_precompiled_headers target)
    if(STYLEPROPERTIES_PRECOMPILED_TEST_HEADERS)
        target_precompile_headers(${target} REUSE_FROM test_headers)
        # Programs are compiled as libraries are: what is compiled once for all must suit all.
        target_compile_options(${target} PRIVATE ${CMAKE_CXX_COMPILE_OPTIONS_PIC})
    endif()
endfunction()

option(STYLEPROPERTIES_TESTS_BY_PROGRAM
    "Run all tests of a program in one process: sanitized programs take longer to start than most tests take" OFF)

# styleproperties_list_tests(TARGET [TEST_PREFIX prefix] [ENVIRONMENT name=value...])
function(styleproperties_list_tests target)
    cmake_parse_arguments(PARSE_ARGV 1 arg "" "TEST_PREFIX" "ENVIRONMENT")
    if(STYLEPROPERTIES_TESTS_BY_PROGRAM)
        add_test(NAME ${target} COMMAND ${target})
        set_tests_properties(${target} PROPERTIES ENVIRONMENT "${arg_ENVIRONMENT}")
    else()
        gtest_discover_tests(${target} TEST_PREFIX "${arg_TEST_PREFIX}" DISCOVERY_TIMEOUT 60
            PROPERTIES ENVIRONMENT "${arg_ENVIRONMENT}")
    endif()
endfunction()

# styleproperties_add_test(NAME SOURCES file... [LINK target...] [ENVIRONMENT name=value...])
function(styleproperties_add_test name)
    cmake_parse_arguments(PARSE_ARGV 1 arg "" "" "SOURCES;LINK;ENVIRONMENT")
    add_executable(${name} ${arg_SOURCES})
    styleproperties_target(${name})
    target_link_libraries(${name} PRIVATE ${arg_LINK} GTest::gmock_main)
    styleproperties_precompiled_headers(${name})
    styleproperties_list_tests(${name} ENVIRONMENT ${arg_ENVIRONMENT})
endfunction()
