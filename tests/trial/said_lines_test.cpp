#include "trial/said_lines.h"

#include <gtest/gtest.h>

#include <optional>
#include <string>
#include <vector>

#include "chat/chat_catalogue.h"

namespace fragsmith {
namespace {

ChatTypeId TypeOf(std::string_view key) {
  for (const ChatTypeId type : kAllChatTypes) {
    if (ChatTypeAt(type).Key == key) return type;
  }
  throw std::out_of_range(std::string(key));
}

class SaidLinesTest : public testing::Test {
 protected:
  void Add(std::string_view type, std::vector<std::string> lines) {
    for (std::size_t line = 0; line < lines.size(); ++line) {
      bot_.SetChatLine(TypeOf(type), ChatLineIndex(line), lines[line]);
    }
  }

  /// The line that the text is taken for, or "none".
  std::string LineOf(const std::string& said) {
    SaidLines lines(bot_, words_);
    const std::optional<std::size_t> found = lines.Find(said);
    return found ? lines.lines().at(*found).text : "none";
  }

  Bot bot_;
  WordLists words_;
};

TEST_F(SaidLinesTest, KnowsALineWithWhatTheGamePutIn) {
  Add("kill_insult", {"Too slow, {TARGET}.", "Too slow for me, {TARGET}!",
                      "~Ha{TARGET} eats my {WEAPONUSED}", "{CURSE}"});
  Add("random_misc", {"Quiet here.", "I can't see {RANDOMOPP2}"});
  EXPECT_EQ(LineOf("Too slow, marla."), "Too slow, {TARGET}.");
  EXPECT_EQ(LineOf("Too slow for me, otto!"), "Too slow for me, {TARGET}!");
  EXPECT_EQ(LineOf("^1quiet  here."), "Quiet here.");
  EXPECT_EQ(LineOf("Haotto eats my Rocket Launcher"),
            "~Ha{TARGET} eats my {WEAPONUSED}");
  // Synonyms of the game.
  EXPECT_EQ(LineOf("I cannot see big marla"), "I can't see {RANDOMOPP2}");
  EXPECT_EQ(LineOf("Something of nobody's"), "none");
  EXPECT_EQ(LineOf("Rockets are slow"), "none");
  EXPECT_EQ(LineOf(""), "none");
}

TEST_F(SaidLinesTest, KnowsTheWordsOfAList) {
  Add("kill_insult", {"{{TAUNT1}}", "{CURSE}", ""});
  Add("kill_praise", {"Good one"});
  const SaidLines without(bot_, words_);
  ASSERT_EQ(without.lines().size(), 3U);
  EXPECT_FALSE(without.lines()[1].can_be_told);
  EXPECT_TRUE(without.lines()[2].can_be_told);
  words_ = WordLists::Parse("curse = { \"Rats!\"; \"Oh \", 0, \" my\"; }");
  EXPECT_EQ(LineOf("oh marla my"), "{CURSE}");
  EXPECT_EQ(LineOf("rats"), "{CURSE}");
  EXPECT_EQ(LineOf("good one"), "Good one");
}

TEST_F(SaidLinesTest, HasALineOfSeveralSituationsOnce) {
  Add("kill_insult", {"", "Mine."});
  Add("kill_praise", {"Yours.", "Mine."});
  const SaidLines lines(bot_, words_);
  ASSERT_EQ(lines.lines().size(), 2U);
  const OwnLine& mine = lines.lines()[0];
  EXPECT_EQ(mine.text, "Mine.");
  ASSERT_EQ(mine.places.size(), 2U);
  EXPECT_EQ(mine.places[0],
            (ChatPlace{TypeOf("kill_insult"), ChatLineIndex(1)}));
  EXPECT_EQ(mine.places[1],
            (ChatPlace{TypeOf("kill_praise"), ChatLineIndex(1)}));
}

}  // namespace
}  // namespace fragsmith
