include(GoogleTest)

# add_layer(NAME SOURCES file... [LINKS target...])
# A folder of the product as a static library `lp_NAME`.
function(add_layer name)
  cmake_parse_arguments(LAYER "" "" "SOURCES;LINKS" ${ARGN})
  add_library(lp_${name} STATIC ${LAYER_SOURCES})
  target_link_libraries(lp_${name} PUBLIC project_options ${LAYER_LINKS})
endfunction()

# add_layer_tests(NAME SOURCES file... [LINKS target...])
# The tests of a folder as one program `NAME_test`; each test of it is one ctest entry.
function(add_layer_tests name)
  cmake_parse_arguments(LAYER "" "" "SOURCES;LINKS" ${ARGN})
  add_executable(${name}_test ${LAYER_SOURCES})
  target_link_libraries(${name}_test PRIVATE project_options test_support ${LAYER_LINKS})
  set_target_properties(${name}_test PROPERTIES
    RUNTIME_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}/tests)
  gtest_discover_tests(${name}_test
    DISCOVERY_MODE PRE_TEST
    DISCOVERY_TIMEOUT 60
    TEST_PREFIX ${name}.
    PROPERTIES
      TIMEOUT 120
      ENVIRONMENT "CUPS_SERVER=/nonexistent/cups.sock")
endfunction()
