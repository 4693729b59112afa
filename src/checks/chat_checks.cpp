#include "checks/chat_checks.h"

#include <algorithm>
#include <string>
#include <string_view>
#include <utility>

#include "chat/chat_commands.h"
#include "chat/vocabulary.h"
#include "game/chat_type_facts.h"
#include "game/number.h"
#include "game/ready_lines.h"
#include "model/characteristic_catalogue.h"
#include "session/bot_difference.h"
#include "support/localization.h"

namespace fragsmith {
namespace {

bool HasLines(const Bot& bot, ChatTypeId type) {
  const std::vector<std::string>& lines = bot.ChatLines(type);
  return std::any_of(lines.begin(), lines.end(),
                     [](const std::string& line) { return !line.empty(); });
}

/// Writes a line for each, as the game or we have one.
Mend AddLines(const CheckContext& context,
              const std::vector<ChatTypeId>& types) {
  std::vector<std::pair<ChatTypeId, std::string>> lines;
  lines.reserve(types.size());
  for (const ChatTypeId type : types) {
    lines.emplace_back(type,
                       OtherChatLine(context.bot, type, WordsOf(context)));
  }
  return {.title =
              Localized(types.size() == 1 ? Localizable("Add a line")
                                          : Localizable("Add a line for each")),
          .apply = [lines = std::move(lines)](Bot& bot) {
            for (const auto& [type, line] : lines) {
              bot.SetChatLine(type, NextFreeChatLine(bot, type), line);
            }
          }};
}

std::vector<std::string> Captions(const std::vector<ChatTypeId>& types) {
  std::vector<std::string> captions;
  captions.reserve(types.size());
  for (const ChatTypeId type : types) captions.push_back(QuotedChatType(type));
  return captions;
}

}  // namespace

void CheckTypeIsNeverHeard(const CheckContext& context, FindingList& findings) {
  for (const ChatTypeId type : kAllChatTypes) {
    const ChatTypeFacts& facts = FactsOfChatType(type);
    if (facts.is_heard || !HasLines(context.bot, type)) continue;
    // They may be another author's, so that taking them out is no safe mend.
    findings.Add(
        PlaceOfType(type),
        Localized("Nobody hears the lines of %1: %2",
                  {QuotedChatType(type), Localized(facts.when)}),
        {{.title =
              Localized("Take the lines of %1 out", {QuotedChatType(type)}),
          .apply = [type](Bot& bot) { CopyChatType(type, Bot(), bot); }}});
  }
}

void CheckLinesWithoutChance(const CheckContext& context,
                             FindingList& findings) {
  constexpr double kMiddling = 0.5;
  for (const int index : kChanceRange) {
    const ParameterId chance(index);
    if (NumberInGame(context.bot, chance) > 0) continue;
    std::vector<ChatTypeId> types;
    for (const ChatTypeId type : TypesOfChance(chance)) {
      const bool is_heard = FactsOfChatType(type).is_heard;
      if (is_heard && HasLines(context.bot, type)) types.push_back(type);
    }
    if (types.empty()) continue;
    findings.Add(chance,
                 Localized("There are lines for %1, but the chat "
                           "characteristic %2 is 0: the bot never speaks them.",
                           {Enumeration(Captions(types)), QuotedName(chance)}),
                 {SetTo(chance, kMiddling)});
  }
  for (const ChatTypeId type : kAllChatTypes) {
    const ChatTypeFacts& facts = FactsOfChatType(type);
    if (!facts.is_heard || IsDrawn(context.bot, type) ||
        !HasLines(context.bot, type) ||
        NumberInGame(context.bot, facts.chance.value()) <= 0) {
      continue;
    }
    findings.Add(
        PlaceOfType(type),
        Localized("The bot never speaks the lines of %1: by the chat "
                  "characteristics \"Insult\" and \"Misc\" it always takes the "
                  "other type. Set that one between 0 and 1 to hear both.",
                  {QuotedChatType(type)}));
  }
}

void CheckChanceWithoutLines(const CheckContext& context,
                             FindingList& findings) {
  for (const int index : kChanceRange) {
    const ParameterId chance(index);
    if (NumberInGame(context.bot, chance) <= 0) continue;
    std::vector<ChatTypeId> empty;
    std::size_t drawn = 0;
    for (const ChatTypeId type : TypesOfChance(chance)) {
      if (!IsDrawn(context.bot, type)) continue;
      ++drawn;
      if (!HasLines(context.bot, type)) empty.push_back(type);
    }
    if (empty.empty()) continue;
    const bool has_none = empty.size() == drawn;
    std::string text =
        Localized(
            "The chat characteristic %1 is above 0, but there is no line for "
            "%2: the bot then stands still for 2 seconds, says nothing, and is "
            "silent for 25 seconds more.",
            {QuotedName(chance), Enumeration(Captions(empty))}) +
        " " +
        Localized(has_none ? Localizable("Write lines, or set it to 0.")
                           : Localizable("Write at least one line for each."));
    std::vector<Mend> mends;
    if (has_none) {
      mends.push_back(Safe(SetTo(chance, 0)));
    }
    mends.push_back(AddLines(context, empty));
    findings.Add(chance, std::move(text), std::move(mends));
  }
}

void CheckEnemySuicide(const CheckContext& context, FindingList& findings) {
  if (NumberInGame(context.bot, kEnemySuicideChance) <= 0) return;
  findings.Add(kEnemySuicideChance,
               Localized("The chat characteristic %1 only makes the bot fall "
                         "silent for 25 seconds when somebody commits suicide: "
                         "there is no text for it that the game would send.",
                         {QuotedName(kEnemySuicideChance)}),
               {Safe(SetTo(kEnemySuicideChance, 0))});
}

}  // namespace fragsmith
