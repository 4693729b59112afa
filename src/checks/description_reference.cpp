// What BotReader makes of the description.

#include <algorithm>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "chat/vocabulary.h"
#include "checks/bot_reader.h"
#include "checks/installation_checks.h"
#include "game/file_faults.h"
#include "game/game_path.h"
#include "model/file_names.h"
#include "support/localization.h"
#include "support/text.h"

namespace fragsmith {
namespace {

constexpr Severity kError = Severity::kError;

}  // namespace

const DescriptionSet* ChooseDescription(const std::vector<DescriptionSet>& sets,
                                        std::string_view listed_name,
                                        std::string_view path) {
  const auto has_name = [](const DescriptionSet& set) {
    return !set.Text("name").empty() && set.Text("name") != kNoDescriptionValue;
  };
  auto chosen =
      std::find_if(sets.begin(), sets.end(), [&](const DescriptionSet& set) {
        if (!listed_name.empty()) {
          return EqualIgnoringCase(set.Text("name"), listed_name);
        }
        return has_name(set) &&
               EqualIgnoringCase(
                   PathLookedFor(set.Text("aifile"), FileHome::kLoose),
                   PathLookedFor(path, FileHome::kLoose));
      });
  const std::string own_name = BotOfPath(path);
  if (chosen == sets.end()) {
    chosen = std::ranges::find_if(sets, [&](const DescriptionSet& set) {
      return !own_name.empty() && EqualIgnoringCase(set.Text("name"), own_name);
    });
  }
  if (chosen == sets.end()) chosen = std::ranges::find_if(sets, has_name);
  if (chosen == sets.end()) return nullptr;
  const std::string_view name = chosen->Text("name");
  return &*std::find_if(sets.begin(), sets.end(),
                        [&](const DescriptionSet& set) {
                          return EqualIgnoringCase(set.Text("name"), name);
                        });
}

void BotReader::ReadDescription() {
  const std::string own_path =
      files_.character ? files_.character->game_path : std::string();
  if (!files_.description) {
    if (files_.has_no_description) {
      // The caller does not want it looked at.
      is_defined_ = true;
    } else {
      Add("no-description", kError, CharacterName(), 0,
          Localized("There is no .bot file, so the game does not know this "
                    "bot. It must lie in the folder scripts itself."));
    }
    if (!own_path.empty()) {
      character_ =
          Find(own_path, BotFile::kCharacteristics, CharacterName(), 0);
    }
    return;
  }
  const GameFile& file = *files_.description;
  opened_.push_back(file.game_path.starts_with(kScriptsPath)
                        ? file.game_path
                        : std::string(kScriptsPath) + file.game_path);
  std::vector<DescriptionSet> sets;
  ReadOne(file, true, [&](Complaints& complaints) {
    Complaints all(files_.is_game_known);
    sets = ReadGameDescription(file, all);
    const DescriptionSet* const set =
        ChooseDescription(sets, files_.listed_name, own_path);
    for (const Complaint& one : all.list()) {
      // That it has no name says it all.
      if (set == nullptr && one.id == "description-no-value") continue;
      // What is lost of another bot is not this one's fault.
      const bool is_others =
          set != nullptr && one.id == "description-sign" &&
          (one.place.line < set->line || one.place.line > set->last_line);
      Complaint told = one;
      if (is_others) told.severity = Severity::kHint;
      complaints.Add(std::move(told));
    }
    if (set != nullptr) {
      TellSameName(sets, *set);
      TakeDescription(*set);
      return is_defined_;
    }
    std::string text = Localized(
        "The game finds no bot with a name in this file. It needs a line with "
        "name and the bot's name between { and }.");
    int line = 0;
    for (const DescriptionSet& one : sets) {
      if (one.Text("name") == kNoDescriptionValue) {
        line = one.Line("name");
        text = Localized(
            "There is no value behind \"name\" on its line, so this bot has no "
            "name. Write the name behind it, on the same line.");
      }
      if (one.Text("name:").empty()) continue;
      line = one.Line("name:");
      text = Localized(
          "The game does not know the key \"name:\", so this bot has no name. "
          "Remove the colon.");
    }
    Add("no-name", kError, file.name, line, std::move(text));
    return false;
  });
  if (is_defined_) {
    const std::string_view path = description_->Text("aifile");
    if (path.empty()) return;
    character_ = Find(path, BotFile::kCharacteristics, file.name,
                      description_->Line("aifile"));
  } else if (!own_path.empty()) {
    character_ = Find(own_path, BotFile::kCharacteristics, file.name, 0);
  }
}

/// Of two of one name in a file the game takes the first.
void BotReader::TellSameName(const std::vector<DescriptionSet>& sets,
                             const DescriptionSet& first) {
  // The game's own list is not the bot's fault.
  if (files_.description->game_path == kBotListPath) return;
  for (const DescriptionSet& set : sets) {
    if (set.line <= first.line ||
        !EqualIgnoringCase(set.Text("name"), first.Text("name"))) {
      continue;
    }
    const bool is_bad = first.Text("aifile").empty();
    std::string text = Localized(
        is_bad
            ? Localizable(
                  "The bot %1 stands twice in this file, here and in line %2. "
                  "The game takes this one, which names no character file with "
                  "aifile. Remove it, or put all lines of the bot into one.")
            : Localizable("The bot %1 stands twice in this file, first in line "
                          "%2: the game takes that one and passes over this. "
                          "Remove one of them, or give it another name."),
        {Quoted(set.Text("name")),
         std::to_string(is_bad ? set.line : first.line)});
    Add("bot-twice", is_bad ? kError : Severity::kWarning,
        files_.description->name, is_bad ? first.line : set.line,
        std::move(text));
    return;
  }
}

void BotReader::TakeDescription(const DescriptionSet& set) {
  const GameFile& file = *files_.description;
  description_ = set;
  const std::string_view path = set.Text("aifile");
  if (path.empty()) {
    std::string text = Localized(
        "The bot has no line that begins with aifile, or the game has thrown "
        "it away. Without one it does not add the bot. Write aifile and the "
        "path of the character file, such as bots/name_c.c.");
    int line = set.line;
    // Where the file ends for the game, that is told in place of this.
    const std::optional<Complaint> fault = FaultOfBytes(file);
    if (fault && fault->place.line <= set.last_line) {
      line = std::max(line, fault->place.line);
    }
    for (const auto& [key, value] : set.values) {
      if (key == "aifile:") {
        line = value.line;
        text = Localized(
            "The game does not know the key \"aifile:\", so it does not find "
            "the bot's character. Remove the colon.");
      } else if (EqualIgnoringCase(value.text, "aifile")) {
        line = value.line;
        text = Localized(
            "The game takes the word aifile for the value of %1. Put a text of "
            "several words in quotation marks, and each key on a line of its "
            "own.",
            {Quoted(key)});
      }
    }
    Add("no-aifile", kError, file.name, line, std::move(text));
    return;
  }
  const std::string name = ToLower(set.Text("name"));
  const auto taken = files_.names_taken.find(name);
  if (taken != files_.names_taken.end()) {
    const WinningDescription& winner = taken->second;
    const bool has_same_files =
        EqualIgnoringCase(PathLookedFor(winner.character, FileHome::kLoose),
                          PathLookedFor(path, FileHome::kLoose));
    if (!has_same_files && winner.is_by_chance) {
      Add("name-shared", Severity::kWarning, file.name, set.Line("name"),
          Localized("Two bots are called %1, this one and the one in %2. The "
                    "game adds one of them, and which is chance. Give one of "
                    "them another name.",
                    {Quoted(set.Text("name")), winner.shown_path}));
    } else if (!has_same_files) {
      Add("name-taken", kError, file.name, set.Line("name"),
          NameTakenText(set.Text("name"), winner.shown_path));
      return;
    } else {
      Add("description-not-read", Severity::kHint, file.name, set.Line("name"),
          Localized("The game has a bot %1 already, in %2, and takes %3 and %4 "
                    "from there. That bot plays with your files.",
                    {Quoted(set.Text("name")), winner.shown_path,
                     QuotedName(kFunNameField), QuotedName(kModelField)}));
    }
  }
  // Told of by its reader.
  if (set.is_open) return;
  if (set.HidesCharacter()) {
    Add("fun-name-hides-character", kError, file.name, set.Line("funname"),
        Localized("%1 is so long that the game forgets the path of the "
                  "character file. Shorten it.",
                  {QuotedName(kFunNameField)}));
    is_defined_ = true;
    description_->values.erase("aifile");
    return;
  }
  // Where there is none, the game takes its default character for this bot.
  const bool is_others =
      files_.character && !BotOfPath(path).empty() &&
      BotOfPath(path) != BotOfPath(files_.character->game_path) &&
      (!files_.is_game_known || game_(path));
  if (is_others) {
    Add("other-character", kError, file.name, set.Line("aifile"),
        Localized(
            file.game_path == kBotListPath
                ? Localizable("This line names the character file of another "
                              "bot, %1, so the game never reads %2. Give your "
                              "bot another name, and a .bot file of its own.")
                : Localizable("This line names the character file of another "
                              "bot, %1, so the game never reads %2. Write the "
                              "path of this bot's own file."),
            {Quoted(path), Quoted(files_.character->game_path)}));
    return;
  }
  is_defined_ = true;
}

}  // namespace fragsmith
