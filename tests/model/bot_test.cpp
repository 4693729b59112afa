#include "model/bot.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <stdexcept>

#include "tests/support/ids.h"

namespace fragsmith {
namespace {

using ::testing::ElementsAre;

TEST(Bot, BeginsWithItsDefaults) {
  const Bot bot;
  const std::pair<int, std::string_view> texts[] = {
      {0, "Bot"},      {1, "male"},     {2, ""},         {3, "None"},
      {5, "Sarge"},    {6, "Default"},  {7, "0"},        {8, "0"},
      {9, ""},         {10, "0"},       {81, "bot_t.c"}, {82, "bot_w.c"},
      {83, "bot_i.c"}, {84, "bot_c.c"}, {85, "bot"},     {86, "bot.bot"},
      {31, ""},        {80, ""},        {102, ""},       {530, ""}};
  for (const auto& [index, text] : texts) EXPECT_EQ(bot.Text(Id(index)), text);
  for (const ChatTypeId type : kAllChatTypes) {
    EXPECT_THAT(bot.ChatLines(type), ElementsAre(""));
  }
}

TEST(Bot, KeepsToItsIndices) {
  Bot bot;
  ASSERT_TRUE(bot.SetParameter(Id(402), 0.25));
  ASSERT_TRUE(bot.SetParameter(Id(0), "Sarge J\xC4"));
  EXPECT_EQ(bot.Text(Id(402)) + bot.Text(Id(102)), "0.25");
  EXPECT_EQ(bot.Text(Id(84)), "sarge j\xE4_c.c");
  EXPECT_EQ(bot.Text(Id(86)), "sarge j\xE4.bot");
  // Both throw before they return anything.
  for (const int index : {-1, 4, 11, 30, 87, 100, 202, 302, 431, 602}) {
    EXPECT_THROW((void)bot.Parameter(Id(index)), std::out_of_range) << index;
  }
  for (const int index : {81, 84, 86, 87, 202}) {
    EXPECT_THROW((void)bot.SetParameter(Id(index), "x"), std::out_of_range);
  }
}

TEST(Bot, ConvertsVersionAndArenaLord) {
  // clang-format off
  const struct {
    int index;
    Value value;
    std::string_view text;  ///< Empty: refused.
  } cases[] = {{7, " 01.50 ", "1.5"}, {7, "1a", ""}, {8, "", ""}, {7, {}, "0"},
               {10, "1", "1"}, {10, 1.5, "2"}, {10, 0.5, "0"}, {10, "yes", ""},
               {10, -32768.0, "-32768"}, {10, 32768.0, ""}};
  // clang-format on
  for (const auto& row : cases) {
    Bot bot;
    EXPECT_EQ(bot.SetParameter(Id(row.index), row.value).has_value(),
              !row.text.empty());
    EXPECT_EQ(bot.Text(Id(row.index)), row.text.empty() ? "0" : row.text);
  }
  // Texts of the game are 8-bit, errors are UTF-8.
  EXPECT_EQ(Bot().SetParameter(Id(10), "\xE4").error().what,
            "\"ä\" is not a number.");
}

TEST(Bot, GrowsAndClosesItsChatLists) {
  Bot bot;
  bot.SetChatLine(TypeAt(27), ChatLineIndex(2), "c");
  bot.SetChatLine(TypeAt(27), ChatLineIndex(0), "a");
  EXPECT_THAT(bot.ChatLines(TypeAt(27)), ElementsAre("a", "", "c"));
  bot.RemoveChatLine(TypeAt(27), ChatLineIndex(0));
  EXPECT_THAT(bot.ChatLines(TypeAt(27)), ElementsAre("", "c"));
  bot.RemoveChatLine(TypeAt(27), ChatLineIndex(1));
  bot.RemoveChatLine(TypeAt(27), ChatLineIndex(0));
  EXPECT_TRUE(bot.ChatLines(TypeAt(27)).empty());
  EXPECT_THROW(bot.RemoveChatLine(TypeAt(27), ChatLineIndex(0)),
               std::out_of_range);
  EXPECT_NE(bot, Bot());
  bot.ClearChats();
  EXPECT_EQ(bot, Bot());
}

}  // namespace
}  // namespace fragsmith
