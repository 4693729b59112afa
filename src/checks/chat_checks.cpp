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
  return {.title = types.size() == 1 ? "Add a line" : "Add a line for each",
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

std::string Chance(ParameterId chance) {
  return "chat characteristic " + QuotedName(chance);
}

}  // namespace

void CheckTypeIsNeverHeard(const CheckContext& context, FindingList& findings) {
  for (const ChatTypeId type : kAllChatTypes) {
    const ChatTypeFacts& facts = FactsOfChatType(type);
    if (facts.is_heard || !HasLines(context.bot, type)) continue;
    // They may be another author's, so that taking them out is no safe mend.
    findings.Add(
        PlaceOfType(type),
        "Nobody hears the lines of " + QuotedChatType(type) + ": " +
            std::string(facts.when),
        {{.title = "Take the lines of " + QuotedChatType(type) + " out",
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
    findings.Add(
        chance,
        "There are lines for " + Enumeration(Captions(types)) + ", but the " +
            Chance(chance) + " is 0: the bot never speaks them.",
        {SetTo(chance, kMiddling, "Set " + QuotedName(chance) + " to 0.5")});
  }
  for (const ChatTypeId type : kAllChatTypes) {
    const ChatTypeFacts& facts = FactsOfChatType(type);
    if (!facts.is_heard || IsDrawn(context.bot, type) ||
        !HasLines(context.bot, type) ||
        NumberInGame(context.bot, facts.chance.value()) <= 0) {
      continue;
    }
    findings.Add(PlaceOfType(type),
                 "The bot never speaks the lines of " + QuotedChatType(type) +
                     ": by the chat characteristics \"Insult\" and \"Misc\" "
                     "it always takes the other type. Set that one between 0 "
                     "and 1 to hear both.");
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
    std::string text = "The " + Chance(chance) +
                       " is above 0, but there is no line for " +
                       Enumeration(Captions(empty)) +
                       ": the bot then stands still for 2 seconds, says "
                       "nothing, and is silent for 25 seconds more. ";
    text += has_none ? "Write lines, or set it to 0."
                     : "Write at least one line for each.";
    std::vector<Mend> mends;
    if (has_none) {
      mends.push_back(
          Safe(SetTo(chance, 0.0, "Set " + QuotedName(chance) + " to 0")));
    }
    mends.push_back(AddLines(context, empty));
    findings.Add(chance, std::move(text), std::move(mends));
  }
}

void CheckEnemySuicide(const CheckContext& context, FindingList& findings) {
  if (NumberInGame(context.bot, kEnemySuicideChance) <= 0) return;
  findings.Add(
      kEnemySuicideChance,
      "The " + Chance(kEnemySuicideChance) +
          " only makes the bot fall silent for 25 seconds when "
          "somebody commits suicide: there is no text for it that the "
          "game would send.",
      {Safe(SetTo(kEnemySuicideChance, 0.0,
                  "Set " + QuotedName(kEnemySuicideChance) + " to 0"))});
}

}  // namespace fragsmith
