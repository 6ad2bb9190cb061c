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
            -Wnull-dereference
            -Werror)
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

# tagwright_test(name SOURCES a_test.cpp DEPENDS document)
# A GoogleTest program, with the shared test support, run without a display.
function(tagwright_test name)
  cmake_parse_arguments(ARG "" "" "SOURCES;DEPENDS" ${ARGN})
  add_executable(${name} ${ARG_SOURCES})
  target_link_libraries(${name} PRIVATE ${ARG_DEPENDS} test_support GTest::gtest)
  target_include_directories(${name} PRIVATE ${PROJECT_SOURCE_DIR}/tests)
  add_test(NAME ${name} COMMAND ${name})
  set_tests_properties(${name} PROPERTIES ENVIRONMENT "QT_QPA_PLATFORM=offscreen" TIMEOUT 600)
endfunction()
