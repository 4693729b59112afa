#include "editor/models/compare_groups.h"

#include <QCoreApplication>
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

std::map<ParameterId, int> GroupsOfParameters() {
  std::map<ParameterId, int> groups;
  for (int group = kIdentityGroup; group < kChatGroup; ++group) {
    for (const ParameterId parameter : ParametersOf(group)) {
      groups.emplace(parameter, group);
    }
  }
  return groups;
}

}  // namespace

QString GroupTitle(int group) {
  if (group == kIdentityGroup) {
    return QCoreApplication::translate("CompareGroups", "Identity");
  }
  return QString::fromUtf8(
      group < kFirstTypeGroup
          ? PageOf(group).tab_caption
          : ChatTypeAt(ChatTypeOfIndex(group - kFirstTypeGroup).value())
                .Caption);
}

std::vector<ParameterId> ParametersOf(int group) {
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
  return ParametersOf(indices);
}

int GroupOf(const BotDifference& difference) {
  static const std::map<ParameterId, int> kGroups = GroupsOfParameters();
  return difference.parameter
             ? kGroups.at(*difference.parameter)
             : kFirstTypeGroup +
                   static_cast<int>(IndexOf(*difference.chat_type));
}

bool IsIdentityField(ParameterId parameter) {
  return std::count(kIdentityFields.begin(), kIdentityFields.end(), parameter) >
         0;
}

}  // namespace fragsmith
