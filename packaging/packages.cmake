# `cpack` makes the Debian packages, as tools/make-deb does; `cpack -G TGZ` an archive of all that is
# installed, for other systems.
set(CPACK_GENERATOR External)
set(CPACK_EXTERNAL_PACKAGE_SCRIPT "${CMAKE_CURRENT_SOURCE_DIR}/make-deb.cmake")
set(CPACK_PACKAGE_VENDOR "The ORB maintainers")
set(CPACK_STRIP_FILES ON)
include(CPack)
