#include "editor/pages/chat_help.h"

#include <QStringList>

#include "chat/chat_catalogue.h"
#include "checks/chat_type_facts.h"
#include "editor/pages/page_table.h"
#include "editor/parameter_names.h"

namespace fragsmith {
namespace {

QString WhatPointerHolds(int type, int pointer) {
  const int variable = TableText(ChatPointerAt(pointer).Item()).toInt();
  return TableText(FillText(FillOf(type, variable)));
}

}  // namespace

QString ChatTypeHelp(int type) {
  const ChatTypeFacts& facts = FactsOfChatType(type);
  QString text = TableText(facts.when);
  if (!facts.is_heard) return text;
  return text + QStringLiteral(
                    " \"%1\" on the page \"Chat characteristics\" sets the "
                    "chance. Bots speak in free-for-all games only, and at "
                    "most one line in 25 seconds.")
                    .arg(ParameterTitle(facts.chance_index));
}

QString ChatPointerHelp(int type, int pointer) {
  return QStringLiteral("Inserts %1: in the game %2.")
      .arg(TableText(ChatPointerAt(pointer).Variable),
           WhatPointerHolds(type, pointer));
}

QString ChatVariables(int type) {
  QStringList variables;
  for (const int pointer : ChatTypeAt(type).Pointers()) {
    variables << QStringLiteral("%1 is %2")
                     .arg(TableText(ChatPointerAt(pointer).Variable),
                          WhatPointerHolds(type, pointer));
  }
  return variables.join(QStringLiteral("; "));
}

}  // namespace fragsmith
