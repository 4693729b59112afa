#include "chat/chat_commands.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/support/ids.h"

namespace fragsmith {
namespace {

using ::testing::ElementsAre;
using ::testing::SizeIs;
using ::testing::StartsWith;

TEST(ChatCommands, UseTheOneEmptyLineAgain) {
  Bot bot;
  const auto last = [] { return 0.999; };
  EXPECT_EQ(AddRandomChatLine(bot, TypeAt(20), last), ChatLineIndex(0));
  EXPECT_EQ(AddRandomChatLine(bot, TypeAt(20), last), ChatLineIndex(1));
  EXPECT_THAT(bot.ChatLines(TypeAt(20)),
              ElementsAre("{{DEATHRAIL2}}", "{{DEATHRAIL2}}"));
  bot.SetChatLine(TypeAt(20), ChatLineIndex(1), "");
  EXPECT_EQ(NextFreeChatLine(bot, TypeAt(20)), ChatLineIndex(2));
  bot.RemoveChatLine(TypeAt(20), ChatLineIndex(1));
  bot.RemoveChatLine(TypeAt(20), ChatLineIndex(0));
  EXPECT_EQ(NextFreeChatLine(bot, TypeAt(20)), ChatLineIndex(0));
}

TEST(ChatCommands, AddOneExtraLinePerType) {
  Bot bot;
  Bot same;
  AddExtraChats(bot, SeededRandom(3));
  AddExtraChats(same, SeededRandom(3));
  EXPECT_EQ(same, bot);
  for (const ChatTypeId type : kAllChatTypes) {
    EXPECT_THAT(bot.ChatLines(type), ElementsAre(StartsWith("{{")));
  }
  EXPECT_EQ(bot.ChatLine(TypeAt(10), ChatLineIndex(0)), "{{DEATHFALLING0}}");
  EXPECT_EQ(bot.ChatLine(TypeAt(6), ChatLineIndex(0)), "{{HITTALKING0}}");
  AddExtraChats(bot, SeededRandom(4));
  EXPECT_THAT(bot.ChatLines(TypeAt(27)), SizeIs(2));
}

TEST(ChatCommands, PutMembersWhereTheSelectionIs) {
  Bot bot;
  EXPECT_EQ(AddGroupMember(bot, TypeAt(5), ChatLineIndex(0), 25, 3),
            ChatLineIndex(0));
  EXPECT_EQ(AddGroupMember(bot, TypeAt(5), ChatLineIndex(0), 25, 4),
            ChatLineIndex(1));
  EXPECT_EQ(AddEmptyChatLine(bot, TypeAt(5)), ChatLineIndex(2));
  EXPECT_EQ(AddGroupMember(bot, TypeAt(5), std::nullopt, 25, 5),
            ChatLineIndex(3));
  EXPECT_EQ(AddGroupMember(bot, TypeAt(5), ChatLineIndex(2), 28, 2),
            ChatLineIndex(2));
  EXPECT_THAT(
      bot.ChatLines(TypeAt(5)),
      ElementsAre("{{TAUNT3}}", "{{TAUNT4}}", "{{GUYTALK2}}", "{{TAUNT5}}"));
}

TEST(ChatCommands, MoveALinePastOthers) {
  Bot bot;
  bot.SetChatLines(TypeAt(5), {"a", "b", "c", "d"});
  MoveChatLine(bot, TypeAt(5), ChatLineIndex(0), ChatLineIndex(2));
  EXPECT_THAT(bot.ChatLines(TypeAt(5)), ElementsAre("b", "c", "a", "d"));
  MoveChatLine(bot, TypeAt(5), ChatLineIndex(3), ChatLineIndex(0));
  EXPECT_THAT(bot.ChatLines(TypeAt(5)), ElementsAre("d", "b", "c", "a"));
  MoveChatLine(bot, TypeAt(5), ChatLineIndex(1), ChatLineIndex(1));
  EXPECT_THAT(bot.ChatLines(TypeAt(5)), ElementsAre("d", "b", "c", "a"));
}

TEST(ChatCommands, InsertVariablesAtTheCursor) {
  EXPECT_EQ(InsertVariable({"Hello", 2}, "{GOOD}"),
            (LineText{"He{GOOD}llo", 2}));
  // At the start the old text goes.
  EXPECT_EQ(InsertVariable({"Hello", 0}, "{GOOD}"), (LineText{"{GOOD}", 0}));
  // A mark stays with its word; one that marks nothing is a letter.
  EXPECT_EQ(InsertVariable({"~hi", 1}, "{A}"), (LineText{"{A}~hi", 0}));
  EXPECT_EQ(InsertVariable({"oh ~hi", 4}, "{A}"), (LineText{"oh {A}~hi", 3}));
  EXPECT_EQ(InsertVariable({"oh ~ hi", 4}, "{A}"), (LineText{"oh ~{A} hi", 4}));
  EXPECT_EQ(InsertVariable({"a~b", 2}, "{A}"), (LineText{"a~{A}b", 2}));
}

}  // namespace
}  // namespace fragsmith
