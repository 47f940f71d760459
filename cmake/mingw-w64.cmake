# Windows x86-64 with Debian's mingw-w64; what it builds runs under Wine.
set(CMAKE_SYSTEM_NAME Windows)
set(CMAKE_SYSTEM_PROCESSOR x86_64)
set(CMAKE_C_COMPILER x86_64-w64-mingw32-gcc-posix)
set(CMAKE_CXX_COMPILER x86_64-w64-mingw32-g++-posix)
set(CMAKE_RC_COMPILER x86_64-w64-mingw32-windres)
set(CMAKE_FIND_ROOT_PATH /usr/x86_64-w64-mingw32)
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE ONLY)
set(CMAKE_CXX_FLAGS_INIT "-D_WIN32_WINNT=0x0A00 -DUNICODE -D_UNICODE")
# The compiler's own libraries go into each binary, so that it imports system libraries alone.
set(CMAKE_EXE_LINKER_FLAGS_INIT "-static")
set(CMAKE_SHARED_LINKER_FLAGS_INIT "-static")
# Debian calls the 64-bit Wine "wine64" or, behind its wrapper, "wine".
find_program(MQ_WINE NAMES wine64 wine PATHS /usr/lib/wine)
set(CMAKE_CROSSCOMPILING_EMULATOR ${MQ_WINE})
