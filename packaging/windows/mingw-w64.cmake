# Cross-building for 64-bit Windows with Debian's mingw-w64, the variant with
# POSIX threads. What is not in the compiler's own folder comes from
# FRAGSMITH_WINDOWS_PREFIX, which packaging/windows/build fills; nothing is
# taken from this system's /usr.

set(CMAKE_SYSTEM_NAME Windows)
set(CMAKE_SYSTEM_PROCESSOR x86_64)
set(CMAKE_C_COMPILER x86_64-w64-mingw32-gcc-posix)
set(CMAKE_CXX_COMPILER x86_64-w64-mingw32-g++-posix)
set(CMAKE_RC_COMPILER x86_64-w64-mingw32-windres)

# The programs run alone, without the compiler's libraries beside them.
set(CMAKE_EXE_LINKER_FLAGS_INIT "-static")

set(CMAKE_TRY_COMPILE_PLATFORM_VARIABLES FRAGSMITH_WINDOWS_PREFIX)
set(CMAKE_FIND_ROOT_PATH /usr/x86_64-w64-mingw32 ${FRAGSMITH_WINDOWS_PREFIX})
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE ONLY)

set(ENV{PKG_CONFIG_LIBDIR}
    ${FRAGSMITH_WINDOWS_PREFIX}/lib/pkgconfig:/usr/x86_64-w64-mingw32/lib/pkgconfig
)
set(PKG_CONFIG_ARGN --static)
