# What an installation holds, and how `cpack` makes a Debian package of it.

if(TARGET calvoro-cli)
  install(TARGETS calvoro-cli RUNTIME DESTINATION "${CMAKE_INSTALL_LIBDIR}/calvoro")
endif()
