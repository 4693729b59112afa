#ifndef FRAGSMITH_EDITOR_MODELS_COMPARE_GROUPS_H_
#define FRAGSMITH_EDITOR_MODELS_COMPARE_GROUPS_H_

#include <QString>
#include <vector>

#include "editor/toolkit/page_table.h"
#include "session/bot_difference.h"

namespace fragsmith {

// What two bots differ in, sorted as the window is: a number for the identity,
// for each page, and behind these for each chat type, which belongs to the
// chat page.

inline constexpr int kNoGroup = -1;
inline constexpr int kIdentityGroup = 0;
inline constexpr int kFirstPageGroup = 1;
inline constexpr int kChatGroup = kFirstPageGroup + kChatPage;
inline constexpr int kFirstTypeGroup = kChatGroup + 1;
inline constexpr int kGroupCount =
    kFirstTypeGroup + static_cast<int>(kChatTypeCount);

/// As the window captions it.
QString GroupTitle(int group);

/// The fields of the identity or the parameters of a page, in the order of
/// CompareBots.
std::vector<ParameterId> ParametersOf(int group);

int GroupOf(const BotDifference& difference);

bool IsIdentityField(ParameterId parameter);

}  // namespace fragsmith

#endif  // FRAGSMITH_EDITOR_MODELS_COMPARE_GROUPS_H_
