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
  file(WRITE ${WORK_DIR}/${file} "#include <vector>\n${line}\n")
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
