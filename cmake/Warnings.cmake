# Linked privately by every target of this project; never exported.
add_library(mqWarnings INTERFACE)
target_compile_options(mqWarnings INTERFACE
  -Wall -Wextra -Wpedantic -Wconversion -Wsign-conversion -Wshadow -Wold-style-cast -Werror
  # A row of a table with a column missing is a mistake, not a default.
  -Wmissing-field-initializers)
