# cmake -DWORK_DIR=... -P CheckLayersTest.cmake
#
# Makes small source trees and sees that CheckLayers.cmake passes the good one
# and refuses each bad one.

cmake_minimum_required(VERSION 3.22)

function(expect outcome file line)
  file(REMOVE_RECURSE ${WORK_DIR})
  file(MAKE_DIRECTORY ${WORK_DIR}/support ${WORK_DIR}/model ${WORK_DIR}/session
       ${WORK_DIR}/support/system ${WORK_DIR}/editor/toolkit
       ${WORK_DIR}/editor/pages ${WORK_DIR}/game ${WORK_DIR}/inplace
       ${WORK_DIR}/checks)
  string(REPLACE "/CMakeLists.txt" "" room ${file})
  set(first "#include <vector>")
  if(NOT room STREQUAL file)
    set(first "# Qt and fragsmith_trial are for others.")
  endif()
  file(WRITE ${WORK_DIR}/${file} "${first}\n${line}\n")
  execute_process(
    COMMAND ${CMAKE_COMMAND} -DSOURCE_DIR=${WORK_DIR} -P
            ${CMAKE_CURRENT_FUNCTION_LIST_DIR}/CheckLayers.cmake
    RESULT_VARIABLE status
    OUTPUT_QUIET ERROR_QUIET)
  if(status EQUAL 0)
    set(got pass)
  else()
    set(got fail)
  endif()
  if(NOT got STREQUAL outcome)
    message(SEND_ERROR "${file} with ${line}: ${got}, expected ${outcome}")
  endif()
endfunction()

expect(pass model/bot.h "#include \"support/text.h\"")
expect(pass session/load.cpp "#include \"model/bot.h\"")
expect(fail support/text.h "#include \"model/bot.h\"")
expect(fail model/bot.cpp "# include <session/load.h>")
expect(fail model/bot.h "#include \"../support/text.h\"")
expect(fail support/text.cpp "#include <QString>")
expect(fail support/text.cpp "#include <QtCore/qstring.h>")
expect(fail support/CMakeLists.txt "target_link_libraries(x Qt6::Core)")
expect(pass support/text.cpp "#include \"support/system/time_zone.h\"")
expect(pass editor/pages/page.h "#include <QWidget>\n#include \"editor/toolkit/busy.h\"")
expect(fail editor/toolkit/busy.h "#include \"editor/pages/page.h\"")
expect(fail support/text.h "#include \"editor/toolkit/busy.h\"")
expect(pass inplace/edit.h "#include \"game/lexer.h\"\n#include \"session/load.h\"")
expect(fail game/lexer.h "#include \"inplace/edit.h\"")
expect(fail inplace/edit.h "#include \"checks/finding.h\"")
expect(fail support/text.h "#include \"support/../game/lexer.h\"")
expect(fail support/text.h "#include NAME_OF_HEADER")
expect(fail support/text.h "#import \"game/lexer.h\"")
expect(fail support/text.h "#include_next <game/lexer.h>")
expect(fail support/text.cpp "#include <qstring.h>")
expect(pass support/text.cpp "#include \"quick_text.h\"")
expect(fail support/text.hpp "")
expect(fail support/text.inc "")
expect(pass game/CMakeLists.txt "fragsmith_library(fragsmith_game\n  PUBLIC fragsmith_chat fragsmith_program_data)")
expect(fail game/CMakeLists.txt "fragsmith_library(fragsmith_game PUBLIC fragsmith_chat\n  fragsmith_inplace)")
expect(fail support/CMakeLists.txt "target_link_libraries(fragsmith_support PUBLIC fragsmith_packages)")
expect(fail session/CMakeLists.txt "target_link_libraries(fragsmith_model PUBLIC fragsmith_session)")
expect(fail editor/toolkit/CMakeLists.txt "fragsmith_library(fragsmith_editor_toolkit PUBLIC fragsmith_editor_pages)")
expect(fail CMakeLists.txt "target_link_libraries(fragsmith_model PUBLIC fragsmith_session)")
