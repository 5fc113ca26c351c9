# How a test program is made. Every program's cases are listed one by one, and a program without a case
# fails, so an empty run cannot pass. Where every start of a program costs (on another processor or system,
# behind an emulator), all its cases are run at once.

if(CALVORO_GOOGLETEST_SOURCE)
  set(INSTALL_GTEST OFF)
  add_subdirectory("${CALVORO_GOOGLETEST_SOURCE}" googletest EXCLUDE_FROM_ALL)
else()
  find_package(GTest REQUIRED)
endif()
include(GoogleTest)
calvoro_precompile(tests HEADERS <gtest/gtest.h> LIBRARIES GTest::gtest)
if(CALVORO_BUILD_WINDOW)
  find_package(Qt6 6.4 REQUIRED COMPONENTS Test)
  # Rows of tests are full of literals.
  set(calvoro_window_test_options -UQT_NO_CAST_FROM_ASCII)
  calvoro_precompile(window_tests
    HEADERS <QtCore> <QAccessible> <QApplication> <QKeyEvent> <QLabel> <QLineEdit> <QPlainTextEdit> <QPushButton>
    LIBRARIES calvoro_qt_options Qt6::Widgets
    OPTIONS ${calvoro_window_test_options})
endif()

set(CALVORO_TESTS_ROOT "${CALVORO_INCLUDE_ROOTS}/tests")
file(MAKE_DIRECTORY "${CALVORO_TESTS_ROOT}")
file(CREATE_LINK "${CMAKE_CURRENT_SOURCE_DIR}/tests" "${CALVORO_TESTS_ROOT}/tests" SYMBOLIC)

# RapidCheck prints nothing but its verdict; its flags come from the environment.
if(CALVORO_TEST_PROPERTIES)
  find_package(rapidcheck REQUIRED)
endif()

# Without optimisation and with every branch counted a test takes its time.
set(CALVORO_TEST_PATIENCE 1)
if(CALVORO_COVERAGE)
  set(CALVORO_TEST_PATIENCE 5)
endif()

# Some sixty programs are linked with the same large libraries: with gold, where it is at hand, in a fifth of the time.
set(calvoro_test_linker)
if(NOT CMAKE_CROSSCOMPILING AND NOT CALVORO_SANITIZE AND NOT CALVORO_COVERAGE)
  include(CheckLinkerFlag)
  check_linker_flag(CXX -fuse-ld=gold CALVORO_LINKS_WITH_GOLD)
  if(CALVORO_LINKS_WITH_GOLD)
    set(calvoro_test_linker -fuse-ld=gold)
  endif()
endif()

#   calvoro_test(calendar_test SOURCES EuroDateTest.cpp ... MAY_USE calendar [POSIX ...] [LIBRARIES ...] [TIMEOUT s])
#
# POSIX lists sources whose tests need what Windows has not: signals, FIFOs, limits of a process, permissions of
# the owner and of others, files without a name, pipes and terminals made by hand.
function(calvoro_test name)
  cmake_parse_arguments(ARG "" "TIMEOUT" "SOURCES;POSIX;MAY_USE;LIBRARIES" ${ARGN})
  if(NOT WIN32)
    list(APPEND ARG_SOURCES ${ARG_POSIX})
  endif()
  if(NOT ARG_TIMEOUT)
    set(ARG_TIMEOUT 120)
  endif()
  math(EXPR ARG_TIMEOUT "${CALVORO_TEST_PATIENCE} * ${ARG_TIMEOUT}")
  add_executable(${name} ${ARG_SOURCES})
  if(CALVORO_SANITIZE AND CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
    # Under the sanitizers GCC 12 takes the states of <regex> for uninitialised.
    target_compile_options(${name} PRIVATE -Wno-maybe-uninitialized)
  endif()
  target_link_options(${name} PRIVATE ${calvoro_test_linker})
  target_link_libraries(${name} PRIVATE calvoro_options GTest::gtest GTest::gtest_main ${ARG_LIBRARIES})
  target_include_directories(${name} PRIVATE "${CALVORO_TESTS_ROOT}")
  target_compile_definitions(${name} PRIVATE CALVORO_SOURCE_DIR="${calvoro_SOURCE_DIR}")
  calvoro_use(${name} ${ARG_MAY_USE})
  if(NOT "windows" IN_LIST ARG_MAY_USE)  # whose libraries bring options of their own
    calvoro_use_precompiled(${name} tests)
  endif()
  if(CMAKE_CROSSCOMPILING)
    add_test(NAME ${name} COMMAND ${name})
    set_tests_properties(${name} PROPERTIES TIMEOUT 1800 FAIL_REGULAR_EXPRESSION "Running 0 tests")
  else()
    gtest_discover_tests(${name} DISCOVERY_TIMEOUT 60 PROPERTIES TIMEOUT ${ARG_TIMEOUT})
  endif()
endfunction()

#   calvoro_window_test(frmMainTest SOURCES ... MAY_USE ...)   one Qt Test program, run offscreen
#
# Each source includes what moc makes of it. CMake's own way to it (AUTOMOC) starts two programs and compiles one
# more file for each test program, as it cannot know which sources need it.
#
# X11 runs it on a display of the X Window System instead, for what no other has.
function(calvoro_window_test name)
  cmake_parse_arguments(ARG "X11" "TIMEOUT" "SOURCES;MAY_USE;LIBRARIES" ${ARGN})
  if(NOT ARG_TIMEOUT)
    set(ARG_TIMEOUT 300)
  endif()
  math(EXPR ARG_TIMEOUT "${CALVORO_TEST_PATIENCE} * ${ARG_TIMEOUT}")
  add_executable(${name} ${ARG_SOURCES})
  target_link_options(${name} PRIVATE ${calvoro_test_linker})
  target_link_libraries(${name} PRIVATE calvoro_options calvoro_qt_options Qt6::Test Qt6::Widgets ${ARG_LIBRARIES})
  target_include_directories(${name} PRIVATE "${CALVORO_TESTS_ROOT}")
  target_compile_definitions(${name} PRIVATE CALVORO_SOURCE_DIR="${calvoro_SOURCE_DIR}")
  target_compile_options(${name} PRIVATE ${calvoro_window_test_options})
  calvoro_use(${name} ${ARG_MAY_USE})
  calvoro_use_precompiled(${name} window_tests)
  set(mocs "${CMAKE_CURRENT_BINARY_DIR}/${name}_moc")
  target_include_directories(${name} PRIVATE "${mocs}")
  foreach(source IN LISTS ARG_SOURCES)
    cmake_path(GET source STEM stem)
    qt_generate_moc(${source} "${mocs}/${stem}.moc" TARGET ${name})
    target_sources(${name} PRIVATE "${mocs}/${stem}.moc")
  endforeach()
  set(platform offscreen)
  set(display)
  if(ARG_X11)
    set(platform xcb)
    find_program(CALVORO_XVFB_RUN xvfb-run REQUIRED DOC "Runs a program on a display of its own")
    set(display "${CALVORO_XVFB_RUN}" --auto-servernum)
  endif()
  add_test(NAME ${name} COMMAND ${display} $<TARGET_FILE:${name}>)
  set_tests_properties(${name} PROPERTIES
    TIMEOUT ${ARG_TIMEOUT}
    ENVIRONMENT "QT_QPA_PLATFORM=${platform};LC_ALL=C.UTF-8;QT_SCALE_FACTOR=1")
  if(ARG_X11)
    # Libraries of the display copy parts of texts that have no end of their own, which the strictest check of
    # a sanitized build takes for a fault.
    set_tests_properties(${name} PROPERTIES
      ENVIRONMENT_MODIFICATION "ASAN_OPTIONS=string_append::strict_string_checks=0")
  endif()
endfunction()
