# How a test program is made. Every program's cases are listed one by one, and a program without a case
# fails, so an empty run cannot pass.

find_package(GTest REQUIRED)
include(GoogleTest)

set(CALVORO_TESTS_ROOT "${CALVORO_INCLUDE_ROOTS}/tests")
file(MAKE_DIRECTORY "${CALVORO_TESTS_ROOT}")
file(CREATE_LINK "${CMAKE_CURRENT_SOURCE_DIR}/tests" "${CALVORO_TESTS_ROOT}/tests" SYMBOLIC)

# RapidCheck prints nothing but its verdict; its flags come from the environment.
find_package(rapidcheck REQUIRED)

#   calvoro_test(calendar_test SOURCES EuroDateTest.cpp ... MAY_USE calendar [LIBRARIES ...] [TIMEOUT s])
function(calvoro_test name)
  cmake_parse_arguments(ARG "" "TIMEOUT" "SOURCES;MAY_USE;LIBRARIES" ${ARGN})
  if(NOT ARG_TIMEOUT)
    set(ARG_TIMEOUT 120)
  endif()
  add_executable(${name} ${ARG_SOURCES})
  target_link_libraries(${name} PRIVATE calvoro_options GTest::gtest GTest::gtest_main ${ARG_LIBRARIES})
  target_include_directories(${name} PRIVATE "${CALVORO_TESTS_ROOT}")
  target_compile_definitions(${name} PRIVATE CALVORO_SOURCE_DIR="${CMAKE_SOURCE_DIR}")
  calvoro_use(${name} ${ARG_MAY_USE})
  gtest_discover_tests(${name} DISCOVERY_TIMEOUT 60 PROPERTIES TIMEOUT ${ARG_TIMEOUT})
endfunction()

#   calvoro_window_test(frmMainTest SOURCES ... MAY_USE ...)   one Qt Test program, run offscreen
function(calvoro_window_test name)
  cmake_parse_arguments(ARG "" "TIMEOUT" "SOURCES;MAY_USE;LIBRARIES" ${ARGN})
  if(NOT ARG_TIMEOUT)
    set(ARG_TIMEOUT 300)
  endif()
  find_package(Qt6 6.4 REQUIRED COMPONENTS Test)
  add_executable(${name} ${ARG_SOURCES})
  set_target_properties(${name} PROPERTIES AUTOMOC ON)
  target_link_libraries(${name} PRIVATE calvoro_options calvoro_qt_options Qt6::Test Qt6::Widgets ${ARG_LIBRARIES})
  target_include_directories(${name} PRIVATE "${CALVORO_TESTS_ROOT}")
  target_compile_definitions(${name} PRIVATE CALVORO_SOURCE_DIR="${CMAKE_SOURCE_DIR}")
  calvoro_use(${name} ${ARG_MAY_USE})
  add_test(NAME ${name} COMMAND ${name})
  set_tests_properties(${name} PROPERTIES
    TIMEOUT ${ARG_TIMEOUT}
    ENVIRONMENT "QT_QPA_PLATFORM=offscreen;LC_ALL=C.UTF-8;QT_SCALE_FACTOR=1")
endfunction()
