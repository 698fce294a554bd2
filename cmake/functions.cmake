# padral_together(name file...): compiles the sources of a target as one, with PADRAL_UNITY. Most of the
# time of compiling goes into the same headers. Sources whose names begin with the same word of APART
# are one of their own: they give the same names to different things than the others.
function(padral_together name)
  cmake_parse_arguments(ARG "" "" "SOURCES;APART" ${ARGN})
  if(NOT PADRAL_UNITY)
    return()
  endif()
  set_target_properties(${name} PROPERTIES UNITY_BUILD ON UNITY_BUILD_MODE GROUP)
  foreach(source ${ARG_SOURCES})
    set(group most)
    foreach(prefix ${ARG_APART})
      string(FIND ${source} ${prefix} place)
      if(place EQUAL 0)
        set(group ${prefix})
      endif()
    endforeach()
    set_source_files_properties(${source} PROPERTIES UNITY_GROUP ${group})
  endforeach()
endfunction()

# padral_library(name SOURCES ... LINKS ... [APART ...]): a static library of this project.
function(padral_library name)
  cmake_parse_arguments(ARG "" "" "SOURCES;LINKS;APART" ${ARGN})
  add_library(${name} STATIC ${ARG_SOURCES})
  target_include_directories(${name} PUBLIC ${PROJECT_SOURCE_DIR}/src)
  target_link_libraries(${name} PUBLIC padral_flags ${ARG_LINKS})
  padral_together(${name} SOURCES ${ARG_SOURCES} APART ${ARG_APART})
endfunction()

# Tests are compiled for speed of compiling: they run once. What the sanitizers look for is in the
# program, which they see whole; in the tests' own code they would cost half of the time.
set(PADRAL_TEST_OPTIONS -O0 -g1)
if(PADRAL_SANITIZE)
  list(APPEND PADRAL_TEST_OPTIONS -fno-sanitize=all)
endif()

# What most tests include, compiled once: one set for logic, one for those that show windows. Only the
# compiler takes it; every test names what it needs.
function(padral_test_headers)
  foreach(set logic windows)
    file(CONFIGURE OUTPUT ${PROJECT_BINARY_DIR}/test_headers/${set}.cpp CONTENT "// Only headers.\n")
    add_library(test_headers_${set} OBJECT ${PROJECT_BINARY_DIR}/test_headers/${set}.cpp)
    set_target_properties(test_headers_${set} PROPERTIES AUTOMOC OFF AUTORCC OFF)
    target_compile_options(test_headers_${set} PRIVATE ${PADRAL_TEST_OPTIONS})
    target_precompile_headers(test_headers_${set} PRIVATE
      <gmock/gmock.h> <QString> <QStringList> <QVariant> <functional> <memory> <vector>)
  endforeach()
  target_link_libraries(test_headers_logic PRIVATE padral_flags Qt6::Core GTest::gmock)
  # Without Qt6::Test, whose definitions are others in every folder.
  target_link_libraries(test_headers_windows PRIVATE padral_flags Qt6::Widgets GTest::gmock)
  target_precompile_headers(test_headers_windows PRIVATE
    <QApplication> <QCheckBox> <QComboBox> <QLabel> <QLineEdit> <QPushButton>)
endfunction()

# padral_test(name SOURCES ... LINKS ... [APART ...]): a GoogleTest program run by CTest, one entry a test, or one
# for the program with PADRAL_WHOLE_TESTS, where each start of a process costs much.
function(padral_test name)
  cmake_parse_arguments(ARG "" "" "SOURCES;LINKS;APART" ${ARGN})
  add_executable(${name} ${ARG_SOURCES})
  target_include_directories(${name} PRIVATE ${PROJECT_SOURCE_DIR}/tests)
  target_link_libraries(${name} PRIVATE padral_flags ${ARG_LINKS} GTest::gmock)
  target_compile_options(${name} PRIVATE ${PADRAL_TEST_OPTIONS})
  target_compile_definitions(${name} PRIVATE
    PADRAL_SOURCE_DIR="${PROJECT_SOURCE_DIR}" PADRAL_BINARY_DIR="${PROJECT_BINARY_DIR}")
  if(PADRAL_TEST_HEADERS)
    list(FIND ARG_LINKS Qt6::Test windows)
    if(windows LESS 0)
      target_precompile_headers(${name} REUSE_FROM test_headers_logic)
    else()
      target_precompile_headers(${name} REUSE_FROM test_headers_windows)
    endif()
  endif()
  padral_together(${name} SOURCES ${ARG_SOURCES} APART ${ARG_APART})
  if(PADRAL_WHOLE_TESTS)
    add_test(NAME ${name} COMMAND ${name})
    set_tests_properties(${name} PROPERTIES ENVIRONMENT "QT_QPA_PLATFORM=offscreen" TIMEOUT 900)
  else()
    gtest_discover_tests(${name} DISCOVERY_MODE PRE_TEST NO_PRETTY_VALUES
      PROPERTIES ENVIRONMENT "QT_QPA_PLATFORM=offscreen" TIMEOUT 120)
  endif()
endfunction()
