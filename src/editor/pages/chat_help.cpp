#include "editor/pages/chat_help.h"

#include <QStringList>
#include <algorithm>
#include <cmath>
#include <iterator>
#include <set>
#include <string_view>
#include <utility>

#include "chat/chat_catalogue.h"
#include "chat/vocabulary.h"
#include "editor/pages/chat_page.h"
#include "editor/toolkit/game_text_conversion.h"
#include "editor/toolkit/page_table.h"
#include "game/chat_type_facts.h"

namespace fragsmith {
namespace {

QString WhatPointerHolds(ChatTypeId type, int pointer) {
  const int variable = QString::fromUtf8(ChatPointerAt(pointer).Item()).toInt();
  return QString::fromUtf8(FillText(FillOf(type, variable)));
}

/// "pizza, gruel, soup ..."
QString SomeOf(const GameWordList& list) {
  constexpr std::size_t kWords = 4;
  QStringList words;
  for (const ChatMessage& line : list.lines) {
    const bool is_plain = line.items.size() == 1 &&
                          line.items.front().kind == ChatItem::Kind::kText;
    if (!is_plain) continue;
    if (words.size() == kWords)
      return words.join(QStringLiteral(", ")) + QStringLiteral(" ...");
    words << ToQString(line.items.front().text).trimmed();
  }
  return words.join(QStringLiteral(", "));
}

}  // namespace

QString ChatTypeHelp(ChatTypeId type) {
  const ChatTypeFacts& facts = FactsOfChatType(type);
  QString text = QString::fromUtf8(WhenText(facts));
  if (!facts.is_heard) return text;
  return text +
         ChatPage::tr(
             " \"%1\" on the page \"Chat characteristics\" sets the "
             "chance. Bots speak in free-for-all games only, and at "
             "most one line in 25 seconds.")
             .arg(QString::fromUtf8(ParameterName(facts.chance.value())));
}

QString ChatPointerHelp(ChatTypeId type, int pointer) {
  return ChatPage::tr("Inserts %1: in the game %2.")
      .arg(QString::fromUtf8(ChatPointerAt(pointer).Variable),
           WhatPointerHolds(type, pointer));
}

QString WhyNotFilled(ChatTypeId type, const QString& variable) {
  for (const int pointer : ChatTypeAt(type).Pointers()) {
    const ChatPointer& entry = ChatPointerAt(pointer);
    if (QString::fromUtf8(entry.Variable) != variable) continue;
    const ChatFill fill = FillOf(type, QString::fromUtf8(entry.Item()).toInt());
    if (fill != ChatFill::kNothing && fill != ChatFill::kInvalid) return {};
    return ChatPage::tr("The game does not fill %1 here: it speaks %2.")
        .arg(variable, QString::fromUtf8(FillText(fill)));
  }
  return {};
}

std::vector<ChatVariable> VariablesFor(ChatTypeId type,
                                       const WordLists* words) {
  std::vector<ChatVariable> useful;
  std::vector<ChatVariable> useless;
  const auto own = ChatTypeAt(type).Pointers();
  std::set<std::string_view> known;
  for (const int pointer : own) {
    const ChatPointer& entry = ChatPointerAt(pointer);
    known.insert(entry.Variable);
    ChatVariable variable = {.variable = QString::fromUtf8(entry.Variable),
                             .meaning = WhatPointerHolds(type, pointer)};
    variable.is_of_use = WhyNotFilled(type, variable.variable).isEmpty();
    if (variable.is_of_use) {
      useful.push_back(std::move(variable));
    } else {
      variable.meaning = ChatPage::tr("not filled here: the game speaks %1")
                             .arg(variable.meaning);
      useless.push_back(std::move(variable));
    }
  }
  for (const ChatPointer& entry : kChatPointers) {
    if (!known.insert(entry.Variable).second) continue;
    useless.push_back({.variable = QString::fromUtf8(entry.Variable),
                       .meaning = ChatPage::tr("belongs to other occasions"),
                       .is_of_use = false});
  }
  for (const WordList& entry : kWordLists) {
    const GameWordList* const list =
        words != nullptr ? words->Find(entry.Key) : nullptr;
    const bool is_missing = words != nullptr && list == nullptr;
    const QString caption = QString::fromUtf8(entry.Caption);
    (is_missing ? useless : useful)
        .push_back({.variable = QString::fromUtf8(entry.Variable),
                    .meaning = is_missing ? ChatPage::tr("not in this game")
                               : list == nullptr
                                   ? ChatPage::tr("some %1").arg(caption)
                                   : SomeOf(*list),
                    .is_of_use = !is_missing});
  }
  std::move(useless.begin(), useless.end(), std::back_inserter(useful));
  return useful;
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
    return ChatPage::tr("never");
  }
  if (*facts.chance == kRandomChatRate) {
    // What is asked for again and again has a rate.
    return ChatPage::tr("every %1 s").arg(std::lround(1 / chance));
  }
  return ChatPage::tr("%1 %").arg(std::lround(chance * 100));
}

QString ChatVariables(ChatTypeId type) {
  QStringList variables;
  for (const int pointer : ChatTypeAt(type).Pointers()) {
    variables << ChatPage::tr("%1 is %2")
                     .arg(QString::fromUtf8(ChatPointerAt(pointer).Variable),
                          WhatPointerHolds(type, pointer));
  }
  return variables.join(QStringLiteral("; "));
}

}  // namespace fragsmith
