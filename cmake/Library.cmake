# The layers that other programs may use: Calvoro::calendar, Calvoro::datetext, Calvoro::compute and what
# stands behind them. They are the same targets in an installation (find_package(Calvoro)) and where this
# project is part of another one (add_subdirectory, FetchContent). Headers are included by their folder,
# "calendar/EuroDate.h", or as <calvoro/calendar/EuroDate.h>.
#
# Inside this project nothing changes: a layer sees the layers that its layer() call names and no others.

option(CALVORO_INSTALL_LIBRARY "Install headers and libraries for other programs" ${PROJECT_IS_TOP_LEVEL})

set(CALVORO_HEADERS "${CMAKE_INSTALL_INCLUDEDIR}/calvoro")
set(CALVORO_PACKAGE "${CMAKE_INSTALL_LIBDIR}/cmake/Calvoro")
# The headers of all of them, laid out as in an installation, for the project that this one is part of.
set(CALVORO_PUBLIC_ROOT "${CALVORO_INCLUDE_ROOTS}/public")

if(BUILD_SHARED_LIBS)
  # Programs and libraries find each other wherever the installation lies.
  file(RELATIVE_PATH calvoro_libraries "/${CMAKE_INSTALL_BINDIR}" "/${CMAKE_INSTALL_LIBDIR}")
  set(CMAKE_INSTALL_RPATH "$ORIGIN;$ORIGIN/..;$ORIGIN/${calvoro_libraries}")
endif()

# Exports the names of our namespace and nothing else.
function(calvoro_export_names target)
  set_target_properties(${target} PROPERTIES
    VERSION ${PROJECT_VERSION} SOVERSION ${PROJECT_VERSION_MAJOR} WINDOWS_EXPORT_ALL_SYMBOLS ON)
  if(UNIX AND NOT APPLE)
    set(names "${CMAKE_CURRENT_FUNCTION_LIST_DIR}/exported-names.map")
    set_target_properties(${target} PROPERTIES
      CXX_VISIBILITY_PRESET default VISIBILITY_INLINES_HIDDEN OFF LINK_DEPENDS "${names}")
    target_link_options(${target} PRIVATE "LINKER:--version-script=${names}")
  endif()
endfunction()

# Makes Calvoro::NAME of the layer calvoro_NAME; called by layer().
function(calvoro_offer name)
  set(target calvoro_${name})
  set_target_properties(${target} PROPERTIES EXPORT_NAME ${name})
  target_compile_features(${target} PUBLIC cxx_std_20)
  target_include_directories(${target} INTERFACE
    "$<INSTALL_INTERFACE:${CMAKE_INSTALL_INCLUDEDIR}>" "$<INSTALL_INTERFACE:${CALVORO_HEADERS}>")
  if(BUILD_SHARED_LIBS)
    calvoro_export_names(${target})
  endif()

  file(MAKE_DIRECTORY "${CALVORO_PUBLIC_ROOT}/calvoro")
  file(CREATE_LINK "${CMAKE_CURRENT_SOURCE_DIR}" "${CALVORO_PUBLIC_ROOT}/calvoro/${name}" SYMBOLIC)
  add_library(calvoro_public_${name} INTERFACE)
  target_link_libraries(calvoro_public_${name} INTERFACE ${target})
  target_include_directories(calvoro_public_${name} INTERFACE
    "${CALVORO_PUBLIC_ROOT}" "${CALVORO_PUBLIC_ROOT}/calvoro")
  add_library(Calvoro::${name} ALIAS calvoro_public_${name})

  # A program of ours needs the shared libraries wherever it is installed.
  if(CALVORO_INSTALL_LIBRARY OR BUILD_SHARED_LIBS)
    install(TARGETS ${target} EXPORT CalvoroTargets
      RUNTIME DESTINATION "${CMAKE_INSTALL_BINDIR}"
      LIBRARY DESTINATION "${CMAKE_INSTALL_LIBDIR}" COMPONENT Libraries NAMELINK_COMPONENT Development
      ARCHIVE DESTINATION "${CMAKE_INSTALL_LIBDIR}" COMPONENT Development)
  endif()
  if(CALVORO_INSTALL_LIBRARY)
    install(DIRECTORY "${CMAKE_CURRENT_SOURCE_DIR}/" DESTINATION "${CALVORO_HEADERS}/${name}"
      COMPONENT Development FILES_MATCHING PATTERN "*.h")
  endif()
endfunction()

if(CALVORO_INSTALL_LIBRARY)
  include(CMakePackageConfigHelpers)
  configure_package_config_file("${CMAKE_CURRENT_LIST_DIR}/CalvoroConfig.cmake.in"
    "${calvoro_BINARY_DIR}/CalvoroConfig.cmake" INSTALL_DESTINATION "${CALVORO_PACKAGE}")
  write_basic_package_version_file("${calvoro_BINARY_DIR}/CalvoroConfigVersion.cmake"
    COMPATIBILITY SameMajorVersion)
  install(FILES "${calvoro_BINARY_DIR}/CalvoroConfig.cmake" "${calvoro_BINARY_DIR}/CalvoroConfigVersion.cmake"
    DESTINATION "${CALVORO_PACKAGE}" COMPONENT Development)
  install(EXPORT CalvoroTargets NAMESPACE Calvoro:: DESTINATION "${CALVORO_PACKAGE}" COMPONENT Development)
endif()
