# Completes what cpack has staged for Debian packages: copyright and changelogs, compressed pages, and libraries
# without what no linker needs.

if(NOT CPACK_GENERATOR STREQUAL "DEB")
  return()
endif()

function(calvoro_compress from to)
  # Without name and time, so that the same content gives the same file.
  execute_process(COMMAND gzip -9nc "${from}" OUTPUT_FILE "${to}" COMMAND_ERROR_IS_FATAL ANY)
endfunction()

file(GLOB groups LIST_DIRECTORIES true "${CPACK_TEMPORARY_DIRECTORY}/*")
foreach(staged IN LISTS groups)
  cmake_path(GET staged FILENAME group)
  string(TOUPPER "${group}" upper)
  set(package "${CPACK_DEBIAN_${upper}_PACKAGE_NAME}")
  if(NOT package)
    message(FATAL_ERROR "${group} is a part of no package")
  endif()
  set(documents "${staged}/usr/share/doc/${package}")
  file(MAKE_DIRECTORY "${documents}")
  file(COPY "${CMAKE_CURRENT_LIST_DIR}/copyright" DESTINATION "${documents}")
  calvoro_compress("${CMAKE_CURRENT_LIST_DIR}/changelog" "${documents}/changelog.Debian.gz")
  calvoro_compress("${CPACK_CALVORO_SOURCE}/CHANGELOG.md" "${documents}/changelog.gz")
  file(GLOB_RECURSE pages "${staged}/usr/share/man/*.1")
  foreach(page IN LISTS pages)
    calvoro_compress("${page}" "${page}.gz")
    file(REMOVE "${page}")
  endforeach()
  file(GLOB libraries "${staged}/usr/lib/*/*.a")
  foreach(library IN LISTS libraries)
    execute_process(COMMAND strip --strip-debug --remove-section=.comment --remove-section=.note
      --enable-deterministic-archives "${library}" COMMAND_ERROR_IS_FATAL ANY)
  endforeach()
  file(GLOB_RECURSE modules "${staged}/usr/lib/python3/*.so")
  foreach(module IN LISTS modules)
    execute_process(COMMAND strip --strip-unneeded --remove-section=.comment --remove-section=.note "${module}"
      COMMAND_ERROR_IS_FATAL ANY)
  endforeach()
  if(EXISTS "${CMAKE_CURRENT_LIST_DIR}/${package}.lintian-overrides")
    file(MAKE_DIRECTORY "${staged}/usr/share/lintian/overrides")
    configure_file("${CMAKE_CURRENT_LIST_DIR}/${package}.lintian-overrides"
      "${staged}/usr/share/lintian/overrides/${package}" COPYONLY)
  endif()
endforeach()
