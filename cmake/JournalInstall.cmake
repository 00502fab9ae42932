# Installation: headers, libraries, the CMake package and the pkg-config file.
include(CMakePackageConfigHelpers)

set(package_dir ${CMAKE_INSTALL_LIBDIR}/cmake/JournalServiceHelper)

install(DIRECTORY ${PROJECT_SOURCE_DIR}/include/ DESTINATION ${CMAKE_INSTALL_INCLUDEDIR})
install(TARGETS journal_service_helper journal_client_utils
  EXPORT JournalServiceHelperTargets)
install(EXPORT JournalServiceHelperTargets
  NAMESPACE JournalServiceHelper::
  DESTINATION ${package_dir})

configure_package_config_file(
  ${PROJECT_SOURCE_DIR}/packaging/JournalServiceHelperConfig.cmake.in
  ${PROJECT_BINARY_DIR}/JournalServiceHelperConfig.cmake
  INSTALL_DESTINATION ${package_dir})
write_basic_package_version_file(
  ${PROJECT_BINARY_DIR}/JournalServiceHelperConfigVersion.cmake
  COMPATIBILITY SameMajorVersion)
install(FILES
  ${PROJECT_BINARY_DIR}/JournalServiceHelperConfig.cmake
  ${PROJECT_BINARY_DIR}/JournalServiceHelperConfigVersion.cmake
  DESTINATION ${package_dir})

# Paths relative to the pkg-config file, so that an installed tree can be moved.
file(RELATIVE_PATH pkgconfig_to_prefix
  ${CMAKE_INSTALL_FULL_LIBDIR}/pkgconfig ${CMAKE_INSTALL_PREFIX})
file(RELATIVE_PATH prefix_to_libdir ${CMAKE_INSTALL_PREFIX} ${CMAKE_INSTALL_FULL_LIBDIR})
file(RELATIVE_PATH prefix_to_includedir ${CMAKE_INSTALL_PREFIX} ${CMAKE_INSTALL_FULL_INCLUDEDIR})

# A program links the product's own utility library by its path, the one built here by its name.
if(JOURNAL_CLIENTUTILS_LIBRARY)
  set(clientutils_to_link ${JOURNAL_CLIENTUTILS_LIBRARY})
else()
  set(clientutils_to_link -lClientUtils)
endif()
configure_file(
  ${PROJECT_SOURCE_DIR}/packaging/JournalServiceHelper.pc.in
  ${PROJECT_BINARY_DIR}/JournalServiceHelper.pc @ONLY)
install(FILES ${PROJECT_BINARY_DIR}/JournalServiceHelper.pc
  DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig)
