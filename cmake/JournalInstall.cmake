# What is installed, in the components runtime, development and tools.
include(GNUInstallDirs)
include(CMakePackageConfigHelpers)
include(${CMAKE_CURRENT_LIST_DIR}/JournalUninstall.cmake)

set(journal_libraries ${CMAKE_INSTALL_LIBDIR})
set(journal_headers ${CMAKE_INSTALL_INCLUDEDIR})
set(journal_data ${CMAKE_INSTALL_DATADIR}/JournalServiceHelper)
set(journal_package ${CMAKE_INSTALL_LIBDIR}/cmake/JournalServiceHelper)

install(DIRECTORY include/ DESTINATION ${journal_headers} COMPONENT development)
install(FILES docs/man/JournalServiceHelper.3 DESTINATION ${CMAKE_INSTALL_MANDIR}/man3
  COMPONENT development)
install(FILES docs/man/journal-messages.7 DESTINATION ${CMAKE_INSTALL_MANDIR}/man7
  COMPONENT development)
install(DIRECTORY tests/golden/ DESTINATION ${journal_data}/golden COMPONENT development
  FILES_MATCHING PATTERN *.xml)
install(DIRECTORY examples/data/ DESTINATION ${journal_data}/samples COMPONENT development
  FILES_MATCHING PATTERN *.xml)

# ---- The libraries and the CMake package, which is also usable from the build folder

set(libraries journal_service_helper)
if(TARGET journal_client_utils)
  list(APPEND libraries journal_client_utils)
endif()
install(TARGETS ${libraries} EXPORT JournalServiceHelperTargets
  LIBRARY COMPONENT runtime NAMELINK_COMPONENT development
  ARCHIVE COMPONENT development
  INCLUDES DESTINATION ${journal_headers})
install(EXPORT JournalServiceHelperTargets NAMESPACE JournalServiceHelper::
  DESTINATION ${journal_package} COMPONENT development)
export(EXPORT JournalServiceHelperTargets NAMESPACE JournalServiceHelper::)

# Installed files do not know the folder that the product's own utility library had here.
set(journal_own_name)
if(JOURNAL_CLIENTUTILS_LIBRARY AND NOT TARGET ${JOURNAL_CLIENTUTILS_LIBRARY})
  get_filename_component(journal_own_name "${JOURNAL_CLIENTUTILS_LIBRARY}" NAME)
  get_filename_component(own_folder "${JOURNAL_CLIENTUTILS_LIBRARY}" DIRECTORY)
endif()

set(config JournalServiceHelperConfig.cmake)
set(journal_own_folder)
configure_package_config_file(packaging/${config}.in ${PROJECT_BINARY_DIR}/installed/${config}
  INSTALL_DESTINATION ${journal_package}
  PATH_VARS journal_libraries journal_headers journal_data)

function(configure_for_the_build_folder)
  set(journal_own_folder "\"${own_folder}\"")
  set(journal_libraries ${PROJECT_BINARY_DIR})
  set(journal_headers ${PROJECT_SOURCE_DIR}/include)
  set(journal_data ${PROJECT_BINARY_DIR}/data)
  configure_package_config_file(packaging/${config}.in ${PROJECT_BINARY_DIR}/${config}
    INSTALL_DESTINATION ${PROJECT_BINARY_DIR} INSTALL_PREFIX ${PROJECT_BINARY_DIR}
    PATH_VARS journal_libraries journal_headers journal_data)
  file(COPY cmake/JournalOwnClientUtils.cmake DESTINATION ${PROJECT_BINARY_DIR})
  file(COPY tests/golden DESTINATION ${journal_data} FILES_MATCHING PATTERN *.xml)
  file(COPY examples/data/ DESTINATION ${journal_data}/samples)
endfunction()
configure_for_the_build_folder()

write_basic_package_version_file(
  ${PROJECT_BINARY_DIR}/JournalServiceHelperConfigVersion.cmake COMPATIBILITY SameMajorVersion)
install(FILES
  ${PROJECT_BINARY_DIR}/installed/${config}
  ${PROJECT_BINARY_DIR}/JournalServiceHelperConfigVersion.cmake
  cmake/JournalOwnClientUtils.cmake
  DESTINATION ${journal_package} COMPONENT development)

# ---- The pkg-config file

# Relative to itself, so that the installed tree can be moved, unless a folder is absolute.
file(RELATIVE_PATH to_prefix ${CMAKE_INSTALL_FULL_LIBDIR}/pkgconfig ${CMAKE_INSTALL_PREFIX})
string(REGEX REPLACE "/$" "" prefix "\${pcfiledir}/${to_prefix}")
foreach(folder LIBDIR INCLUDEDIR DATADIR)
  string(TOLOWER ${folder} variable)
  set(${variable} "\${prefix}/${CMAKE_INSTALL_${folder}}")
  if(IS_ABSOLUTE ${CMAKE_INSTALL_${folder}})
    set(${variable} ${CMAKE_INSTALL_${folder}})
  endif()
endforeach()
if(IS_ABSOLUTE ${CMAKE_INSTALL_LIBDIR})
  set(prefix ${CMAKE_INSTALL_PREFIX})
endif()

# How the utility library is linked: by its name, -lX for libX.so and libX.a.
set(libs_private -lClientUtils)
if(journal_own_name)
  string(REGEX REPLACE "^lib(.*)\\.(so|a)$" "-l\\1" libs_private "${journal_own_name}")
  string(REGEX REPLACE "^([^-].*)" "-l:\\1" libs_private "${libs_private}")
endif()
string(PREPEND libs_private "-L\${clientutils_libdir} ")
if(BUILD_SHARED_LIBS)
  set(libs "-Wl,-rpath-link,\${clientutils_libdir}")
else()
  set(libs "${libs_private}")
  set(libs_private)
endif()
configure_file(packaging/JournalServiceHelper.pc.in
  ${PROJECT_BINARY_DIR}/JournalServiceHelper.pc @ONLY)
install(FILES ${PROJECT_BINARY_DIR}/JournalServiceHelper.pc
  DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig COMPONENT development)
