# 32-bit x86, run natively with the loader of its C library, which the package contains.
set(triplet i686-linux-gnu)
set(CMAKE_SYSTEM_PROCESSOR i686)
include(${CMAKE_CURRENT_LIST_DIR}/debian.cmake)
set(CMAKE_CROSSCOMPILING_EMULATOR
    "/usr/${triplet}/lib/ld-linux.so.2;--library-path;/usr/${triplet}/lib")
