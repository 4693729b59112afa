#ifndef FRAGSMITH_MODEL_BOT_H_
#define FRAGSMITH_MODEL_BOT_H_

#include <array>
#include <string>
#include <string_view>
#include <vector>

#include "model/chat_line_index.h"
#include "model/chat_type_id.h"
#include "model/parameter_id.h"
#include "model/value.h"
#include "support/result.h"

namespace fragsmith {

/// The rail colour of a bot that has none of its own.
inline constexpr std::string_view kNoRailColor = "None";

/// The parameters of one skill level.
struct Skill {
  /// Indexed by the catalogue; only 2 to 30 are in use.
  std::array<Value, 31> SkillPara;

  bool operator==(const Skill&) const = default;
};

/// The bot being edited: its identity, its single parameters, its chat lines
/// and one Skill for each level.
class Bot {
 public:
  /// A bot named "Bot", male, in the model Sarge, with all parameters empty
  /// and one empty line for each chat type.
  Bot();

  /// The one accessor, of the fields of parameter_id.h, the single parameters
  /// 31 to 80 and the parameters of each level. Throws std::out_of_range for
  /// an id that is none: a programming error, like a bad index of a container.
  const Value& Parameter(ParameterId id) const;

  /// Setting the name derives the chat name and the file names anew; a version
  /// takes a number, the arena lord a whole number of 16 bits, and both refuse
  /// anything else. An empty text leaves a parameter empty. The derived names
  /// are no parameters that can be set.
  Result<void> SetParameter(ParameterId id, Value value);

  /// The same where nothing can be refused: a value of another bot, or of a
  /// parameter that takes all. A refusal throws std::invalid_argument.
  void Put(ParameterId id, Value value);

  /// A parameter as text.
  std::string Text(ParameterId id) const { return ToText(Parameter(id)); }

  std::string Name() const { return Text(kNameField); }
  std::string FunName() const { return Text(kFunNameField); }

  /// The chat lines of a type in editor form. A new text may lie beyond the
  /// end: the list grows to hold it.
  const std::vector<std::string>& ChatLines(ChatTypeId type) const;
  void SetChatLines(ChatTypeId type, std::vector<std::string> lines);
  const std::string& ChatLine(ChatTypeId type, ChatLineIndex line) const;
  void SetChatLine(ChatTypeId type, ChatLineIndex line, std::string text);
  /// The lines from there on move down by one.
  void InsertChatLine(ChatTypeId type, ChatLineIndex line, std::string text);
  void RemoveChatLine(ChatTypeId type, ChatLineIndex line);

  /// Where a new line of a type goes: behind its last one.
  ChatLineIndex EndOfChatLines(ChatTypeId type) const;

  /// Leaves one empty line for each type, as a new bot has.
  void ClearChats();

  bool operator==(const Bot& other) const = default;

 private:
  void SetName(std::string name);

  /// By catalogue index; those of the per-level parameters stay unused.
  std::array<Value, 87> fields_;
  std::array<Skill, kLevels.size()> skills_;
  std::array<std::vector<std::string>, kChatTypeCount> chats_;
};

}  // namespace fragsmith

#endif  // FRAGSMITH_MODEL_BOT_H_
