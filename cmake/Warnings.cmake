option(ORB_WARNINGS_AS_ERRORS "Let a warning fail the build (for those who work on the program)" OFF)

add_library(orb_warnings INTERFACE)
target_compile_options(orb_warnings INTERFACE
  -Wall -Wextra -Wpedantic -Wconversion -Wshadow -Wmissing-declarations $<$<BOOL:${ORB_WARNINGS_AS_ERRORS}>:-Werror>)
