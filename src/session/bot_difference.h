#ifndef FRAGSMITH_SESSION_BOT_DIFFERENCE_H_
#define FRAGSMITH_SESSION_BOT_DIFFERENCE_H_

#include <array>
#include <optional>
#include <string>
#include <vector>

#include "model/bot.h"
#include "model/characteristic_catalogue.h"

namespace fragsmith {

/// The fields of a bot that are no parameters, in the order of lists.
inline constexpr std::array kIdentityFields = {
    kNameField,    kGenderField,    kFunNameField,      kModelField,
    kSkinField,    kRailColorField, kVersionMajorField, kVersionMinorField,
    kCommentField, kArenaLordField};

/// Something in which two bots differ: a field or parameter, or a chat line.
struct BotDifference {
  std::optional<ParameterId> parameter;
  std::optional<ChatTypeId> chat_type;
  /// The line in either bot; where it is missing, the line before which it
  /// would stand.
  ChatLineIndex left_line;
  ChatLineIndex right_line;
  bool is_in_left = true;
  bool is_in_right = true;

  std::string title;  ///< What it is, UTF-8: "Reaction time" at level 4.
  std::string left;   ///< The values as shown, UTF-8; empty where missing.
  std::string right;
};

/// Identity first, then parameters by their pages' order, then chats. Values
/// that say the same are equal however they are held; empty chat lines, which
/// no file holds, do not count.
std::vector<BotDifference> CompareBots(const Bot& left, const Bot& right);

/// Makes the right bot equal to the left one in this. The other differences
/// in the same chat type hold no longer then: compare anew, or go through
/// them from the last to the first.
void CopyToRight(const BotDifference& difference, const Bot& left, Bot& right);

/// The difference as seen from the other side.
BotDifference Reversed(BotDifference difference);

/// Gives the second bot all lines of the type.
void CopyChatType(ChatTypeId type, const Bot& from, Bot& to);

}  // namespace fragsmith

#endif  // FRAGSMITH_SESSION_BOT_DIFFERENCE_H_
