# Other programs use the engine: examples/library is built outside this tree, against an installation with
# static and one with shared libraries, and with the sources as a part of it, with and without the window.
file(REMOVE_RECURSE "${WORK}")
set(expected "2024-02-29 CE
2024-W09-4 ISO
2024-02-16 JC
2024-060 ORD
2024-03-04 LPM
2024-10-4 LPW
2,460,370 JDN
a month later: 2024-03-29
two thousand million months later: a result leaves the range of 32-bit numbers
2024-02-29 CE plus 10 days = 2024-03-10 CE, Sunday, excluding 1st date
")
set(compiler -G Ninja "-DCMAKE_CXX_COMPILER=${COMPILER}" -DCMAKE_BUILD_TYPE=Debug
    -DCALVORO_JOIN_SOURCES=ON)

function(run)
  execute_process(COMMAND ${ARGN} OUTPUT_QUIET COMMAND_ERROR_IS_FATAL ANY)
endfunction()

function(build_library tree)
  run("${CMAKE_COMMAND}" ${compiler} -S "${SOURCE}" -B "${WORK}/${tree}" -DCALVORO_BUILD_WINDOW=OFF
    -DCALVORO_BUILD_TESTS=OFF ${ARGN})
  run("${CMAKE_COMMAND}" --build "${WORK}/${tree}" --target calvoro_calendar calvoro_text calvoro_datetext
    calvoro_compute)
  foreach(component Libraries Development)
    run("${CMAKE_COMMAND}" --install "${WORK}/${tree}" --prefix "${WORK}/${tree}-installed" --component ${component})
  endforeach()
endfunction()

# The example is copied, so that nothing of this tree is found by chance.
function(build_example tree)
  file(COPY "${SOURCE}/examples/library/" DESTINATION "${WORK}/${tree}-sources")
  run("${CMAKE_COMMAND}" ${compiler} -S "${WORK}/${tree}-sources" -B "${WORK}/${tree}" ${ARGN})
endfunction()

function(run_example tree)
  run("${CMAKE_COMMAND}" --build "${WORK}/${tree}")
  execute_process(COMMAND "${WORK}/${tree}/reckon" 2024-02-29 OUTPUT_VARIABLE said COMMAND_ERROR_IS_FATAL ANY)
  string(REPLACE "\r" "" said "${said}")
  if(NOT said STREQUAL expected)
    message(FATAL_ERROR "${tree}: the example says\n${said}")
  endif()
  execute_process(COMMAND "${WORK}/${tree}/weekday" 2460370 OUTPUT_VARIABLE said COMMAND_ERROR_IS_FATAL ANY)
  if(NOT said STREQUAL "4\n")
    message(FATAL_ERROR "${tree}: the example's weekday is ${said}")
  endif()
endfunction()

# Static.
build_library(static)
build_example(example-static "-DCMAKE_PREFIX_PATH=${WORK}/static-installed")
run_example(example-static)

# Shared: versioned, found wherever they lie, and showing our own names alone.
build_library(shared -DBUILD_SHARED_LIBS=ON)
build_example(example-shared "-DCMAKE_PREFIX_PATH=${WORK}/shared-installed")
run_example(example-shared)
string(REGEX MATCH "^[0-9]+" major "${VERSION}")
find_program(nm nm REQUIRED)
foreach(name calendar text datetext compute)
  file(GLOB library "${WORK}/shared-installed/lib*/libcalvoro_${name}.so.${major}"
       "${WORK}/shared-installed/lib*/*/libcalvoro_${name}.so.${major}")
  if(NOT library OR NOT EXISTS "${library}")
    message(FATAL_ERROR "no libcalvoro_${name}.so.${major}")
  endif()
  execute_process(COMMAND "${nm}" --dynamic --defined-only --demangle --format=posix "${library}"
    OUTPUT_VARIABLE names COMMAND_ERROR_IS_FATAL ANY)
  string(REGEX REPLACE "\n$" "" names "${names}")
  string(REGEX REPLACE ";" " " names "${names}")
  string(REPLACE "\n" ";" names "${names}")
  set(shown 0)
  foreach(line IN LISTS names)
    if(NOT line MATCHES "^(calvoro::|(typeinfo|typeinfo name|vtable) for calvoro::)")
      message(SEND_ERROR "libcalvoro_${name} shows ${line}")
    endif()
    math(EXPR shown "${shown} + 1")
  endforeach()
  if(shown LESS 5)
    message(FATAL_ERROR "libcalvoro_${name} shows ${shown} names")
  endif()
endforeach()

# As a part of another project.
build_example(example-part "-DCALVORO_SOURCES=${SOURCE}" -DCALVORO_BUILD_WINDOW=OFF)
run_example(example-part)
if(WINDOW)
  build_example(example-part-with-window "-DCALVORO_SOURCES=${SOURCE}" -DCALVORO_BUILD_WINDOW=ON)
  run("${CMAKE_COMMAND}" --build "${WORK}/example-part-with-window" --target weekday)
endif()
