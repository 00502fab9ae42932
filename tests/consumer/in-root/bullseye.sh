# The oldest CMake that is supported: library, installation, a program, and a test program.
set -euo pipefail
cmake --version
cmake -S . -B /tmp/build -G Ninja
cmake --build /tmp/build --target journal_service_helper journal_client_utils journal_bytes_test
/tmp/build/tests/bytes/journal_bytes_test --gtest_brief=1
cmake --install /tmp/build --component runtime
cmake --install /tmp/build --component development
ldconfig

cd /tmp
g++ /project/tests/consumer/program.cpp $(pkg-config --cflags --libs JournalServiceHelper) -o program
[ "$(./program)" = 'Berg & Sohn 7 <getMissedCallList>' ]
cmake -S /project/tests/consumer/find-package -B found -G Ninja
cmake --build found
[ "$(found/program)" = 'Berg & Sohn 7 <getMissedCallList>' ]
cmake -S /project/tests/consumer/parent -B parent -G Ninja
cmake --build parent
[ "$(parent/program)" = 'Berg & Sohn 7 <getMissedCallList>' ]
