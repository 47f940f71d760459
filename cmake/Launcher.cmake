# Compile through ccache where it is installed.
find_program(MQ_CCACHE ccache)
mark_as_advanced(MQ_CCACHE)
if(MQ_CCACHE AND NOT CMAKE_CXX_COMPILER_LAUNCHER)
  set(CMAKE_CXX_COMPILER_LAUNCHER ${MQ_CCACHE})
endif()
