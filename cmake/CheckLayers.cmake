# cmake -DSOURCE_DIR=.../src -P CheckLayers.cmake
#
# Fails when a folder of SOURCE_DIR includes a header of a folder that it may
# not use or links its library, or uses Qt where there is to be none. What would
# hide that from here fails too: a path with "../", a name that a macro gives, a
# file of another kind.

cmake_minimum_required(VERSION 3.22)

# By room, the rooms below it that it may use, its own included.
set(may_use_support support support/system)
set(may_use_support/system ${may_use_support})
set(may_use_model ${may_use_support} model)
set(may_use_install/packages ${may_use_support} install/packages)
set(may_use_install/program ${may_use_install/packages} model install/program)
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

# Of a room that is not called as its library.
set(room_of_packages install/packages)
set(room_of_program_data install/program)
set(room_of_system support/system)
foreach(room IN LISTS rooms)
  if(NOT room MATCHES "^install/|/system$")
    string(REPLACE "/" "_" library ${room})
    set(room_of_${library} ${room})
  endif()
endforeach()

# A folder with sources that is no room would be looked at by nobody, nor would
# a file whose name ends otherwise.
file(GLOB_RECURSE sources ${SOURCE_DIR}/*)
foreach(file IN LISTS sources)
  get_filename_component(folder ${file} DIRECTORY)
  file(RELATIVE_PATH room ${SOURCE_DIR} ${folder})
  if(file MATCHES "/CMakeLists\\.txt$")
    file(STRINGS ${file} lines REGEX "^[ \t]*target_link_libraries")
    if(lines AND NOT room IN_LIST rooms)
      fault(${file} "links something, and is no room's")
    endif()
  elseif(NOT file MATCHES "\\.(h|cpp)$")
    fault(${file} "is neither a .h nor a .cpp file")
  elseif(NOT room IN_LIST rooms)
    fault(${file} "src/${room} is no room; name it in CheckLayers.cmake")
  endif()
endforeach()

function(check_links room file)
  file(STRINGS ${file} lines REGEX "^[^#]")
  if(lines MATCHES "Qt" AND NOT room MATCHES "^editor")
    fault(${file} "links Qt")
  endif()
  # A link line may be that of another room's library.
  string(REGEX MATCHALL "target_link_libraries\\([ \t;]*fragsmith_[a-z_]+" own
               "${lines}")
  foreach(target IN LISTS own)
    string(REGEX REPLACE "^.*fragsmith_" "" library "${target}")
    if(NOT room_of_${library} STREQUAL room)
      fault(${file} "links for another: fragsmith_${library}")
    endif()
  endforeach()
  string(REGEX MATCHALL "fragsmith_[a-z_]+" used "${lines}")
  foreach(target IN LISTS used)
    string(REGEX REPLACE "^fragsmith_" "" library ${target})
    if(DEFINED room_of_${library} AND NOT room_of_${library} IN_LIST
                                      may_use_${room})
      fault(${file} "${room} may not link ${target}")
    endif()
  endforeach()
  set(faults ${faults} PARENT_SCOPE)
endfunction()

foreach(room IN LISTS rooms)
  file(GLOB files ${SOURCE_DIR}/${room}/*.h ${SOURCE_DIR}/${room}/*.cpp)
  foreach(file IN LISTS files)
    file(STRINGS ${file} includes REGEX "^[ \t]*(#|%:)[ \t]*(include|import)")
    foreach(line IN LISTS includes)
      if(line MATCHES "[<\"](Q[A-Z]|Qt|q[a-z0-9]+\\.h)" AND NOT room MATCHES
                                                           "^editor")
        fault(${file} "uses Qt: ${line}")
      elseif(NOT line MATCHES "(include|import)[ \t]*[<\"]")
        fault(${file} "includes what a macro names: ${line}")
      elseif(line MATCHES "[<\"/]\\.\\.?/")
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
  if(EXISTS ${SOURCE_DIR}/${room}/CMakeLists.txt)
    check_links(${room} ${SOURCE_DIR}/${room}/CMakeLists.txt)
  endif()
endforeach()

if(faults)
  message(FATAL_ERROR "${faults} breach(es) of the order of the folders")
endif()
