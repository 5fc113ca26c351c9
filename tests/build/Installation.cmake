# The tree that is being tested can be installed, and what was installed runs.
file(REMOVE_RECURSE "${WORK}")
execute_process(COMMAND "${CMAKE_COMMAND}" --install "${TREE}" --prefix "${WORK}"
  OUTPUT_VARIABLE said COMMAND_ERROR_IS_FATAL ANY)

set(programs calvoro-cli)
if(WINDOW)
  list(APPEND programs calvoro)
elseif(NOT said MATCHES "window is no part of this tree")
  message(FATAL_ERROR "nothing tells that the window is missing:\n${said}")
endif()
foreach(program IN LISTS programs)
  execute_process(COMMAND "${WORK}/bin/${program}" --version OUTPUT_VARIABLE version COMMAND_ERROR_IS_FATAL ANY)
  if(NOT version STREQUAL "${program} ${VERSION}\nCopyright (c) 2026 the Calvoro authors, MIT licence\n")
    message(FATAL_ERROR "${program} calls itself ${version}")
  endif()
endforeach()

if(MANUAL AND NOT EXISTS "${WORK}/share/doc/calvoro/html/en/index.html")
  message(FATAL_ERROR "the manual is not installed")
elseif(NOT MANUAL AND NOT said MATCHES "manual's web pages are no part of this tree")
  message(FATAL_ERROR "nothing tells that the manual is missing:\n${said}")
endif()

# A tree with a program missing names it and copies nothing.
execute_process(
  COMMAND "${CMAKE_COMMAND}" -G Ninja -S "${SOURCE}" -B "${WORK}/unbuilt" "-DCMAKE_CXX_COMPILER=${COMPILER}"
          -DCALVORO_BUILD_WINDOW=OFF -DCALVORO_BUILD_TESTS=OFF
  OUTPUT_QUIET COMMAND_ERROR_IS_FATAL ANY)
execute_process(COMMAND "${CMAKE_COMMAND}" --install "${WORK}/unbuilt" --prefix "${WORK}/nowhere"
  OUTPUT_QUIET ERROR_VARIABLE said RESULT_VARIABLE status)
if(status EQUAL 0 OR NOT said MATCHES "calvoro-cli is not built in this tree" OR EXISTS "${WORK}/nowhere")
  message(FATAL_ERROR "an unbuilt tree: status ${status}\n${said}")
endif()
