# fragsmith_library(NAME [PUBLIC lib...] [PRIVATE lib...])
#
# The library of the current folder: every .cpp in it but main.cpp. A folder
# that has headers alone becomes an interface library.
function(fragsmith_library name)
  cmake_parse_arguments(arg "" "" "PUBLIC;PRIVATE" ${ARGN})
  file(GLOB sources CONFIGURE_DEPENDS *.cpp)
  list(FILTER sources EXCLUDE REGEX "/main\\.cpp$")
  if(CMAKE_AUTOMOC)
    file(GLOB headers CONFIGURE_DEPENDS *.h)
    list(APPEND sources ${headers})
  endif()
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

# fragsmith_program(NAME DESCRIPTION text SOURCES file... LINKS lib...)
#
# A program in the program folder. Nothing is built while a source is missing.
# On Windows it tells who it is: its icon, version and description, and what it
# wants of the system.
function(fragsmith_program name)
  cmake_parse_arguments(arg "" "DESCRIPTION" "SOURCES;LINKS" ${ARGN})
  if(NOT arg_SOURCES)
    return()
  endif()
  add_executable(${name} ${arg_SOURCES})
  if(WIN32)
    set(FRAGSMITH_RC_NAME ${name})
    set(FRAGSMITH_RC_DESCRIPTION ${arg_DESCRIPTION})
    set(windows ${PROJECT_SOURCE_DIR}/packaging/windows)
    configure_file(${windows}/program.rc.in ${name}.rc @ONLY)
    target_sources(${name} PRIVATE ${CMAKE_CURRENT_BINARY_DIR}/${name}.rc)
    set_source_files_properties(
      ${CMAKE_CURRENT_BINARY_DIR}/${name}.rc
      PROPERTIES OBJECT_DEPENDS
                 "${windows}/program.manifest;${windows}/fragsmith.ico")
  endif()
  target_link_libraries(${name} PRIVATE ${arg_LINKS} fragsmith_warnings)
  set_target_properties(${name} PROPERTIES RUNTIME_OUTPUT_DIRECTORY
                                           ${FRAGSMITH_PROGRAM_FOLDER})
endfunction()
