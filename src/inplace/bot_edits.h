#ifndef FRAGSMITH_INPLACE_BOT_EDITS_H_
#define FRAGSMITH_INPLACE_BOT_EDITS_H_

#include <map>
#include <memory>
#include <string>
#include <vector>

#include "game/preprocessor.h"
#include "inplace/edit_in_place.h"
#include "session/bot_file.h"
#include "session/bot_origin.h"
#include "session/load_bot.h"
#include "support/notes.h"
#include "support/result.h"

namespace fragsmith {

/// What becomes of one of a bot's files when the edited bot is saved.
struct FileEdit {
  enum class Outcome {
    kUnchanged,    ///< Nothing in it was edited: it is not to be touched.
    kEdited,       ///< `bytes` has the edits and all else as it was.
    kNotEditable,  ///< For the reason given.
  };

  Outcome outcome = Outcome::kUnchanged;
  OriginFile origin;
  std::string shown;      ///< UTF-8.
  std::string old_bytes;  ///< As it is now, where anything was edited.
  std::string bytes;
  /// What the bytes were made from; null where they are no edit.
  std::shared_ptr<const AuthorsFile> made_from = nullptr;
  Error reason;
  /// Where the rest of the file is edited all the same.
  std::vector<RefusedChange> refused;
  Notes notes;  ///< What the edit does not reach, or reaches too.
  /// What a file written anew would lose or change, in sentences.
  std::vector<std::string> losses;
};

/// Files that the game cannot read, with what it stumbles over: sentences,
/// UTF-8.
using BrokenFiles = std::map<BotFile, std::string>;

struct BotEdits {
  std::map<BotFile, FileEdit> files;
  /// What was edited and stands in none of these files, as the user calls it.
  std::vector<std::string> homeless;

  bool IsEditable() const;
  /// True where no value was passed over either.
  bool IsWhole() const;
  /// True where a file has to be written.
  bool HasEdits() const;
};

/// Edits the files that a bot came from, in memory. The first bot is what they
/// say, the second what they are to say. A file that cannot be read is not
/// editable, nor is one that the game cannot read; but what was edited in place
/// there is given too.
BotEdits EditBotFiles(const OriginFiles& files, const Bot& before,
                      const Bot& after, const IncludeLookup& game,
                      const NumberChooser& chooser = {},
                      const BrokenFiles& broken = {});

/// The same, but of a file in which values cannot be edited the others are. The
/// name is changed in all files or in none.
BotEdits EditWhatCanBe(const OriginFiles& files, const Bot& before,
                       const Bot& after, const IncludeLookup& game);

/// For one who gives the lines of a chat type as a whole: those of the old list
/// that the game has in the block of another type, and that an edit cannot take
/// from there, get into the new list. Notes say of which.
Notes KeepLinesElsewhere(const OriginFiles& files, const Bot& before,
                         Bot& after, const IncludeLookup& game);

/// What the edits do to the files, as one unified diff.
std::string DiffOf(const BotEdits& edits);

/// Why a package cannot take its edited files; success where each can.
Result<void> CheckPackages(const BotEdits& edits);

/// Writes the edited files, in packages in the place of the old members, and
/// holds fast in the origins what is there then. At an error the files before
/// it are put back as they were; the error names those that cannot be.
Result<void> WriteEdits(BotEdits& edits);

}  // namespace fragsmith

#endif  // FRAGSMITH_INPLACE_BOT_EDITS_H_
