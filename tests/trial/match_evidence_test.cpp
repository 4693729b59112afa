#include "trial/match_evidence.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <string_view>
#include <vector>

#include "chat/chat_catalogue.h"
#include "checks/bot_checks.h"
#include "game/chat_type_facts.h"
#include "game/weapon_order.h"
#include "session/bot_difference.h"
#include "session/presets.h"
#include "support/random.h"

namespace fragsmith {
namespace {

using ::testing::ElementsAre;
using ::testing::UnorderedElementsAre;

class MatchEvidenceTest : public testing::Test {
 protected:
  void SetUp() override {
    bot_.Put(kGauntletUsage, 500.0);
    for (const ChatTypeId type : kAllChatTypes) {
      CopyChatType(type, Bot(), bot_);
      const ChatTypeFacts& facts = FactsOfChatType(type);
      if (!facts.is_heard && unheard_.empty()) {
        unheard_ = ChatTypeAt(type).Key;
        bot_.SetChatLine(type, ChatLineIndex(0), "Into the void");
      }
      if (ChatTypeAt(type).Key == "kill_rail") {
        bot_.SetChatLine(type, ChatLineIndex(0), "Straight through you");
        bot_.SetChatLine(type, ChatLineIndex(1), "And once more with feeling");
        bot_.Put(*facts.chance, 0.0);
      }
    }
    Play();
  }

  /// One more match that leaves no trace of what the bot did.
  PlayerRecord& Play() {
    report_.played.push_back({.map = "q3dm1", .record = {}});
    return report_.played.back().record.players[0];
  }

  /// Each as "id: text", with a "!" in front where it contradicts.
  std::vector<std::string> Evidence() {
    const std::vector<Finding> findings = CheckBot(bot_, nullptr);
    SaidLines said(bot_, words_);
    std::vector<std::string> told;
    for (const MatchEvidence& one : EvidenceOf(findings, report_, said)) {
      told.push_back((one.confirms ? "" : "!") +
                     std::string(findings.at(one.finding).id) + ": " +
                     one.text);
    }
    return told;
  }

  Bot bot_ = CreateAverageBot(SeededRandom(1));
  MatchReport report_;
  WordLists words_;
  std::string_view unheard_;
};

TEST_F(MatchEvidenceTest, ConfirmsWhatDidNotHappen) {
  Play().kills = {{"gauntlet", 4}, {"telefrag", 1}};
  EXPECT_THAT(
      Evidence(),
      UnorderedElementsAre(
          "gauntlet-fighter: All its kills were with the gauntlet, 4 in 2 "
          "matches.",
          "chat-never-heard: The line was never heard in 2 matches.",
          "chat-without-chance: The 2 lines were never heard in 2 matches."));
}

TEST_F(MatchEvidenceTest, ContradictsWithWhatWasSeen) {
  PlayerRecord& player = Play();
  player.kills = {{"gauntlet", 4}, {"railgun", 2}, {"MOD_CRUSH", 1}};
  player.said = {"straight through you", "Into the void",
                 "straight through you"};
  EXPECT_THAT(
      Evidence(),
      UnorderedElementsAre(
          "!gauntlet-fighter: 2 of its 6 kills were with other weapons.",
          "!chat-never-heard: The line was heard 1 time in 2 matches.",
          "!chat-without-chance: The 2 lines were heard 2 times in 2 "
          "matches."));
}

TEST_F(MatchEvidenceTest, IsSilentWhereNothingSpeaksEitherWay) {
  // A line that is at home elsewhere too may have come from there, and who
  // kills nobody has not shown with what.
  for (const ChatTypeId type : kAllChatTypes) {
    if (ChatTypeAt(type).Key != "death_suicide") continue;
    bot_.SetChatLine(type, ChatLineIndex(0), "Into the void");
    bot_.Put(*FactsOfChatType(type).chance, 0.5);
  }
  Play().said = {"Into the void"};
  EXPECT_THAT(Evidence(),
              ElementsAre("chat-without-chance: The 2 lines were never heard "
                          "in 2 matches."));
  report_.played.clear();
  EXPECT_TRUE(Evidence().empty());
}

}  // namespace
}  // namespace fragsmith
