#ifndef FRAGSMITH_SESSION_BOT_ORIGIN_H_
#define FRAGSMITH_SESSION_BOT_ORIGIN_H_

#include <cstdint>
#include <filesystem>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "model/bot.h"
#include "session/bot_file.h"
#include "support/notes.h"

namespace fragsmith {

/// Tells contents apart; the same in every run.
std::uint64_t FingerprintOf(std::string_view bytes);
/// The same of each, in half the time where two have about the same length.
std::vector<std::uint64_t> FingerprintsOf(
    const std::vector<std::string_view>& files);

/// Chat lines, in editor form, and the statements for them that their author
/// wrote: "{{TAUNT0}}" may be TAUNT or TAUNT0.
using ChatSpellings = std::map<std::string, std::string>;

/// A file as its author left it, and what it says.
struct AuthorsFile {
  std::string bytes;
  Bot bot;
};

/// One of a bot's files as it was when it was last read or written.
struct OriginFile {
  std::filesystem::path path;  ///< The file, or the package that holds it.
  /// Its name in the package, with "/"; 8-bit text. The package may spell it
  /// with another case. Empty for a file on disk.
  std::string entry = {};
  std::uint64_t fingerprint = 0;
  /// Of a chat file: the lines that it has or had. A line that comes again is
  /// written in this way.
  ChatSpellings spellings = {};
  /// Of a file that was edited in place: what the first edit began with. As
  /// long as the file is as the last edit left it, the next one begins there
  /// too, so that what is taken back stands as its author wrote it. Kept for
  /// the time of the program alone.
  std::shared_ptr<const AuthorsFile> before_edits = nullptr;

  bool is_on_disk() const { return entry.empty(); }
  bool operator==(const OriginFile&) const = default;
};

/// Those that were read or written, and no others.
using OriginFiles = std::map<BotFile, OriginFile>;

struct FolderLoadOptions {
  /// The description lies in the scripts folder beside botfiles/bots.
  bool uses_layout = false;
  bool loads_description = true;

  bool operator==(const FolderLoadOptions&) const = default;
};

struct SaveOptions {
  /// Into botfiles/bots and scripts below the folder, as the game has them;
  /// otherwise all files go into the folder itself.
  bool uses_layout = false;
  bool makes_package = false;

  bool operator==(const SaveOptions&) const = default;
};

/// A folder that all files of a bot were written to, and how.
struct SaveTarget {
  std::filesystem::path folder;
  SaveOptions options;

  bool operator==(const SaveTarget&) const = default;
};

/// Where the files of a bot are. All that became of one load, however often it
/// was edited and saved, has the same home: what is saved counts for each of
/// its steps.
struct BotHome {
  /// Files that the bot had under another name, and what they say. They are its
  /// own again when undo or the user gives that name back.
  struct Earlier {
    OriginFiles files;
    std::shared_ptr<const Bot> saved;
    std::optional<OriginFile> package;  ///< As that of the home.
  };

  /// As it was made or loaded.
  std::shared_ptr<const Bot> loaded;
  /// As its files have it: as they were read, later as they were written.
  std::shared_ptr<const Bot> saved;
  OriginFiles files;
  std::vector<Earlier> earlier;
  /// What a save wrote to a place that is not the bot's before it failed.
  OriginFiles half_saved;
  FolderLoadOptions load_options;
  /// Where and how the user last had it written; nothing since its load.
  std::optional<SaveTarget> target;
  /// The package that was last written from it, and is again with the files.
  std::optional<OriginFile> package;
  /// A package beside the files that the user would not have made anew.
  std::optional<std::filesystem::path> left_package;
};

/// A value that was read otherwise than the game reads it.
struct OddValue {
  Value read;
  Value plain;  ///< The game's.

  bool operator==(const OddValue&) const = default;
};

/// What a load noticed.
struct LoadReport {
  Notes notes;
  std::map<ParameterId, OddValue> odd_values;
};

/// Where a bot came from. It belongs to the bot and goes wherever that goes:
/// into each step of undo, and into drafts. Copies stand for the same origin.
struct BotOrigin {
  std::shared_ptr<BotHome> home = std::make_shared<BotHome>();
  std::shared_ptr<LoadReport> report = std::make_shared<LoadReport>();

  /// True for copies of one another.
  bool operator==(const BotOrigin&) const = default;
};

/// True while the value stands in the bot as it was read; a fun name also with
/// the quotes that a save puts on it.
bool StandsAsRead(const Bot& bot, ParameterId id, const OddValue& value);

/// True while a value that was read oddly stands in the bot as it was read.
bool HasOddValues(const Bot& bot, const LoadReport& report);

}  // namespace fragsmith

#endif  // FRAGSMITH_SESSION_BOT_ORIGIN_H_
