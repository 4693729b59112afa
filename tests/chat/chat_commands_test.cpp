#include "chat/chat_commands.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace fragsmith {
namespace {

using ::testing::ElementsAre;
using ::testing::SizeIs;
using ::testing::StartsWith;

TEST(ChatCommands, UseTheOneEmptyLineAgain) {
  Bot bot;
  const auto last = [] { return 0.999; };
  EXPECT_EQ(AddRandomChatLine(bot, 20, last), 0);
  EXPECT_EQ(AddRandomChatLine(bot, 20, last), 1);
  EXPECT_THAT(bot.ChatLines(20),
              ElementsAre("{{DEATHRAIL2}}", "{{DEATHRAIL2}}"));
  bot.SetChatLine(20, 1, "");
  EXPECT_EQ(NextFreeChatLine(bot, 20), 2);
  bot.RemoveChatLine(20, 1);
  bot.RemoveChatLine(20, 0);
  EXPECT_EQ(NextFreeChatLine(bot, 20), 0);
}

TEST(ChatCommands, AddOneExtraLinePerType) {
  Bot bot;
  Bot same;
  AddExtraChats(bot, SeededRandom(3));
  AddExtraChats(same, SeededRandom(3));
  EXPECT_EQ(same, bot);
  for (int type = 0; type < kChatTypeCount; ++type) {
    EXPECT_THAT(bot.ChatLines(type), ElementsAre(StartsWith("{{")));
  }
  EXPECT_EQ(bot.ChatLine(10, 0), "{{DEATHFALLING0}}");
  EXPECT_EQ(bot.ChatLine(6, 0), "{{HITTALKING0}}");
  AddExtraChats(bot, SeededRandom(4));
  EXPECT_THAT(bot.ChatLines(27), SizeIs(2));
}

TEST(ChatCommands, PutMembersWhereTheSelectionIs) {
  Bot bot;
  EXPECT_EQ(AddGroupMember(bot, 5, 0, 25, 3), 0);
  EXPECT_EQ(AddGroupMember(bot, 5, 0, 25, 4), 1);
  EXPECT_EQ(AddEmptyChatLine(bot, 5), 2);
  EXPECT_EQ(AddGroupMember(bot, 5, -1, 25, 5), 3);
  EXPECT_EQ(AddGroupMember(bot, 5, 2, 28, 2), 2);
  EXPECT_THAT(bot.ChatLines(5), ElementsAre("{{TAUNT3}}", "{{TAUNT4}}",
                                            "{{GUYTALK2}}", "{{TAUNT5}}"));
}

TEST(ChatCommands, InsertVariablesAtTheCursor) {
  EXPECT_EQ(InsertVariable("Hello", 2, "{GOOD}"), "He{GOOD}llo");
  // At the start the old text goes.
  EXPECT_EQ(InsertVariable("Hello", 0, "{GOOD}"), "{GOOD}");
}

}  // namespace
}  // namespace fragsmith
