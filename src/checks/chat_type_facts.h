#ifndef FRAGSMITH_CHECKS_CHAT_TYPE_FACTS_H_
#define FRAGSMITH_CHECKS_CHAT_TYPE_FACTS_H_

#include <array>
#include <cstddef>
#include <span>
#include <string_view>

#include "model/bot.h"

namespace fragsmith {

/// What the game puts in the place of a variable.
enum class ChatFill {
  kNothing,  ///< An empty text.
  kInvalid,  ///< The text "[invalid var]" is spoken.
  kOwnName,
  kOpponent,
  kFirst,
  kLast,
  kMap,
  kAttacker,
  kEnemy,
  kKiller,
  kVictim,
  kLastVictim,
  kWeapon,
  kRandomWeapon,
};

/// The variables that a situation may fill; the game knows no more.
inline constexpr std::size_t kFilledVariables = 6;

/// When the game asks the bot for a line of a type, and with what.
struct ChatTypeFacts {
  std::string_view when;  ///< A sentence, UTF-8.
  /// The characteristic that gives the chance, in the catalogue; 0 for none.
  int chance_index;
  double chance_factor;  ///< The chance is the characteristic x this.
  bool is_heard;         ///< False: no line of it is ever heard.
  std::array<ChatFill, kFilledVariables> variables;
};

/// By the type's number, as in kChatTypes.
const ChatTypeFacts& FactsOfChatType(int type);

/// What the variable of that number holds in the situation, and how that is
/// called: "the killer's name". Numbers beyond those known hold nothing.
ChatFill FillOf(int type, int variable);
std::string_view FillText(ChatFill fill);

/// True where the bot draws lines of the type at all: the shares of insults
/// and of "Random misc" may leave it out.
bool IsDrawn(const Bot& bot, int type);

/// The types whose chance the chat characteristic is.
std::span<const int> TypesOfChance(int index);

/// What must hold for any line to be spoken. UTF-8.
extern const std::string_view kWhenBotsSpeak;

}  // namespace fragsmith

#endif  // FRAGSMITH_CHECKS_CHAT_TYPE_FACTS_H_
