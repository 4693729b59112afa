#ifndef FRAGSMITH_CHECKS_FINDING_H_
#define FRAGSMITH_CHECKS_FINDING_H_

#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "game/complaints.h"
#include "model/bot.h"
#include "model/bot_place.h"

namespace fragsmith {

/// What would put a finding right, as an edit of the bot.
struct Mend {
  std::string title;  ///< "Set the reaction time of level 4 to 1", UTF-8.
  std::function<void(Bot&)> apply;
  /// The game does then what it does already, or what was plainly meant, and
  /// nothing that the author wrote is lost: made without being asked one by
  /// one.
  bool is_safe = false;
};

/// Something that the game will do with the bot and that its author would
/// want to know. Nothing of it ever keeps a bot from being saved.
struct Finding {
  std::string_view id;  ///< Of the check, such as "reaction-time-clamped".
  Severity severity = Severity::kHint;
  BotPlace place;    ///< In the bot, or in a file of it.
  std::string text;  ///< One sentence or two, UTF-8, for players.
  std::vector<Mend> mends;
  /// Because of it the game does not add the bot, at some skill or at all.
  bool keeps_out = false;
  /// The key of a description that it is about, as of a Complaint.
  std::string key = {};
  /// The path below botfiles of a file that is not there.
  std::string missing = {};
};

}  // namespace fragsmith

#endif  // FRAGSMITH_CHECKS_FINDING_H_
