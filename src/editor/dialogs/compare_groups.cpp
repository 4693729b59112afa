#include "editor/dialogs/compare_groups.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <map>

#include "chat/chat_catalogue.h"
#include "model/bot.h"

namespace fragsmith {
namespace {

const PageRow& PageOf(int group) {
  return kPages.at(static_cast<std::size_t>(group - kFirstPageGroup));
}

std::map<int, int> GroupsOfParameters() {
  std::map<int, int> groups;
  for (int group = kIdentityGroup; group < kChatGroup; ++group) {
    for (const int parameter : ParametersOf(group)) groups[parameter] = group;
  }
  return groups;
}

}  // namespace

QString GroupTitle(int group) {
  if (group == kIdentityGroup) return QStringLiteral("Identity");
  return TableText(group < kFirstTypeGroup
                       ? PageOf(group).tab_caption
                       : ChatTypeAt(group - kFirstTypeGroup).Caption);
}

std::vector<int> ParametersOf(int group) {
  if (group == kIdentityGroup) {
    return {kIdentityFields.begin(), kIdentityFields.end()};
  }
  std::vector<int> indices;
  for (const FrameRow& frame : PageOf(group).frames) {
    for (const ControlRow& control : frame.controls) {
      if (!control.IsEmptyPlace()) indices.push_back(control.index);
    }
  }
  std::sort(indices.begin(), indices.end());
  std::vector<int> parameters;
  for (const int index : indices) {
    if (!kPerLevelRange.Contains(index)) {
      parameters.push_back(index);
      continue;
    }
    for (const int level : kSkillLevels) {
      parameters.push_back(LevelIndex(level, index));
    }
  }
  return parameters;
}

int GroupOf(const BotDifference& difference) {
  static const std::map<int, int> kGroups = GroupsOfParameters();
  return difference.chat_type == BotDifference::kNone
             ? kGroups.at(difference.parameter)
             : kFirstTypeGroup + difference.chat_type;
}

bool IsIdentityField(int parameter) {
  return std::count(kIdentityFields.begin(), kIdentityFields.end(), parameter) >
         0;
}

}  // namespace fragsmith
