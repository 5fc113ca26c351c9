# The packages as cpack makes them. debian/Staged.cmake completes what Debian wants of each.

set(CPACK_PACKAGE_NAME calvoro)
set(CPACK_PACKAGE_VENDOR "the Calvoro authors")
set(CPACK_PACKAGE_CONTACT "Vantorel Systems <calvoro@vantorel.example>")
set(CPACK_PACKAGE_HOMEPAGE_URL "${CALVORO_HOME_PAGE_ADDRESS}")
set(CPACK_RESOURCE_FILE_LICENSE "${calvoro_SOURCE_DIR}/LICENSE")
string(TOLOWER "${CMAKE_SYSTEM_NAME}-${CMAKE_SYSTEM_PROCESSOR}" calvoro_machine)
set(CPACK_PACKAGE_FILE_NAME "calvoro-${PROJECT_VERSION}-${calvoro_machine}")
set(CPACK_STRIP_FILES ON)
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS
  OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)
set(CPACK_PROJECT_CONFIG_FILE "${CMAKE_CURRENT_LIST_DIR}/PerGenerator.cmake")
set(CPACK_PRE_BUILD_SCRIPTS "${CMAKE_CURRENT_LIST_DIR}/debian/Staged.cmake")
set(CPACK_CALVORO_SOURCE "${calvoro_SOURCE_DIR}")

set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_COMPONENTS_GROUPING ONE_PER_GROUP)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_RELEASE 1)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)
set(calvoro_about "Calvoro converts dates between the Common Era and Julian calendars, ISO
week dates, ordinal dates, Julian day numbers and the Vantorel Leap Week
Calendar, counts days between dates, adds days or months, and shows a month
as a calendar.")

#   calvoro_package(GROUP NAME SECTION SUMMARY DESCRIPTION)
macro(calvoro_package group name section summary description)
  string(TOUPPER ${group} upper)
  set(CPACK_DEBIAN_${upper}_PACKAGE_NAME ${name})
  set(CPACK_DEBIAN_${upper}_PACKAGE_SECTION ${section})
  set(CPACK_DEBIAN_${upper}_DESCRIPTION "${summary}\n${calvoro_about}\n.\n${description}")
endmacro()

calvoro_package(calvoro calvoro utils "date calculator for seven notations"
  "This package holds the window and its manual.")
# The plugin that shows windows is loaded by name, so no dependency of the program tells of it.
set(CPACK_DEBIAN_CALVORO_PACKAGE_DEPENDS "qt6-qpa-plugins")
# A font of one width for the output, the opener of web addresses, and the toolkit's own words in German.
set(CPACK_DEBIAN_CALVORO_PACKAGE_RECOMMENDS "fonts-dejavu-core, xdg-utils, qt6-translations-l10n")
set(CPACK_DEBIAN_CALVORO_PACKAGE_SUGGESTS "calvoro-cli")

calvoro_package(command calvoro-cli utils "date calculator for seven notations (command line)"
  "This package holds the command line, which needs no display.")

calvoro_package(development libcalvoro-dev libdevel "date calculator for seven notations (C++ library)"
  "This package holds headers and static libraries of its calendars,\nreaders and writers.")
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_DEPENDS "g++ | clang")

calvoro_package(python python3-calvoro python "date calculator for seven notations (Python module)"
  "This package holds the Python module, for single dates and for whole\nNumPy arrays.")
set(CPACK_DEBIAN_PYTHON_PACKAGE_CONTROL_EXTRA
  "${CMAKE_CURRENT_LIST_DIR}/debian/postinst;${CMAKE_CURRENT_LIST_DIR}/debian/prerm")
if(CALVORO_BUILD_PYTHON)
  string(REGEX MATCH "^3\\.([0-9]+)" calvoro_python "${CALVORO_PYTHON_VERSION}")
  math(EXPR calvoro_next "${CMAKE_MATCH_1} + 1")
  set(CPACK_DEBIAN_PYTHON_PACKAGE_DEPENDS "python3 (>= ${calvoro_python}~), python3 (<< 3.${calvoro_next}), python3-numpy")
endif()

include(CPack)
cpack_add_component_group(calvoro)
cpack_add_component(window GROUP calvoro)
cpack_add_component(manual GROUP calvoro)
cpack_add_component_group(command)
cpack_add_component(command GROUP command)
cpack_add_component_group(development)
cpack_add_component(Development GROUP development)
cpack_add_component_group(python)
cpack_add_component(python GROUP python)
