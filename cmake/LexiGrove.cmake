# What every target of the project shares.

include(GoogleTest OPTIONAL)

add_library(lexigrove_flags INTERFACE)
target_compile_features(lexigrove_flags INTERFACE cxx_std_20)
target_include_directories(lexigrove_flags INTERFACE ${CMAKE_SOURCE_DIR})
target_compile_options(lexigrove_flags INTERFACE
    -Wall -Wextra -Wpedantic -Wshadow -Wconversion -Wsign-conversion -Wnon-virtual-dtor -Woverloaded-virtual)
if(LEXIGROVE_WERROR)
    target_compile_options(lexigrove_flags INTERFACE -Werror)
endif()
if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU" AND CMAKE_CXX_COMPILER_VERSION VERSION_LESS 13)
    # When optimizing, this compiler reports false overlaps and unset values in its own strings and optionals.
    target_compile_options(lexigrove_flags INTERFACE
        -Wno-unknown-warning-option -Wno-restrict -Wno-maybe-uninitialized) # the first is for tools that know none of them
endif()
if(LEXIGROVE_SANITIZE)
    # The web engine's objects carry no type information that could be checked.
    set(sanitizers -fsanitize=address,undefined -fno-sanitize=vptr -fno-sanitize-recover=all -fno-omit-frame-pointer)
    target_compile_options(lexigrove_flags INTERFACE ${sanitizers})
    target_link_options(lexigrove_flags INTERFACE ${sanitizers})
endif()

if(LEXIGROVE_FUZZ)
    target_compile_options(lexigrove_flags INTERFACE -fsanitize=fuzzer-no-link)
endif()

# lexigrove_library(<folder> SOURCES <files> [DEPENDS <lower floors>])
# A folder is a static library of the folder's name. Where CMAKE_UNITY_BUILD is on, the files of one folder are compiled
# in one piece, so that every header is read once a folder; a name in an unnamed namespace is therefore unique in its
# folder.
function(lexigrove_library name)
    cmake_parse_arguments(PARSE_ARGV 1 arg "" "" "SOURCES;DEPENDS")
    add_library(${name} STATIC ${arg_SOURCES})
    foreach(source IN LISTS arg_SOURCES)
        cmake_path(GET source PARENT_PATH folder)
        set_source_files_properties(${source} PROPERTIES UNITY_GROUP "${name}/${folder}")
    endforeach()
    set_target_properties(${name} PROPERTIES UNITY_BUILD_MODE GROUP)
    target_link_libraries(${name} PUBLIC lexigrove_flags ${arg_DEPENDS})
endfunction()

# lexigrove_test(<name> SOURCES <files> DEPENDS <libraries> [TIMEOUT <seconds>])
# One test program of GoogleTest cases, each registered with ctest.
function(lexigrove_test name)
    cmake_parse_arguments(PARSE_ARGV 1 arg "" "TIMEOUT" "SOURCES;DEPENDS")
    if(NOT arg_TIMEOUT)
        set(arg_TIMEOUT 300)
    endif()
    add_executable(${name} ${arg_SOURCES})
    set_target_properties(${name} PROPERTIES RUNTIME_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}/tests)
    if(CMAKE_UNITY_BUILD AND CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
        target_compile_options(${name} PRIVATE -Wno-subobject-linkage) # of fixtures in files that count as included
    endif()
    target_link_libraries(${name} PRIVATE ${arg_DEPENDS} GTest::gmock GTest::gtest_main)
    gtest_discover_tests(${name} DISCOVERY_TIMEOUT 60 PROPERTIES TIMEOUT ${arg_TIMEOUT})
endfunction()
