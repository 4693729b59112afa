#include "chat/chat_catalogue.h"

#include <numeric>

namespace fragsmith {

int FittingGroup(ChatTypeId type) {
  constexpr ChatTypeId kKillByRail{20};
  constexpr int kKillsWithRailgun = 20;
  return type == kKillByRail ? kKillsWithRailgun
                             : ChatTypeAt(type).random_group;
}

std::string GroupMember(int group, std::string_view number) {
  std::string member(ChatGroupAt(group).Marker);
  member += number;
  member += "}}";
  return member;
}

std::string RandomGroupMember(int group, const RandomSource& random) {
  const auto number =
      static_cast<int>((ChatGroupAt(group).MaxNumber + 1) * random());
  return GroupMember(group, std::to_string(number));
}

std::vector<int> MemberNumbers(int group) {
  std::vector<int> numbers(
      static_cast<std::size_t>(ChatGroupAt(group).MaxNumber) + 1);
  std::iota(numbers.begin(), numbers.end(), 0);
  if (group == kGuytalkGroup) std::erase(numbers, 1);
  return numbers;
}

}  // namespace fragsmith
