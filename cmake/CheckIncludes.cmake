# The include roots keep one layer out of another; three things they cannot see are checked here, in every
# build: a path with "../" that walks around them, platform/qt, which lies inside a folder that the windows may
# use but is for the program's entry alone, and the headers of one system, which are for that system's folders
# of platform/ and for the signals that end the window program.
#
# Included by the main CMakeLists.txt it adds the check; run as a script it is the check.

if(NOT CMAKE_SCRIPT_MODE_FILE)
  add_custom_target(check_includes ALL
    COMMAND "${CMAKE_COMMAND}" "-DROOT=${CMAKE_CURRENT_SOURCE_DIR}"
            -P "${CMAKE_CURRENT_SOURCE_DIR}/cmake/CheckIncludes.cmake"
    COMMENT "Checking include paths" VERBATIM)
  return()
endif()

# signal.h is the language's own, but what Windows has of it ends no window program.
string(JOIN "|" of_one_system
  conio csignal dirent dlfcn fcntl fnmatch glob grp io langinfo netdb objbase poll process pthread pwd
  sched shellapi shlobj signal spawn strings syslog termios unistd winsock2 windows)
foreach(folder calendar csvtext datetext quicktext text compute platform windows mainwindow app cli python tests bench)
  file(GLOB_RECURSE files "${ROOT}/${folder}/*.h" "${ROOT}/${folder}/*.cpp")
  foreach(file IN LISTS files)
    file(STRINGS "${file}" includes REGEX "^[ \t]*#[ \t]*include")
    file(RELATIVE_PATH name "${ROOT}" "${file}")
    foreach(line IN LISTS includes)
      if(line MATCHES "\\.\\./")
        message(SEND_ERROR "${name}: an include must name its folder, not climb to it: ${line}")
      endif()
      if(line MATCHES "\"platform/qt/" AND NOT name MATCHES "^(app|platform/qt|tests)/")
        message(SEND_ERROR "${name}: platform/qt is for app/ alone: ${line}")
      endif()
      if(line MATCHES "<((sys|arpa|net|netinet|linux|mach)/.*|${of_one_system})(\\.h)?>"
         AND NOT name MATCHES "^(platform/(qt/)?(posix|windows|macos)/|app/EndingSignals\\.cpp|tests/|bench/)")
        message(SEND_ERROR "${name}: a header of one system is for that system's folder of platform/: ${line}")
      endif()
    endforeach()
  endforeach()
endforeach()
