# GoogleTest, as GTest::gtest and GTest::gtest_main: the installed one, or for another architecture
# built from Debian's sources. Without it everything but the tests is built.
include(GoogleTest)
set(JOURNAL_GOOGLETEST_SOURCES /usr/src/googletest CACHE PATH
    "GoogleTest, as built for another architecture")
if(NOT CMAKE_CROSSCOMPILING)
  find_package(GTest QUIET)
  if(TARGET GTest::GTest AND NOT TARGET GTest::gtest) # by the names of CMake before 3.20
    add_library(GTest::gtest ALIAS GTest::GTest)
    add_library(GTest::gtest_main ALIAS GTest::Main)
  endif()
elseif(EXISTS ${JOURNAL_GOOGLETEST_SOURCES}/CMakeLists.txt)
  set(INSTALL_GTEST OFF CACHE BOOL "" FORCE)
  set(BUILD_GMOCK OFF CACHE BOOL "" FORCE)
  add_subdirectory(${JOURNAL_GOOGLETEST_SOURCES} ${PROJECT_BINARY_DIR}/googletest
    EXCLUDE_FROM_ALL)
  target_compile_options(gtest PRIVATE -O1)
endif()
if(NOT TARGET GTest::gtest)
  message(STATUS "GoogleTest not found: the tests in tests/ are not built")
endif()
