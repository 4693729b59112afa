#ifndef FRAGSMITH_MODEL_BOT_H_
#define FRAGSMITH_MODEL_BOT_H_

#include <array>
#include <cstdint>
#include <map>
#include <string>
#include <string_view>
#include <vector>

#include "model/value.h"
#include "support/result.h"

namespace fragsmith {

/// The skill levels that a bot describes; the game mixes the others.
inline constexpr std::array<int, 3> kSkillLevels = {1, 4, 5};

/// Number of situations in which a bot may speak.
inline constexpr int kChatTypeCount = 28;

/// Indices of the bot's fields beside those of the characteristic catalogue.
inline constexpr int kFunNameField = 2;
inline constexpr int kRailColorField = 3;
inline constexpr int kModelField = 5;
inline constexpr int kSkinField = 6;
inline constexpr int kVersionMajorField = 7;
inline constexpr int kVersionMinorField = 8;
inline constexpr int kCommentField = 9;
inline constexpr int kArenaLordField = 10;
inline constexpr int kCharacteristicFileField = 84;
inline constexpr int kDescriptionFileField = 86;

/// The rail colour of a bot that has none of its own.
inline constexpr std::string_view kNoRailColor = "None";

/// Index of a per-level parameter in the bot's one accessor.
constexpr int LevelIndex(int level, int index) { return level * 100 + index; }

/// The parameters of one skill level.
class Skill {
 public:
  explicit Skill(std::int16_t level) : level_(level) {}

  std::int16_t level() const { return level_; }

  /// Indexed by the catalogue; only 2 to 30 are in use.
  std::array<Value, 31> SkillPara;

 private:
  std::int16_t level_;
};

/// The bot being edited: its identity, its single parameters, its chat lines
/// and one Skill for each level.
class Bot {
 public:
  /// A bot named "Bot", male, in the model Sarge, with all parameters empty
  /// and one empty line for each chat type.
  Bot();

  /// The one accessor. An index of 101 or more is level x 100 + catalogue
  /// index; below that it is a field: 0 name, 1 gender, 2 fun name, 3 rail
  /// colour, 5 model, 6 skin, 7 and 8 version, 9 comment, 10 arena lord, 31
  /// to 80 parameters, 81 to 86 file names and chat name (read-only).
  /// Throws std::out_of_range for an index that is none: a programming
  /// error, like a bad index of a container.
  const Value& Parameter(int index) const;

  /// Setting 0 derives the chat name and the file names anew; 7 and 8 take a
  /// number, 10 a whole number of 16 bits, and refuse anything else. An empty
  /// text leaves a parameter empty.
  Result<void> SetParameter(int index, Value value);

  /// A parameter as text.
  std::string Text(int index) const { return ToText(Parameter(index)); }

  std::string Name() const { return Text(0); }
  std::string FunName() const { return Text(kFunNameField); }

  /// The chat lines of a type (0 to 27) in editor form. The line number of a
  /// new text may lie beyond the end: the list grows to hold it.
  const std::vector<std::string>& ChatLines(int type) const;
  const std::string& ChatLine(int type, int line) const;
  void SetChatLine(int type, int line, std::string text);
  void RemoveChatLine(int type, int line);

  /// The highest line number of a type; -1 when it has no line.
  int HighestChatLine(int type) const;

  /// Leaves one empty line for each type, as a new bot has.
  void ClearChats();

  bool operator==(const Bot& other) const;

 private:
  const Skill& SkillOf(int level) const;
  Skill& SkillOf(int level);
  void SetName(std::string name);

  /// By catalogue index; those of the per-level parameters stay unused.
  std::array<Value, 87> fields_;
  /// Keyed by the level and "S": 1S, 4S, 5S.
  std::map<std::string, Skill> skills_;
  std::array<std::vector<std::string>, kChatTypeCount> chats_;
};

}  // namespace fragsmith

#endif  // FRAGSMITH_MODEL_BOT_H_
