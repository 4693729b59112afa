#include "checks/file_checks.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <map>
#include <utility>

#include "chat/vocabulary.h"
#include "checks/bot_reader.h"
#include "checks/character_file_checks.h"
#include "checks/identity_checks.h"
#include "checks/weight_kind.h"
#include "game/game_path.h"
#include "model/file_names.h"
#include "support/code_page.h"
#include "support/localization.h"
#include "support/text.h"

namespace fragsmith {
namespace {

/// The skills to try, so that each level of the file is read, by itself and
/// in a mix.
constexpr std::array<double, 4> kSkills = {1, 2, 4, 5};

/// SkillText() of all of them.
constexpr std::string_view kAllSkills = "1, 2, 3, 4, 5";

std::string SkillText(double skill) {
  return skill == 2 ? "2, 3" : std::to_string(static_cast<int>(skill));
}

/// What the game makes of the files, and why.
class FileChecker {
 public:
  FileChecker(const BotFileSet& files, const IncludeLookup& game)
      : files_(files),
        game_([this, &game](std::string_view path) {
          // Several files ask for the same one, each of them at each level.
          const auto [entry, is_new] = of_game_.try_emplace(std::string(path));
          if (is_new) entry->second = game(path);
          return entry->second;
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
    if (reader_.character()) {
      CheckCharacterFile(files_, game_, IsCauseIn(*reader_.character()),
                         reader_);
    }
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
                 !(is_known && is_of_description && one.id != kNotACharacter);
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
    for (Complaint& one : list) kept.Add(std::move(one));
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
    if (findings().IsTold({file, line})) return;
    // That of the files is looked at in memory.
    std::string for_menus = NameForMenusText(name);
    if (!for_menus.empty() && files_.character &&
        !EqualIgnoringCase(name, BotOfPath(files_.character->game_path))) {
      Add("name-too-long-for-menus", Severity::kWarning, file, line,
          std::move(for_menus));
    }
    if (name.find_first_of(" \t") != std::string::npos) {
      Add("name-with-blank", Severity::kWarning, file, line,
          Localized("The name %1 has a blank: the game's menus cannot add the "
                    "bot, and the console needs quotation marks: /addbot "
                    "\"%2\" 3. A name of one word is easier.",
                    {Quoted(name), ShownText(name)}));
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

  bool IsCauseIn(const GameFile& file) const {
    return std::ranges::any_of(causes_, [&file](const Cause& cause) {
      return cause.complaint.place.file == file.name ||
             cause.complaint.id == kNotACharacter;
    });
  }

  static std::string ConsequenceAt(const std::string& skills, bool is_refused) {
    if (skills == kAllSkills) {
      return Localized(
          is_refused
              ? Localizable("The game does not add the bot.")
              : Localizable("The bot plays, wholly or in part, as the game's "
                            "default character under its own name."));
    }
    return Localized(
        is_refused
            ? Localizable("At skill %1 the game does not add the bot.")
            : Localizable("At skill %1 the bot plays, wholly or in part, as "
                          "the game's default character under its own name."),
        {skills});
  }

  /// What becomes of the bot by a fault, a sentence for each way.
  std::string ConsequenceOf(const Cause& cause) const {
    const std::optional<DescriptionSet>& set = reader_.description();
    // A path that goes on to the end of the file is that of no file.
    if (cause.complaint.id == "description-quote" && set &&
        cause.complaint.key != "aifile") {
      return Localized(
          set->Text("aifile").empty()
              ? Localizable("The game adds the bot with another bot's files, "
                            "or not at all.")
              : Localizable(
                    "The game adds the bot, but it may be with those files."));
    }
    if (cause.complaint.id == "other-character") {
      return Localized(
          "The game adds the bot, but with the character and the files of that "
          "one.");
    }
    std::string text;
    for (const auto& [verdict, skills] : cause.skills) {
      if (!text.empty()) text += " ";
      text += ConsequenceAt(skills, verdict == Verdict::kRefused);
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
      result.push_back(
          {.id = cause.complaint.id,
           .severity = Severity::kError,
           .place = reader_.WholePlace(cause.complaint.place),
           .text = cause.complaint.text + " " + ConsequenceOf(cause),
           .mends = {},
           .keeps_out = cause.skills.contains(Verdict::kRefused),
           .key = cause.complaint.key,
           .missing = cause.complaint.missing});
    }
    const auto order = [&](const Complaint& complaint) {
      std::size_t at = 0;
      const FilePlace place = reader_.WholePlace(complaint.place);
      while (at < kBotFileMembers.size() &&
             !(place.game_path.empty() &&
               place.kind == kBotFileMembers[at].file)) {
        ++at;
      }
      return std::pair(at, place.line);
    };
    std::stable_sort(list.begin(), list.end(),
                     [&](const Complaint& left, const Complaint& right) {
                       return order(left) < order(right);
                     });
    for (Complaint& complaint : list) {
      result.push_back({.id = complaint.id,
                        .severity = complaint.severity,
                        .place = reader_.WholePlace(std::move(complaint.place)),
                        .text = std::move(complaint.text),
                        .mends = {},
                        .key = std::move(complaint.key),
                        .missing = std::move(complaint.missing)});
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
  return place.line > 0
             ? Localized("%1, line %2", {text, std::to_string(place.line)})
             : text;
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
  return name.substr(0,
                     name.size() - std::min(name.size(), kCharacterEnd.size()));
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
