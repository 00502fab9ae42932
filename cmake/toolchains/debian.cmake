# What Debian's cross compilers share. Needs triplet and CMAKE_SYSTEM_PROCESSOR, by which qemu names
# its emulators as well. Debian packages: g++-${triplet}, qemu-user.
set(CMAKE_SYSTEM_NAME Linux)
set(CMAKE_CXX_COMPILER ${triplet}-g++)
# Folders named by the user are for the device as well; nothing is taken from those of the host.
set(CMAKE_FIND_ROOT_PATH ${CMAKE_PREFIX_PATH} /usr/${triplet})
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE ONLY)
set(CMAKE_CROSSCOMPILING_EMULATOR "qemu-${CMAKE_SYSTEM_PROCESSOR};-L;/usr/${triplet}")
