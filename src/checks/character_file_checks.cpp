#include "checks/character_file_checks.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <map>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "chat/vocabulary.h"
#include "game/character_reader.h"
#include "game/game_path.h"
#include "game/skill_mix.h"
#include "model/characteristic_catalogue.h"
#include "model/game_characteristics.h"
#include "support/localization.h"
#include "support/text.h"

namespace fragsmith {
namespace {

/// Levels that leave these to the default character are the rule.
bool IsOptional(int number) {
  return (number >= 8 && number <= 15) || (number >= 17 && number <= 20) ||
         number >= 47;
}

/// False for what no known game reads.
bool IsReadKey(std::string_view key) {
  return std::none_of(
      kPerLevelRange.begin(), kPerLevelRange.end(), [key](int index) {
        return !IsReadByGame(ParameterAt(index)) && BareKey(index) == key;
      });
}

class CharacterFileChecker {
 public:
  CharacterFileChecker(const BotFileSet& files, const IncludeLookup& game,
                       bool has_cause, BotReader& reader)
      : files_(files),
        game_(game),
        has_cause_(has_cause),
        reader_(reader),
        file_(*reader.character()) {}

  void Check() {
    CheckBlocks();
    CheckLevels();
    CheckOthersFiles();
    CheckMixes();
  }

 private:
  Complaints& findings() { return reader_.complaints(); }

  void Add(std::string_view id, Severity severity, const std::string& file,
           int line, std::string text) {
    findings().Add(id, severity, file, line, std::move(text));
  }

  /// Of blocks of one level the game takes the first.
  void CheckBlocks() {
    std::map<int, int> lines;
    for (const BlockAt& block : CharacterBlocks(file_, game_)) {
      const auto [first, is_new] = lines.emplace(block.level, block.line);
      if (is_new || block.line == 0 ||
          findings().IsTold({file_.name, first->second}, "no-file-key") ||
          findings().IsTold({file_.name, block.line}, "no-level")) {
        continue;
      }
      Add("skill-block-twice", Severity::kWarning, file_.name, block.line,
          Localized(
              "Skill block %1 stands twice, first in line %2: the game takes "
              "that one and passes over this. Remove the one that is not "
              "meant, or correct its number.",
              {std::to_string(block.level), std::to_string(first->second)}));
    }
  }

  void CheckLevels() {
    std::vector<std::string> levels;
    std::string missing;
    int count = 0;
    int line = 0;
    for (const int level : kLevelNumbers) {
      const CharacterLevel* const loaded = reader_.Level(level);
      if (loaded == nullptr || loaded->origin != CharacterOrigin::kOwn) {
        continue;
      }
      CheckTexts(level, *loaded);
      std::string of_level;
      int of_level_count = 0;
      for (int number = 0;
           number < static_cast<int>(kGameCharacteristics.size()); ++number) {
        const auto found = loaded->block.values.find(number);
        const bool is_own =
            found != loaded->block.values.end() && found->second.is_own;
        if (is_own || IsOptional(number)) continue;
        if (++of_level_count <= 3) {
          of_level += (of_level_count > 1 ? ", " : "") + GameKeyName(number);
        }
      }
      if (of_level_count == 0) continue;
      levels.push_back(std::to_string(level));
      if (of_level_count > count) {
        count = of_level_count;
        missing = of_level;
        line = loaded->block.line;
      }
    }
    // Of a level that is thrown away it says nothing new.
    if (count == 0 || has_cause_) return;
    if (count > 3) {
      missing =
          Localized("%1 and %2 more", {missing, std::to_string(count - 3)});
    }
    Add("missing-keys", Severity::kHint, file_.name, line,
        Localized(levels.size() == 1
                      ? Localizable("Skill block %1 has no %2: the game takes "
                                    "what its default character has. Write the "
                                    "lines to decide yourself.")
                      : Localizable("The skill blocks %1 have no %2: the game "
                                    "takes what its default character has. "
                                    "Write the lines to decide yourself."),
                  {Enumeration(levels), missing}));
  }

  /// The game takes 0 for a text where a number belongs.
  void CheckTexts(int level, const CharacterLevel& loaded) {
    for (const auto& [number, value] : loaded.block.values) {
      if (!value.is_own || value.kind != CharacterValue::Kind::kText ||
          IsGameText(number) ||
          static_cast<std::size_t>(number) >= kGameCharacteristics.size()) {
        continue;
      }
      Add("value-not-a-number", Severity::kWarning, file_.name, value.line,
          Localized(
              "%1 of skill %2 is the text %3, and a number belongs there: the "
              "game takes 0. Write the number without quotation marks.",
              {GameKeyName(number), std::to_string(level),
               Quoted(value.text)}));
    }
  }

  /// A path that was left as it was in the bot that this one was copied from.
  void CheckOthersFiles() {
    constexpr std::array<int, 3> kPaths = {kGameItemWeights, kGameWeaponWeights,
                                           kGameChatFile};
    if (!files_.character) return;
    const std::string own = BotOfPath(files_.character->game_path);
    const auto own_file = [&](int number) {
      return number == kGameItemWeights     ? &files_.item_weights
             : number == kGameWeaponWeights ? &files_.weapon_weights
                                            : &files_.chat;
    };
    for (const int level : kLevelNumbers) {
      const CharacterLevel* const loaded = reader_.Level(level);
      if (loaded == nullptr) continue;
      for (const int number : kPaths) {
        const auto found = loaded->block.values.find(number);
        if (found == loaded->block.values.end() || !found->second.is_own) {
          continue;
        }
        const std::string other = BotOfPath(found->second.text);
        const std::optional<GameFile>& file = *own_file(number);
        if (other == own) CheckKind(number, found->second, file);
        if (other.empty() || other == own ||
            findings().IsTold({file_.name, found->second.line}) ||
            reader_.HasLoneBackslash(found->second.line) ||
            (files_.is_game_known && !game_(found->second.text))) {
          continue;
        }
        Add("others-file", file ? Severity::kWarning : Severity::kHint,
            file_.name, found->second.line,
            Localized(file ? Localizable("Skill %1 takes %2, a file of another "
                                         "bot, and not %3, which is this bot's "
                                         "own. Correct the name in this line.")
                           : Localizable("Skill %1 takes %2, a file of another "
                                         "bot. If that is not meant, write the "
                                         "name of this bot's own file."),
                      {std::to_string(level), Quoted(found->second.text),
                       file ? Quoted(file->game_path) : ""}));
      }
    }
  }

  /// A file of this bot that belongs to another key.
  void CheckKind(int number, const CharacterValue& value,
                 const std::optional<GameFile>& file) {
    const auto is_named = [&value](const GameFile& one) {
      return EqualIgnoringCase(PathLookedFor(value.text, FileHome::kLoose),
                               one.game_path);
    };
    if (!file || is_named(*file)) return;
    const bool is_of_other_key =
        std::ranges::any_of(kBotFileMembers, [&](const BotFileMember& row) {
          const std::optional<GameFile>& own = files_.*row.member;
          return own && is_named(*own);
        });
    if (!is_of_other_key) return;
    Add("wrong-file", Severity::kWarning, file_.name, value.line,
        Localized("%1 names %2, which is another file of this bot. Write %3.",
                  {GameKeyName(number), Quoted(value.text),
                   Quoted(file->game_path)}));
  }

  /// Between two levels the game mixes numbers with a "." only.
  void CheckMixes() {
    for (const LevelPair levels : kMixedLevels) {
      const int low = NumberOf(levels.lower);
      const int high = NumberOf(levels.upper);
      const CharacterLevel* const lower = reader_.Level(low);
      const CharacterLevel* const upper = reader_.Level(high);
      if (lower == nullptr || upper == nullptr) continue;
      for (const auto& [number, value] : lower->block.values) {
        const auto other = upper->block.values.find(number);
        using Kind = CharacterValue::Kind;
        if (!value.is_own || other == upper->block.values.end() ||
            value.kind == Kind::kText || other->second.kind == Kind::kText ||
            !LeavesMixGap(value.kind == Kind::kWhole,
                          other->second.kind == Kind::kWhole) ||
            static_cast<std::size_t>(number) >= kGameCharacteristics.size() ||
            !IsReadKey(GameKeyName(number))) {
          continue;
        }
        Add("no-mix", SeverityOfMixGap(levels), file_.name, other->second.line,
            Localized(
                "%1 is a whole number at skill %2 but has a point at skill %3, "
                "so at the skills between the bot has no value at all and the "
                "game takes 0. Write a point and a 0 behind the whole number.",
                {GameKeyName(number), std::to_string(high),
                 std::to_string(low)}));
      }
    }
  }

  const BotFileSet& files_;
  const IncludeLookup& game_;
  bool has_cause_;
  BotReader& reader_;
  const GameFile& file_;
};

}  // namespace

void CheckCharacterFile(const BotFileSet& files, const IncludeLookup& game,
                        bool has_cause, BotReader& reader) {
  CharacterFileChecker(files, game, has_cause, reader).Check();
}

}  // namespace fragsmith
