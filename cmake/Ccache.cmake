# Compile through ccache where there is one.
find_program(ORB_CCACHE ccache)
mark_as_advanced(ORB_CCACHE)
if(ORB_CCACHE AND NOT CMAKE_CXX_COMPILER_LAUNCHER)
  set(CMAKE_CXX_COMPILER_LAUNCHER "${ORB_CCACHE}")
endif()
