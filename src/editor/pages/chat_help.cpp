#include "editor/pages/chat_help.h"

#include <QCoreApplication>
#include <QStringList>
#include <algorithm>
#include <cmath>

#include "chat/chat_catalogue.h"
#include "chat/vocabulary.h"
#include "editor/toolkit/page_table.h"
#include "game/chat_type_facts.h"

namespace fragsmith {
namespace {

QString WhatPointerHolds(ChatTypeId type, int pointer) {
  const int variable = QString::fromUtf8(ChatPointerAt(pointer).Item()).toInt();
  return QString::fromUtf8(FillText(FillOf(type, variable)));
}

}  // namespace

QString ChatTypeHelp(ChatTypeId type) {
  const ChatTypeFacts& facts = FactsOfChatType(type);
  QString text = QString::fromUtf8(WhenText(facts));
  if (!facts.is_heard) return text;
  return text +
         QStringLiteral(
             " \"%1\" on the page \"Chat characteristics\" sets the "
             "chance. Bots speak in free-for-all games only, and at "
             "most one line in 25 seconds.")
             .arg(QString::fromUtf8(ParameterName(facts.chance.value())));
}

QString ChatPointerHelp(ChatTypeId type, int pointer) {
  return QStringLiteral("Inserts %1: in the game %2.")
      .arg(QString::fromUtf8(ChatPointerAt(pointer).Variable),
           WhatPointerHolds(type, pointer));
}

QString WhyNotFilled(ChatTypeId type, const QString& variable) {
  for (const int pointer : ChatTypeAt(type).Pointers()) {
    const ChatPointer& entry = ChatPointerAt(pointer);
    if (QString::fromUtf8(entry.Variable) != variable) continue;
    const ChatFill fill = FillOf(type, QString::fromUtf8(entry.Item()).toInt());
    if (fill != ChatFill::kNothing && fill != ChatFill::kInvalid) return {};
    return QCoreApplication::translate(
               "ChatPage", "The game does not fill %1 here: it speaks %2.")
        .arg(variable, QString::fromUtf8(FillText(fill)));
  }
  return {};
}

QString ChanceOfLine(const Bot& bot, ChatTypeId type) {
  const ChatTypeFacts& facts = FactsOfChatType(type);
  const double chance =
      facts.chance
          ? std::clamp(ToNumber(bot.Parameter(*facts.chance)).value_or(0), 0.0,
                       1.0) *
                facts.chance_factor
          : 0;
  if (!facts.is_heard || chance <= 0 || !IsDrawn(bot, type)) {
    return QCoreApplication::translate("ChatPage", "never");
  }
  if (*facts.chance == kRandomChatRate) {
    // What is asked for again and again has a rate.
    return QCoreApplication::translate("ChatPage", "every %1 s")
        .arg(std::lround(1 / chance));
  }
  return QCoreApplication::translate("ChatPage", "%1 %")
      .arg(std::lround(chance * 100));
}

QString ChatVariables(ChatTypeId type) {
  QStringList variables;
  for (const int pointer : ChatTypeAt(type).Pointers()) {
    variables << QStringLiteral("%1 is %2")
                     .arg(QString::fromUtf8(ChatPointerAt(pointer).Variable),
                          WhatPointerHolds(type, pointer));
  }
  return variables.join(QStringLiteral("; "));
}

}  // namespace fragsmith
