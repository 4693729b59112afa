# cmake -DSOURCE_DIR=.../src -P CheckLayers.cmake
#
# Fails when a folder of SOURCE_DIR includes a header of a folder that it may
# not use, reaches out with "../", or uses Qt where there is to be none.

cmake_minimum_required(VERSION 3.22)

# By room, the rooms below it that it may use, its own included.
set(may_use_support support support/system)
set(may_use_support/system ${may_use_support})
set(may_use_model ${may_use_support} model)
set(may_use_install/packages ${may_use_support} install/packages)
set(may_use_install/program ${may_use_install/packages} install/program)
set(may_use_botfiles ${may_use_model} botfiles)
set(may_use_chat ${may_use_botfiles} chat)
set(may_use_session ${may_use_chat} ${may_use_install/program} session)
set(may_use_game ${may_use_chat} ${may_use_install/program} game)
set(may_use_inplace ${may_use_session} game inplace)
set(may_use_checks ${may_use_inplace} checks)
set(may_use_trial ${may_use_checks} trial)
set(may_use_cli ${may_use_trial} cli)
set(may_use_wzunzip ${may_use_install/packages} wzunzip)
set(may_use_editor/toolkit ${may_use_trial} editor/toolkit)
set(may_use_editor/state ${may_use_editor/toolkit} editor/state)
set(may_use_editor/models ${may_use_editor/toolkit} editor/models)
set(may_use_editor/controls ${may_use_editor/models} editor/controls)
set(may_use_editor/pages ${may_use_editor/controls} editor/state editor/pages)
set(may_use_editor/panels ${may_use_editor/pages} editor/panels)
set(may_use_editor/dialogs ${may_use_editor/pages} editor/dialogs)
set(may_use_editor/commands ${may_use_editor/panels} editor/dialogs
                            editor/commands)
set(may_use_editor ${may_use_editor/commands} editor)
set(rooms
    support support/system model install/packages install/program botfiles chat
    session game inplace checks trial cli wzunzip editor/toolkit editor/state
    editor/models editor/controls editor/pages editor/panels editor/dialogs editor/commands
    editor)

set(faults 0)
macro(fault file text)
  file(RELATIVE_PATH shown ${SOURCE_DIR} ${file})
  message(NOTICE "src/${shown}: ${text}")
  math(EXPR faults "${faults} + 1")
endmacro()

# A folder with sources that is no room would be looked at by nobody.
file(GLOB_RECURSE sources ${SOURCE_DIR}/*.h ${SOURCE_DIR}/*.cpp)
foreach(file IN LISTS sources)
  get_filename_component(folder ${file} DIRECTORY)
  file(RELATIVE_PATH room ${SOURCE_DIR} ${folder})
  if(NOT room IN_LIST rooms)
    fault(${file} "src/${room} is no room; name it in CheckLayers.cmake")
  endif()
endforeach()

foreach(room IN LISTS rooms)
  file(GLOB files ${SOURCE_DIR}/${room}/*.h ${SOURCE_DIR}/${room}/*.cpp)
  foreach(file IN LISTS files)
    file(STRINGS ${file} includes REGEX "^[ \t]*#[ \t]*include")
    foreach(line IN LISTS includes)
      if(line MATCHES "[<\"](Q[A-Z]|Qt)" AND NOT room MATCHES "^editor")
        fault(${file} "uses Qt: ${line}")
      elseif(line MATCHES "\"\\.\\.?/")
        fault(${file} "includes by a relative path: ${line}")
      elseif(line MATCHES "[<\"]([a-z_/]+)/")
        set(used ${CMAKE_MATCH_1})
        if(IS_DIRECTORY ${SOURCE_DIR}/${used} AND NOT used IN_LIST
                                                  may_use_${room})
          fault(${file} "${room} may not use ${used}: ${line}")
        endif()
      endif()
    endforeach()
  endforeach()
  if(EXISTS ${SOURCE_DIR}/${room}/CMakeLists.txt AND NOT room MATCHES "^editor")
    file(STRINGS ${SOURCE_DIR}/${room}/CMakeLists.txt lines REGEX "Qt")
    if(lines)
      fault(${SOURCE_DIR}/${room}/CMakeLists.txt "links Qt: ${lines}")
    endif()
  endif()
endforeach()

if(faults)
  message(FATAL_ERROR "${faults} breach(es) of the order of the folders")
endif()
