#ifndef FRAGSMITH_CHECKS_FINDING_H_
#define FRAGSMITH_CHECKS_FINDING_H_

#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "model/bot.h"

namespace fragsmith {

/// How much the game minds.
enum class Severity {
  kError,    ///< The bot is not added, or is broken at some skill.
  kWarning,  ///< The game ignores or changes something.
  kHint,     ///< Works, but perhaps not as the author thinks.
};

/// What a finding is about. In a bot: a field or parameter by its index (a
/// per-level one by level and index, as Bot::Parameter takes it), or a chat
/// line. On disk: a file and a line in it.
struct FindingPlace {
  static constexpr int kNone = -1;

  int parameter = kNone;
  int chat_type = kNone;
  int chat_line = kNone;  ///< kNone for the chat type as a whole.
  std::string file;       ///< UTF-8, as shown; empty for a bot in memory.
  int line = 0;           ///< From 1; 0 for the file as a whole.

  bool operator==(const FindingPlace&) const = default;
};

/// What would put a finding right, as an edit of the bot.
struct Mend {
  std::string title;  ///< "Set the reaction time of level 4 to 1", UTF-8.
  std::function<void(Bot&)> apply;
};

/// Something that the game will do with the bot and that its author would
/// want to know. Nothing of it ever keeps a bot from being saved.
struct Finding {
  std::string_view id;  ///< Of the check, such as "reaction-time-clamped".
  Severity severity = Severity::kHint;
  FindingPlace place;
  std::string text;  ///< One sentence or two, UTF-8, for players.
  std::vector<Mend> mends;
};

}  // namespace fragsmith

#endif  // FRAGSMITH_CHECKS_FINDING_H_
