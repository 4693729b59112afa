#include "checks/file_checks.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <map>
#include <utility>

#include "chat/vocabulary.h"
#include "checks/bot_reader.h"
#include "game/skill_mix.h"
#include "support/code_page.h"
#include "support/text.h"

namespace fragsmith {
namespace {

/// Bytes of "_c.c".
constexpr std::size_t kSuffixLength = 4;

/// The skills to try, so that each level of the file is read, by itself and
/// in a mix.
constexpr std::array<double, 4> kSkills = {1, 2, 4, 5};

/// SkillText() of all of them.
constexpr std::string_view kAllSkills = "1, 2, 3, 4, 5";

std::string SkillText(double skill) {
  return skill == 2 ? "2, 3" : std::to_string(static_cast<int>(skill));
}

/// Levels that leave these to the default character are the rule.
bool IsOptional(int number) {
  return (number >= 8 && number <= 15) || (number >= 17 && number <= 20) ||
         number >= 47;
}

/// The characteristics that are texts.
bool IsText(int number) {
  constexpr std::array kTexts = {
      0, 1, kGameWeaponWeights, kGameChatFile, kGameChatName, kGameItemWeights};
  return std::find(kTexts.begin(), kTexts.end(), number) != kTexts.end();
}

/// What the game makes of the files, and why.
class FileChecker {
 public:
  FileChecker(const BotFileSet& files, const IncludeLookup& game)
      : files_(files),
        game_([this, &game](std::string_view path) {
          // Several files ask for the same one, each of them at each level.
          const auto [place, is_new] = of_game_.try_emplace(std::string(path));
          if (is_new) place->second = game(path);
          return place->second;
        }),
        reader_(files_, game_) {}

  FileChecker(const FileChecker&) = delete;
  FileChecker& operator=(const FileChecker&) = delete;

  std::vector<Finding> Check() {
    for (const double skill : kSkills) {
      const Verdict verdict = reader_.At(skill);
      if (verdict == Verdict::kRefused || verdict == Verdict::kWithDefault) {
        TakeCause(skill, verdict);
      }
    }
    if (causes_.empty()) {
      findings().Soften(0);
    } else {
      DropConsequences();
    }
    if (reader_.weaponless()) findings().Raise(*reader_.weaponless());
    if (reader_.itemless()) TellItemless();
    CheckName();
    CheckBlocks();
    CheckLevels();
    CheckOthersFiles();
    CheckMixes();
    return Sorted();
  }

 private:
  /// The first thing that goes wrong, and at which skills which way.
  struct Cause {
    Complaint complaint;
    std::map<Verdict, std::string> skills;
  };

  Complaints& findings() { return reader_.complaints(); }

  void Add(std::string_view id, Severity severity, const std::string& file,
           int line, std::string text) {
    findings().Add(id, severity, file, line, std::move(text));
  }

  void Add(const Complaint& complaint) {
    Add(complaint.id, complaint.severity, complaint.place.file,
        complaint.place.line, complaint.text);
  }

  /// Goes the way of one skill alone; the first error on it is the cause.
  void TakeCause(double skill, Verdict verdict) {
    BotReader alone(files_, game_);
    (void)alone.At(skill);  // What it complains of is wanted alone.
    const std::vector<Complaint>& list = alone.complaints().list();
    // What the description says otherwise does no harm then.
    const bool is_known = alone.is_defined() && alone.character();
    const auto found =
        std::find_if(list.begin(), list.end(), [&](const Complaint& one) {
          const bool is_of_description =
              files_.description && one.place.file == files_.description->name;
          return one.severity == Severity::kError &&
                 !(is_known && is_of_description);
        });
    if (found == list.end()) return;  // It is not known.
    auto cause =
        std::find_if(causes_.begin(), causes_.end(), [&](const Cause& one) {
          // A file that is missing is missed at each level, and a line or a
          // brace that is wrong at one level may end the file at another.
          const FilePlace& place = one.complaint.place;
          return (one.complaint.id == found->id &&
                  one.complaint.text == found->text) ||
                 (place.line > 0 && place == found->place) ||
                 (found->id == "file-ends-early" &&
                  place.file == found->place.file);
        });
    if (cause == causes_.end()) cause = causes_.insert(cause, {*found, {}});
    std::string& skills = cause->skills[verdict];
    skills += (skills.empty() ? "" : ", ") + SkillText(skill);
  }

  /// Of the errors in the character file those remain that are the first to
  /// stop some skill; what stands in the line of a cause follows from it.
  void DropConsequences() {
    std::vector<Complaint> list = findings().list();
    const auto is_cause = [&](const Complaint& one) {
      return std::any_of(
          causes_.begin(), causes_.end(),
          [&](const Cause& cause) { return cause.complaint == one; });
    };
    const auto is_at_line_of_cause = [&](const Complaint& one) {
      return one.place.line > 0 &&
             std::any_of(causes_.begin(), causes_.end(),
                         [&](const Cause& cause) {
                           return cause.complaint.place == one.place;
                         });
    };
    std::erase_if(list, [&](const Complaint& one) {
      if (one.severity == Severity::kHint || is_cause(one)) return false;
      return is_at_line_of_cause(one) ||
             (one.severity == Severity::kError && reader_.character() &&
              one.place.file == reader_.character()->name);
    });
    Complaints kept(files_.is_game_known);
    for (const Complaint& one : list) {
      kept.Add(one.id, one.severity, one.place.file, one.place.line, one.text);
    }
    findings() = std::move(kept);
  }

  /// What stands behind addbot, and why it may be another name than expected.
  void CheckName() {
    if (!reader_.description()) return;
    const DescriptionSet& set = *reader_.description();
    const std::string name(set.Text("name"));
    const std::string& file = files_.description->name;
    const int line = set.Line("name");
    RaiseLostName({file, line});
    if (IsTold({file, line})) return;
    if (name.find_first_of(" \t") != std::string::npos) {
      Add("name-with-blank", Severity::kWarning, file, line,
          "The name " + Quoted(name) +
              " has a blank: the game's menus cannot add the bot, and the "
              "console needs quotation marks: /addbot \"" +
              ShownText(name) + "\" 3. A name of one word is easier.");
    }
  }

  /// Of two files that are swapped the other one is told.
  void TellItemless() {
    const std::optional<Complaint>& weapons = reader_.weaponless();
    Complaint told = *reader_.itemless();
    if (weapons && weapons->id == told.id) return;
    told.severity = Severity::kWarning;
    findings().Raise(told);
  }

  /// With a = for its name the game has the bot, but nobody finds it; and of
  /// two bots in one it has one alone.
  void RaiseLostName(const FilePlace& place) {
    const std::vector<Complaint>& list = findings().list();
    const auto found = std::ranges::find_if(list, [&](const Complaint& one) {
      return one.id == kBotsMerged ||
             (one.id == "description-equals" && one.place == place);
    });
    if (found == list.end()) return;
    Complaint raised = *found;
    raised.severity = Severity::kError;
    findings().Raise(raised);
  }

  /// Of blocks of one level the game takes the first.
  void CheckBlocks() {
    if (!reader_.character()) return;
    const GameFile& file = *reader_.character();
    std::map<int, int> lines;
    for (const BlockAt& block : CharacterBlocks(file, game_)) {
      const auto [first, is_new] = lines.emplace(block.level, block.line);
      if (is_new || block.line == 0 ||
          IsTold({file.name, first->second}, "no-file-key") ||
          IsTold({file.name, block.line}, "no-level")) {
        continue;
      }
      const std::string number = std::to_string(block.level);
      Add("skill-block-twice", Severity::kWarning, file.name, block.line,
          "Skill block " + number + " stands twice, first in line " +
              std::to_string(first->second) +
              ": the game takes that one and passes over this. Remove the one "
              "that is not meant, or correct its number.");
    }
  }

  void CheckLevels() {
    if (!reader_.character()) return;
    const std::string& file = reader_.character()->name;
    std::vector<std::string> levels;
    std::string missing;
    int count = 0;
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
      }
    }
    // Of a level that is thrown away it says nothing new.
    const auto is_here = [&file](const Cause& cause) {
      return cause.complaint.place.file == file;
    };
    if (count == 0 || std::ranges::any_of(causes_, is_here)) return;
    if (count > 3) missing += " and " + std::to_string(count - 3) + " more";
    Add("missing-keys", Severity::kHint, file, 0,
        (levels.size() == 1 ? "Skill block " : "The skill blocks ") +
            Enumeration(levels) +
            (levels.size() == 1 ? " has no " : " have no ") + missing +
            ": the game takes what its default character has. Write the lines "
            "to decide yourself.");
  }

  /// The game takes 0 for a text where a number belongs.
  void CheckTexts(int level, const CharacterLevel& loaded) {
    for (const auto& [number, value] : loaded.block.values) {
      if (!value.is_own || value.kind != CharacterValue::Kind::kText ||
          IsText(number) ||
          static_cast<std::size_t>(number) >= kGameCharacteristics.size()) {
        continue;
      }
      Add("value-not-a-number", Severity::kWarning, reader_.character()->name,
          value.line,
          GameKeyName(number) + " of skill " + std::to_string(level) +
              " is the text " + Quoted(value.text) +
              ", and a number belongs there: the game takes 0. Write the "
              "number without quotation marks.");
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
            IsTold({reader_.character()->name, found->second.line}) ||
            reader_.HasLoneBackslash(found->second.line)) {
          continue;
        }
        std::string text = "Skill " + std::to_string(level) + " takes " +
                           Quoted(found->second.text) +
                           ", a file of another bot";
        text += file ? ", and not " + Quoted(file->game_path) +
                           ", which is this bot's own. Correct the name in "
                           "this line."
                     : ". If that is not meant, write the name of this bot's "
                       "own file.";
        Add("others-file", file ? Severity::kWarning : Severity::kHint,
            reader_.character()->name, found->second.line, std::move(text));
      }
    }
  }

  /// Whether something says already what is wrong with this line.
  bool IsTold(const FilePlace& place, std::string_view id = {}) {
    return std::ranges::any_of(findings().list(), [&](const Complaint& one) {
      return one.severity != Severity::kHint && one.place == place &&
             (id.empty() || one.id == id);
    });
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
        std::any_of(BotReader::kMembers.begin(), BotReader::kMembers.end(),
                    [&](const BotReader::Member member) {
                      return files_.*member && is_named(*(files_.*member));
                    });
    if (!is_of_other_key) return;
    Add("wrong-file", Severity::kWarning, reader_.character()->name, value.line,
        GameKeyName(number) + " names " + Quoted(value.text) +
            ", which is another file of this bot. Write " +
            Quoted(file->game_path) + ".");
  }

  /// Between two levels the game mixes numbers with a "." only. No menu offers
  /// the skills between 4 and 5.
  void CheckMixes() {
    if (!reader_.character()) return;
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
            static_cast<std::size_t>(number) >= kGameCharacteristics.size()) {
          continue;
        }
        Add("no-mix",
            levels.lower == Level::k1 ? Severity::kError : Severity::kHint,
            reader_.character()->name, other->second.line,
            GameKeyName(number) + " is a whole number at skill " +
                std::to_string(high) + " but has a point at skill " +
                std::to_string(low) +
                ", so at the skills between the bot has no value at all and "
                "the game takes 0. Write a point and a 0 behind the whole "
                "number.");
      }
    }
  }

  /// What becomes of the bot by a fault, a sentence for each way.
  std::string ConsequenceOf(const Cause& cause) const {
    std::string text;
    const std::optional<DescriptionSet>& set = reader_.description();
    if (cause.complaint.id == "description-quote" && set &&
        !set->Text("aifile").empty()) {
      return " The game adds the bot, but it may be with those files.";
    }
    for (const auto& [verdict, skills] : cause.skills) {
      const bool is_refused = verdict == Verdict::kRefused;
      if (skills == kAllSkills) {
        text += is_refused ? " The game does not add the bot."
                           : " The bot plays, wholly or in part, as the "
                             "game's default character under its own name.";
        continue;
      }
      text += " At skill " + skills;
      text += is_refused ? " the game does not add the bot."
                         : " the bot plays, wholly or in part, as the game's "
                           "default character under its own name.";
    }
    return text;
  }

  /// What decides what becomes of the bot comes first, then the files in their
  /// order.
  std::vector<Finding> Sorted() {
    std::vector<Finding> result;
    std::vector<Complaint> list = findings().list();
    for (const Cause& cause : causes_) {
      std::erase(list, cause.complaint);
      result.push_back({.id = cause.complaint.id,
                        .severity = Severity::kError,
                        .place = cause.complaint.place,
                        .text = cause.complaint.text + ConsequenceOf(cause),
                        .mends = {},
                        .keeps_out = cause.skills.contains(Verdict::kRefused)});
    }
    const auto order = [&](const Complaint& complaint) {
      std::size_t at = 0;
      while (
          at < BotReader::kMembers.size() &&
          !(files_.*BotReader::kMembers[at] &&
            (files_.*BotReader::kMembers[at])->name == complaint.place.file)) {
        ++at;
      }
      return std::pair(at, complaint.place.line);
    };
    std::stable_sort(list.begin(), list.end(),
                     [&](const Complaint& left, const Complaint& right) {
                       return order(left) < order(right);
                     });
    for (Complaint& complaint : list) {
      result.push_back({.id = complaint.id,
                        .severity = complaint.severity,
                        .place = std::move(complaint.place),
                        .text = std::move(complaint.text),
                        .mends = {}});
    }
    return result;
  }

  const BotFileSet& files_;
  std::map<std::string, std::optional<std::string>> of_game_;
  IncludeLookup game_;
  BotReader reader_;
  std::vector<Cause> causes_;
};

}  // namespace

std::string FilePlaceText(const FilePlace& place) {
  const std::size_t slash = place.file.find_last_of("/\\");
  std::string text =
      slash == std::string::npos ? place.file : place.file.substr(slash + 1);
  if (place.line > 0) text += ", line " + std::to_string(place.line);
  return text;
}

std::vector<Finding> CheckFiles(const BotFileSet& files,
                                const IncludeLookup& game) {
  return FileChecker(files, game).Check();
}

std::string NameToAdd(const BotFileSet& files) {
  const IncludeLookup nothing = [](std::string_view) { return std::nullopt; };
  const BotReader reader(files, nothing);
  if (reader.description()) {
    return std::string(reader.description()->Text("name"));
  }
  if (!files.character) return {};
  std::string name = files.character->game_path;
  name.erase(0, name.rfind('/') + 1);
  return name.substr(0, name.size() - std::min(name.size(), kSuffixLength));
}

std::vector<std::string> FilesOpened(const BotFileSet& files,
                                     const IncludeLookup& game) {
  BotReader reader(files, game);
  if (!reader.is_defined()) return {};
  // What it opens on the way is wanted alone.
  for (const double skill : kSkills) (void)reader.At(skill);
  return reader.opened();
}

Verdict VerdictAt(const BotFileSet& files, const IncludeLookup& game,
                  double skill) {
  return BotReader(files, game).At(skill);
}

}  // namespace fragsmith
