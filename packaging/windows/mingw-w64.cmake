# Cross-building for 64-bit Windows with Debian's mingw-w64, the variant with
# POSIX threads. What is not in the compiler's own folder comes from
# FRAGSMITH_WINDOWS_PREFIX, which packaging/windows/build fills, and from
# FRAGSMITH_WINDOWS_QT, which packaging/windows/qt does; nothing but Qt's tools
# that run here is taken from this system's /usr.

set(CMAKE_SYSTEM_NAME Windows)
set(CMAKE_SYSTEM_PROCESSOR x86_64)
set(CMAKE_C_COMPILER x86_64-w64-mingw32-gcc-posix)
set(CMAKE_CXX_COMPILER x86_64-w64-mingw32-g++-posix)
set(CMAKE_RC_COMPILER x86_64-w64-mingw32-windres)

# This compiler relies on what the copy of an inline function in the same object
# leaves in the registers, while the linker may have taken another's copy, which
# was compiled otherwise: Qt's numbers by lot were written to any address.
set(CMAKE_CXX_FLAGS_INIT "-fno-ipa-ra")

# The programs run alone, without the compiler's libraries beside them, and the
# same sources make the same bytes.
set(CMAKE_EXE_LINKER_FLAGS_INIT "-static -Wl,--no-insert-timestamp")

set(CMAKE_TRY_COMPILE_PLATFORM_VARIABLES FRAGSMITH_WINDOWS_PREFIX
                                         FRAGSMITH_WINDOWS_QT)
set(CMAKE_FIND_ROOT_PATH /usr/x86_64-w64-mingw32 ${FRAGSMITH_WINDOWS_PREFIX}
                         ${FRAGSMITH_WINDOWS_QT})
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE ONLY)

set(ENV{PKG_CONFIG_LIBDIR}
    ${FRAGSMITH_WINDOWS_PREFIX}/lib/pkgconfig:/usr/x86_64-w64-mingw32/lib/pkgconfig
)
set(PKG_CONFIG_ARGN --static)
