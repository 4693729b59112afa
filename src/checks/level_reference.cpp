// What BotReader makes of the blocks of a character.

#include <algorithm>
#include <array>
#include <cstddef>
#include <set>
#include <string>
#include <string_view>
#include <vector>

#include "chat/vocabulary.h"
#include "checks/bot_reader.h"
#include "checks/weight_kind.h"
#include "game/file_faults.h"
#include "model/game_characteristics.h"
#include "model/level.h"
#include "support/localization.h"
#include "support/text.h"

namespace fragsmith {

const CharacterLevel* BotReader::Level(int level) const {
  const auto found = levels_.find(level);
  return found == levels_.end() || !found->second ? nullptr : &*found->second;
}

/// Where a block of the same level follows; 0 where none does.
int BotReader::LineOfSameBlock(const CharacterBlock& block) const {
  if (!character_) return 0;
  const std::vector<BlockAt> blocks = CharacterBlocks(*character_, game_);
  const auto found = std::ranges::find_if(blocks, [&](const BlockAt& other) {
    return other.level == block.level && other.line > block.line;
  });
  return found == blocks.end() ? 0 : found->line;
}

/// The keys of files, and of the chat's name, that a block lacks.
std::string BotReader::MissingPaths(const CharacterLevel& level) const {
  constexpr std::array kTexts = {kGameItemWeights, kGameWeaponWeights,
                                 kGameChatFile, kGameChatName};
  std::vector<std::string> missing;
  for (const int number : kTexts) {
    const auto found = level.block.values.find(number);
    if (found != level.block.values.end() && found->second.is_own) continue;
    missing.push_back(GameKeyName(number));
  }
  return Enumeration(missing);
}

/// A text of the character; null where there is none.
const CharacterValue* BotReader::PathAt(const CharacterLevel& level, int number,
                                        std::string_view key) {
  const auto found = level.block.values.find(number);
  const bool is_own_block = level.origin == CharacterOrigin::kOwn ||
                            level.origin == CharacterOrigin::kOwnOther;
  if (found == level.block.values.end() || !found->second.is_own) {
    if (is_own_block) {
      const int again = LineOfSameBlock(level.block);
      Add("no-file-key", Severity::kError, CharacterName(), level.block.line,
          Localized(
              again > 0
                  ? Localizable("Skill block %1 stands twice, here and in line "
                                "%3. The game takes this one, which has no %2. "
                                "Remove one of them.")
                  : Localizable(
                        "Skill block %1 has no %2, so the game takes what its "
                        "default character has. Add what is missing."),
              {std::to_string(level.block.level), MissingPaths(level),
               std::to_string(again)}));
    }
    return found == level.block.values.end() ? nullptr : &found->second;
  }
  if (found->second.kind == CharacterValue::Kind::kText) {
    return &found->second;
  }
  Add("number-for-text", Severity::kError, CharacterName(), found->second.line,
      Localized("%1 must be a text in quotation marks, and the game finds a "
                "number. Put it in quotation marks.",
                {key}));
  return nullptr;
}

const std::optional<CharacterLevel>& BotReader::LoadLevel(int level) {
  const auto [entry, is_new] = levels_.try_emplace(level);
  std::optional<CharacterLevel>& loaded = entry->second;
  if (!is_new) return loaded;
  const GameFile* const file = character_ ? &*character_ : nullptr;
  const std::size_t first = complaints_.list().size();
  const auto read = [&](Complaints& complaints) {
    loaded = LoadCharacterLevel(file, level, game_, complaints);
    return loaded && loaded->origin == CharacterOrigin::kOwn;
  };
  if (file == nullptr) {
    read(complaints_);
    return loaded;
  }
  ReadOne(*file, true, read);
  const bool has_it = loaded && loaded->origin == CharacterOrigin::kOwn;
  FilePlace named_at = {.file = file->name, .line = 0};
  if (description_) {
    named_at = {.file = files_.description->name,
                .line = description_->Line("aifile")};
  }
  const std::optional<Complaint> of_kind = FaultOfCharacter(*file, named_at);
  if (!has_it && of_kind) {
    complaints_.ReplaceError(first, *of_kind);
  } else if (!has_it && !complaints_.HasError(first)) {
    TellMissingBlocks(*file);
  }
  return loaded;
}

/// One word for all of them.
void BotReader::TellMissingBlocks(const GameFile& file) {
  const std::vector<BlockAt> blocks = CharacterBlocks(file, game_);
  std::vector<std::string> missing;
  std::string advice =
      Localized("Each bot needs the blocks skill 1, skill 4 and skill 5.");
  int line = 0;
  for (const int level : kLevelNumbers) {
    const bool has_it = std::any_of(
        blocks.begin(), blocks.end(),
        [level](const BlockAt& block) { return block.level == level; });
    if (!has_it) missing.push_back(std::to_string(level));
  }
  std::set<int> levels;
  for (const BlockAt& block : blocks) {
    if (levels.insert(block.level).second || line > 0) continue;
    line = block.line;
    advice = Localized(
        "Skill block %1 stands twice, here for the second time: correct its "
        "number.",
        {std::to_string(block.level)});
  }
  const auto is_unused = [](const BlockAt& block) {
    return !std::ranges::count(kLevelNumbers, block.level);
  };
  const auto unused = std::ranges::find_if(blocks, is_unused);
  if (line == 0 && unused != blocks.end()) {
    line = unused->line;
    advice = Localized(
        "At no skill it asks for block %1, which stands here: perhaps its "
        "number is wrong.",
        {std::to_string(unused->level)});
  }
  complaints_.Add("no-level", Severity::kError, file.name, line,
                  Localized("This file has no block for skill %1, and the game "
                            "takes the default character's, or another block.",
                            {Enumeration(missing)}) +
                      " " + advice);
}

}  // namespace fragsmith
