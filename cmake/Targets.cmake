# SPDX-License-Identifier: MIT

# leafcast_library(NAME SOURCES ... LINKS ... [PRIVATE_LINKS ...])
# One static library a folder: target leafcast_NAME. LINKS is what its headers may include.
function(leafcast_library name)
  cmake_parse_arguments(ARG "" "" "SOURCES;LINKS;PRIVATE_LINKS" ${ARGN})
  add_library(leafcast_${name} STATIC ${ARG_SOURCES})
  target_include_directories(leafcast_${name} PUBLIC ${PROJECT_SOURCE_DIR}/src)
  target_link_libraries(leafcast_${name}
    PUBLIC ${ARG_LINKS}
    PRIVATE leafcast_compiler ${ARG_PRIVATE_LINKS})
endfunction()

# leafcast_ui_library(NAME ...), arguments as above: a folder with windows.
function(leafcast_ui_library name)
  leafcast_library(${name} ${ARGN})
  set_target_properties(leafcast_${name} PROPERTIES AUTOMOC ON)
  target_link_libraries(leafcast_${name} PUBLIC Qt6::Widgets)
endfunction()

# leafcast_test(NAME SOURCES ... LINKS ...)
# One GoogleTest program a folder of tests, with each of its cases known to CTest.
function(leafcast_test name)
  cmake_parse_arguments(ARG "" "" "SOURCES;LINKS" ${ARGN})
  add_executable(${name}_test ${ARG_SOURCES})
  set_target_properties(${name}_test PROPERTIES
    RUNTIME_OUTPUT_DIRECTORY ${PROJECT_BINARY_DIR}/tests)
  target_include_directories(${name}_test PRIVATE ${PROJECT_SOURCE_DIR}/src ${PROJECT_SOURCE_DIR}/tests)
  target_link_libraries(${name}_test PRIVATE ${ARG_LINKS} leafcast_test_main leafcast_compiler)
  gtest_discover_tests(${name}_test
    TEST_PREFIX "${name}/"
    DISCOVERY_MODE PRE_TEST
    # One variable a property: a list in one of them does not survive the discovery.
    PROPERTIES
      ENVIRONMENT "LEAFCAST_RESOURCES=${PROJECT_BINARY_DIR}/share/leafcast"
      ENVIRONMENT_MODIFICATION "LEAFCAST_PDF_SERVICE=set:${PROJECT_BINARY_DIR}/bin/leafcast-pdf")
endfunction()

# leafcast_ui_test(NAME ...), arguments as above: the tests of windows, which show themselves nowhere.
function(leafcast_ui_test name)
  leafcast_test(${name} ${ARGN})
  target_link_libraries(${name}_test PRIVATE leafcast_application_main Qt6::Test)
endfunction()
