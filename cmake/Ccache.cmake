# Compile through ccache where there is one.
find_program(ORB_CCACHE ccache)
mark_as_advanced(ORB_CCACHE)
if(ORB_CCACHE AND NOT CMAKE_CXX_COMPILER_LAUNCHER)
  # A source with precompiled headers is cached only when told that their macros are part of them.
  set(CMAKE_CXX_COMPILER_LAUNCHER
    "${CMAKE_COMMAND}" -E env "CCACHE_SLOPPINESS=pch_defines,time_macros" "${ORB_CCACHE}")
endif()
