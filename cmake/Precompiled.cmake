# Headers that many sources read, compiled once for all of them: most of the time that a small source takes goes
# to reading the same headers again. A source still includes what it uses; the sanitized build compiles without.
#
#   calvoro_precompile(toolkit HEADERS <QWidget> ... LIBRARIES Qt6::Widgets ... [OPTIONS ...])
#   calvoro_use_precompiled(calvoro_windows toolkit)

function(calvoro_precompile name)
  cmake_parse_arguments(ARG "" "" "HEADERS;LIBRARIES;OPTIONS" ${ARGN})
  if(NOT CALVORO_PRECOMPILE)
    return()
  endif()
  set(source "${CMAKE_CURRENT_BINARY_DIR}/precompiled/${name}.cpp")
  file(CONFIGURE OUTPUT "${source}" CONTENT "// Holds the headers that are compiled once: ${name}.\n")
  add_library(calvoro_${name}_headers OBJECT EXCLUDE_FROM_ALL "${source}")
  target_link_libraries(calvoro_${name}_headers PRIVATE calvoro_options ${ARG_LIBRARIES})
  target_compile_options(calvoro_${name}_headers PRIVATE ${ARG_OPTIONS})
  target_precompile_headers(calvoro_${name}_headers PRIVATE ${ARG_HEADERS})
endfunction()

# For a target that is compiled with the same options; the compiler refuses the headers otherwise.
function(calvoro_use_precompiled target name)
  if(CALVORO_PRECOMPILE)
    target_precompile_headers(${target} REUSE_FROM calvoro_${name}_headers)
    if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
      # GCC 12 takes the pieces of a joined std::string for overlapping or endless ones, which it only tells when
      # a header of the library has been compiled before.
      target_compile_options(${target} PRIVATE
        -Wno-array-bounds -Wno-restrict -Wno-stringop-overflow -Wno-stringop-overread)
    endif()
  endif()
endfunction()
