# The library's own tests run on every host that this project has: what they expect of the library must hold whatever
# host it works with.

# styleproperties_add_library_test(NAME SOURCES file... [LINK target...] [ENVIRONMENT name=value...])
function(styleproperties_add_library_test name)
    cmake_parse_arguments(PARSE_ARGV 1 arg "" "" "SOURCES;LINK;ENVIRONMENT")
    add_library(${name}_objects OBJECT ${arg_SOURCES})
    styleproperties_target(${name}_objects)
    target_link_libraries(${name}_objects PRIVATE ${arg_LINK} GTest::gmock)
    styleproperties_precompiled_headers(${name}_objects)

    styleproperties_add_test(${name}
        SOURCES $<TARGET_OBJECTS:${name}_objects>
        LINK ${arg_LINK} reference_host_pieces
        ENVIRONMENT ${arg_ENVIRONMENT})
    if(TARGET tiny_host_pieces)
        add_executable(${name}_on_tiny_host $<TARGET_OBJECTS:${name}_objects>)
        styleproperties_target(${name}_on_tiny_host)
        target_link_libraries(${name}_on_tiny_host PRIVATE ${arg_LINK} tiny_host_pieces GTest::gmock_main)
        styleproperties_list_tests(${name}_on_tiny_host TEST_PREFIX OnTinyHost. ENVIRONMENT ${arg_ENVIRONMENT})
    endif()
endfunction()
