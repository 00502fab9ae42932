# Little-endian 32-bit MIPS, run under qemu.
set(triplet mipsel-linux-gnu)
set(CMAKE_SYSTEM_PROCESSOR mipsel)
include(${CMAKE_CURRENT_LIST_DIR}/debian.cmake)
