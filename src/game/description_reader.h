#ifndef FRAGSMITH_GAME_DESCRIPTION_READER_H_
#define FRAGSMITH_GAME_DESCRIPTION_READER_H_

#include <map>
#include <string>
#include <string_view>
#include <vector>

#include "game/preprocessor.h"
#include "support/text.h"

namespace fragsmith {

/// The list of bots that the game reads before all descriptions.
inline constexpr std::string_view kBotListPath = "scripts/bots.txt";

/// One { ... } of a description file: what the game keeps of it.
struct DescriptionSet {
  struct Value {
    std::string text;
    int line = 0;
    TextSpan span;  ///< With its quotes; empty where nothing stands.
    TextSpan key;
  };
  std::map<std::string, Value, std::less<>> values;  ///< Keys in lower case.
  /// The last values that the game throws away for a sign in them.
  std::map<std::string, Value, std::less<>> thrown_away;
  int line = 0;       ///< Of its {.
  TextSpan span;      ///< From { to }.
  int last_line = 0;  ///< Of its }.
  /// A value runs on behind the end of the file, into what the game read
  /// before, and so does what the game takes for this bot.
  bool is_open = false;

  /// The fun name is so long that the game loses the path of the character
  /// file, which it has read.
  bool HidesCharacter() const;

  /// Empty when the key is missing or was thrown away.
  std::string_view Text(std::string_view key) const;
  int Line(std::string_view key) const;
};

/// That the } between two bots is missing, as of a Complaint.
inline constexpr std::string_view kBotsMerged = "description-bots-merged";

/// What the game writes for a key without a value.
inline constexpr std::string_view kNoDescriptionValue = "<NULL>";

/// A line with one of these in its key or value is thrown away.
inline constexpr std::string_view kThrownAway = ";\\\"";

constexpr bool IsThrownAway(std::string_view text) {
  return text.find_first_of(kThrownAway) != std::string_view::npos;
}

/// What the game reads of a value that has no quotes around it: up to the
/// first blank, control character or letter of the upper half.
std::string_view UnquotedWord(std::string_view text);

std::vector<DescriptionSet> ReadGameDescription(const GameFile& file,
                                                Complaints& findings);

}  // namespace fragsmith

#endif  // FRAGSMITH_GAME_DESCRIPTION_READER_H_
