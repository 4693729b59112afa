#include "checks/chat_checks.h"

#include <algorithm>
#include <string>
#include <string_view>
#include <utility>

#include "checks/chat_type_facts.h"
#include "checks/game_number.h"
#include "checks/parameter_words.h"
#include "model/characteristic_catalogue.h"

namespace fragsmith {
namespace {

constexpr int kEnemySuicideIndex = 38;

/// The chat characteristics that give a chance to some type.
constexpr IndexRange kChances = {34, 42};

bool HasLines(const Bot& bot, int type) {
  const std::vector<std::string>& lines = bot.ChatLines(type);
  return std::any_of(lines.begin(), lines.end(),
                     [](const std::string& line) { return !line.empty(); });
}

std::vector<std::string> Captions(const std::vector<int>& types) {
  std::vector<std::string> captions;
  captions.reserve(types.size());
  for (const int type : types) captions.push_back(QuotedChatType(type));
  return captions;
}

std::string Chance(int index) {
  return "chat characteristic " + QuotedName(index);
}

}  // namespace

void CheckTypeIsNeverHeard(const CheckContext& context, FindingList& findings) {
  for (int type = 0; type < kChatTypeCount; ++type) {
    const ChatTypeFacts& facts = FactsOfChatType(type);
    if (facts.is_heard || !HasLines(context.bot, type)) continue;
    // The sentence begins with "Never" or the like, then gives the reason.
    const std::string_view reason =
        facts.when.substr(facts.when.find(": ") + 2);
    findings.Add(PlaceOfType(type), "Nobody hears the lines of " +
                                        QuotedChatType(type) + ": " +
                                        std::string(reason));
  }
}

void CheckLinesWithoutChance(const CheckContext& context,
                             FindingList& findings) {
  constexpr double kMiddling = 0.5;
  for (int index = kChances.first; index <= kChances.last; ++index) {
    if (NumberInGame(context.bot, index) > 0) continue;
    std::vector<int> types;
    for (const int type : TypesOfChance(index)) {
      const bool is_heard = FactsOfChatType(type).is_heard;
      if (is_heard && HasLines(context.bot, type)) types.push_back(type);
    }
    if (types.empty()) continue;
    findings.Add(
        index,
        "There are lines for " + Enumeration(Captions(types)) + ", but the " +
            Chance(index) + " is 0: the bot never speaks them.",
        {SetTo(index, kMiddling, "Set " + QuotedName(index) + " to 0.5")});
  }
  for (int type = 0; type < kChatTypeCount; ++type) {
    const ChatTypeFacts& facts = FactsOfChatType(type);
    if (!facts.is_heard || IsDrawn(context.bot, type) ||
        !HasLines(context.bot, type) ||
        NumberInGame(context.bot, facts.chance_index) <= 0) {
      continue;
    }
    findings.Add(PlaceOfType(type),
                 "The bot never speaks the lines of " + QuotedChatType(type) +
                     ": by the chat characteristics \"Insult\" and \"Misc\" "
                     "it always takes the other type.");
  }
}

void CheckChanceWithoutLines(const CheckContext& context,
                             FindingList& findings) {
  for (int index = kChances.first; index <= kChances.last; ++index) {
    if (NumberInGame(context.bot, index) <= 0) continue;
    std::vector<int> empty;
    std::size_t drawn = 0;
    for (const int type : TypesOfChance(index)) {
      if (!IsDrawn(context.bot, type)) continue;
      ++drawn;
      if (!HasLines(context.bot, type)) empty.push_back(type);
    }
    if (empty.empty()) continue;
    const bool has_none = empty.size() == drawn;
    std::string text = "The " + Chance(index) +
                       " is above 0, but there is no line for " +
                       Enumeration(Captions(empty)) +
                       ": the bot then stands still for 2 seconds, says "
                       "nothing, and is silent for 25 seconds more. ";
    text += has_none ? "Write lines, or set it to 0."
                     : "Write at least one line for each.";
    std::vector<Mend> mends;
    if (has_none) {
      mends.push_back(SetTo(index, 0.0, "Set " + QuotedName(index) + " to 0"));
    }
    findings.Add(index, std::move(text), std::move(mends));
  }
}

void CheckEnemySuicide(const CheckContext& context, FindingList& findings) {
  if (NumberInGame(context.bot, kEnemySuicideIndex) <= 0) return;
  findings.Add(kEnemySuicideIndex,
               "The " + Chance(kEnemySuicideIndex) +
                   " only makes the bot fall silent for 25 seconds when "
                   "somebody commits suicide: there is no text for it that the "
                   "game would send.",
               {SetTo(kEnemySuicideIndex, 0.0,
                      "Set " + QuotedName(kEnemySuicideIndex) + " to 0")});
}

}  // namespace fragsmith
