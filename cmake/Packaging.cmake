# What an installation holds beside the window's own rules (app/), and how cpack makes a Debian package.

install(TARGETS calvoro-cli RUNTIME DESTINATION "${CMAKE_INSTALL_BINDIR}")
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
include(CPack)
