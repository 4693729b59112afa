#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "trial/ladder.h"
#include "trial/match_report.h"

namespace fragsmith {
namespace {

using ::testing::AllOf;
using ::testing::HasSubstr;
using ::testing::StartsWith;

/// As version 0 had it, with something more in an event where it is given.
std::string Match(const std::string& first = {},
                  const std::string& in_event = {}) {
  return "{" + first + R"("maps": ["q3dm1"], "minutes": 3,
    "bots": [{"name": "a", "source": "a.json", "skill": 4},
             {"name": "b", "source": "b.json", "skill": 2.5}],
    "matches": [{"map": "q3dm1", "seconds": 180, "scores": [1, 0], "events": [
      {"seconds": 9, "event": "kill", "bot": 0, "victim": 1)" +
         in_event + R"(, "text": "MOD_ROCKET"},
      {"seconds": 10, "event": "kill", "bot": 0, "victim": 1)" +
         in_event + R"(, "text": "MOD_ROCKET"},
      {"seconds": 180, "event": "exit", "text": "Timelimit hit."},
      {"seconds": 180, "event": "score", "bot": 0, "score": 2},
      {"seconds": 180, "event": "score", "bot": 1, "score": 0}]}]})";
}

TEST(MatchJson, SaysItsVersionAndReadsTheOneBeforeThereWereAny) {
  Notes notes;
  const Result<std::vector<MatchReport>> old =
      ReadMatchJson(Match(), "old", notes);
  ASSERT_TRUE(old) << old.error().what;
  EXPECT_EQ(old->at(0).played.at(0).Player(0).score, 2);
  const std::string written = WriteMatchJson(old->at(0), true);
  EXPECT_THAT(written, StartsWith("{\n  \"format\": 1,\n  \"maps\""));

  const Result<std::vector<MatchReport>> read =
      ReadMatchJson(written + written, "new", notes);
  ASSERT_TRUE(read) << read.error().what;
  ASSERT_EQ(read->size(), 2U);
  EXPECT_EQ(WriteMatchJson(read->at(1), true), written);
  EXPECT_TRUE(notes.empty()) << notes.list().front().text;
  EXPECT_THAT(WriteLadderJson(*read), StartsWith("{\n  \"format\": 1,\n"));
}

TEST(MatchJson, NotesWhatANewerVersionHasBeyondTheKnown) {
  Notes notes;
  const Result<std::vector<MatchReport>> read = ReadMatchJson(
      Match(R"("format": 7, "weather": "fog", )", R"(, "range": 12)"), "new",
      notes);
  ASSERT_TRUE(read) << read.error().what;
  EXPECT_EQ(read->at(0).played.at(0).Player(1).Deaths(), 2);
  ASSERT_EQ(notes.list().size(), 3U);
  EXPECT_THAT(Describe(notes.list()[0]),
              AllOf(StartsWith("new: "), HasSubstr("it has format 7")));
  EXPECT_THAT(notes.list()[1].text, StartsWith("Field weather: "));
  EXPECT_THAT(notes.list()[2].text, StartsWith("Field matches.events.range: "));

  const Result<std::vector<MatchReport>> odd =
      ReadMatchJson(Match(R"("format": "one", )"), "odd", notes);
  ASSERT_FALSE(odd);
  EXPECT_THAT(odd.error().what, HasSubstr("format"));
}

}  // namespace
}  // namespace fragsmith
