#include "checks/file_checks.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <map>
#include <utility>

#include "checks/file_character.h"
#include "checks/file_chat.h"
#include "checks/file_description.h"
#include "checks/file_weights.h"
#include "support/code_page.h"
#include "support/text.h"

namespace fragsmith {
namespace {

/// Of a path below botfiles/; with that folder it has 63 characters.
constexpr std::size_t kMostPath = 54;
/// A longer name leaves no room for the path of the character file in what
/// the game sends along with a player.
constexpr std::size_t kMostFunName = 850;

/// The skills to try, so that each level of the file is read, by itself and
/// in a mix.
constexpr std::array<double, 4> kSkills = {1, 2, 4, 5};

constexpr std::array<int, 3> kLevels = {1, 4, 5};

/// Levels that leave these to the default character are the rule.
bool IsOptional(int number) {
  return (number >= 8 && number <= 15) || (number >= 17 && number <= 20) ||
         number >= 47;
}

std::string KeyName(int number) {
  return "CHARACTERISTIC_" +
         std::string(kGameCharacteristics.at(static_cast<std::size_t>(number)));
}

/// Goes the way of the game from the description to the chats.
class BotReader {
 public:
  BotReader(const BotFileSet& files, const IncludeLookup& game)
      : files_(files), game_([this, &game](std::string_view path) {
          const GameFile* const own = OwnFile(path);
          return own != nullptr ? std::optional(own->bytes) : game(path);
        }) {
    ReadDescription();
  }

  BotReader(const BotReader&) = delete;
  BotReader& operator=(const BotReader&) = delete;

  Verdict At(double skill) {
    std::vector<CharacterLevel> levels;
    bool is_own = true;
    for (const int level : LevelsForSkill(skill)) {
      const std::optional<CharacterLevel>& loaded = Level(level);
      if (!loaded) return Verdict::kRefused;
      levels.push_back(*loaded);
      is_own = is_own && (loaded->origin == CharacterOrigin::kOwn ||
                          loaded->origin == CharacterOrigin::kOwnOther);
    }
    const std::map<int, CharacterValue>& values = levels.front().block.values;
    const auto text = [&](int number) -> const CharacterValue* {
      const auto found = values.find(number);
      if (found == values.end() ||
          found->second.kind != CharacterValue::Kind::kText) {
        return nullptr;
      }
      is_own = is_own && found->second.is_own;
      return &found->second;
    };
    const CharacterValue* const items = text(kGameItemWeights);
    const CharacterValue* const weapons = text(kGameWeaponWeights);
    const CharacterValue* const chat = text(kGameChatFile);
    const CharacterValue* const name = text(kGameChatName);
    // Without a path the game takes the one that it read before. For the first
    // one and the name that is whatever lies in its memory.
    if (items == nullptr || name == nullptr) return Verdict::kRefused;
    const std::string& weapon_path =
        weapons != nullptr ? weapons->text : items->text;
    const std::string& chat_path = chat != nullptr ? chat->text : weapon_path;
    const bool is_loaded = Weights(items->text, false) &&
                           Weights(weapon_path, true) &&
                           Chat(chat_path, name->text);
    if (!is_loaded || !is_defined_) return Verdict::kRefused;
    return is_own ? Verdict::kAsWritten : Verdict::kWithDefault;
  }

  std::vector<Finding> Check() {
    std::map<Verdict, std::string> skills;
    for (const double skill : kSkills) {
      std::string& list = skills[At(skill)];
      list += list.empty() ? "" : ", ";
      list += skill == 2 ? "2, 3" : std::to_string(static_cast<int>(skill));
    }
    const bool is_good =
        skills.size() == 1 && skills.contains(Verdict::kAsWritten);
    if (is_good) findings_.Soften(0);
    const GameFile* const place =
        files_.character ? &*files_.character : AnyFile();
    const std::string name = place != nullptr ? place->name : "";
    if (skills.contains(Verdict::kRefused)) {
      Add("not-added", Severity::kError, name, 0,
          "At skill " + skills[Verdict::kRefused] +
              " the game does not add this bot.");
    }
    if (skills.contains(Verdict::kWithDefault)) {
      Add("default-character", Severity::kError, name, 0,
          "At skill " + skills[Verdict::kWithDefault] +
              " the bot plays, wholly or in part, as the game's default "
              "character under its own name.");
    }
    CheckLevels();
    CheckMixes();
    return Sorted();
  }

 private:
  using Member = std::optional<GameFile> BotFileSet::*;
  static constexpr std::array<Member, 5> kMembers = {
      &BotFileSet::description, &BotFileSet::character,
      &BotFileSet::weapon_weights, &BotFileSet::item_weights,
      &BotFileSet::chat};

  void Add(std::string_view id, Severity severity, const std::string& file,
           int line, std::string text) {
    findings_.Add(id, severity, file, line, std::move(text));
  }

  const GameFile* AnyFile() const {
    for (const Member member : kMembers) {
      if (files_.*member) return &*(files_.*member);
    }
    return nullptr;
  }

  const GameFile* OwnFile(std::string_view path) const {
    const std::string wanted = NormalGamePath(path);
    for (const Member member : kMembers) {
      const std::optional<GameFile>& file = files_.*member;
      if (member != &BotFileSet::description && file &&
          EqualIgnoringCase(NormalGamePath(file->game_path), wanted)) {
        return &*file;
      }
    }
    return nullptr;
  }

  /// A file by the path that a file of the bot gives; nothing when the game
  /// cannot open it.
  std::optional<GameFile> Find(std::string_view path, std::string_view what) {
    const GameFile* const asking =
        files_.character ? &*files_.character : AnyFile();
    const std::string place = asking != nullptr ? asking->name : "";
    const std::string normal = NormalGamePath(path);
    const std::string shown = "botfiles/" + ShownText(normal);
    if (normal.empty()) return GameFile{shown, "", ""};
    if (normal.size() > kMostPath) {
      Add("path-too-long", Severity::kError, place, 0,
          "The path " + Quoted(normal) + " of the " + std::string(what) +
              " file is too long: the game can open 63 characters, botfiles/ "
              "included. Give the bot a shorter name.");
      return std::nullopt;
    }
    if (const GameFile* const own = OwnFile(normal)) {
      const std::string own_path = NormalGamePath(own->game_path);
      if (own_path != normal) {
        Add("path-case", Severity::kWarning, place, 0,
            "The bot names its " + std::string(what) + " file " +
                Quoted(normal) + ", but it is called " + Quoted(own_path) +
                ". On Linux the game finds it in a package only. Spell both "
                "alike.");
      }
      return *own;
    }
    std::optional<std::string> bytes = game_(normal);
    if (!bytes) {
      Add("file-missing", Severity::kError, place, 0,
          "The " + std::string(what) + " file " + shown +
              " does not exist. Correct the path or add the file.");
      return std::nullopt;
    }
    return GameFile{shown, normal, std::move(*bytes)};
  }

  void ReadDescription() {
    std::string path =
        files_.character ? files_.character->game_path : std::string();
    if (!files_.description) {
      Add("no-description", Severity::kError,
          AnyFile() != nullptr ? AnyFile()->name : "", 0,
          "There is no .bot file, so the game does not know this bot. It must "
          "lie in the folder scripts.");
    } else {
      const GameFile& file = *files_.description;
      const std::vector<DescriptionSet> sets =
          ReadGameDescription(file, findings_);
      const DescriptionSet* const set = ChooseSet(sets, path);
      if (set == nullptr) {
        Add("no-name", Severity::kError, file.name, 0,
            "The game finds no bot with a name in this file. It needs a line "
            "with name and the bot's name between { and }.");
      } else if (set->Text("aifile").empty()) {
        Add("no-aifile", Severity::kError, file.name, set->line,
            "The bot has no line that begins with aifile, or the game has "
            "thrown it away. Without one it does not add the bot. Write "
            "aifile and the path of the character file, such as "
            "bots/name_c.c.");
      } else {
        is_defined_ = true;
        path = set->Text("aifile");
        if (set->Text("funname").size() > kMostFunName) path.clear();
        CheckPath(path, file, set->Line("aifile"));
      }
    }
    if (is_defined_ || !path.empty()) character_ = Find(path, "character");
  }

  void CheckPath(const std::string& path, const GameFile& file, int line) {
    if (!files_.character || OwnFile(path) == &*files_.character) return;
    Add("other-character", Severity::kWarning, file.name, line,
        "The game takes the character file " + Quoted(path) + " and never " +
            Quoted(files_.character->game_path) + ". Correct the line aifile.");
  }

  /// The bot that a description is about: the one with our character file,
  /// but of two bots of one name the first.
  static const DescriptionSet* ChooseSet(
      const std::vector<DescriptionSet>& sets, std::string_view path) {
    const auto has_name = [](const DescriptionSet& set) {
      return !set.Text("name").empty() &&
             set.Text("name") != kNoDescriptionValue;
    };
    auto chosen =
        std::find_if(sets.begin(), sets.end(), [&](const DescriptionSet& set) {
          return has_name(set) &&
                 EqualIgnoringCase(NormalGamePath(set.Text("aifile")),
                                   NormalGamePath(path));
        });
    if (chosen == sets.end()) {
      chosen = std::find_if(sets.begin(), sets.end(), has_name);
    }
    if (chosen == sets.end()) return nullptr;
    const std::string_view name = chosen->Text("name");
    return &*std::find_if(sets.begin(), sets.end(),
                          [&](const DescriptionSet& set) {
                            return EqualIgnoringCase(set.Text("name"), name);
                          });
  }

  const std::optional<CharacterLevel>& Level(int level) {
    auto [place, is_new] = levels_.try_emplace(level);
    if (is_new) {
      place->second = LoadCharacterLevel(character_ ? &*character_ : nullptr,
                                         level, game_, findings_);
    }
    return place->second;
  }

  bool Weights(const std::string& path, bool are_weapons) {
    auto [place, is_new] =
        loaded_.try_emplace({are_weapons ? "weapons" : "items", path});
    if (!is_new) return place->second;
    const std::optional<GameFile> file =
        Find(path, are_weapons ? "weapon weight" : "item weight");
    if (!file) return false;
    const WeightsRead read = ReadGameWeights(*file, game_, findings_);
    place->second = read.is_loaded;
    if (read.is_loaded && read.count == 0) {
      Add("no-weights", Severity::kWarning, file->name, 0,
          are_weapons
              ? "The file gives no weapon a weight: the bot does not know what "
                "to fight with. #include \"fw_weap.c\" belongs at its end."
              : "The file gives no item a weight: the bot picks nothing up on "
                "purpose. #include \"fw_items.c\" belongs at its end.");
    }
    return read.is_loaded;
  }

  bool Chat(const std::string& path, const std::string& name) {
    auto [place, is_new] = loaded_.try_emplace({name, path});
    if (!is_new) return place->second;
    const std::optional<GameFile> file = Find(path, "chat");
    place->second = file && ReadGameChat(*file, name, game_, findings_);
    return place->second;
  }

  void CheckLevels() {
    if (!character_) return;
    const std::string& file = character_->name;
    for (const int level : kLevels) {
      const std::optional<CharacterLevel>& loaded = levels_[level];
      if (!loaded || loaded->origin != CharacterOrigin::kOwn) {
        Add("no-level", Severity::kError, file, 0,
            "The game finds no sound block for skill " + std::to_string(level) +
                " in this file and takes the default character's, or another "
                "block. Each bot needs the blocks skill 1, skill 4 and skill "
                "5.");
        continue;
      }
      std::string missing;
      int count = 0;
      for (int number = 0;
           number < static_cast<int>(kGameCharacteristics.size()); ++number) {
        const auto found = loaded->block.values.find(number);
        const bool is_own =
            found != loaded->block.values.end() && found->second.is_own;
        if (is_own || IsOptional(number)) continue;
        if (++count <= 3) missing += (count > 1 ? ", " : "") + KeyName(number);
      }
      if (count == 0) continue;
      if (count > 3) missing += " and " + std::to_string(count - 3) + " more";
      Add("missing-keys", Severity::kHint, file, 0,
          "Skill block " + std::to_string(level) + " has no " + missing +
              "; the default character's value is used.");
    }
  }

  /// Between two levels the game mixes numbers with a "." only.
  void CheckMixes() {
    for (const auto& [low, high] : {std::pair(1, 4), std::pair(4, 5)}) {
      const std::optional<CharacterLevel>& lower = levels_[low];
      const std::optional<CharacterLevel>& upper = levels_[high];
      if (!character_ || !lower || !upper) continue;
      for (const auto& [number, value] : lower->block.values) {
        const auto other = upper->block.values.find(number);
        if (!value.is_own || other == upper->block.values.end() ||
            value.kind != CharacterValue::Kind::kFraction ||
            other->second.kind != CharacterValue::Kind::kWhole ||
            static_cast<std::size_t>(number) >= kGameCharacteristics.size()) {
          continue;
        }
        Add("no-mix", Severity::kError, character_->name, other->second.line,
            KeyName(number) + " is a whole number at skill " +
                std::to_string(high) + " but has a point at skill " +
                std::to_string(low) +
                ", so at the skills between the bot has no value at all and "
                "the game takes 0. Write a point and a 0 behind the whole "
                "number.");
      }
    }
  }

  std::vector<Finding> Sorted() const {
    const auto order = [&](const Finding& finding) {
      std::size_t at = 0;
      while (at < kMembers.size() &&
             !(files_.*kMembers[at] &&
               (files_.*kMembers[at])->name == finding.place.file)) {
        ++at;
      }
      return std::pair(at, finding.place.line);
    };
    std::vector<Finding> list = findings_.list();
    std::stable_sort(list.begin(), list.end(),
                     [&](const Finding& left, const Finding& right) {
                       return order(left) < order(right);
                     });
    return list;
  }

  const BotFileSet& files_;
  IncludeLookup game_;
  FileFindings findings_;
  bool is_defined_ = false;
  std::optional<GameFile> character_;
  std::map<int, std::optional<CharacterLevel>> levels_;
  /// By what is wanted of it and path: whether a file loads.
  std::map<std::pair<std::string, std::string>, bool> loaded_;
};

}  // namespace

std::vector<Finding> CheckFiles(const BotFileSet& files,
                                const IncludeLookup& game) {
  return BotReader(files, game).Check();
}

Verdict VerdictAt(const BotFileSet& files, const IncludeLookup& game,
                  double skill) {
  return BotReader(files, game).At(skill);
}

}  // namespace fragsmith
