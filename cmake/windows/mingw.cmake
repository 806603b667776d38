# Cross-builds for 64-bit Windows with the mingw-w64 compiler of a Debian system. The POSIX thread model is the one that
# carries the threads of the standard library.
set(CMAKE_SYSTEM_NAME Windows)
set(CMAKE_SYSTEM_PROCESSOR x86_64)

set(tool x86_64-w64-mingw32)
set(CMAKE_C_COMPILER ${tool}-gcc-posix)
set(CMAKE_CXX_COMPILER ${tool}-g++-posix)
set(CMAKE_RC_COMPILER ${tool}-windres)
set(CMAKE_AR ${tool}-gcc-ar-posix CACHE FILEPATH "")
set(CMAKE_RANLIB ${tool}-gcc-ranlib-posix CACHE FILEPATH "")

# Libraries and headers come from the compiler and from TARNWICK_WINDOWS_ROOT, never from the Linux system around.
set(CMAKE_TRY_COMPILE_PLATFORM_VARIABLES TARNWICK_WINDOWS_ROOT)
set(CMAKE_FIND_ROOT_PATH /usr/${tool} ${TARNWICK_WINDOWS_ROOT})
list(APPEND CMAKE_PREFIX_PATH ${TARNWICK_WINDOWS_ROOT})
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE ONLY)

# Windows 10 is the oldest Windows that is cared for. A program needs no library beside what Windows itself brings.
set(CMAKE_CXX_FLAGS_INIT "-D_WIN32_WINNT=0x0A00 -DWINVER=0x0A00")
set(CMAKE_C_FLAGS_INIT "-D_WIN32_WINNT=0x0A00 -DWINVER=0x0A00")
set(ZLIB_USE_STATIC_LIBS ON)
set(CMAKE_EXE_LINKER_FLAGS_INIT "-static")
set(CMAKE_SHARED_LINKER_FLAGS_INIT "-static")
set(CMAKE_CROSSCOMPILING_EMULATOR "/usr/bin/wine")
