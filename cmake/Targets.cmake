# One library a folder: what a folder may use is what its library links.
function(orb_library name)
  file(GLOB sources CONFIGURE_DEPENDS "${CMAKE_CURRENT_SOURCE_DIR}/*.cpp" "${CMAKE_CURRENT_SOURCE_DIR}/*.h")
  add_library(${name} STATIC ${sources})
  target_include_directories(${name} PUBLIC "${PROJECT_SOURCE_DIR}/src")
  target_link_libraries(${name} PUBLIC ${ARGN} PRIVATE orb_warnings)
  set_target_properties(${name} PROPERTIES LINKER_LANGUAGE CXX)
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
