# A library for each folder of src: what a folder may use is what its library links. A library shows
# its own headers, and those of no folder below it, only to those who link it: each has a directory
# of links to its headers, and there is no other way to include them.
function(orb_library name)
  file(GLOB sources CONFIGURE_DEPENDS "${CMAKE_CURRENT_SOURCE_DIR}/*.cpp")
  file(GLOB headers CONFIGURE_DEPENDS "${CMAKE_CURRENT_SOURCE_DIR}/*.h")
  file(RELATIVE_PATH room "${PROJECT_SOURCE_DIR}/src" "${CMAKE_CURRENT_SOURCE_DIR}")
  set(root "${PROJECT_BINARY_DIR}/headers/${name}")
  file(REMOVE_RECURSE "${root}")
  file(MAKE_DIRECTORY "${root}/${room}")
  foreach(header ${headers})
    get_filename_component(file "${header}" NAME)
    file(CREATE_LINK "${header}" "${root}/${room}/${file}" SYMBOLIC)
  endforeach()
  if(sources)
    add_library(${name} STATIC ${sources} ${headers})
    target_include_directories(${name} PUBLIC "${root}")
    target_link_libraries(${name} PUBLIC ${ARGN} PRIVATE orb_warnings)
    set_target_properties(${name} PROPERTIES LINKER_LANGUAGE CXX)
  else()
    add_library(${name} INTERFACE)
    target_include_directories(${name} INTERFACE "${root}")
    target_link_libraries(${name} INTERFACE ${ARGN})
  endif()
endfunction()

# The same for a folder with widgets.
function(orb_ui_library name)
  orb_library(${name} ${ARGN} Qt6::Widgets)
  set_target_properties(${name} PROPERTIES AUTOMOC ON)
endfunction()

# One test program a folder of tests/, linking just what that folder tests.
function(orb_tests name)
  file(GLOB sources CONFIGURE_DEPENDS "${CMAKE_CURRENT_SOURCE_DIR}/*.cpp" "${CMAKE_CURRENT_SOURCE_DIR}/*.h")
  add_executable(${name} ${sources})
  target_include_directories(${name} PRIVATE "${PROJECT_SOURCE_DIR}/tests")
  target_compile_definitions(${name} PRIVATE ORB_SOURCE_DIR="${PROJECT_SOURCE_DIR}")
  # Compiling them takes far longer than running them; what they test is optimised as ever.
  target_compile_options(${name} PRIVATE -O0)
  target_link_libraries(${name} PRIVATE ${ARGN} GTest::gtest_main GTest::gmock orb_warnings)
  add_dependencies(${name} orb_data)
  gtest_discover_tests(${name} DISCOVERY_TIMEOUT 60 PROPERTIES TIMEOUT 300)
endfunction()
