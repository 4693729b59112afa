# Compiler settings: one warning set for all code of ours, sanitizers for the
# whole build.

find_program(FRAGSMITH_CCACHE ccache)
mark_as_advanced(FRAGSMITH_CCACHE)
if(FRAGSMITH_CCACHE AND NOT DEFINED CMAKE_CXX_COMPILER_LAUNCHER)
  set(CMAKE_CXX_COMPILER_LAUNCHER ${FRAGSMITH_CCACHE})
endif()

add_library(fragsmith_warnings INTERFACE)
if(MSVC)
  target_compile_options(fragsmith_warnings INTERFACE /W4 /permissive-)
  if(FRAGSMITH_WERROR)
    target_compile_options(fragsmith_warnings INTERFACE /WX)
  endif()
else()
  target_compile_options(
    fragsmith_warnings
    INTERFACE -Wall
              -Wextra
              -Wpedantic
              -Wcast-align
              -Wcast-qual
              -Wconversion
              -Wextra-semi
              -Wformat=2
              -Wimplicit-fallthrough
              -Wnon-virtual-dtor
              -Wold-style-cast
              -Woverloaded-virtual
              -Wshadow
              -Wundef
              -Wunused
              # Designated initialisers leave the rest at its defaults on
              # purpose.
              -Wno-missing-field-initializers
              # g++ 12 takes "text" + std::string for an overlapping copy.
              $<$<CXX_COMPILER_ID:GNU>:-Wno-restrict>
              $<$<CXX_COMPILER_ID:GNU>:-Wduplicated-branches>
              $<$<CXX_COMPILER_ID:GNU>:-Wduplicated-cond>
              $<$<CXX_COMPILER_ID:GNU>:-Wlogical-op>)
  if(FRAGSMITH_WERROR)
    target_compile_options(fragsmith_warnings INTERFACE -Werror)
  endif()
endif()

if(FRAGSMITH_FUZZ)
  if(NOT CMAKE_CXX_COMPILER_ID MATCHES "Clang")
    message(FATAL_ERROR "FRAGSMITH_FUZZ needs clang, which brings libFuzzer")
  endif()
  # Every library is instrumented; only the fuzz targets get libFuzzer's main.
  add_compile_options(-fsanitize=fuzzer-no-link)
  set(FRAGSMITH_SANITIZE address,undefined)
endif()
if(FRAGSMITH_SANITIZE)
  add_compile_options(-fsanitize=${FRAGSMITH_SANITIZE}
                      -fno-sanitize-recover=all -fno-omit-frame-pointer)
  add_link_options(-fsanitize=${FRAGSMITH_SANITIZE})
endif()
