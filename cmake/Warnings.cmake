add_library(orb_warnings INTERFACE)
target_compile_options(orb_warnings INTERFACE
  -Wall -Wextra -Wpedantic -Wconversion -Wshadow -Wmissing-declarations -Werror)
