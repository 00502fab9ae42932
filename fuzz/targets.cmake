# The fuzz targets and what they share, for the fuzzers and for the replay of their corpora.
set(JOURNAL_FUZZ_DIR ${CMAKE_CURRENT_LIST_DIR})
set(JOURNAL_FUZZ_TARGETS
  fuzz_extractors fuzz_messages fuzz_decoders fuzz_roundtrip fuzz_escaping)

# The reference, and the comparison of the library with it.
set(journal_tests ${PROJECT_SOURCE_DIR}/tests)
file(GLOB JOURNAL_FUZZ_COMPARISON CONFIGURE_DEPENDS
  ${journal_tests}/reference/*.cpp ${journal_tests}/differential/*.cpp)
list(FILTER JOURNAL_FUZZ_COMPARISON EXCLUDE REGEX "Test\\.cpp$")
set(JOURNAL_FUZZ_INCLUDES ${JOURNAL_FUZZ_DIR} ${journal_tests} ${PROJECT_SOURCE_DIR})
