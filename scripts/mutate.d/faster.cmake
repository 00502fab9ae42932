# Compiles the library's sources as one, with the standard headers compiled beforehand, so that no
# change costs more than one short compilation.
cmake_language(DEFER CALL set_target_properties journal_service_helper PROPERTIES
  UNITY_BUILD ON UNITY_BUILD_BATCH_SIZE 0)
cmake_language(DEFER CALL target_precompile_headers journal_service_helper PRIVATE
  <algorithm> <array> <cstring> <deque> <list> <string> <string_view>)
