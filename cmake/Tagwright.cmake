# The build's own vocabulary: one set of flags for everything, one library per folder, one test
# program per folder.

add_library(tagwright_flags INTERFACE)
target_include_directories(tagwright_flags INTERFACE ${PROJECT_SOURCE_DIR}/src)
target_compile_options(
  tagwright_flags
  INTERFACE -Wall
            -Wextra
            -Wpedantic
            -Wshadow
            -Wnon-virtual-dtor
            -Woverloaded-virtual
            -Wcast-align
            -Werror)
# GCC 12 takes some string concatenations for overlapping copies; later compilers know better.
if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU" AND CMAKE_CXX_COMPILER_VERSION VERSION_LESS 13)
  target_compile_options(tagwright_flags INTERFACE -Wno-restrict)
endif()
if(TAGWRIGHT_SANITIZE OR TAGWRIGHT_FUZZ)
  target_compile_options(tagwright_flags INTERFACE -fsanitize=address,undefined
                                                   -fno-sanitize-recover=all -fno-omit-frame-pointer)
  target_link_options(tagwright_flags INTERFACE -fsanitize=address,undefined)
endif()
if(TAGWRIGHT_FUZZ)
  target_compile_options(tagwright_flags INTERFACE -fsanitize=fuzzer-no-link)
endif()

# tagwright_library(name SOURCES a.cpp b.cpp DEPENDS common platform)
# The static library of one folder. It may include its own folder and those named here.
function(tagwright_library name)
  cmake_parse_arguments(ARG "" "" "SOURCES;DEPENDS" ${ARGN})
  add_library(${name} STATIC ${ARG_SOURCES})
  target_link_libraries(${name} PUBLIC tagwright_flags ${ARG_DEPENDS})
endfunction()

# tagwright_test(name SOURCES a_test.cpp DEPENDS document LIMIT 30)
# A GoogleTest program with the shared test support, run without a display. Each of its tests is one
# of ctest's; names with Long_ are for the long run only. A test that waits for something, a window, a
# queue or another process, would wait for ever when that does not come: LIMIT is how many seconds
# one may take, some ten times what it needs on a busy machine. The sanitizers make it slower.
function(tagwright_test name)
  cmake_parse_arguments(ARG "" "LIMIT" "SOURCES;DEPENDS" ${ARGN})
  add_executable(${name} ${ARG_SOURCES})
  target_link_libraries(${name} PRIVATE ${ARG_DEPENDS} test_support GTest::gtest)
  target_include_directories(${name} PRIVATE ${PROJECT_SOURCE_DIR}/tests)
  # Tests are compiled more often than their microseconds count.
  target_compile_options(${name} PRIVATE $<$<CONFIG:Release>:-O1>)
  set(long_limit 600)
  if(NOT ARG_LIMIT)
    tagwright_discover(${name} "*" ${long_limit})
    return()
  endif()
  if(TAGWRIGHT_SANITIZE)
    math(EXPR ARG_LIMIT "${ARG_LIMIT} * 3")
  endif()
  tagwright_discover(${name} "-*Long_*" ${ARG_LIMIT})
  tagwright_discover(${name} "*Long_*" ${long_limit})
endfunction()

# tagwright_discover(name filter seconds): each test that the filter names is one of ctest's.
function(tagwright_discover name filter seconds)
  gtest_discover_tests(
    ${name}
    TEST_FILTER "${filter}"
    DISCOVERY_MODE PRE_TEST
    DISCOVERY_TIMEOUT 60
    PROPERTIES ENVIRONMENT "QT_QPA_PLATFORM=offscreen" TIMEOUT ${seconds})
endfunction()

# tagwright_fuzz(name SOURCES a_fuzz.cpp DEPENDS document)
# A libFuzzer program, part of the target fuzz_targets. Its seeds are the files that
# tests/fuzz/seeds/<name> holds, if there are any.
function(tagwright_fuzz name)
  cmake_parse_arguments(ARG "" "" "SOURCES;DEPENDS" ${ARGN})
  add_executable(${name} ${ARG_SOURCES})
  target_link_libraries(${name} PRIVATE ${ARG_DEPENDS} tagwright_flags)
  target_link_options(${name} PRIVATE -fsanitize=fuzzer)
  set_target_properties(${name} PROPERTIES RUNTIME_OUTPUT_DIRECTORY ${PROJECT_BINARY_DIR}/fuzz)
  add_dependencies(fuzz_targets ${name})
endfunction()

# tagwright_benchmark(name SOURCES a_bench.cpp DEPENDS document)
# A Google Benchmark program; the script bench runs every one.
function(tagwright_benchmark name)
  cmake_parse_arguments(ARG "" "" "SOURCES;DEPENDS" ${ARGN})
  add_executable(${name} ${ARG_SOURCES})
  target_link_libraries(${name} PRIVATE ${ARG_DEPENDS} tagwright_flags benchmark::benchmark)
  set_target_properties(${name} PROPERTIES RUNTIME_OUTPUT_DIRECTORY
                                           ${PROJECT_BINARY_DIR}/benchmarks)
endfunction()
