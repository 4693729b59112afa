#ifndef FRAGSMITH_GAME_CHARACTER_READER_H_
#define FRAGSMITH_GAME_CHARACTER_READER_H_

#include <map>
#include <optional>
#include <string>
#include <vector>

#include "game/preprocessor.h"

namespace fragsmith {

/// The game's numbers for the characteristics that name files. They are not
/// the catalogue's: the game numbers them in its chars.h.
inline constexpr int kGameWeaponWeights = 3;
inline constexpr int kGameChatFile = 21;
inline constexpr int kGameChatName = 22;
inline constexpr int kGameItemWeights = 40;

/// True for the game's number of a characteristic that is a text.
bool IsGameText(int number);

/// Where the game has a value from.
enum class CharacterOrigin {
  kOwn,       ///< The wanted level of the bot's file.
  kDefault,   ///< The same level of bots/default_c.c.
  kOwnOther,  ///< Another level of the bot's file.
  kDefaultOther,
};

/// What stands behind a key of a character file.
struct CharacterValue {
  enum class Kind { kWhole, kFraction, kText };
  Kind kind = Kind::kWhole;
  double number = 0;
  std::string text;
  int line = 0;   ///< 0 when it comes out of an included file.
  TextSpan span;  ///< In the bot's file; empty when it is not written there.
  bool is_own = true;
};

/// A block of a character file: values by the game's numbers.
struct CharacterBlock {
  int level = 0;
  int line = 0;   ///< Of its "skill"; 0 when that comes out of another file.
  TextSpan open;  ///< Its "{".
  std::map<int, CharacterValue> values;
};

/// The first block of a level, or the first of all without one. Nothing when
/// there is none or the game would throw it away; findings say why.
std::optional<CharacterBlock> ReadCharacterBlock(const GameFile& file,
                                                 std::optional<int> level,
                                                 const IncludeLookup& game,
                                                 Complaints& findings);

/// A block of a file, whatever it holds.
struct BlockAt {
  int level = 0;
  int line = 0;  ///< Of its "skill"; 0 when that comes out of another file.
};

/// The blocks in the order of the file, as far as the game could read on.
std::vector<BlockAt> CharacterBlocks(const GameFile& file,
                                     const IncludeLookup& game);

/// A level as the bot gets it: missing values come from the default character.
struct CharacterLevel {
  CharacterOrigin origin = CharacterOrigin::kOwn;
  CharacterBlock block;
};

/// Looks for a level where the game does: the bot's file (which may be
/// missing), the default character, any block of either.
std::optional<CharacterLevel> LoadCharacterLevel(const GameFile* file,
                                                 int level,
                                                 const IncludeLookup& game,
                                                 Complaints& findings);

/// The levels that the game reads for a skill from 1 to 5; values of the
/// skills between two levels are mixed, texts are those of the first.
std::vector<int> LevelsForSkill(double skill);

}  // namespace fragsmith

#endif  // FRAGSMITH_GAME_CHARACTER_READER_H_
