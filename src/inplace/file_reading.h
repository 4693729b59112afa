#ifndef FRAGSMITH_INPLACE_FILE_READING_H_
#define FRAGSMITH_INPLACE_FILE_READING_H_

#include <compare>
#include <cstddef>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "botfiles/read_report.h"
#include "game/character_reader.h"
#include "game/chat_reader.h"
#include "game/description_reader.h"
#include "game/weight_vocabulary.h"
#include "game/word_lists.h"
#include "model/bot.h"
#include "model/level.h"
#include "session/bot_origin.h"
#include "session/load_bot.h"

namespace fragsmith {

/// One of a bot's files, apart from its bytes.
struct FileOfBot {
  BotFile kind = BotFile::kCharacteristics;
  std::string shown;   ///< Its name in messages, UTF-8.
  std::string called;  ///< What the bot's files are called by.
  /// How lines that it had before were written.
  ChatSpellings spellings = {};
  /// Of a chat file: the chats that the bot's character asks for.
  std::vector<std::string> chat_names = {};
};

/// What a fact is about; of several that changed the first is told.
enum class FactKind {
  kGameChat,       ///< What the game has of a chat type.
  kGivenWeight,    ///< What the game makes of a return.
  kInGame,         ///< A characteristic that the game has at a level.
  kMacro,          ///< One of the file's own.
  kName,           ///< Of a thing of the bot, as a file or its chat.
  kPlain,          ///< What plainly stands in the file.
  kOwnWeight,      ///< The number of a return, where it has one as its own.
  kRule,           ///< A value by our reading rules.
  kRuleChat,       ///< The lines of a chat type by them.
  kDescription,    ///< A value of one of the sets of a description.
  kUnmixed,        ///< What the game cannot mix; the fact says why.
  kWeighed,        ///< What the game weighs.
  kWeightReturns,  ///< How many returns a weight has.
  kReturnCases,    ///< When the game comes to a return.
};

struct FactKey {
  FactKind kind = FactKind::kRule;
  /// The level, the set, or which of those of the same name; 0 elsewhere.
  std::size_t group = 0;
  std::string name;
  auto operator<=>(const FactKey&) const = default;  // NOLINT(*-use-nullptr)
};

/// All that a reading says, each thing as text. Two readings that say the same
/// have equal facts.
using Facts = std::map<FactKey, std::string>;

/// What both readers, ours and the game's, see in a file.
struct FileReading {
  Bot bot;            ///< By our reading rules.
  ReadReport report;  ///< With the spans of its values.
  TextSpan block;     ///< Of a description: this bot's part.

  // What the game has; of the kind of the file.
  std::map<Level, CharacterBlock> levels;
  WeightsRead weights;
  std::vector<FoundWeight> found;
  GameChat chat;
  std::vector<DescriptionSet> descriptions;

  Facts facts;
  std::map<std::string, int, std::less<>> errors;  ///< By the kind of fault.
  std::string first_error;  ///< Where and what it is; empty without one.
  std::size_t first_error_line = 0;  ///< In the file; 0 for no single one.
};

FactKey RuleFact(ParameterId id);
FactKey PlainFact(ParameterId id);
FactKey RuleFact(ChatTypeId type);
FactKey LevelFact(Level level, int game_number);
FactKey MacroFact(std::string_view name);
/// Of the returns of all weights, from 0.
FactKey OwnWeightFact(std::size_t index);
FactKey GivenWeightFact(std::size_t index);
FactKey WeighedFact(ParameterId id);
/// Of the game's chat types, which may be there more than once.
FactKey ChatTypeFact(std::string_view type, std::size_t among_same = 0);
/// Of each of the chat's types, in their order.
std::vector<FactKey> ChatTypeFacts(const GameChat& chat);
FactKey DescriptionFact(std::size_t set, std::string_view key);

/// A value as it is in facts: numbers that are equal look the same.
std::string FactOf(const Value& value);
std::string FactOf(double number);
/// The numbers of a weight in the order of the file; what is edited, by where
/// it begins, as the new one.
std::string FactOf(const FoundWeight& weight,
                   const std::map<std::size_t, double>& edited = {});
std::string FactOf(const std::vector<std::string>& chat_lines);
/// What the game has of the lines of a chat type.
std::string FactOfWords(const std::vector<std::string>& words);

/// Reads a file of a bot again and again, as edits go over it.
class BothReaders {
 public:
  /// Look-ups go to the game, or to StandInGameFile where there is none.
  BothReaders(FileOfBot file, IncludeLookup game);

  const FileOfBot& file() const { return file_; }
  const IncludeLookup& game() const { return game_; }

  FileReading Read(std::string_view bytes) const;

  /// Why the game takes the file not at all, or not at every level; nothing
  /// where it does. Without a game no file of its own is missing.
  std::optional<Complaint> FaultInGame(std::string_view bytes) const;

  /// The lists of chat lines that the game has; empty without a game.
  const WordLists& lists() const { return lists_; }

  /// The game's number for a characteristic of the catalogue, by its chars.h.
  std::optional<int> GameNumber(int index) const;

 private:
  void ReadAsWeDo(std::string_view bytes, FileReading& reading) const;
  /// False where the game throws something of it away.
  bool ReadAsGame(std::string_view bytes, Complaints& complaints,
                  FileReading& reading) const;
  GameFile AsGameFile(std::string_view bytes) const;

  FileOfBot file_;
  IncludeLookup game_;
  std::map<std::string, int, std::less<>> numbers_;
  WordLists lists_;
};

/// The chat lines of the file that our writer would write in another way.
ChatSpellings SpellingsIn(std::string_view bytes, const FileReading& reading);

/// What the user calls the value of a fact, in quotes; empty for one that he
/// has no name for.
std::string NameOfFact(const FactKey& fact, const FileReading& reading);

/// The first of the chat names by which there is a chat in the file, else that
/// of its first chat; empty without one.
std::string ChatNameIn(std::string_view bytes,
                       const std::vector<std::string>& names = {});

}  // namespace fragsmith

#endif  // FRAGSMITH_INPLACE_FILE_READING_H_
