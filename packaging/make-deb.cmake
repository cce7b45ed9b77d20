# What cpack runs. Debian's own tools make the packages: to those that cpack could make itself, lintian
# objects (no changelog or copyright, pages not compressed, libraries of Python not looked for).
execute_process(COMMAND "${CMAKE_CURRENT_LIST_DIR}/../tools/make-deb" "${CPACK_TOPLEVEL_DIRECTORY}"
  RESULT_VARIABLE status)
if(status)
  message(FATAL_ERROR "tools/make-deb could not make the packages.")
endif()
file(GLOB CPACK_EXTERNAL_BUILT_PACKAGES "${CPACK_TOPLEVEL_DIRECTORY}/*.deb")
