# Linked privately by every target of this project; never exported.
add_library(mqWarnings INTERFACE)
target_compile_options(mqWarnings INTERFACE
  -Wall -Wextra -Wpedantic -Wconversion -Wsign-conversion -Wshadow -Wold-style-cast -Werror
  # A row of a table with a column missing is a mistake, not a default.
  -Wmissing-field-initializers)
# g++ 12 takes the inlined operator+ of strings for an overlapping copy (GCC bug 105651).
if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU" AND CMAKE_CXX_COMPILER_VERSION VERSION_LESS 13)
  target_compile_options(mqWarnings INTERFACE -Wno-restrict)
endif()
