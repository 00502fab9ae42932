# What both libraries have in common. A shared library exports what its exports.map names.
function(journal_library target name)
  target_include_directories(${target} PUBLIC $<BUILD_INTERFACE:${PROJECT_SOURCE_DIR}/include>)
  target_compile_features(${target} PUBLIC cxx_std_11)
  # Both need exceptions, even in a project that is built without. In WebAssembly, running out of
  # memory ends the program instead, and nothing else throws.
  target_compile_options(${target} PRIVATE $<$<NOT:$<PLATFORM_ID:Emscripten>>:-fexceptions>)
  set_target_properties(${target} PROPERTIES
    EXPORT_NAME ${name}
    OUTPUT_NAME ${name}
    POSITION_INDEPENDENT_CODE ON
    VERSION ${PROJECT_VERSION} SOVERSION ${PROJECT_VERSION_MAJOR})
  add_library(JournalServiceHelper::${name} ALIAS ${target})
  if(BUILD_SHARED_LIBS)
    set(map ${CMAKE_CURRENT_SOURCE_DIR}/exports.map)
    target_link_options(${target} PRIVATE LINKER:--version-script=${map})
    set_property(TARGET ${target} APPEND PROPERTY LINK_DEPENDS ${map})
  endif()
endfunction()
