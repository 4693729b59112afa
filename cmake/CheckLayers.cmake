# cmake -DSOURCE_DIR=.../src -P CheckLayers.cmake
#
# Fails when a folder of SOURCE_DIR includes a header of a folder that it may
# not use, reaches out with "../", or uses Qt where there is to be none.

cmake_minimum_required(VERSION 3.22)

set(may_use_support support)
set(may_use_model support model)
set(may_use_botfiles support model botfiles)
set(may_use_chat support model botfiles chat)
set(may_use_install support model botfiles chat install)
set(may_use_session support model botfiles chat install session)
set(may_use_checks support model botfiles chat install session checks)
set(may_use_cli support model botfiles chat install session checks cli)
set(may_use_wzunzip support model botfiles chat install wzunzip)
set(folders support model botfiles chat install session checks cli wzunzip)

set(faults 0)
macro(fault file text)
  file(RELATIVE_PATH shown ${SOURCE_DIR} ${file})
  message(NOTICE "src/${shown}: ${text}")
  math(EXPR faults "${faults} + 1")
endmacro()

foreach(folder IN LISTS folders)
  file(GLOB_RECURSE files ${SOURCE_DIR}/${folder}/*.h
       ${SOURCE_DIR}/${folder}/*.cpp)
  foreach(file IN LISTS files)
    file(STRINGS ${file} includes REGEX "^[ \t]*#[ \t]*include")
    foreach(line IN LISTS includes)
      if(line MATCHES "[<\"](Q[A-Z]|Qt)")
        fault(${file} "uses Qt: ${line}")
      elseif(line MATCHES "\"\\.\\.?/")
        fault(${file} "includes by a relative path: ${line}")
      elseif(line MATCHES "[<\"]([a-z_]+)/")
        set(used ${CMAKE_MATCH_1})
        if(IS_DIRECTORY ${SOURCE_DIR}/${used} AND NOT used IN_LIST
                                                  may_use_${folder})
          fault(${file} "${folder} may not use ${used}: ${line}")
        endif()
      endif()
    endforeach()
  endforeach()
  if(EXISTS ${SOURCE_DIR}/${folder}/CMakeLists.txt)
    file(STRINGS ${SOURCE_DIR}/${folder}/CMakeLists.txt lines REGEX "Qt")
    if(lines)
      fault(${SOURCE_DIR}/${folder}/CMakeLists.txt "links Qt: ${lines}")
    endif()
  endif()
endforeach()

if(faults)
  message(FATAL_ERROR "${faults} breach(es) of the order of the folders")
endif()
