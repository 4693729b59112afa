# fragsmith_library(NAME [PUBLIC lib...] [PRIVATE lib...])
#
# The library of the current folder: every .cpp in it but main.cpp. A folder
# that has headers alone becomes an interface library.
function(fragsmith_library name)
  cmake_parse_arguments(arg "" "" "PUBLIC;PRIVATE" ${ARGN})
  file(GLOB sources CONFIGURE_DEPENDS *.cpp)
  list(FILTER sources EXCLUDE REGEX "/main\\.cpp$")
  if(sources)
    add_library(${name} STATIC ${sources})
    target_include_directories(${name} PUBLIC ${PROJECT_SOURCE_DIR}/src)
    target_link_libraries(
      ${name}
      PUBLIC ${arg_PUBLIC}
      PRIVATE ${arg_PRIVATE} fragsmith_warnings)
  else()
    add_library(${name} INTERFACE)
    target_include_directories(${name} INTERFACE ${PROJECT_SOURCE_DIR}/src)
    target_link_libraries(${name} INTERFACE ${arg_PUBLIC} ${arg_PRIVATE})
  endif()
endfunction()

# fragsmith_program(NAME SOURCES file... LINKS lib...)
#
# A program in the program folder. Nothing is built while a source is missing.
function(fragsmith_program name)
  cmake_parse_arguments(arg "" "" "SOURCES;LINKS" ${ARGN})
  if(NOT arg_SOURCES)
    return()
  endif()
  add_executable(${name} ${arg_SOURCES})
  target_link_libraries(${name} PRIVATE ${arg_LINKS} fragsmith_warnings)
  set_target_properties(${name} PROPERTIES RUNTIME_OUTPUT_DIRECTORY
                                           ${FRAGSMITH_PROGRAM_FOLDER})
endfunction()
