#include "session/bot_difference.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "session/presets.h"
#include "tests/support/ids.h"

namespace fragsmith {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

std::vector<std::string> Shown(const Bot& left, const Bot& right) {
  std::vector<std::string> lines;
  for (const BotDifference& row : CompareBots(left, right)) {
    lines.push_back(row.title + ": " +
                    (row.is_in_left ? row.left : "(nothing)") + " -> " +
                    (row.is_in_right ? row.right : "(nothing)"));
  }
  return lines;
}

Bot WithLines(const std::vector<std::string>& lines) {
  Bot bot;
  for (std::size_t line = 0; line < lines.size(); ++line) {
    bot.SetChatLine(TypeAt(3), ChatLineIndex(line), lines[line]);
  }
  return bot;
}

TEST(BotDifference, ShowsValuesAndTexts) {
  Bot left;
  Bot right;
  ASSERT_TRUE(right.SetParameter(Id(0), "R\xF6kie"));
  ASSERT_TRUE(right.SetParameter(Id(107), 0.5F));
  ASSERT_TRUE(right.SetParameter(Id(60), "much"));
  EXPECT_THAT(Shown(left, right),
              ElementsAre("\"Name\": \"Bot\" -> \"R\xC3\xB6kie\"",
                          "\"Reaction time\" at level 1: 0 -> 0.5",
                          "\"Railgun pickup without it\": 0 -> \"much\""));
  // What says the same is equal, and so are empty chat lines to none.
  ASSERT_TRUE(left.SetParameter(Id(107), "0.50"));
  ASSERT_TRUE(left.SetParameter(Id(60), "much"));
  ASSERT_TRUE(left.SetParameter(Id(0), "R\xF6kie"));
  right.RemoveChatLine(TypeAt(3), ChatLineIndex(0));
  EXPECT_THAT(Shown(left, right), IsEmpty());
  // An empty field is no number.
  ASSERT_TRUE(right.SetParameter(kCommentField, "0"));
  EXPECT_THAT(Shown(left, right), ElementsAre("\"Comment\": \"\" -> \"0\""));
  ASSERT_TRUE(left.SetParameter(kCommentField, "00"));
  EXPECT_THAT(Shown(left, right), ElementsAre("\"Comment\": \"00\" -> \"0\""));
}

TEST(BotDifference, SetsEqualChatLinesSideBySide) {
  const Bot left = WithLines({"a", "b", "c", "d"});
  const Bot right = WithLines({"", "b", "x", "d", "e"});
  EXPECT_THAT(Shown(left, right),
              ElementsAre("\"Level ends\", line 1: a -> (nothing)",
                          "\"Level ends\", line 3: c -> x",
                          "\"Level ends\", line 5: (nothing) -> e"));
}

TEST(BotDifference, IsCopiedEitherWay) {
  const Bot zero = CreateZeroBot();
  Bot average = CreateAverageBot([] { return 0.25; });
  ASSERT_TRUE(average.SetParameter(Id(0), "Other"));
  for (const auto& [left, right] :
       {std::pair(zero, average), std::pair(average, zero),
        std::pair(WithLines({"a", "b", "c", "d"}),
                  WithLines({"", "b", "x", "d", "e"})),
        std::pair(WithLines({"a"}), WithLines({})),
        std::pair(WithLines({}), WithLines({"a", "b"})),
        std::pair(WithLines({"a", "b", "a"}), WithLines({"b", "a", "b"}))}) {
    std::vector<BotDifference> rows = CompareBots(left, right);
    ASSERT_FALSE(rows.empty());
    Bot to_right = right;
    Bot to_left = left;
    for (auto row = rows.rbegin(); row != rows.rend(); ++row) {
      CopyToRight(*row, left, to_right);
      CopyToRight(Reversed(*row), right, to_left);
    }
    EXPECT_THAT(Shown(left, to_right), IsEmpty());
    EXPECT_THAT(Shown(to_left, right), IsEmpty());
    Bot chats = right;
    CopyChatType(TypeAt(3), left, chats);
    EXPECT_EQ(chats.ChatLines(TypeAt(3)), left.ChatLines(TypeAt(3)));
  }
}

}  // namespace
}  // namespace fragsmith
