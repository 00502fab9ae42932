# The Python package with the oldest Python, CMake, pybind11 and pytest that are supported.
set -euo pipefail
python3 --version
cmake -S . -B /tmp/build -G Ninja -DBUILD_SHARED_LIBS=OFF -DJOURNAL_BUILD_TESTING=OFF \
  -DJOURNAL_BUILD_PYTHON=ON
cmake --build /tmp/build
PYTHONPATH=/tmp/build/python python3 -B -m pytest -q -p no:cacheprovider python/tests \
  --ignore python/tests/test_types.py
