# Another project adds this one as a folder of its own and builds a program with the calendar.
file(REMOVE_RECURSE "${WORK}")
file(WRITE "${WORK}/CMakeLists.txt" "
cmake_minimum_required(VERSION 3.25)
project(outer LANGUAGES CXX)
add_subdirectory(\"${SOURCE}\" calvoro)
if(CALVORO_BUILD_TESTS)
  message(FATAL_ERROR \"the tests of a part are not the whole's\")
endif()
if(CMAKE_BUILD_TYPE)
  message(FATAL_ERROR \"a part chooses no build type for the whole\")
endif()
add_executable(outer main.cpp)
target_compile_features(outer PRIVATE cxx_std_20)
calvoro_use(outer calendar)
")
file(WRITE "${WORK}/main.cpp" "
#include \"calendar/Weekday.h\"
int main() { return calvoro::euro_day_of_week(0) == 1 ? 0 : 1; }
")
execute_process(
  COMMAND "${CMAKE_COMMAND}" -G Ninja -S "${WORK}" -B "${WORK}/tree" "-DCMAKE_CXX_COMPILER=${COMPILER}"
          -DCALVORO_BUILD_WINDOW=OFF
  OUTPUT_QUIET COMMAND_ERROR_IS_FATAL ANY)
execute_process(
  COMMAND "${CMAKE_COMMAND}" --build "${WORK}/tree" --target outer check_includes
  OUTPUT_QUIET COMMAND_ERROR_IS_FATAL ANY)
execute_process(COMMAND "${WORK}/tree/outer" COMMAND_ERROR_IS_FATAL ANY)
