# What every target of the project has in common. Properties hang on targets, never on directories.

# styleproperties_target(TARGET): the language level, the include root, hidden visibility and the warnings.
function(styleproperties_target target)
    target_compile_features(${target} PUBLIC cxx_std_20)
    target_include_directories(${target} PUBLIC $<BUILD_INTERFACE:${PROJECT_SOURCE_DIR}>)
    set_target_properties(${target} PROPERTIES
        CXX_EXTENSIONS OFF
        CXX_VISIBILITY_PRESET hidden
        VISIBILITY_INLINES_HIDDEN ON
        POSITION_INDEPENDENT_CODE ON)
    if(MSVC)
        target_compile_options(${target} PRIVATE /W4 $<$<BOOL:${STYLEPROPERTIES_WARNINGS_AS_ERRORS}>:/WX>)
    else()
        target_compile_options(${target} PRIVATE
            -Wall -Wextra -Wpedantic -Wshadow -Wconversion -Wsign-conversion -Wold-style-cast -Woverloaded-virtual
            -Wnon-virtual-dtor -Wcast-qual -Wformat=2 -Wundef
            $<$<BOOL:${STYLEPROPERTIES_WARNINGS_AS_ERRORS}>:-Werror>
            # Function-local statics of templates must not pin a module in memory after it was unloaded.
            $<$<CXX_COMPILER_ID:GNU>:-fno-gnu-unique>)
    endif()
endfunction()
