# Which optimisation the release build's compiler is told, last word first: -O2 from us under GCC, and
# whatever the person who builds the program has chosen.
unset(ENV{CXXFLAGS})

function(expect_level expected)
  file(REMOVE_RECURSE "${WORK}")
  execute_process(
    COMMAND "${CMAKE_COMMAND}" -G Ninja -S "${SOURCE}" -B "${WORK}" "-DCMAKE_CXX_COMPILER=${COMPILER}"
            -DCALVORO_BUILD_WINDOW=OFF -DCALVORO_BUILD_TESTS=OFF ${ARGN}
    OUTPUT_QUIET COMMAND_ERROR_IS_FATAL ANY)
  file(READ "${WORK}/compile_commands.json" commands)
  string(REGEX MATCH "[^\"]*calendar/EuroDate.cpp" command "${commands}")
  string(REGEX MATCHALL " -O[^ ]*" levels "${command}")
  list(POP_BACK levels level)
  if(NOT level STREQUAL " ${expected}")
    message(SEND_ERROR "${ARGN}: expected ${expected} to be the last level: ${command}")
  endif()
  foreach(option IN LISTS ARGN)
    if(option MATCHES "-DKEPT" AND NOT command MATCHES "-DKEPT")
      message(SEND_ERROR "${ARGN}: the definition is lost: ${command}")
    endif()
  endforeach()
endfunction()

if(COMPILER_ID STREQUAL "GNU")
  expect_level(-O2)
  expect_level(-O1 -DCMAKE_CXX_FLAGS=-O1)
else()
  expect_level(-O3)
endif()
expect_level(-Os "-DCMAKE_CXX_FLAGS_RELEASE=-Os -DKEPT")
