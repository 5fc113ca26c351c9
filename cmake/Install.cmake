# What an installation says first. A tree in which a program was not built (each tree of ./run builds one)
# names it and stops before anything is copied; a tree without the window says that it has none.

set(calvoro_programs calvoro-cli)
if(CALVORO_BUILD_WINDOW)
  list(APPEND calvoro_programs calvoro)
else()
  install(CODE "message(STATUS \"The window is no part of this tree (CALVORO_BUILD_WINDOW is OFF).\")")
endif()

foreach(program IN LISTS calvoro_programs)
  install(CODE "
    if(NOT EXISTS \"$<TARGET_FILE:${program}>\")
      message(FATAL_ERROR \"${program} is not built in this tree. All of it: cmake --build ${calvoro_BINARY_DIR}\")
    endif()")
endforeach()
