#ifndef FRAGSMITH_INPLACE_EDIT_IN_PLACE_H_
#define FRAGSMITH_INPLACE_EDIT_IN_PLACE_H_

#include <cstddef>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

#include "inplace/file_reading.h"
#include "model/bot.h"
#include "support/notes.h"
#include "support/result.h"

namespace fragsmith {

/// Something of a bot that stands in one of its files.
using FileChange = std::variant<ParameterId, ChatTypeId>;

/// What the user calls it, within a sentence; UTF-8.
std::string NameOf(const FileChange& change);

/// Something that stays as it is, and why.
struct RefusedChange {
  FileChange change;
  Error error;
};

/// Where an edit puts what it has to say besides.
struct EditTold {
  Notes* notes = nullptr;
  /// Where it is given, what is refused goes there, and all else is edited.
  std::vector<RefusedChange>* refused = nullptr;
};

/// In what of this kind of file the two bots differ. Model and skin are one.
std::vector<FileChange> ChangesIn(BotFile kind, const Bot& before,
                                  const Bot& after);

/// Why what the bot has there can stand in no file of the kind, however it is
/// written; empty where it can. Of chat lines it is not known.
std::string ValueRefusal(BotFile kind, const FileChange& change,
                         const Bot& after);

/// In what they differ that no file holds in a way that is read again: version
/// and comment.
std::vector<ParameterId> ChangesInNoFile(const Bot& before, const Bot& after);

/// Says which number of a weight an edit is for, where the game's weight code
/// has several: by its index among them, the index behind the last for all of
/// them. Nothing leaves the file not editable.
using NumberChooser = std::function<std::optional<std::size_t>(
    ParameterId weight, const std::vector<std::string>& numbers)>;

/// The bytes with all that differs between the bots, and nothing else changed:
/// only the tokens of the values are replaced, and lines put in or taken out
/// where a value comes or goes. What comes out has been read again by our
/// reader and by the game's: each edited value came back, and all others are
/// what they were. A chat line that has to stay in another block of the file
/// keeps its place there among the lines of its type. Where all that cannot be
/// had the file is not editable in place, and the error says why. Notes tell of
/// what could have been meant otherwise.
Result<std::string> EditInPlace(const BothReaders& readers,
                                std::string_view bytes, const Bot& before,
                                const Bot& after,
                                const NumberChooser& chooser = {},
                                EditTold told = {});

}  // namespace fragsmith

#endif  // FRAGSMITH_INPLACE_EDIT_IN_PLACE_H_
