# One library a folder; its links are the folders that it includes from, no more and no fewer
# (tests/layers holds both to it).
function(store_library layer)
  cmake_parse_arguments(LIB "" "" "SOURCES;LINKS" ${ARGN})
  add_library(store_${layer} STATIC ${LIB_SOURCES})
  target_include_directories(store_${layer} PUBLIC ${PROJECT_SOURCE_DIR})
  target_link_libraries(store_${layer} PUBLIC ${LIB_LINKS})
  target_precompile_headers(store_${layer} PRIVATE ${PROJECT_SOURCE_DIR}/cmake/standard_headers.h)
endfunction()

# A gtest program, run as one ctest entry. A test that needs the database starts its own server, so
# those take turns on the machine instead of starving each other.
function(store_test name)
  cmake_parse_arguments(T "DATABASE" "" "SOURCES;LIBS" ${ARGN})
  add_executable(${name} ${T_SOURCES})
  target_include_directories(${name} PRIVATE ${PROJECT_SOURCE_DIR})
  target_link_libraries(${name} PRIVATE ${T_LIBS} GTest::gtest GTest::gtest_main)
  target_precompile_headers(${name} REUSE_FROM store_test_headers)
  add_test(NAME ${name} COMMAND ${name})
  set_tests_properties(${name} PROPERTIES TIMEOUT 300 ENVIRONMENT
                       "QT_QPA_PLATFORM=offscreen;LC_ALL=C.UTF-8")
  if(T_DATABASE)
    set_tests_properties(${name} PROPERTIES RESOURCE_LOCK database)
  endif()
endfunction()

# The same for tests at real widgets, which share a main of their own and the screen of a store.
function(store_widget_test name)
  cmake_parse_arguments(T "DATABASE" "" "SOURCES;LIBS" ${ARGN})
  add_executable(${name} ${T_SOURCES} ${PROJECT_SOURCE_DIR}/tests/support/widget_test_main.cpp)
  target_include_directories(${name} PRIVATE ${PROJECT_SOURCE_DIR})
  target_link_libraries(${name} PRIVATE ${T_LIBS} store_ui Qt6::Test GTest::gtest)
  target_precompile_headers(${name} PRIVATE ${PROJECT_SOURCE_DIR}/tests/support/widget_test_headers.h)
  add_test(NAME ${name} COMMAND ${name})
  set_tests_properties(${name} PROPERTIES TIMEOUT 600 ENVIRONMENT
                       "QT_QPA_PLATFORM=offscreen:configfile=${PROJECT_SOURCE_DIR}/tests/support/screen.json;LC_ALL=C.UTF-8")
  if(T_DATABASE)
    set_tests_properties(${name} PROPERTIES RESOURCE_LOCK database)
  endif()
endfunction()
