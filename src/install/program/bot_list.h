#ifndef FRAGSMITH_INSTALL_PROGRAM_BOT_LIST_H_
#define FRAGSMITH_INSTALL_PROGRAM_BOT_LIST_H_

#include <cstddef>
#include <optional>
#include <set>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace fragsmith {

/// A bot that the game's folder holds. Names are game text.
struct BotListEntry {
  std::string Name;
  std::string PK3File;
  bool IsStandard = false;    ///< One of the game's own, from its package.
  bool HasBotScript = false;  ///< Found with a description script.

  bool operator==(const BotListEntry&) const = default;
};

/// The bots of the game's folder, one for each name whatever its case.
class BotList {
 public:
  BotList() = default;

  /// The game's own bots, sorted.
  static BotList Standard();

  const std::vector<BotListEntry>& entries() const { return entries_; }

  /// Looks for the name, ignoring case.
  std::optional<std::size_t> Find(std::string_view name) const;

  /// Adds a bot, or puts it in the place of the one of that name, which then
  /// is no standard bot any more. The list is left unsorted.
  void AddBot(std::string_view name, std::string_view pk3File,
              bool has_bot_script);

  /// Removes all bots that are not the game's own.
  void ResetBotList();
  /// Removes those of them that came out of these packages.
  void RemoveBotsOf(const std::set<std::string>& packages);

  /// Sorts by name, capitals before small letters.
  void SortBotList();

 private:
  void IndexEntries();

  std::vector<BotListEntry> entries_;
  /// Index of each name in lower case.
  std::unordered_map<std::string, std::size_t> indices_;
};

/// How the bot's description can be had: "Yes" with a script, "-D-" by the
/// program's knowledge of the standard bots, or "No".
std::string_view BotStatus(const BotListEntry& entry);

/// The entry as a line of fixed columns: 15 for the name, 20 for the package,
/// then the status.
std::string BotListLine(const BotListEntry& entry);

}  // namespace fragsmith

#endif  // FRAGSMITH_INSTALL_PROGRAM_BOT_LIST_H_
