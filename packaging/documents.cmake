# Manual pages, completions of shells, documents and the example game.
set(ORB_ZSH_COMPLETIONS "${CMAKE_INSTALL_DATADIR}/zsh/site-functions" CACHE STRING "Where zsh looks for completions")

# Manual pages: of Markdown, and of the programs' own tables.
set(pages "${CMAKE_CURRENT_BINARY_DIR}/man")
file(MAKE_DIRECTORY "${pages}")
set(made)
function(orb_manual page source title)
  get_filename_component(section "${page}" LAST_EXT)
  string(SUBSTRING "${section}" 1 -1 section)
  set(roff "${pages}/${page}")
  add_custom_command(OUTPUT "${roff}"
    COMMAND "${CMAKE_CURRENT_SOURCE_DIR}/man/to-roff" "${page}" "${title}" "${PROJECT_VERSION}"
      "${CMAKE_INSTALL_FULL_DOCDIR}/docs" "${source}" ${ARGN} > "${roff}"
    DEPENDS "${source}" man/to-roff ${ARGN} VERBATIM)
  set(made ${made} "${roff}" PARENT_SCOPE)
  install(FILES "${roff}" DESTINATION "${CMAKE_INSTALL_MANDIR}/man${section}")
endfunction()
orb_manual(orbctl.1 "${PROJECT_SOURCE_DIR}/docs/orbctl.md" "keeps and resolves games of armies and fleets in a terminal"
  "$<TARGET_FILE:orb_documents>")
orb_manual(orb-game.5 "${PROJECT_SOURCE_DIR}/docs/files.md" "the form of ORB's game files and its other files")
if(ORB_WINDOW)
  orb_manual(orb.6 "${CMAKE_CURRENT_SOURCE_DIR}/man/orb.md" "keeps, resolves and draws games of armies and fleets")
endif()

foreach(shell "bash:orbctl:${CMAKE_INSTALL_DATADIR}/bash-completion/completions"
    "zsh:_orbctl:${ORB_ZSH_COMPLETIONS}"
    "fish:orbctl.fish:${CMAKE_INSTALL_DATADIR}/fish/vendor_completions.d")
  string(REPLACE ":" ";" shell "${shell}")
  list(GET shell 0 kind)
  list(GET shell 1 name)
  list(GET shell 2 directory)
  set(script "${CMAKE_CURRENT_BINARY_DIR}/${kind}/${name}")
  file(MAKE_DIRECTORY "${CMAKE_CURRENT_BINARY_DIR}/${kind}")
  add_custom_command(OUTPUT "${script}" COMMAND orb_documents ${kind} > "${script}" DEPENDS orb_documents VERBATIM)
  list(APPEND made "${script}")
  install(FILES "${script}" DESTINATION "${directory}")
endforeach()
add_custom_target(orb_manuals ALL DEPENDS ${made})

install(FILES "${PROJECT_SOURCE_DIR}/README.md" "${PROJECT_SOURCE_DIR}/CHANGELOG.md" DESTINATION "${CMAKE_INSTALL_DOCDIR}")
install(DIRECTORY "${PROJECT_SOURCE_DIR}/docs" "${PROJECT_SOURCE_DIR}/examples" DESTINATION "${CMAKE_INSTALL_DOCDIR}")
