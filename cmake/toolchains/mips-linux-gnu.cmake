# Big-endian 32-bit MIPS, run under qemu.
set(triplet mips-linux-gnu)
set(CMAKE_SYSTEM_PROCESSOR mips)
include(${CMAKE_CURRENT_LIST_DIR}/debian.cmake)
