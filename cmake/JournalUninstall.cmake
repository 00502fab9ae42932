# The target uninstall: removes what was installed from this build folder, and the folders that the
# installation made, as long as they are empty.
if(NOT journal_top_level)
  return()
endif()
set(record ${PROJECT_BINARY_DIR}/install_folders.txt)

# Runs before anything is installed. Parents come behind their folders.
install(CODE "
  set(folders)
  foreach(folder
      ${CMAKE_INSTALL_BINDIR} ${CMAKE_INSTALL_INCLUDEDIR} ${CMAKE_INSTALL_LIBDIR}/pkgconfig
      ${CMAKE_INSTALL_LIBDIR}/cmake/JournalServiceHelper
      ${CMAKE_INSTALL_DATADIR}/JournalServiceHelper/golden
      ${CMAKE_INSTALL_DATADIR}/JournalServiceHelper/samples ${CMAKE_INSTALL_MANDIR}/man1
      ${CMAKE_INSTALL_MANDIR}/man3 ${CMAKE_INSTALL_MANDIR}/man7 ${CMAKE_INSTALL_DATADIR}/journalmsg
      ${CMAKE_INSTALL_DATADIR}/bash-completion/completions
      ${CMAKE_INSTALL_DATADIR}/zsh/vendor-completions)
    get_filename_component(folder \"\${folder}\" ABSOLUTE BASE_DIR \"\${CMAKE_INSTALL_PREFIX}\")
    set(folder \"\$ENV{DESTDIR}\${folder}\")
    while(NOT EXISTS \"\${folder}\")
      list(APPEND folders \"\${folder}\")
      get_filename_component(folder \"\${folder}\" DIRECTORY)
    endwhile()
  endforeach()
  list(REMOVE_DUPLICATES folders)
  list(SORT folders ORDER DESCENDING)
  list(JOIN folders \"\\n\" folders)
  file(APPEND \"${record}\" \"\${folders}\\n\")
" ALL_COMPONENTS)

add_custom_target(uninstall
  COMMAND ${CMAKE_COMMAND} -D folder=${PROJECT_BINARY_DIR} -D record=${record}
    -P ${CMAKE_CURRENT_LIST_DIR}/uninstall.cmake
  VERBATIM)
