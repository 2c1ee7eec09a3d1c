# orv_add_suite(NAME <folder.Subject> SOURCES <file>... [LIBS <target>...] [DEPENDS <target>...] [XVFB] [TIMEOUT <seconds>]
#               [SHARDS <count>])
#
# Adds one GoogleTest program and one ctest entry of the same name. Suites run offscreen; XVFB gives a suite a virtual
# display with OpenGL. DEPENDS names targets that the suite starts or loads at run time. SHARDS runs the
# tests in so many processes at once, for suites that do little but wait.
find_package(GTest REQUIRED)

# What a suite sees of the system's language, whoever runs it: none. A test of another language sets that itself.
set(ORV_TEST_LANGUAGE "LC_ALL=C.UTF-8;LANGUAGE=")

function(orv_add_suite)
  cmake_parse_arguments(SUITE "XVFB" "NAME;TIMEOUT;SHARDS" "SOURCES;LIBS;DEPENDS" ${ARGN})
  if(NOT BUILD_TESTING)
    return()
  endif()
  string(REPLACE "." "_" target "test_${SUITE_NAME}")
  add_executable(${target} ${SUITE_SOURCES})
  target_link_libraries(${target} PRIVATE orv::warnings GTest::gmock GTest::gtest GTest::gtest_main ${SUITE_LIBS})
  target_include_directories(${target} PRIVATE ${CMAKE_SOURCE_DIR} ${CMAKE_SOURCE_DIR}/tests)
  target_compile_definitions(${target} PRIVATE
    ORV_SHARED_DIR="${ORV_SHARED_DIR}" ORV_SOURCE_DIR="${CMAKE_SOURCE_DIR}" ORV_BINARY_DIR="${CMAKE_BINARY_DIR}")
  set_target_properties(${target} PROPERTIES RUNTIME_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}/tests)
  if(SUITE_DEPENDS)
    add_dependencies(${target} ${SUITE_DEPENDS})
  endif()
  if(SUITE_XVFB)
    add_test(NAME ${SUITE_NAME}
      COMMAND ${CMAKE_SOURCE_DIR}/tests/with-display $<TARGET_FILE:${target}>)
    set(environment "LIBGL_ALWAYS_SOFTWARE=1;QT_QPA_PLATFORM=xcb")
  else()
    if(SUITE_SHARDS)
      add_test(NAME ${SUITE_NAME} COMMAND ${CMAKE_SOURCE_DIR}/tests/in-shards ${SUITE_SHARDS} $<TARGET_FILE:${target}>)
    else()
      add_test(NAME ${SUITE_NAME} COMMAND ${target})
    endif()
    set(environment "QT_QPA_PLATFORM=offscreen")
  endif()
  if(NOT SUITE_TIMEOUT)
    set(SUITE_TIMEOUT 300)
  endif()
  set_tests_properties(${SUITE_NAME} PROPERTIES ENVIRONMENT "${environment};${ORV_TEST_LANGUAGE}" TIMEOUT ${SUITE_TIMEOUT})
endfunction()
