# The manual as web pages: made from docs/manual into a folder beside the window's program, where the program
# finds it in the build tree, and installed as the component "manual".

if(CALVORO_BUILD_WINDOW AND PROJECT_IS_TOP_LEVEL)
  set(calvoro_manual_wanted ON)
else()
  set(calvoro_manual_wanted OFF)
endif()
option(CALVORO_BUILD_MANUAL "Make the manual's web pages (needs Python 3 and python3-markdown)"
  ${calvoro_manual_wanted})

set(calvoro_manual_place "${CMAKE_INSTALL_DOCDIR}/html")
set(calvoro_manual_pages "${calvoro_BINARY_DIR}/app/manual")

if(NOT CALVORO_BUILD_MANUAL)
  set(CALVORO_MANUAL_PYTHON "CALVORO_MANUAL_PYTHON-NOTFOUND")
elseif(NOT CALVORO_MANUAL_PYTHON)
  # The system's own Python first: it has the system's packages.
  foreach(where "PATHS;/usr/bin;NO_DEFAULT_PATH" "")
    unset(candidate)
    find_program(candidate NAMES python3 python ${where} NO_CACHE)
    if(candidate)
      execute_process(COMMAND "${candidate}" -c "import markdown"
        RESULT_VARIABLE missing OUTPUT_QUIET ERROR_QUIET)
      if(missing EQUAL 0)
        set(CALVORO_MANUAL_PYTHON "${candidate}" CACHE FILEPATH "A Python that has the package markdown")
        break()
      endif()
    endif()
  endforeach()
  if(NOT CALVORO_MANUAL_PYTHON)
    message(STATUS "The manual's web pages are not made: no Python 3 with the package markdown (python3-markdown).")
  endif()
endif()

if(NOT CALVORO_MANUAL_PYTHON)
  install(CODE "message(STATUS \"The manual's web pages are no part of this tree (python3-markdown, CALVORO_BUILD_MANUAL).\")"
    COMPONENT manual)
  return()
endif()

file(GLOB_RECURSE calvoro_manual_sources CONFIGURE_DEPENDS
  "${calvoro_SOURCE_DIR}/docs/*.md" "${calvoro_SOURCE_DIR}/docs/images/*.png" "${calvoro_SOURCE_DIR}/docs/manual/html/*")
set(calvoro_manual_maker "${calvoro_SOURCE_DIR}/docs/manual/html/make_html.py")
add_custom_command(OUTPUT "${calvoro_BINARY_DIR}/manual.stamp"
  COMMAND "${CALVORO_MANUAL_PYTHON}" -B "${calvoro_manual_maker}" "${calvoro_manual_pages}"
  COMMAND "${CMAKE_COMMAND}" -E touch "${calvoro_BINARY_DIR}/manual.stamp"
  DEPENDS ${calvoro_manual_sources} COMMENT "Making the manual's web pages" VERBATIM)
add_custom_target(calvoro_manual ALL DEPENDS "${calvoro_BINARY_DIR}/manual.stamp")

install(DIRECTORY "${calvoro_manual_pages}/" DESTINATION "${calvoro_manual_place}" COMPONENT manual)
