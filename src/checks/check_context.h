#ifndef FRAGSMITH_CHECKS_CHECK_CONTEXT_H_
#define FRAGSMITH_CHECKS_CHECK_CONTEXT_H_

#include <cstddef>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "checks/chat_message.h"
#include "checks/finding.h"
#include "checks/game_data.h"
#include "model/bot.h"

namespace fragsmith {

/// A chat line that is not empty, with what the game makes of it.
struct CheckedLine {
  int type = 0;
  int line = 0;
  const std::string* text = nullptr;  ///< In the bot.
  ChatMessage message;
};

/// What the checks of a bot look at.
struct CheckContext {
  const Bot& bot;
  const GameData* game = nullptr;  ///< Null when no game is known.
  std::vector<CheckedLine> lines;  ///< Of all types in their order.
};

struct Check;

/// Takes the findings of one check after the other and labels them.
class FindingList {
 public:
  /// A bot with thousands of bad lines is told of so many by each check.
  static constexpr std::size_t kMostOfOneCheck = 200;

  /// The findings that follow are this check's.
  void Begin(const Check& check);

  void Add(FindingPlace place, std::string text, std::vector<Mend> mends = {});
  void Add(int parameter, std::string text, std::vector<Mend> mends = {}) {
    Add(FindingPlace{.parameter = parameter, .file = {}}, std::move(text),
        std::move(mends));
  }

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
  Severity severity;
  CheckFunction function;
  std::string_view title;  ///< A few words for lists of checks.
  /// The reader of the files on disk tells the same with file and line.
  bool is_told_by_files = false;
};

/// A mend that sets one parameter.
Mend SetTo(int parameter, Value value, std::string title);

/// A mend that sets one chat line.
Mend SetLine(const CheckedLine& line, std::string text, std::string title);

inline FindingPlace PlaceOf(const CheckedLine& line) {
  return {.chat_type = line.type, .chat_line = line.line, .file = {}};
}

inline FindingPlace PlaceOfType(int type) {
  return {.chat_type = type, .file = {}};
}

}  // namespace fragsmith

#endif  // FRAGSMITH_CHECKS_CHECK_CONTEXT_H_
