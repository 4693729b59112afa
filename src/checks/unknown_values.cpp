#include "checks/unknown_values.h"

#include <algorithm>
#include <array>
#include <map>
#include <set>
#include <string_view>

#include "chat/vocabulary.h"
#include "checks/bot_checks.h"
#include "game/character_reader.h"
#include "model/characteristic_catalogue.h"
#include "model/game_characteristics.h"
#include "support/text.h"

namespace fragsmith {
namespace {

bool HasError(const std::optional<GameFile>& file,
              const std::vector<Finding>& findings) {
  return !file || std::ranges::any_of(findings, [&](const Finding& one) {
    const auto* const place = std::get_if<FilePlace>(&one.place);
    return one.severity == Severity::kError && place != nullptr &&
           place->file == file->name;
  });
}

/// The keys of a level that the game takes from the bot's own file; none where
/// it takes the level from elsewhere.
std::set<std::string> KnownKeys(const GameFile& file, int level,
                                const IncludeLookup& game) {
  std::set<std::string> keys;
  Complaints untold;
  const std::optional<CharacterLevel> loaded =
      LoadCharacterLevel(&file, level, game, untold);
  if (!loaded || loaded->origin != CharacterOrigin::kOwn) return keys;
  for (const auto& [number, value] : loaded->block.values) {
    const auto index = static_cast<std::size_t>(number);
    if (!value.is_own || value.line == 0 ||
        index >= kGameCharacteristics.size()) {
      continue;
    }
    keys.insert(GameKeyName(number));
  }
  return keys;
}

/// A finding of the files, and one of the bot that follows from it.
struct Consequence {
  std::string_view cause;
  std::string_view id;
};
constexpr std::array kConsequences = {
    Consequence{"chat-curly-quotes", "chat-characters-changed"},
    Consequence{"chat-type-unknown", "chat-without-lines"},
    Consequence{"chat-type-twice", "chat-without-lines"},
    Consequence{"weapon-unknown", "gauntlet-fighter"},
};

/// What is said of values that the file does not give.
bool IsOfMissingValue(std::string_view id) {
  return id == "default-character-decides" || id == "chat-without-chance";
}

/// Whether the files have been found to lack the value of a key.
bool LacksValue(std::string_view key, const std::vector<Finding>& in_files) {
  return std::ranges::any_of(
      in_files, [&](const Finding& one) { return one.key == key; });
}

/// Whether a finding of the files says the same.
bool IsToldAlready(const Finding& finding,
                   const std::vector<Finding>& in_files) {
  const BotPlace& place = finding.place;
  if (place == BotPlace(kModelField)) return LacksValue("model", in_files);
  if (place == BotPlace(kFunNameField)) return LacksValue("funname", in_files);
  return std::ranges::any_of(kConsequences, [&](const Consequence& one) {
    return finding.id == one.id &&
           std::ranges::count(in_files, one.cause, &Finding::id) > 0;
  });
}

}  // namespace

void DropUnreadWeights(const Bot& bot, std::vector<Finding>& findings) {
  for (const IndexRange& range : {kWeaponWeightRange, kItemWeightRange}) {
    const bool has_weight =
        std::any_of(range.begin(), range.end(), [&bot](int index) {
          return IsAboveZero(bot.Parameter(ParameterId(index)));
        });
    if (has_weight) continue;
    std::erase_if(findings, [&range](const Finding& finding) {
      const auto* const parameter = std::get_if<ParameterId>(&finding.place);
      return parameter != nullptr && range.Contains(*parameter);
    });
  }
}

void DropUnknownValues(const BotFileSet& files, const IncludeLookup& game,
                       const std::vector<Finding>& in_files,
                       std::vector<Finding>& of_bot) {
  const bool has_chats = !HasError(files.chat, in_files);
  const bool has_weapons = !HasError(files.weapon_weights, in_files);
  const bool has_items = !HasError(files.item_weights, in_files);
  const bool has_character = !HasError(files.character, in_files);
  std::map<Level, std::set<std::string>> known;
  for (const Level level : kLevels) {
    std::set<std::string>& keys = known[level];
    if (files.character) {
      keys = KnownKeys(*files.character, NumberOf(level), game);
    }
  }
  std::erase_if(of_bot, [&](const Finding& finding) {
    if (IsToldAlready(finding, in_files)) return true;
    const Check* const check = FindCheck(finding.id);
    if (!has_chats && check != nullptr && check->is_of_chats) return true;
    const bool is_of_missing = IsOfMissingValue(finding.id);
    if (!has_character && is_of_missing) return true;
    const auto* const parameter = std::get_if<ParameterId>(&finding.place);
    if (parameter == nullptr) return false;
    if (parameter->level()) {
      const std::set<std::string>& keys = known.at(*parameter->level());
      const std::string key(BareKey(parameter->index()));
      return keys.empty() || (!is_of_missing && !keys.contains(key));
    }
    return (!has_weapons && kWeaponWeightRange.Contains(*parameter)) ||
           (!has_items && kItemWeightRange.Contains(*parameter));
  });
}

}  // namespace fragsmith
