# Compiles the library's sources as one, so that no change costs more than one short compilation.
cmake_language(DEFER CALL set_target_properties journal_service_helper PROPERTIES
  UNITY_BUILD ON UNITY_BUILD_BATCH_SIZE 0)
