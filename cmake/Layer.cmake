# One call makes one folder a library that sees only the folders it names.
#
#   layer(datetext SOURCES StrToDate.cpp ... MAY_USE calendar)
#
# makes calvoro_datetext. Every layer has an include root of its own: a directory of the build tree that
# holds nothing but a link to the folder. A target gets the roots of the layers that it names itself,
# never those of the layers behind them, so an #include that crosses a seam does not compile.
#
#   FOLDER   where the headers are found, for a layer that is not named as its folder (platform/qt)
#   QT       Qt components to link, for the layers that show windows

set(CALVORO_INCLUDE_ROOTS "${CMAKE_BINARY_DIR}/include_roots")

function(calvoro_make_include_root name folder directory)
  cmake_path(GET folder PARENT_PATH parent)
  file(MAKE_DIRECTORY "${CALVORO_INCLUDE_ROOTS}/${name}/${parent}")
  file(CREATE_LINK "${directory}" "${CALVORO_INCLUDE_ROOTS}/${name}/${folder}" SYMBOLIC)
endfunction()

# Lets a target use layers by name: their headers for itself alone, their code for whoever links it.
function(calvoro_use target)
  foreach(layer IN LISTS ARGN)
    target_include_directories(${target} PRIVATE "${CALVORO_INCLUDE_ROOTS}/${layer}")
    target_link_libraries(${target} PUBLIC calvoro_${layer})
  endforeach()
endfunction()

function(layer name)
  cmake_parse_arguments(ARG "" "FOLDER" "SOURCES;MAY_USE;QT" ${ARGN})
  if(NOT ARG_FOLDER)
    set(ARG_FOLDER ${name})
  endif()
  calvoro_make_include_root(${name} ${ARG_FOLDER} "${CMAKE_CURRENT_SOURCE_DIR}")

  add_library(calvoro_${name} STATIC ${ARG_SOURCES})
  target_link_libraries(calvoro_${name} PRIVATE calvoro_options)
  target_include_directories(calvoro_${name} PRIVATE "${CALVORO_INCLUDE_ROOTS}/${name}")
  calvoro_use(calvoro_${name} ${ARG_MAY_USE})
  if(ARG_QT)
    list(TRANSFORM ARG_QT PREPEND Qt6::)
    target_link_libraries(calvoro_${name} PUBLIC ${ARG_QT} PRIVATE calvoro_qt_options)
    set_target_properties(calvoro_${name} PROPERTIES AUTOMOC ON)
  endif()
endfunction()
