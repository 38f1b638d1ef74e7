# Headers that nearly every source reads are compiled once: one set for the libraries, one for the tests. The desktop
# has its own, with Qt's.
function(add_shared_headers name)
  cmake_parse_arguments(arg "" "" "HEADERS;LINK;OPTIONS" ${ARGN})
  set(source ${CMAKE_BINARY_DIR}/${name}.cpp)
  file(CONFIGURE OUTPUT ${source} CONTENT "// Only a place for the precompiled headers to be made.\n")
  add_library(${name} OBJECT ${source})
  target_link_libraries(${name} PRIVATE ${arg_LINK} tarvane_options)
  target_compile_options(${name} PRIVATE ${arg_OPTIONS})
  target_precompile_headers(${name} PRIVATE ${arg_HEADERS})
endfunction()

# add_subsystem(NAME [LINK lib ...]): a static library tarvane_NAME of the sources in this folder.
function(add_subsystem name)
  cmake_parse_arguments(arg "" "" "LINK" ${ARGN})
  file(GLOB sources CONFIGURE_DEPENDS ${CMAKE_CURRENT_SOURCE_DIR}/*.cpp ${CMAKE_CURRENT_SOURCE_DIR}/*/*.cpp)
  list(FILTER sources EXCLUDE REGEX "/main\\.cpp$")
  add_library(tarvane_${name} STATIC ${sources})
  target_include_directories(tarvane_${name} PUBLIC ${CMAKE_SOURCE_DIR}/src)
  target_link_libraries(tarvane_${name} PUBLIC ${arg_LINK} PRIVATE tarvane_options)
  if(NOT name STREQUAL "desktop")
    target_precompile_headers(tarvane_${name} REUSE_FROM tarvane_library_headers)
  endif()
endfunction()

# What tests are made of needn't be fast, but quick to compile; what they test is as fast as it ships.
set(tarvane_test_flags $<$<CONFIG:Release,RelWithDebInfo>:-O0>)

# add_area_tests(NAME [LINK lib ...]): one test program of the *_test.cpp files in this folder.
function(add_area_tests name)
  cmake_parse_arguments(arg "" "" "LINK" ${ARGN})
  file(GLOB sources CONFIGURE_DEPENDS ${CMAKE_CURRENT_SOURCE_DIR}/*.cpp)
  add_executable(${name}_tests ${sources})
  target_include_directories(${name}_tests PRIVATE ${CMAKE_SOURCE_DIR}/src ${CMAKE_SOURCE_DIR}/tests)
  target_compile_definitions(${name}_tests PRIVATE
    TARVANE_TEST_DATA="${CMAKE_CURRENT_SOURCE_DIR}" TARVANE_DATA_DIR="${CMAKE_SOURCE_DIR}/data")
  target_compile_options(${name}_tests PRIVATE ${tarvane_test_flags})
  target_link_libraries(${name}_tests PRIVATE ${arg_LINK} tarvane_options GTest::gtest_main GTest::gmock)
  if(name STREQUAL "desktop")
    target_precompile_headers(${name}_tests PRIVATE <gmock/gmock.h> <gtest/gtest.h>
      ${CMAKE_SOURCE_DIR}/src/desktop/qt_headers.h)
  else()
    target_precompile_headers(${name}_tests REUSE_FROM tarvane_test_headers)
  endif()
  # Values aren't shown in the names: what a table prints of itself may be long, or no name at all.
  gtest_discover_tests(${name}_tests NO_PRETTY_VALUES DISCOVERY_TIMEOUT 60 PROPERTIES TIMEOUT 300)
endfunction()

# add_area_bench(NAME [LINK lib ...]): one benchmark program of the *.cpp files in this folder.
function(add_area_bench name)
  cmake_parse_arguments(arg "" "" "LINK" ${ARGN})
  file(GLOB sources CONFIGURE_DEPENDS ${CMAKE_CURRENT_SOURCE_DIR}/*.cpp)
  add_executable(${name}_bench ${sources})
  target_include_directories(${name}_bench PRIVATE ${CMAKE_SOURCE_DIR}/src ${CMAKE_SOURCE_DIR}/tests
    ${CMAKE_SOURCE_DIR}/bench)
  target_compile_definitions(${name}_bench PRIVATE TARVANE_DATA_DIR="${CMAKE_SOURCE_DIR}/data")
  target_link_libraries(${name}_bench PRIVATE ${arg_LINK} tarvane_options benchmark::benchmark)
endfunction()
