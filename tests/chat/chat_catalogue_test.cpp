#include "chat/chat_catalogue.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <set>

namespace fragsmith {
namespace {

using ::testing::ElementsAre;

template <typename Table, typename Column>
std::size_t DistinctIn(const Table& table, Column column) {
  std::set<std::string_view> texts;
  for (const auto& row : table) texts.insert(row.*column);
  return texts.size();
}

TEST(ChatCatalogue, IsOfOnePiece) {
  EXPECT_EQ(DistinctIn(kChatTypes, &ChatType::Key), 28U);
  EXPECT_EQ(DistinctIn(kChatGroups, &ChatGroup::Name), 29U);
  EXPECT_EQ(DistinctIn(kChatGroups, &ChatGroup::Marker), 29U);
  EXPECT_EQ(DistinctIn(kWordLists, &WordList::Key), 39U);
  EXPECT_EQ(DistinctIn(kWordLists, &WordList::Variable), 39U);
  EXPECT_EQ(DistinctIn(kChatPointers, &ChatPointer::Variable), 10U);
  for (const ChatGroup& group : kChatGroups) {
    EXPECT_TRUE(group.Marker.starts_with("{{")) << group.Name;
    EXPECT_TRUE(group.Unnumbered || group.MaxNumber > 0) << group.Name;
  }
  // Within one chat type no two pointers may share a number.
  for (const ChatType& type : kChatTypes) {
    std::set<std::string_view> items;
    for (const int pointer : type.Pointers()) {
      items.insert(ChatPointerAt(pointer).Item());
    }
    EXPECT_EQ(items.size(), type.Pointers().size()) << type.Key;
  }
}

TEST(ChatCatalogue, NeverDrawsFromSomeGroups) {
  std::set<std::string_view> never;
  for (const ChatGroup& group : kChatGroups) never.insert(group.Name);
  for (const ChatType& type : kChatTypes) {
    never.erase(ChatGroupAt(type.random_group).Name);
  }
  EXPECT_THAT(never, ElementsAre("DEATH_FEM_INSULT", "GUYTALK", "KILL_RAIL",
                                 "TAUNT_FEM"));
}

TEST(ChatCatalogue, DrawsEveryMemberAndNoOther) {
  for (int group = 0; group < 29; ++group) {
    const int last = ChatGroupAt(group).MaxNumber;
    EXPECT_EQ(RandomGroupMember(group, [] { return 0.0; }),
              GroupMember(group, "0"));
    EXPECT_EQ(RandomGroupMember(group, [] { return 0.9999999; }),
              GroupMember(group, std::to_string(last)));
  }
  EXPECT_EQ(RandomGroupMember(28, [] { return 0.5; }), "{{GUYTALK1}}");
  EXPECT_THAT(MemberNumbers(28), ElementsAre(0, 2));
  EXPECT_THAT(MemberNumbers(9), ElementsAre(0));
  EXPECT_EQ(MemberNumbers(23).size(), 40U);
}

}  // namespace
}  // namespace fragsmith
