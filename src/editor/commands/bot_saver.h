#ifndef FRAGSMITH_EDITOR_COMMANDS_BOT_SAVER_H_
#define FRAGSMITH_EDITOR_COMMANDS_BOT_SAVER_H_

#include <QString>
#include <cstdint>
#include <filesystem>
#include <map>
#include <optional>
#include <string>

#include "editor/state/current_bot.h"
#include "editor/state/program_state.h"
#include "game/preprocessor.h"
#include "inplace/bot_edits.h"
#include "session/bot_origin.h"
#include "session/save_again.h"
#include "session/save_bot.h"
#include "support/notes.h"

namespace fragsmith {

/// Writes the current bot, and asks before anything of somebody else's would
/// go by that.
class BotSaver {
 public:
  BotSaver(CurrentBot& current, ProgramState& state)
      : current_(current), state_(state) {}

  /// What became of a save.
  struct [[nodiscard]] Outcome {
    QString text;  ///< For the status bar; empty when there was a box.
    /// The characteristic file, when nothing of the bot is left unsaved.
    std::optional<std::filesystem::path> saved;
    Notes notes = {};  ///< What edits in place did not reach, or reached too.
  };

  /// What the files of a bot that are made somewhere hold beside what is ours.
  struct Extras {
    bool keeps_files = false;  ///< They stay as their author wrote them.
    bool game_macros = false;  ///< Weights under the game's own macros too.
  };

  /// What of it there is to have for this bot.
  Extras Offer() const;

  Outcome SaveTo(const SaveTarget& target, Extras extras);

  /// To where the bot came from or was last saved. Nothing, without a word,
  /// when there is no such place.
  std::optional<Outcome> SaveAgain();

  /// What that would change in the files, for people; game text.
  std::string Changes();

 private:
  BotHome& home() const { return *current_.origin().home; }

  /// What becomes of files that were never read for this bot.
  enum class Unread : std::uint8_t { kNoneLeft, kLeft, kCancelled };
  Unread AskAboutUnread(SavePlan& plan);
  void AskAboutPackage(SavePlan& plan);
  /// Asks before files of others in a package go.
  bool MayDropFiles(const SavePlan& plan);
  /// The same for other bots in a description.
  bool MayDropBots(const SavePlan& plan);
  /// The same for another bot of the name, and for what was made by hand.
  bool MayReplaceOthers(const SavePlan& plan);
  /// Asks before the bot's name stands in two descriptions.
  bool MayDescribeTwice(const SavePlan& plan);
  bool MayRenew(const PackageBeside& beside);
  /// About files in which nothing was edited here, and something elsewhere.
  /// Those that may be overwritten all the same are agreed.
  Unread AskAboutOthersEdits(SavePlan& plan,
                             std::map<BotFile, std::filesystem::path>& agreed);
  bool MayWriteOver(SavePlan plan,
                    const std::map<BotFile, std::filesystem::path>& agreed);
  /// Asks before what somebody removed is made anew.
  bool MayMakeAnew(SavePlan& plan);
  /// A package that was made is told in a box, or in the outcome alone.
  Outcome Write(const SavePlan& plan, bool leaves_changes, bool has_box);
  /// What the files have of the bot then.
  void RememberValues(const SavedBot& saved, const SavePlan& plan,
                      bool leaves_changes);
  std::optional<Outcome> SaveIntoPackage();
  void Tell(const Error& error);
  void TellNotKept(const Notes& notes);
  /// Files that the game cannot read as they are, without those that the user
  /// would have left so, as long as something else is to be saved.
  BrokenFiles Broken() const;
  /// For what the bot's files include.
  IncludeLookup Game() const;
  void TellHalfWritten(const SavePlan& plan, const SavedBot& saved);

  CurrentBot& current_;
  ProgramState& state_;
};

}  // namespace fragsmith

#endif  // FRAGSMITH_EDITOR_COMMANDS_BOT_SAVER_H_
