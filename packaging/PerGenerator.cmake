# Read by cpack for each kind of package. An archive holds everything; a Debian package has its documents where
# Debian wants them.
if(CPACK_GENERATOR STREQUAL "DEB")
  list(REMOVE_ITEM CPACK_COMPONENTS_ALL documents Unspecified Libraries)
  set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
  # Else it would stand before every package's own summary.
  set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "")
endif()
