# The kept libraries. libzip comes by pkg-config: its own CMake file insists on
# command-line tools that a build has no use for.

find_package(PkgConfig REQUIRED)
pkg_check_modules(LIBZIP REQUIRED IMPORTED_TARGET libzip)
find_package(tl-expected CONFIG REQUIRED)
find_package(CLI11 CONFIG REQUIRED)
find_package(nlohmann_json CONFIG REQUIRED)

if(FRAGSMITH_EDITOR)
  find_package(Qt6 REQUIRED COMPONENTS Widgets)
endif()

# stb_image is used as a header alone, with our own set of formats.
find_path(STB_INCLUDE_DIR stb_image.h PATH_SUFFIXES stb REQUIRED)
mark_as_advanced(STB_INCLUDE_DIR)
add_library(fragsmith_stb INTERFACE)
target_include_directories(fragsmith_stb SYSTEM INTERFACE ${STB_INCLUDE_DIR})

if(FRAGSMITH_TESTS)
  find_package(GTest CONFIG REQUIRED)
endif()
if(FRAGSMITH_BENCH)
  find_package(benchmark CONFIG REQUIRED)
  pkg_check_modules(LIBARCHIVE REQUIRED IMPORTED_TARGET libarchive)
  pkg_check_modules(MINIZIP REQUIRED IMPORTED_TARGET minizip)
endif()
