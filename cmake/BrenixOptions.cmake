# Compiler settings that every target of the project shares.
option(BRENIX_BENCH "Build the benchmarks" OFF)
option(BRENIX_WEB "Build the web engine module" ON)
option(BRENIX_SANITIZE "Build with the address and undefined behaviour sanitizers" OFF)
option(BRENIX_FUZZ "Build the fuzz targets (clang)" OFF)

set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_AUTOMOC ON)
set(CMAKE_EXPORT_COMPILE_COMMANDS ON)
# The program finds its data and its web module beside itself, in the build tree as when installed.
set(CMAKE_RUNTIME_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}/bin)
set(CMAKE_LIBRARY_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}/bin)

find_program(CCACHE_PROGRAM ccache)
if(CCACHE_PROGRAM)
    # Paths are hashed relative to the checkout, so that clones and work trees share what is compiled.
    set(CMAKE_CXX_COMPILER_LAUNCHER
        ${CMAKE_COMMAND} -E env CCACHE_SLOPPINESS=pch_defines,time_macros
        CCACHE_BASEDIR=${CMAKE_SOURCE_DIR} CCACHE_NOHASHDIR=1 ${CCACHE_PROGRAM})
endif()

function(brenix_target target)
    target_include_directories(${target} PUBLIC ${CMAKE_SOURCE_DIR})
    target_compile_options(${target} PRIVATE -Wall -Wextra -Wpedantic -Werror)
    target_compile_definitions(${target} PRIVATE
        QT_NO_CAST_FROM_ASCII QT_NO_CAST_TO_ASCII QT_NO_FOREACH
        QT_DISABLE_DEPRECATED_BEFORE=0x060400)
    set_target_properties(${target} PROPERTIES POSITION_INDEPENDENT_CODE ON)
    if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
        # ccache cannot cache a precompiled header without it
        target_compile_options(${target} PRIVATE -fpch-preprocess)
    endif()
    if(BRENIX_SANITIZE)
        target_compile_options(${target} PRIVATE
            -fsanitize=address,undefined -fno-sanitize-recover=all -fno-omit-frame-pointer)
        target_link_options(${target} PUBLIC -fsanitize=address,undefined)
    endif()
    if(BRENIX_FUZZ)
        target_compile_options(${target} PRIVATE -fsanitize=fuzzer-no-link,address)
        target_link_options(${target} PUBLIC -fsanitize=address)
    endif()
endfunction()

# A part of the program that is loaded when it is first needed.
function(brenix_module target)
    brenix_target(${target})
    set_target_properties(${target} PROPERTIES PREFIX "")
    install(TARGETS ${target} LIBRARY DESTINATION lib/brenix)
endfunction()
