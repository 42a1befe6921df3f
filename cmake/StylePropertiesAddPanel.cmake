# styleproperties_add_panel(NAME SOURCES file... [TARGET target]): the panel NAME as a module that programs load.
#
# Makes the module NAME.so and copies its description, NAME.panel.xml of the current source folder, beside it, both
# into the folder "panels" of the project's build folder: what `styleprops --panels` takes. The target is called NAME
# unless TARGET says otherwise. It is linked to the library and to the base of table-driven panels, and exports nothing but the
# version that it was built for.
#
# What the panel needs of the host is left to the host's own library, as in the library itself. Where a linker wants
# every symbol resolved, STYLEPROPERTIES_HOST_LIBRARY names that library.

function(styleproperties_add_panel name)
    cmake_parse_arguments(PARSE_ARGV 1 arg "" "TARGET" "SOURCES")
    set(usage "expected styleproperties_add_panel(NAME SOURCES file... [TARGET target])")
    if(NOT arg_SOURCES)
        message(FATAL_ERROR "The panel \"${name}\" has no sources; ${usage}")
    endif()
    if(arg_UNPARSED_ARGUMENTS)
        message(FATAL_ERROR "The panel \"${name}\" takes no \"${arg_UNPARSED_ARGUMENTS}\"; ${usage}")
    endif()
    set(description ${CMAKE_CURRENT_SOURCE_DIR}/${name}.panel.xml)
    if(NOT EXISTS ${description})
        message(FATAL_ERROR "The panel \"${name}\" has no description; expected ${description}")
    endif()
    set(target ${name})
    if(arg_TARGET)
        set(target ${arg_TARGET})
    endif()

    add_library(${target} MODULE ${arg_SOURCES})
    target_link_libraries(${target} PRIVATE StyleProperties::Panels ${STYLEPROPERTIES_HOST_LIBRARY})
    set_target_properties(${target} PROPERTIES
        PREFIX ""
        OUTPUT_NAME ${name}
        LIBRARY_OUTPUT_DIRECTORY ${PROJECT_BINARY_DIR}/panels
        CXX_VISIBILITY_PRESET hidden
        VISIBILITY_INLINES_HIDDEN ON)
    # Function-local statics of templates must not keep a module in memory after it was unloaded.
    target_compile_options(${target} PRIVATE $<$<CXX_COMPILER_ID:GNU>:-fno-gnu-unique>)
    if(UNIX AND NOT APPLE)
        # Beside this file as installed, and in its own folder in the project's tree.
        find_file(map PanelExports.map NO_CACHE REQUIRED NO_DEFAULT_PATH
            PATHS ${CMAKE_CURRENT_FUNCTION_LIST_DIR} ${CMAKE_CURRENT_FUNCTION_LIST_DIR}/../panels)
        target_link_options(${target} PRIVATE LINKER:--version-script=${map})
        set_property(TARGET ${target} APPEND PROPERTY LINK_DEPENDS ${map})
    endif()
    configure_file(${description} ${PROJECT_BINARY_DIR}/panels/${name}.panel.xml COPYONLY)
endfunction()
