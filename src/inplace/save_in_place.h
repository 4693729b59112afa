#ifndef FRAGSMITH_INPLACE_SAVE_IN_PLACE_H_
#define FRAGSMITH_INPLACE_SAVE_IN_PLACE_H_

#include <filesystem>
#include <map>
#include <optional>
#include <set>
#include <string>
#include <vector>

#include "botfiles/header_comment.h"
#include "inplace/bot_edits.h"
#include "model/bot.h"
#include "session/bot_origin.h"
#include "session/save_bot.h"
#include "support/notes.h"
#include "support/prompts.h"
#include "support/result.h"

namespace fragsmith {

/// What "Save again" is to do, and whom it asks.
struct SaveInPlace {
  const Bot& bot;
  const BotHome& home;
  const Author& author;
  const IncludeLookup& game;
  Prompts& prompts;
  /// Asked about, even where nothing in them was edited.
  BrokenFiles broken = {};
};

/// What became of a plan.
struct InPlacePlan {
  bool is_cancelled = false;
  /// Something that was edited stays unsaved: a file that is left as it is, or
  /// what stands in no file.
  bool leaves_changes = false;
  /// Files that the game cannot read and that are to stay as they are.
  std::set<BotFile> left_broken = {};
  /// Files in which nothing was edited.
  std::vector<BotFile> unchanged;
  /// To be kept in mind with the chat file.
  ChatSpellings spellings = {};
  /// The same with the files that are edited in place.
  std::map<BotFile, std::shared_ptr<const AuthorsFile>> before_edits = {};
  /// Old files that are kept beside the new ones, by the new names.
  std::map<std::filesystem::path, std::string> backups;
  /// What the edits in place do not reach, or reach too.
  Notes notes;
};

/// The bot as its files have it: as it was last saved, else as it was loaded;
/// null where nobody knows.
const Bot* Before(const BotHome& home);

/// Asks the user which number of a weight is meant. Once that is cancelled no
/// more is asked: then nothing is to be saved. The flag outlives the chooser.
NumberChooser AskForNumber(Prompts& prompts, bool& is_cancelled);

/// Of a plan to save a bot where it came from: takes out the files in which
/// nothing was edited, gives the others their own bytes with the edits, and
/// asks about those that are not editable in place. Files of our own making are
/// written anew, as they always are, and so is a bot of which nobody knows what
/// its files have.
InPlacePlan PlanInPlace(const SaveInPlace& save, SavePlan& plan);

/// Keeps the bytes of an old file beside it, as NAME.bak, or with a number
/// behind it where an older one lies there. Gives its path.
Result<std::filesystem::path> KeepBackup(const std::filesystem::path& file,
                                         const std::string& bytes);

/// The same with all old files of the plan.
Result<void> WriteBackups(const InPlacePlan& plan);

/// True for a bot that was read out of its own package, bot-NAME.pk3, and of
/// which nothing lies elsewhere.
bool IsInOwnPackage(const Bot& bot, const BotHome& home);

/// Saves such a bot into that package; nothing where the user cancelled. The
/// files are held fast in the home.
Result<std::optional<InPlacePlan>> SaveIntoOwnPackage(const SaveInPlace& save,
                                                      BotHome& home);

/// What a bot's files are to say after a save: those that were left keep what
/// they had.
Bot AsWritten(const Bot& before, const Bot& after,
              const std::vector<BotFile>& left);

/// What saving again would change in the files, as one unified diff; files of
/// ours are shown as they would be written anew, and those that it would make
/// as new ones. Nobody is asked.
std::string ChangesToShow(const SaveInPlace& save);

}  // namespace fragsmith

#endif  // FRAGSMITH_INPLACE_SAVE_IN_PLACE_H_
