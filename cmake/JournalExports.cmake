# Restricts what a shared library exports to what its exports.map names.
function(journal_exports target)
  if(BUILD_SHARED_LIBS)
    set(map ${CMAKE_CURRENT_SOURCE_DIR}/exports.map)
    target_link_options(${target} PRIVATE LINKER:--version-script=${map})
    set_property(TARGET ${target} APPEND PROPERTY LINK_DEPENDS ${map})
  endif()
endfunction()
