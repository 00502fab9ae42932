# Big-endian 32-bit PowerPC, run under qemu.
set(triplet powerpc-linux-gnu)
set(CMAKE_SYSTEM_PROCESSOR ppc)
include(${CMAKE_CURRENT_LIST_DIR}/debian.cmake)
