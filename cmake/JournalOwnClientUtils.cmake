# Makes JournalServiceHelper::ClientUtils of the product's own utility library, shared or static.
# Installed too: a program that is linked needs the library as this project did.
function(journal_import_client_utils library)
  if(NOT EXISTS "${library}")
    message(FATAL_ERROR "JOURNAL_CLIENTUTILS_LIBRARY: there is no file \"${library}\"")
  endif()
  if(library MATCHES "\\.a$")
    add_library(JournalServiceHelper::ClientUtils STATIC IMPORTED GLOBAL)
  else()
    add_library(JournalServiceHelper::ClientUtils SHARED IMPORTED GLOBAL)
    execute_process(COMMAND ${CMAKE_READELF} -d "${library}" OUTPUT_VARIABLE dynamic ERROR_QUIET)
    if(NOT dynamic MATCHES "SONAME")
      # Linked by its path, it would be looked for at that path on the device.
      set_target_properties(JournalServiceHelper::ClientUtils PROPERTIES IMPORTED_NO_SONAME TRUE)
    endif()
  endif()
  set_target_properties(JournalServiceHelper::ClientUtils PROPERTIES
    IMPORTED_LOCATION "${library}")
endfunction()
