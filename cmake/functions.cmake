# padral_library(name SOURCES ... LINKS ...): a static library of this project.
function(padral_library name)
  cmake_parse_arguments(ARG "" "" "SOURCES;LINKS" ${ARGN})
  add_library(${name} STATIC ${ARG_SOURCES})
  target_include_directories(${name} PUBLIC ${PROJECT_SOURCE_DIR}/src)
  target_link_libraries(${name} PUBLIC padral_flags ${ARG_LINKS})
endfunction()

# padral_test(name SOURCES ... LINKS ...): a GoogleTest program run by CTest, one entry a test.
function(padral_test name)
  cmake_parse_arguments(ARG "" "" "SOURCES;LINKS" ${ARGN})
  add_executable(${name} ${ARG_SOURCES})
  target_include_directories(${name} PRIVATE ${PROJECT_SOURCE_DIR}/tests)
  target_link_libraries(${name} PRIVATE padral_flags ${ARG_LINKS} GTest::gmock)
  target_compile_definitions(${name} PRIVATE
    PADRAL_SOURCE_DIR="${PROJECT_SOURCE_DIR}" PADRAL_BINARY_DIR="${PROJECT_BINARY_DIR}")
  gtest_discover_tests(${name} DISCOVERY_MODE PRE_TEST NO_PRETTY_VALUES
    PROPERTIES ENVIRONMENT "QT_QPA_PLATFORM=offscreen" TIMEOUT 120)
endfunction()
