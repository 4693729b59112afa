#ifndef FRAGSMITH_GAME_CHAT_TYPE_FACTS_H_
#define FRAGSMITH_GAME_CHAT_TYPE_FACTS_H_

#include <array>
#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "model/bot.h"

namespace fragsmith {

/// The game has no variables from here on.
inline constexpr int kFirstUnknownVariable = 9;

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
  // In English; Localized() shows them.
  std::string_view rarity;  ///< "Seldom", "Never"; empty where neither holds.
  std::string_view when;    ///< A sentence, behind the rarity if any.
  /// The chat characteristic that gives the chance.
  std::optional<ParameterId> chance;
  double chance_factor;  ///< The chance is the characteristic x this.
  bool is_heard;         ///< False: no line of it is ever heard.
  std::array<ChatFill, kFilledVariables> variables;
};

const ChatTypeFacts& FactsOfChatType(ChatTypeId type);

/// The rarity and when, as one sentence. UTF-8.
std::string WhenText(const ChatTypeFacts& facts);

/// What the variable of that number holds in the situation, and how that is
/// called: "the killer's name". Numbers beyond those known hold nothing.
ChatFill FillOf(ChatTypeId type, int variable);
std::string FillText(ChatFill fill);

/// True where the bot draws lines of the type at all: the shares of insults
/// and of "Random misc" may leave it out.
bool IsDrawn(const Bot& bot, ChatTypeId type);

/// The types whose chance the chat characteristic is.
std::vector<ChatTypeId> TypesOfChance(ParameterId chance);

}  // namespace fragsmith

#endif  // FRAGSMITH_GAME_CHAT_TYPE_FACTS_H_
