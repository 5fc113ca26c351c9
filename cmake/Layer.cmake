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
#   PUBLIC   a library for other programs as well (Library.cmake)

# In the cache, so that calvoro_use() works in a project that this one is a part of.
set(CALVORO_INCLUDE_ROOTS "${calvoro_BINARY_DIR}/include_roots" CACHE INTERNAL "The include roots of the layers")

function(calvoro_make_include_root name folder directory)
  cmake_path(GET folder PARENT_PATH parent)
  # A link of an earlier run, from before the folder moved, would lead into the source tree.
  file(REMOVE_RECURSE "${CALVORO_INCLUDE_ROOTS}/${name}")
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

# Has the compiler take all sources of a folder at once, because most of its time goes to reading the same
# headers again. What such sources keep to themselves needs names that differ.
function(calvoro_join_sources target)
  set_target_properties(${target} PROPERTIES UNITY_BUILD ON UNITY_BUILD_MODE GROUP)
  foreach(source IN LISTS ARGN)
    cmake_path(GET source PARENT_PATH folder)
    if(NOT folder OR IS_ABSOLUTE "${source}")
      set(folder ${target})
    endif()
    set_source_files_properties(${source} PROPERTIES UNITY_GROUP ${folder})
  endforeach()
endfunction()

function(layer name)
  cmake_parse_arguments(ARG "PUBLIC" "FOLDER" "SOURCES;MAY_USE;QT" ${ARGN})
  if(NOT ARG_FOLDER)
    set(ARG_FOLDER ${name})
  endif()
  calvoro_make_include_root(${name} ${ARG_FOLDER} "${CMAKE_CURRENT_SOURCE_DIR}")

  set(kind STATIC)
  if(ARG_PUBLIC)
    set(kind)  # BUILD_SHARED_LIBS decides
  endif()
  add_library(calvoro_${name} ${kind} ${ARG_SOURCES})
  target_link_libraries(calvoro_${name} PRIVATE $<BUILD_INTERFACE:calvoro_options>)
  target_include_directories(calvoro_${name} PRIVATE "${CALVORO_INCLUDE_ROOTS}/${name}")
  calvoro_use(calvoro_${name} ${ARG_MAY_USE})
  if(CALVORO_JOIN_SOURCES AND NOT ARG_QT)
    calvoro_join_sources(calvoro_${name} ${ARG_SOURCES})
  endif()
  if(ARG_QT)
    list(TRANSFORM ARG_QT PREPEND Qt6::)
    target_link_libraries(calvoro_${name} PUBLIC ${ARG_QT} PRIVATE calvoro_qt_options)
    set_target_properties(calvoro_${name} PROPERTIES AUTOMOC ON)
    calvoro_use_precompiled(calvoro_${name} toolkit)
  endif()
  if(ARG_PUBLIC)
    calvoro_offer(${name})
  endif()
endfunction()
