# Included before the compiler is looked for, so that its absence is told in words of one's own.
if(ORB_BUILD_FUZZ)
  find_program(ORB_CLANG NAMES "${CMAKE_CXX_COMPILER}" clang++)
  mark_as_advanced(ORB_CLANG)
  if(NOT ORB_CLANG)
    message(FATAL_ERROR "The fuzzers need clang with its run-time library, and it is not installed "
      "(Debian: clang, libclang-rt-14-dev).")
  endif()
endif()

# Has all code that follows made for the fuzzers.
macro(orb_instrument_for_fuzzers)
  if(NOT CMAKE_CXX_COMPILER_ID MATCHES Clang)
    message(FATAL_ERROR "The fuzzers need clang; this build has ${CMAKE_CXX_COMPILER}. "
      "\"cmake --preset fuzz\" asks for the right one.")
  endif()
  # The assertions of the standard library see what lies outside a text but not outside its memory.
  add_compile_options(-fsanitize=fuzzer-no-link,address,undefined -fno-sanitize-recover=all -D_GLIBCXX_ASSERTIONS)
  add_link_options(-fsanitize=address,undefined)
endmacro()
