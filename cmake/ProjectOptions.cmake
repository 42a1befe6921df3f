# What every target of the project has in common. Properties hang on targets, never on directories.

set(STYLEPROPERTIES_SANITIZERS "" CACHE STRING "Sanitizers to build with, comma-separated (address,undefined)")
option(STYLEPROPERTIES_COVERAGE "Count the lines that run" OFF)
option(STYLEPROPERTIES_FUZZ "Instrument for libFuzzer, the address and the undefined behaviour sanitizer (Clang)" OFF)

if(STYLEPROPERTIES_FUZZ AND NOT CMAKE_CXX_COMPILER_ID MATCHES "Clang")
    message(FATAL_ERROR "STYLEPROPERTIES_FUZZ needs Clang; the preset fuzz chooses it.")
endif()

# styleproperties_target(TARGET): the language level, the include root, hidden visibility, warnings, instruments,
# hardening.
function(styleproperties_target target)
    target_compile_features(${target} PUBLIC cxx_std_20)
    target_include_directories(${target} PUBLIC $<BUILD_INTERFACE:${PROJECT_SOURCE_DIR}>)
    set_target_properties(${target} PROPERTIES
        CXX_EXTENSIONS OFF
        CXX_VISIBILITY_PRESET hidden
        VISIBILITY_INLINES_HIDDEN ON
        POSITION_INDEPENDENT_CODE ON)
    styleproperties_warnings(${target})
    styleproperties_instruments(${target})
    styleproperties_hardening(${target})
endfunction()

function(styleproperties_warnings target)
    if(MSVC)
        target_compile_options(${target} PRIVATE /W4 $<$<BOOL:${STYLEPROPERTIES_WARNINGS_AS_ERRORS}>:/WX>)
        return()
    endif()
    target_compile_options(${target} PRIVATE
        -Wall -Wextra -Wpedantic -Wshadow -Wconversion -Wsign-conversion -Wold-style-cast -Woverloaded-virtual
        -Wnon-virtual-dtor -Wcast-qual -Wformat=2 -Wundef
        $<$<BOOL:${STYLEPROPERTIES_WARNINGS_AS_ERRORS}>:-Werror>
        # GCC 12 at -O2 takes "literal" + std::string for copies that overlap; GCC 13 no longer does.
        $<$<AND:$<CXX_COMPILER_ID:GNU>,$<VERSION_LESS:$<CXX_COMPILER_VERSION>,13>>:-Wno-restrict>
        # Function-local statics of templates must not pin a module in memory after it was unloaded.
        $<$<CXX_COMPILER_ID:GNU>:-fno-gnu-unique>
        # Calls within a library stay there, as they do with Clang: what is exported may be inlined too.
        $<$<CXX_COMPILER_ID:GNU>:-fno-semantic-interposition>)
endfunction()

# Instruments are private: whoever links an instrumented library of ours is built by the same presets.
function(styleproperties_instruments target)
    if(STYLEPROPERTIES_SANITIZERS)
        set(flags -fsanitize=${STYLEPROPERTIES_SANITIZERS} -fno-sanitize-recover=all -fno-omit-frame-pointer)
        target_compile_options(${target} PRIVATE
            # GCC takes the instrumentation's own branches for ways on which values are not set.
            $<$<CXX_COMPILER_ID:GNU>:-Wno-maybe-uninitialized>
            # Types seen from two shared libraries do not compare well.
            $<$<CXX_COMPILER_ID:Clang,AppleClang>:-fno-sanitize=vptr,function>)
        target_compile_options(${target} PRIVATE ${flags})
        target_link_options(${target} PRIVATE ${flags})
    endif()
    if(STYLEPROPERTIES_COVERAGE)
        # Atomic counters: some tests run the same lines from many threads.
        target_compile_options(${target} PRIVATE --coverage $<$<CXX_COMPILER_ID:GNU>:-fprofile-update=atomic>)
        target_link_options(${target} PRIVATE --coverage)
    endif()
    if(STYLEPROPERTIES_FUZZ)
        # Numbers out of files must fit what they become. Types seen from two shared libraries do not compare well.
        set(flags -fsanitize=fuzzer-no-link,address,undefined,float-cast-overflow -fno-sanitize=vptr,function
            -fno-sanitize-recover=all -fno-omit-frame-pointer)
        target_compile_options(${target} PRIVATE ${flags})
        target_link_options(${target} PRIVATE ${flags})
    endif()
endfunction()

# What makes an overrun end the program instead of going on with somebody's drawing: checked copies, guarded stacks,
# tables of addresses that are read-only once a program runs, programs at random addresses. In what is optimised and
# carries no instruments alone, and private; tests/checks/hardened.sh looks at what came of it.
function(styleproperties_hardening target)
    if(MSVC OR STYLEPROPERTIES_SANITIZERS OR STYLEPROPERTIES_COVERAGE OR STYLEPROPERTIES_FUZZ)
        return()
    endif()
    set(optimised $<CONFIG:Release,RelWithDebInfo,MinSizeRel>)
    # Some compilers bring a level of their own, which must not be defined twice.
    target_compile_options(${target} PRIVATE
        "$<${optimised}:-U_FORTIFY_SOURCE;-D_FORTIFY_SOURCE=3;-fstack-protector-strong;-fno-plt>")
    if(UNIX AND NOT APPLE)
        target_link_options(${target} PRIVATE "$<${optimised}:LINKER:-z,relro;LINKER:-z,now>")
    endif()
    get_target_property(type ${target} TYPE)
    if(type STREQUAL "EXECUTABLE")
        target_link_options(${target} PRIVATE $<${optimised}:-pie>)
    endif()
endfunction()
