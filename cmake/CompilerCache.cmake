# Compiles through ccache where there is one, so that every clone on a machine shares what another has compiled.
find_program(CCACHE ccache)
if(CCACHE AND NOT DEFINED CMAKE_CXX_COMPILER_LAUNCHER)
  set(ccache_ways CCACHE_BASEDIR=${CMAKE_SOURCE_DIR} CCACHE_NOHASHDIR=1)
  if(BRINDOCK_PCH)
    # Precompiled headers are trusted, and their many bytes looked at once and not for each source.
    list(APPEND ccache_ways CCACHE_SLOPPINESS=pch_defines,time_macros CCACHE_INODECACHE=1)
  endif()
  set(CMAKE_CXX_COMPILER_LAUNCHER ${CMAKE_COMMAND} -E env ${ccache_ways} ${CCACHE})
endif()
