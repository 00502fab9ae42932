# 32-bit x86, run as it is by the loader of its own C library, which the package brings.
set(triplet i686-linux-gnu)
set(CMAKE_SYSTEM_PROCESSOR i686)
include(${CMAKE_CURRENT_LIST_DIR}/debian.cmake)
set(CMAKE_CROSSCOMPILING_EMULATOR
    "/usr/${triplet}/lib/ld-linux.so.2;--library-path;/usr/${triplet}/lib")
