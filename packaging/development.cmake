# The core as a package for C++: whoever links a library sees its headers and those of what it links.
include(CMakePackageConfigHelpers)
set(config "${CMAKE_INSTALL_LIBDIR}/cmake/Orb")
foreach(room text model orders exchange adjudication usual_rules mail session settings history render report letters json
    json_rapid serve)
  set_target_properties(orb_${room} PROPERTIES EXPORT_NAME ${room})
  install(TARGETS orb_${room} EXPORT OrbTargets COMPONENT development
    ARCHIVE DESTINATION "${CMAKE_INSTALL_LIBDIR}" INCLUDES DESTINATION "${CMAKE_INSTALL_INCLUDEDIR}/orb")
  get_target_property(headers orb_${room} ORB_HEADERS)
  get_target_property(folder orb_${room} ORB_ROOM)
  # What is made with RapidJSON is nobody else's business.
  if(NOT room STREQUAL "json_rapid")
    install(FILES ${headers} DESTINATION "${CMAKE_INSTALL_INCLUDEDIR}/orb/${folder}" COMPONENT development)
  endif()
endforeach()
install(EXPORT OrbTargets NAMESPACE Orb:: DESTINATION "${config}" COMPONENT development)
set(ORB_DATA "${data}")
configure_package_config_file(OrbConfig.cmake.in "${CMAKE_CURRENT_BINARY_DIR}/OrbConfig.cmake"
  INSTALL_DESTINATION "${config}" PATH_VARS ORB_DATA)
write_basic_package_version_file("${CMAKE_CURRENT_BINARY_DIR}/OrbConfigVersion.cmake" COMPATIBILITY SameMinorVersion)
install(FILES "${CMAKE_CURRENT_BINARY_DIR}/OrbConfig.cmake" "${CMAKE_CURRENT_BINARY_DIR}/OrbConfigVersion.cmake"
  DESTINATION "${config}" COMPONENT development)
