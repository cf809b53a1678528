# Toolchain: Windows (64 bits) on Debian, with mingw-w64 and the compiler of posix threads.
set(CMAKE_SYSTEM_NAME Windows)
set(CMAKE_SYSTEM_PROCESSOR x86_64)

set(CMAKE_C_COMPILER x86_64-w64-mingw32-gcc-posix)
set(CMAKE_CXX_COMPILER x86_64-w64-mingw32-g++-posix)
set(CMAKE_RC_COMPILER x86_64-w64-mingw32-windres)

# Libraries of the host are none of ours; its programs are. Every image is told to accept any
# address, also above 4 GB, and to run no data.
set(CMAKE_FIND_ROOT_PATH /usr/x86_64-w64-mingw32)
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE ONLY)

set(hardening "-Wl,--dynamicbase,--high-entropy-va,--nxcompat")
set(CMAKE_EXE_LINKER_FLAGS_INIT "${hardening}")
set(CMAKE_SHARED_LINKER_FLAGS_INIT "${hardening}")
set(CMAKE_MODULE_LINKER_FLAGS_INIT "${hardening}")
unset(hardening)
