# What may be chosen at configure time, and the flags that every target of ours is built with.

option(CALVORO_BUILD_WINDOW "Build the window (needs Qt 6 Widgets)" ON)
option(CALVORO_BUILD_TESTS "Build the tests (needs GoogleTest)" ${PROJECT_IS_TOP_LEVEL})
option(CALVORO_TEST_PROPERTIES "Build the tests that need RapidCheck" ON)
option(CALVORO_PRECOMPILE "Compile the headers of Qt and GoogleTest once for all sources" OFF)
set(CALVORO_GOOGLETEST_SOURCE "" CACHE PATH "Build GoogleTest from this folder instead of looking for it")
option(CALVORO_BUILD_PYTHON "Build the Python module (needs Python 3, pybind11 and NumPy)" OFF)
option(CALVORO_BUILD_BENCH "Build the benchmarks (needs Google Benchmark)" OFF)
option(CALVORO_BUILD_FUZZ "Build the fuzz targets with libFuzzer (needs clang)" OFF)
option(CALVORO_BUILD_EXHAUSTIVE "Build the check of every day number" OFF)
option(CALVORO_JOIN_SOURCES "Compile the sources of a folder as one, in less time" OFF)
option(CALVORO_WERROR "Treat warnings as errors" OFF)
option(CALVORO_COVERAGE "Count the branches that are taken (needs clang)" OFF)
option(CALVORO_STATIC_RUNTIME "Link the command line statically" ON)
option(CALVORO_HARDEN "Build in what makes a mistake of ours harder to abuse, as packages should have it" OFF)
set(CALVORO_SANITIZE "" CACHE STRING "Sanitizers to build with, for example address,undefined")

set(CMAKE_CXX_VISIBILITY_PRESET hidden)
set(CMAKE_VISIBILITY_INLINES_HIDDEN ON)
set(CMAKE_EXPORT_COMPILE_COMMANDS ON)
if(CALVORO_BUILD_PYTHON)
  set(CMAKE_POSITION_INDEPENDENT_CODE ON)  # the layers become part of a loadable module
endif()

if(PROJECT_IS_TOP_LEVEL AND NOT CMAKE_BUILD_TYPE AND NOT CMAKE_CONFIGURATION_TYPES)
  set(CMAKE_BUILD_TYPE Release CACHE STRING "Build type" FORCE)
endif()

add_library(calvoro_options INTERFACE)

# -O2, not CMake's -O3: at -O3 GCC 12 turns the selects of the calendar's closed forms into branches,
# which random dates mispredict. Whoever builds the program and chooses a level (in CXXFLAGS, or by setting
# CMAKE_CXX_FLAGS_RELEASE) gets that one.
string(STRIP "${CMAKE_CXX_FLAGS_RELEASE_INIT}" calvoro_usual_release_flags)
if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU" AND CMAKE_CXX_FLAGS_RELEASE STREQUAL calvoro_usual_release_flags)
  string(REGEX MATCHALL " -O[^ ]*" calvoro_levels " -O2 ${CMAKE_CXX_FLAGS}")
  list(POP_BACK calvoro_levels calvoro_level)
  string(STRIP "${calvoro_level}" calvoro_level)
  target_compile_options(calvoro_options INTERFACE $<$<CONFIG:Release>:${calvoro_level}>)
endif()

target_compile_features(calvoro_options INTERFACE cxx_std_20)
set(CMAKE_CXX_EXTENSIONS OFF)
target_compile_options(calvoro_options INTERFACE
  -Wall -Wextra -Wpedantic -Wconversion -Wsign-conversion -Wshadow -Wold-style-cast -Wnon-virtual-dtor
  $<$<BOOL:${CALVORO_WERROR}>:-Werror>)

if(CALVORO_SANITIZE)
  target_compile_options(calvoro_options INTERFACE
    -fsanitize=${CALVORO_SANITIZE} -fno-sanitize-recover=all -fno-omit-frame-pointer)
  target_link_options(calvoro_options INTERFACE -fsanitize=${CALVORO_SANITIZE})
endif()
if(CALVORO_HARDEN)
  set(CMAKE_POSITION_INDEPENDENT_CODE ON)
  target_compile_options(calvoro_options INTERFACE
    -fstack-protector-strong -fstack-clash-protection -U_FORTIFY_SOURCE -D_FORTIFY_SOURCE=2)
  target_link_options(calvoro_options INTERFACE
    "LINKER:-z,relro,-z,now" $<$<STREQUAL:$<TARGET_PROPERTY:TYPE>,EXECUTABLE>:-pie>)
endif()
if(CALVORO_BUILD_FUZZ)
  # Coverage feedback for the code under test; the fuzz targets themselves add the driver.
  target_compile_options(calvoro_options INTERFACE -fsanitize=fuzzer-no-link)
endif()
if(CALVORO_COVERAGE)
  if(NOT CMAKE_CXX_COMPILER_ID STREQUAL "Clang")
    message(FATAL_ERROR "CALVORO_COVERAGE needs clang, which counts branches by their source.")
  endif()
  # The place of the counts is compiled in, because some tests start programs with an environment of their own.
  # A program adds its counts to those of its earlier runs; four files a program keep those that run at the same
  # time from waiting for each other.
  set(CALVORO_PROFILES "${CMAKE_CURRENT_BINARY_DIR}/profiles")
  set(calvoro_count -fprofile-instr-generate=${CALVORO_PROFILES}/%4m.profraw)
  target_compile_options(calvoro_options INTERFACE ${calvoro_count} -fcoverage-mapping)
  target_link_options(calvoro_options INTERFACE ${calvoro_count})
endif()

# What the targets that show windows add to it.
add_library(calvoro_qt_options INTERFACE)
target_compile_definitions(calvoro_qt_options INTERFACE
  QT_NO_CAST_FROM_ASCII QT_NO_CAST_TO_ASCII QT_NO_URL_CAST_FROM_STRING QT_NO_CAST_FROM_BYTEARRAY
  QT_NO_NARROWING_CONVERSIONS_IN_CONNECT QT_NO_KEYWORDS QT_STRICT_ITERATORS QT_DISABLE_DEPRECATED_BEFORE=0x060400)
