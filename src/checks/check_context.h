#ifndef FRAGSMITH_CHECKS_CHECK_CONTEXT_H_
#define FRAGSMITH_CHECKS_CHECK_CONTEXT_H_

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "checks/finding.h"
#include "game/chat_message.h"
#include "game/game_data.h"
#include "model/bot.h"

namespace fragsmith {

/// A chat line that is not empty, with what the game makes of it.
struct CheckedLine {
  ChatTypeId type{0};
  ChatLineIndex line;
  const std::string* text = nullptr;  ///< In the bot.
  ChatMessage message;
};

/// What the checks of a bot look at.
struct CheckContext {
  const Bot& bot;
  const GameData* game = nullptr;  ///< Null when no game is known.
  std::vector<CheckedLine> lines;  ///< Of all types in their order.
};

/// The lists of the game, or of our own where no game is known.
const WordLists& WordsOf(const CheckContext& context);

struct Check;

/// Takes the findings of one check after the other and labels them.
class FindingList {
 public:
  /// A bot with thousands of bad lines is told of so many by each check.
  static constexpr std::size_t kMaxOfOneCheck = 200;

  /// The findings that follow are this check's.
  void Begin(const Check& check);

  /// The severity is the check's, where it is not another one in this case.
  void Add(BotPlace place, std::string text, std::vector<Mend> mends = {},
           std::optional<Severity> severity = {});

  std::vector<Finding> Take() { return std::move(findings_); }

 private:
  const Check* check_ = nullptr;
  std::size_t of_this_check_ = 0;
  std::vector<Finding> findings_;
};

using CheckFunction = void (*)(const CheckContext& context,
                               FindingList& findings);

/// A question that is asked of every bot.
struct Check {
  std::string_view id;
  Severity severity;  ///< The gravest of its findings.
  CheckFunction function;
  /// The reader of the files on disk tells the same with file and line.
  bool is_told_by_files = false;
  /// Of what the chat file gives: nothing of it is known where that is broken.
  bool is_of_chats = false;
};

/// The same mend as one that is safe.
inline Mend Safe(Mend mend) {
  mend.is_safe = true;
  return mend;
}

/// The text without any of these letters, for mends.
std::string Without(std::string text, std::string_view letters);

/// A mend that sets one parameter, to a number where it has no title.
Mend SetTo(ParameterId parameter, Value value, std::string title);
Mend SetTo(ParameterId parameter, double value);

/// A mend that sets one chat line.
Mend SetLine(const CheckedLine& line, std::string text, std::string title);

inline ChatPlace PlaceOf(const CheckedLine& line) {
  return {.type = line.type, .line = line.line};
}

inline ChatPlace PlaceOfType(ChatTypeId type) {
  return {.type = type, .line = std::nullopt};
}

}  // namespace fragsmith

#endif  // FRAGSMITH_CHECKS_CHECK_CONTEXT_H_
