# What may be chosen at configure time, and the flags that every target of ours is built with.

option(CALVORO_BUILD_WINDOW "Build the window (needs Qt 6 Widgets)" ON)
option(CALVORO_BUILD_TESTS "Build the tests (needs GoogleTest and RapidCheck)" ON)
option(CALVORO_BUILD_BENCH "Build the benchmarks (needs Google Benchmark)" OFF)
option(CALVORO_BUILD_FUZZ "Build the fuzz targets with libFuzzer (needs clang)" OFF)
option(CALVORO_BUILD_EXHAUSTIVE "Build the check of every day number" OFF)
option(CALVORO_WERROR "Treat warnings as errors" OFF)
option(CALVORO_COVERAGE "Instrument for coverage" OFF)
option(CALVORO_STATIC_RUNTIME "Link libstdc++ and libgcc into the command line statically" ON)
set(CALVORO_SANITIZE "" CACHE STRING "Sanitizers to build with, for example address,undefined")

set(CMAKE_CXX_VISIBILITY_PRESET hidden)
set(CMAKE_VISIBILITY_INLINES_HIDDEN ON)
set(CMAKE_EXPORT_COMPILE_COMMANDS ON)

if(NOT CMAKE_BUILD_TYPE AND NOT CMAKE_CONFIGURATION_TYPES)
  set(CMAKE_BUILD_TYPE Release CACHE STRING "Build type" FORCE)
endif()

# -O2, not CMake's -O3: at -O3 GCC 12 turns the selects of the calendar's closed forms into branches,
# which random dates mispredict.
set(CMAKE_CXX_FLAGS_RELEASE "-O2 -DNDEBUG")

add_library(calvoro_options INTERFACE)
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
if(CALVORO_BUILD_FUZZ)
  # Coverage feedback for the code under test; the fuzz targets themselves add the driver.
  target_compile_options(calvoro_options INTERFACE -fsanitize=fuzzer-no-link)
endif()
if(CALVORO_COVERAGE)
  target_compile_options(calvoro_options INTERFACE --coverage)
  target_link_options(calvoro_options INTERFACE --coverage)
endif()

# What the targets that show windows add to it.
add_library(calvoro_qt_options INTERFACE)
target_compile_definitions(calvoro_qt_options INTERFACE
  QT_NO_CAST_FROM_ASCII QT_NO_CAST_TO_ASCII QT_NO_URL_CAST_FROM_STRING QT_NO_CAST_FROM_BYTEARRAY
  QT_NO_NARROWING_CONVERSIONS_IN_CONNECT QT_NO_KEYWORDS QT_STRICT_ITERATORS QT_DISABLE_DEPRECATED_BEFORE=0x060400)
