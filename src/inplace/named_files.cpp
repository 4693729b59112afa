#include "inplace/named_files.h"

#include <algorithm>
#include <filesystem>
#include <optional>
#include <set>
#include <string_view>
#include <utility>

#include "botfiles/characteristic_file.h"
#include "botfiles/description_file.h"
#include "botfiles/left_out.h"
#include "game/character_reader.h"
#include "game/description_reader.h"
#include "game/game_path.h"
#include "game/stand_ins.h"
#include "inplace/file_reading.h"
#include "inplace/origin_files.h"
#include "inplace/splice.h"
#include "model/file_names.h"
#include "session/listed_description.h"
#include "support/code_page.h"
#include "support/files.h"
#include "support/localization.h"
#include "support/text.h"

namespace fragsmith {
namespace fs = std::filesystem;
namespace {

/// More files of a folder are not looked at.
constexpr std::size_t kMaxNeighbours = 300;

std::optional<ParameterId> FieldNaming(BotFile kind) {
  if (kind == BotFile::kWeaponWeights) return kWeaponFileField;
  if (kind == BotFile::kItemWeights) return kItemFileField;
  if (kind == BotFile::kChat) return kChatFileField;
  return std::nullopt;
}

/// The level in whose block the line stands.
int LevelAt(const std::vector<BlockAt>& blocks, std::size_t line) {
  int level = 0;
  for (const BlockAt& block : blocks) {
    if (block.line > 0 && static_cast<std::size_t>(block.line) <= line) {
      level = block.level;
    }
  }
  return level;
}

std::vector<NamedFile> NamesIn(const std::string& bytes, ParameterId field) {
  std::vector<NamedFile> names;
  Bot bot;
  const ReadReport report =
      ReadCharacteristicFile(bytes, {}, ReadIdentity::kNo, bot);
  const std::vector<BlockAt> blocks =
      CharacterBlocks({{}, "bots/bot_c.c", bytes}, StandInGameFile);
  for (const ReadReport::Name& name : report.names) {
    if (name.field == field) {
      names.push_back({LevelAt(blocks, name.line), name.text});
    }
  }
  return names;
}

void NoteOtherLevels(const std::vector<NamedFile>& names,
                     const std::string& own, const std::string& shown,
                     Notes& notes) {
  constexpr int kTopLevel = 5;
  std::set<int> told;
  for (const NamedFile& name : names) {
    const bool is_read =
        name.level == 1 || name.level == 4 || name.level == kTopLevel;
    if (!is_read || EqualIgnoringCase(name.text, own) ||
        !told.insert(name.level).second) {
      continue;
    }
    notes.Add(
        {shown, 0,
         Localized("At level %1 the game reads %2, which stays as it "
                   "is.",
                   {std::to_string(name.level), Utf8FromGameText(name.text)})});
  }
}

/// Bots on disk beside it whose character names the file.
void NoteOtherBots(const fs::path& character, ParameterId field,
                   const std::string& own, const std::string& shown,
                   Notes& notes) {
  NameList bots;
  const fs::path folder = character.parent_path();
  std::vector<fs::path> others =
      ListFiles(folder, FileSuffix(BotFile::kCharacteristics));
  if (others.size() > kMaxNeighbours) others.resize(kMaxNeighbours);
  for (const fs::path& other : others) {
    if (other == character.filename()) continue;
    const Result<std::string> bytes =
        ReadFile(folder / other, kMaxBotFileBytes);
    if (!bytes || !Contains(ToLower(*bytes), ToLower(own))) continue;
    const std::vector<NamedFile> named = NamesIn(*bytes, field);
    if (std::any_of(named.begin(), named.end(), [&own](const NamedFile& one) {
          return EqualIgnoringCase(one.text, own);
        })) {
      bots.Add(Utf8FromPath(other));
    }
  }
  if (bots.empty()) return;
  notes.Add({shown, 0,
             Localized("The edit changes other bots too, whose characteristic "
                       "files name this file: %1.",
                       {bots.Text()})});
}

/// The bot may ask for another chat than the file has.
void NoteOtherChat(const OriginFiles& files, const std::string& shown,
                   Notes& notes) {
  const Result<std::string> bytes = BytesAt(files.at(BotFile::kChat));
  if (!bytes) return;
  std::string wanted;
  for (const NamedFile& name : NamesInCharacter(files, kChatNameField)) {
    if (EqualIgnoringCase(ChatNameIn(*bytes, {name.text}), name.text)) return;
    wanted = name.text;
  }
  const std::string there = ChatNameIn(*bytes, {});
  if (wanted.empty() || there.empty()) return;
  notes.Add({shown, 0,
             Localized("The game does not read these lines for the bot, whose "
                       "characteristic file asks for the chat \"%1\": the file "
                       "has the chat \"%2\".",
                       {ShownText(wanted), ShownText(there)})});
}

/// The bot's description, or else one beside its files that has its name.
std::optional<OriginFile> DescriptionOf(const OriginFiles& files,
                                        const std::string& bot) {
  const auto own = files.find(BotFile::kDescription);
  if (own != files.end()) return own->second;
  const OriginFile& character = files.at(BotFile::kCharacteristics);
  if (!character.is_on_disk()) return std::nullopt;
  const std::optional<fs::path> path =
      FindListedBeside(character.path, {}, bot);
  return path ? std::optional(OriginFile{.path = *path}) : std::nullopt;
}

/// Bots that the same description gives the same characteristic file, and
/// whether it gives this one another.
void NoteListedBots(const OriginFiles& files, const std::string& bot,
                    const std::string& shown, Notes& notes) {
  const auto character = files.find(BotFile::kCharacteristics);
  if (character == files.end()) return;
  const std::optional<OriginFile> list = DescriptionOf(files, bot);
  if (!list) return;
  const Result<std::string> bytes = BytesAt(*list);
  if (!bytes) return;
  Complaints untold;
  NameList bots;
  std::string_view own_file;
  const std::string file = InBots(NameAt(character->second));
  const std::vector<DescriptionSet> sets =
      ReadGameDescription({{}, {}, *bytes}, untold);
  // The game's name of the bot itself may be another than its character's.
  Bot own;
  own.Put(kNameField, bot);
  const TextSpan block =
      ReadDescriptionFile(*bytes, {}, own, CalledBy(files)).block;
  for (const DescriptionSet& set : sets) {
    const std::string_view name = set.Text("name");
    const bool is_own = Overlap(set.span, block);
    if (is_own) own_file = set.Text("aifile");
    if (EqualIgnoringCase(set.Text("aifile"), file) && !is_own &&
        !EqualIgnoringCase(name, bot)) {
      bots.Add(ShownText(name));
    }
  }
  if (!own_file.empty() &&
      !EqualIgnoringCase(PathLookedFor(own_file, FileHome::kPacked),
                         PathLookedFor(file, FileHome::kPacked))) {
    notes.Add(
        {shown, 0,
         Localized("The game does not read this file for the bot: behind "
                   "aifile %1 names %2.",
                   {Utf8FromGameText(NameAt(*list)), ShownText(own_file)})});
  }
  if (bots.empty()) return;
  notes.Add({shown, 0,
             Localized("The edit changes other bots too, which have the same "
                       "files by %1: %2.",
                       {Utf8FromGameText(NameAt(*list)), bots.Text()})});
}

}  // namespace

std::string NameAt(const OriginFile& file) {
  if (!file.is_on_disk()) {
    return file.entry.substr(file.entry.find_last_of("/\\") + 1);
  }
  return GameTextFromPath(file.path.filename()).value_or(std::string());
}

std::vector<NamedFile> NamesInCharacter(const OriginFiles& files,
                                        ParameterId field) {
  const auto character = files.find(BotFile::kCharacteristics);
  if (character == files.end()) return {};
  const Result<std::string> bytes = BytesAt(character->second);
  if (!bytes) return {};
  return NamesIn(*bytes, field);
}

std::string NamedInstead(const OriginFiles& files, BotFile kind) {
  const std::optional<ParameterId> field = FieldNaming(kind);
  if (!field) return {};
  const std::string own = InBots(NameAt(files.at(kind)));
  std::string other;
  for (const NamedFile& name : NamesInCharacter(files, *field)) {
    if (EqualIgnoringCase(name.text, own)) return {};
    other = name.text;
  }
  return other;
}

void NoteOthers(const OriginFiles& files, BotFile kind, const std::string& bot,
                const std::string& shown, Notes& notes) {
  if (kind != BotFile::kDescription) NoteListedBots(files, bot, shown, notes);
  if (kind == BotFile::kChat) NoteOtherChat(files, shown, notes);
  const std::optional<ParameterId> field = FieldNaming(kind);
  const auto character = files.find(BotFile::kCharacteristics);
  if (!field || character == files.end()) return;
  const std::string own = InBots(NameAt(files.at(kind)));
  NoteOtherLevels(NamesInCharacter(files, *field), own, shown, notes);
  if (!character->second.is_on_disk()) return;
  NoteOtherBots(character->second.path, *field, own, shown, notes);
}

}  // namespace fragsmith
