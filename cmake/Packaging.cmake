# What an installation holds beside the programs (app/, cli/), and how cpack makes a Debian package.

install(FILES README.md CHANGELOG.md DESTINATION "${CMAKE_INSTALL_DOCDIR}")

set(CPACK_PACKAGE_NAME calvoro)
set(CPACK_PACKAGE_VENDOR "Vantorel Systems")
set(CPACK_PACKAGE_CONTACT "Vantorel Systems <calvoro@vantorel.example>")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "Desktop date calculator for seven notations")
set(CPACK_PACKAGE_DESCRIPTION
  "Calvoro converts dates between the Common Era and Julian calendars, ISO week dates, ordinal dates,
Julian day numbers and the Vantorel Leap Week Calendar, counts days between dates, adds days or months,
and shows a month as a calendar, in a window and on the command line.")
set(CPACK_STRIP_FILES ON)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SECTION utils)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
# The plugin that shows windows is loaded by name, so no dependency of the binary tells of it.
set(CPACK_DEBIAN_PACKAGE_DEPENDS "qt6-qpa-plugins")
# The toolkit's own words in German; without them the everyday ones are there all the same.
set(CPACK_DEBIAN_PACKAGE_RECOMMENDS "qt6-translations-l10n")
# The package holds the programs; headers and libraries for other programs are left out.
set(CPACK_INSTALL_CMAKE_PROJECTS "${calvoro_BINARY_DIR};${CMAKE_PROJECT_NAME};Unspecified;/")
if(BUILD_SHARED_LIBS)
  list(APPEND CPACK_INSTALL_CMAKE_PROJECTS "${calvoro_BINARY_DIR};${CMAKE_PROJECT_NAME};Libraries;/")
endif()
include(CPack)
