# Big-endian 64-bit s390x, run under qemu.
set(triplet s390x-linux-gnu)
set(CMAKE_SYSTEM_PROCESSOR s390x)
include(${CMAKE_CURRENT_LIST_DIR}/debian.cmake)
