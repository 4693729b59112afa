#include "checks/bot_reader.h"

#include <algorithm>
#include <cstddef>

#include "chat/vocabulary.h"
#include "checks/chat_file_checks.h"
#include "checks/installation_checks.h"
#include "checks/weapon_checks.h"
#include "checks/weight_kind.h"
#include "game/chat_reader.h"
#include "game/file_faults.h"
#include "game/game_path.h"
#include "game/limits.h"
#include "game/plain_letters.h"
#include "model/file_names.h"
#include "support/code_page.h"
#include "support/localization.h"
#include "support/text.h"

namespace fragsmith {
namespace {

constexpr Severity kError = Severity::kError;

/// What findings call a kind of file.
std::string NameOf(BotFile kind) {
  switch (kind) {
    case BotFile::kDescription:
      return Localized("description file");
    case BotFile::kCharacteristics:
      return Localized("character file");
    case BotFile::kChat:
      return Localized("chat file");
    case BotFile::kItemWeights:
      return Localized("item weight file");
    case BotFile::kWeaponWeights:
      return Localized("weapon weight file");
  }
  return {};
}

/// A fault that has cost a file all its weights of weapons.
Complaint WithoutWeights(Complaint fault) {
  fault.severity = kError;
  fault.text += " " + Localized(
                          "No weapon has a weight then: the bot does not know "
                          "what to fight with.");
  return fault;
}

/// One of this kind among those from an index on.
std::optional<Complaint> FindComplaint(const Complaints& complaints,
                                       std::size_t first, std::string_view id) {
  const std::vector<Complaint>& list = complaints.list();
  const auto found = std::find_if(
      list.begin() + static_cast<std::ptrdiff_t>(first), list.end(),
      [id](const Complaint& one) { return one.id == id; });
  return found == list.end() ? std::nullopt : std::optional(*found);
}

}  // namespace

BotReader::BotReader(const BotFileSet& files, const IncludeLookup& game)
    : files_(files),
      game_([this, &game](std::string_view path) {
        const GameFile* const own = OwnFile(path);
        return own != nullptr ? std::optional(own->bytes) : game(path);
      }),
      complaints_(files.is_game_known),
      untold_(files.is_game_known) {
  for (const BotFileMember& row : kBotFileMembers) {
    const std::optional<GameFile>& file = files_.*row.member;
    if (file) places_.insert({file->name, {.kind = row.file}});
  }
  const std::string path(kDefaultCharacter);
  places_.insert({InBotFiles(path),
                  {.kind = BotFile::kCharacteristics, .game_path = path}});
  ReadDescription();
}

FilePlace BotReader::WholePlace(FilePlace place) const {
  if (const auto found = places_.find(place.file); found != places_.end()) {
    place.kind = found->second.kind;
    place.game_path = found->second.game_path;
  }
  return place;
}

Verdict BotReader::At(double skill) {
  if (!is_defined_) return Verdict::kRefused;
  std::vector<const CharacterLevel*> levels;
  bool is_own = true;
  for (const int level : LevelsForSkill(skill)) {
    const std::optional<CharacterLevel>& loaded = LoadLevel(level);
    if (!loaded) return Verdict::kRefused;
    levels.push_back(&*loaded);
    is_own = is_own && (loaded->origin == CharacterOrigin::kOwn ||
                        loaded->origin == CharacterOrigin::kOwnOther);
  }
  const CharacterLevel& first = *levels.front();
  const CharacterValue* const items =
      PathAt(first, kGameItemWeights, "CHARACTERISTIC_ITEMWEIGHTS");
  const std::size_t before = complaints_.list().size();
  const CharacterValue* const weapons =
      PathAt(first, kGameWeaponWeights, "CHARACTERISTIC_WEAPONWEIGHTS");
  const std::optional<Complaint> no_weapons =
      weapons == nullptr ? complaints_.FirstError(before) : std::nullopt;
  const CharacterValue* const chat =
      PathAt(first, kGameChatFile, "CHARACTERISTIC_CHAT_FILE");
  const CharacterValue* const name =
      PathAt(first, kGameChatName, "CHARACTERISTIC_CHAT_NAME");
  // Without a path the game takes the one that it read before. For the first
  // one and the name that is whatever lies in its memory.
  if (items == nullptr || name == nullptr) return Verdict::kRefused;
  const CharacterValue of_weapons =
      weapons != nullptr ? *weapons : InPlaceOf(*items);
  const CharacterValue of_chat =
      chat != nullptr ? *chat : InPlaceOf(of_weapons);
  if (!Weights(items->text, false, *items) ||
      !Weights(of_weapons.text, true, of_weapons) || !Chat(of_chat, *name)) {
    return Verdict::kRefused;
  }
  if (no_weapons && !weaponless_ && HasNoWeapons(*items)) {
    weaponless_ = WithoutWeights(*no_weapons);
  }
  for (const CharacterValue* const value : {items, weapons, chat, name}) {
    is_own = is_own && (value == nullptr || value->is_own);
  }
  if (!is_own) return Verdict::kWithDefault;
  const bool has_others =
      NamesAnother(*items) || NamesAnother(of_weapons) || NamesAnother(of_chat);
  return has_others ? Verdict::kWithOthers : Verdict::kAsWritten;
}

bool BotReader::NamesAnother(const CharacterValue& value) const {
  const std::string other = BotOfPath(value.text);
  return value.is_own && !other.empty() && other != OwnName();
}

/// The path that the game takes for a later one that is missing: what it finds
/// there belongs to another kind of file, and is not told.
CharacterValue BotReader::InPlaceOf(const CharacterValue& earlier) {
  CharacterValue path = earlier;
  path.is_own = false;
  return path;
}

/// Whether a file of items has none of the weights of weapons.
bool BotReader::HasNoWeapons(const CharacterValue& items) {
  const std::optional<GameFile> file =
      Find(items.text, BotFile::kItemWeights, CharacterName(), items.line);
  if (!file) return false;
  Complaints untold;
  return FaultOfKind(*file, ReadGameWeights(*file, game_, untold), true,
                     {.file = CharacterName(), .line = items.line})
      .has_value();
}

/// What the bot's files are called by. The description may name a character
/// file that is called otherwise.
std::string BotReader::OwnName() const {
  for (const BotFileMember& row : kBotFileMembers) {
    const std::optional<GameFile>& file = files_.*row.member;
    std::string name = file ? BotOfPath(file->game_path) : std::string();
    if (!name.empty()) return name;
  }
  return {};
}

std::string BotReader::CharacterName() const {
  if (character_) return character_->name;
  if (files_.character) return files_.character->name;
  for (const BotFileMember& row : kBotFileMembers) {
    if (files_.*row.member) return (files_.*row.member)->name;
  }
  return {};
}

bool BotReader::HasLoneBackslash(int line) const {
  if (!character_ || line == 0) return false;
  const std::string_view text = LineOfFile(character_->bytes, line);
  return Contains(text, "\\") && !Contains(text, "\\\\");
}

bool BotReader::EndsAtAccent(std::string_view path, const std::string& file,
                             int line) const {
  if (!files_.description || file != files_.description->name || line == 0) {
    return false;
  }
  const std::string_view text = LineOfFile(files_.description->bytes, line);
  const std::size_t at = text.find(path);
  return at != std::string_view::npos && at + path.size() < text.size() &&
         IsAccented(text[at + path.size()]);
}

template <typename Condition>
const GameFile* BotReader::FindOwn(const Condition& condition) const {
  for (const BotFileMember& row : kBotFileMembers) {
    const std::optional<GameFile>& file = files_.*row.member;
    if (row.file != BotFile::kDescription && file && condition(*file)) {
      return &*file;
    }
  }
  return nullptr;
}

const GameFile* BotReader::OwnFile(std::string_view path) const {
  const std::string wanted = PathLookedFor(path, files_.home);
  return FindOwn([&](const GameFile& file) {
    return PathLookedFor(file.game_path, files_.home) == wanted;
  });
}

const GameFile* BotReader::OwnInAnyCase(std::string_view path) const {
  const std::string wanted = PathLookedFor(path, files_.home);
  return FindOwn([&](const GameFile& file) {
    return EqualIgnoringCase(PathLookedFor(file.game_path, files_.home),
                             wanted);
  });
}

/// A file by the path that a file of the bot gives in a line (0 where that is
/// not known); nothing when the game cannot open it.
std::optional<GameFile> BotReader::Find(std::string_view path, BotFile kind,
                                        const std::string& file, int line) {
  std::string asked(path);
  std::replace(asked.begin(), asked.end(), '\\', '/');
  const std::string shown = InBotFiles(ShownText(asked));
  if (NormalGamePath(asked).empty()) return GameFile{shown, "", ""};
  if (asked.size() > limits::kMaxPath) {
    Add("path-too-long", kError, file, line,
        Localized(
            "The path %1 of the %2 is too long: the game can open %3 "
            "characters, botfiles/ included. Give the bot a shorter name.",
            {Quoted(asked), NameOf(kind),
             std::to_string(limits::kMaxPath + kBotFilesPath.size())}));
    return std::nullopt;
  }
  if (const GameFile* const own = OwnFile(asked)) {
    opened_.push_back(InBotFiles(own->game_path));
    return *own;
  }
  std::optional<std::string> bytes = game_(asked);
  if (!bytes) {
    TellMissing(asked, kind, file, line);
    return std::nullopt;
  }
  opened_.push_back(InBotFiles(asked));
  places_.insert({shown, {.kind = kind, .game_path = asked}});
  return GameFile{shown, asked, std::move(*bytes)};
}

/// How a path that is nearly that of a file of the bot is to be written; empty
/// for any other.
std::string BotReader::AdviceForPath(std::string_view path) const {
  if (ToLower(path).starts_with(kBotFilesPath)) {
    return Localized("It begins in botfiles by itself: leave botfiles/ out.");
  }
  if (Contains(path, "..")) {
    return Localized(
        "It refuses a path with \"..\": write the whole way from botfiles.");
  }
  const std::string whole = std::string(path) + ".c";
  return OwnFile(whole) != nullptr ? Localized("Write %1.", {Quoted(whole)})
                                   : "";
}

void BotReader::TellMissing(const std::string& path, BotFile kind,
                            const std::string& file, int line) {
  const std::string called = NameOf(kind);
  const auto tell = [&](std::string_view id, Severity severity,
                        std::string text) {
    complaints_.Add({.id = id,
                     .severity = severity,
                     .place = {.file = file, .line = line},
                     .text = std::move(text),
                     .missing = path});
  };
  const GameFile* const other_case = OwnInAnyCase(path);
  const std::string on_disk = PathLookedFor(path, FileHome::kLoose);
  if (EndsAtAccent(path, file, line)) {
    Add("path-accent", kError, file, line,
        Localized("The game reads the path of the %1 only up to %2, where a "
                  "letter with an accent follows. Call the bot and its files "
                  "by letters without accents.",
                  {called, Quoted(path)}));
  } else if (HasLoneBackslash(line)) {
    Add("path-backslash", kError, file, line,
        Localized(
            "The path of the %1 has a \\ in this line, and the game takes that "
            "and the letter behind it for one sign. Write / in its place.",
            {called}));
  } else if (other_case != nullptr) {
    Add("path-case", kError, file, line,
        Localized("The bot names its %1 %2, but it is called %3. Capitals "
                  "count for files in a folder on Linux. Spell both alike.",
                  {called, Quoted(path), Quoted(other_case->game_path)}));
  } else if (files_.home == FileHome::kPacked && OwnFile(on_disk) != nullptr) {
    Add("path-in-package", kError, file, line,
        Localized("The path %1 of the %2 works for files in a folder only. For "
                  "a package write %3.",
                  {Quoted(path), called, Quoted(on_disk)}));
  } else if (const std::string advice = AdviceForPath(path); !advice.empty()) {
    tell(
        "file-missing", kError,
        Localized("The game does not find the %1 %2.", {called, Quoted(path)}) +
            " " + advice);
  } else if (!files_.is_game_known) {
    tell("not-looked-at", Severity::kHint,
         Localized("The %1 %2 is not the bot's own. Whether the game has it "
                   "was not looked at, as no game folder is set.",
                   {called, Quoted(InBotFiles(path))}));
  } else {
    const auto* const row =
        std::ranges::find(kBotFileMembers, kind, &BotFileMember::file);
    const std::optional<GameFile>& own = files_.*row->member;
    tell("file-missing", kError,
         Localized(
             own ? Localizable("The %1 %2 does not exist. Correct the path or "
                               "add the file; the bot's own is %3.")
                 : Localizable("The %1 %2 does not exist. Correct the path or "
                               "add the file."),
             {called, Quoted(InBotFiles(path)),
              own ? Quoted(own->game_path) : ""}));
  }
}

bool BotReader::ReadOne(const GameFile& file, bool is_told,
                        const std::function<bool(Complaints&)>& read) {
  Complaints& complaints = is_told ? complaints_ : untold_;
  const std::size_t first = complaints.list().size();
  const bool is_good = read(complaints);
  complaints.KeepFirstError(first);
  std::optional<Complaint> fault = FaultOfBytes(file);
  if (fault) {
    if (!is_good) fault->severity = kError;
    complaints.ReplaceError(first, *std::move(fault));
  }
  return is_good;
}

bool BotReader::Weights(const std::string& path, bool are_weapons,
                        const CharacterValue& value) {
  const BotFile kind =
      are_weapons ? BotFile::kWeaponWeights : BotFile::kItemWeights;
  auto [entry, is_new] = loaded_.try_emplace({kind, path, {}});
  if (!is_new) return entry->second;
  const std::optional<GameFile> file =
      Find(path, kind, CharacterName(), value.line);
  if (!file) {
    entry->second = !files_.is_game_known && OwnInAnyCase(path) == nullptr;
    return entry->second;
  }
  WeightsRead read;
  const std::size_t first = complaints_.list().size();
  ReadOne(*file, value.is_own, [&](Complaints& complaints) {
    read = ReadGameWeights(*file, game_, complaints);
    return read.is_loaded && read.count > 0;
  });
  entry->second = read.is_loaded;
  if (!value.is_own) return read.is_loaded;
  if (file->game_path.empty()) {
    const Complaint empty = EmptyPath(kind, value);
    if (are_weapons) weaponless_ = WithoutWeights(empty);
    Add(empty.id, Severity::kWarning, empty.place.file, empty.place.line,
        empty.text);
    return true;
  }
  const std::optional<Complaint> of_kind = FaultOfKind(
      *file, read, are_weapons, {.file = CharacterName(), .line = value.line});
  if (!read.is_loaded) {
    if (of_kind) complaints_.ReplaceError(first, *of_kind);
    return false;
  }
  if (of_kind) {
    (are_weapons ? weaponless_ : itemless_) = of_kind;
  } else if (read.count > 0) {
    if (are_weapons) {
      CheckWeaponNames(*file, read, game_, complaints_);
      // What is lost to an error is told with that.
      if (!weaponless_ && !complaints_.HasError(first)) {
        weaponless_ = NoWeaponAtStart(*file, read, files_.is_game_known);
      }
    }
  } else if (complaints_.HasError(first)) {
    // What the game stumbled over has kept it from all weights.
    if (are_weapons) {
      weaponless_ = WithoutWeights(*complaints_.FirstError(first));
    }
  } else if (const std::optional<Complaint> loop =
                 FindComplaint(complaints_, first, "includes-itself")) {
    if (are_weapons) weaponless_ = WithoutWeights(*loop);
  } else if (are_weapons) {
    weaponless_ = {
        .id = "no-weights",
        .severity = kError,
        .place = {.file = file->name, .line = 0},
        .text = Localized(
            "The file gives no weapon a weight: the bot does not know what to "
            "fight with. Write #include \"fw_weap.c\" at its end.")};
  } else {
    Add("no-weights", Severity::kWarning, file->name, 0,
        Localized("The file gives no item a weight: the bot picks nothing up "
                  "on purpose. Write #include \"fw_items.c\" at its end."));
  }
  return true;
}

bool BotReader::Chat(const CharacterValue& path, const CharacterValue& name) {
  auto [entry, is_new] =
      loaded_.try_emplace({BotFile::kChat, path.text, name.text});
  if (!is_new) return entry->second;
  const std::optional<GameFile> file =
      Find(path.text, BotFile::kChat, CharacterName(), path.line);
  if (!file) {
    entry->second = !files_.is_game_known && OwnInAnyCase(path.text) == nullptr;
    return entry->second;
  }
  GameChat chat;
  entry->second = ReadOne(*file, path.is_own, [&](Complaints& complaints) {
    Complaints all(files_.is_game_known);
    const bool is_good = ReadGameChat(*file, name.text, game_, all, &chat);
    for (const Complaint& one : all.list()) {
      // That the bot has no name for its chat was told.
      if (one.id == "chat-name" && !name.is_own) continue;
      complaints.Add(one.id == "chat-name" ? WithoutChat(path, name, chat, one)
                                           : one);
    }
    return is_good;
  });
  if (entry->second && path.is_own) {
    CheckChatFile(*file, chat, game_, complaints_);
  }
  return entry->second;
}

}  // namespace fragsmith
