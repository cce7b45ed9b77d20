option(ORB_WARNINGS_AS_ERRORS "Let a warning fail the build (for those who work on the program)" OFF)

add_library(orb_warnings INTERFACE)
target_compile_options(orb_warnings INTERFACE
  -Wall -Wextra -Wpedantic -Wconversion -Wshadow -Wmissing-declarations $<$<BOOL:${ORB_WARNINGS_AS_ERRORS}>:-Werror>)

# GCC 12 takes some additions of texts for copies over each other or beyond all bounds when it
# optimises them (its bugs 105329 and 105651).
if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU" AND CMAKE_CXX_COMPILER_VERSION VERSION_LESS 13)
  target_compile_options(orb_warnings INTERFACE -Wno-restrict -Wno-stringop-overflow -Wno-array-bounds)
endif()
