# Tests that run each fuzz target over its corpus, with any compiler and on any machine.
include(${CMAKE_CURRENT_LIST_DIR}/targets.cmake)

add_library(journal_fuzz_comparison OBJECT ${JOURNAL_FUZZ_COMPARISON})
target_include_directories(journal_fuzz_comparison PUBLIC ${JOURNAL_FUZZ_INCLUDES})
target_link_libraries(journal_fuzz_comparison PUBLIC
  JournalServiceHelper::JournalServiceHelper JournalServiceHelper::ClientUtils)

foreach(target IN LISTS JOURNAL_FUZZ_TARGETS)
  add_executable(journal_replay_${target} ${JOURNAL_FUZZ_DIR}/${target}.cpp ${JOURNAL_FUZZ_DIR}/replay.cpp)
  target_link_libraries(journal_replay_${target} PRIVATE journal_fuzz_comparison)
  string(REPLACE "fuzz_" "fuzz_corpus_" test ${target})
  add_test(NAME ${test}
    COMMAND journal_replay_${target} ${JOURNAL_FUZZ_DIR}/corpus/${target})
  set_tests_properties(${test} PROPERTIES TIMEOUT 600)
endforeach()

# The inspection engine takes any text, so it runs over all corpora.
if(TARGET journal_inspect)
  add_executable(journal_replay_fuzz_inspect
    ${JOURNAL_FUZZ_DIR}/fuzz_inspect.cpp ${JOURNAL_FUZZ_DIR}/replay.cpp)
  target_link_libraries(journal_replay_fuzz_inspect PRIVATE journal_inspect)
  file(GLOB corpora ${JOURNAL_FUZZ_DIR}/corpus/*)
  add_test(NAME fuzz_corpus_inspect COMMAND journal_replay_fuzz_inspect ${corpora})
  set_tests_properties(fuzz_corpus_inspect PROPERTIES TIMEOUT 600)
endif()
