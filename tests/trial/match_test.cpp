#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <chrono>
#include <filesystem>
#include <optional>
#include <set>
#include <sstream>
#include <string>
#include <utility>
#include <vector>

#include "game/weapon_order.h"
#include "support/files.h"
#include "tests/support/test_folder.h"
#include "trial/match_run.h"
#include "trial/trial_run.h"

namespace fragsmith {
namespace {

namespace fs = std::filesystem;
using ::testing::AllOf;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::Pair;

constexpr std::string_view kLog =
    "  0:00 ------------------------------------------------------------\n"
    "  0:00 InitGame: \\mapname\\q3dm1\n"
    "  0:00 ClientUserinfoChanged: 0 n\\^1Sa: rge\\t\\0\\model\\sarge\n"
    "  0:00 ClientUserinfoChanged: 1 n\\^1Sa\\t\\0\\skill\\ 4.00\n"
    "  0:00 ClientBegin: 0\r\n"
    "  0:09 Item: 1 weapon_rocketlauncher\n"
    "  0:09 Item: 1 weapon_rocketlauncher\n"
    "  0:10 Item: 9 item_nobody\n"
    "  0:52 Kill: 1 0 7: ^1Sa killed ^1Sa: rge by MOD_ROCKET_SPLASH\n"
    "  0:55 say: ^1Sa: rge: by the way: no\n"
    "  0:56 sayteam: ^1Sa: yes\n"
    "  1:00 Kill: 0 1 1: x killed y by MOD_RAILGUN by MOD_SHOTGUN\n"
    "  1:01 Kill: 1 1 7: ^1Sa killed ^1Sa by MOD_ROCKET\n"
    "  1:02 Kill: 1022 0 19: <world> killed ^1Sa: rge by MOD_FALLING\n"
    "  1:02 Kill: 1 0 99: ^1Sa killed ^1Sa: rge by MOD_OWN_DEVICE\n"
    "  1:03 Award: 1 1: ^1Sa gained the EXCELLENT award!\n"
    "  1:04 PlayerScore: 1 3: ^1Sa now has 3 points\n"
    "nonsense\n  x:y Kill: 1 0 7: a by MOD_BFG\n  1:99 Item: 1 item_quad\n"
    "  1:05 Kill: 1\n  1:05 Kill: 1 0 7: a killed b by \n  1:05 Item: 1\n"
    "  1:05 score: 8  ping: 0  client: 0 x\n"
    " 12:06 Exit: Timelimit hit.\n"
    " 12:06 score: 2  ping: 0  client: 1 ^1Sa\n"
    " 12:06 score: -1  ping: 999  client: 0 ^1Sa: rge\n"
    " 12:07 Item: 0 item_quad\n"
    " 12:08 say: ^1Sa: well\n"
    " 12:20 ShutdownGame:\n"
    "  0:00 InitGame: \\mapname\\q3dm1\n"
    "  0:01 Exit: Fraglimit hit.\n";

MatchRecord ReadMatchLog(std::string_view bytes) {
  MatchLogReader reader;
  reader.Read(bytes);
  return reader.record();
}

TEST(MatchLog, HasANameForEachWeaponOfABot) {
  std::set<std::string_view> names;
  for (const ParameterId usage : kWeaponsInGameOrder) {
    names.insert(WeaponOfUsage(usage));
  }
  EXPECT_EQ(names.size(), kWeaponsInGameOrder.size());
  EXPECT_FALSE(names.contains(""));
  EXPECT_EQ(WeaponOfUsage(kRocketLauncherUsage),
            WeaponOfMeans("MOD_ROCKET_SPLASH"));
}

TEST(MatchLog, HasAllFormsOfEvents) {
  const MatchRecord record = ReadMatchLog(kLog);
  EXPECT_TRUE(record.IsWhole());
  EXPECT_TRUE(record.is_over);
  EXPECT_EQ(record.seconds, 726);
  ASSERT_EQ(record.players.size(), 2U);
  const PlayerRecord& left = record.players.at(0);
  EXPECT_EQ(left.name, "^1Sa: rge");
  EXPECT_EQ(left.score, -1);
  EXPECT_THAT(left.kills, ElementsAre(Pair("shotgun", 1)));
  EXPECT_THAT(left.deaths, ElementsAre(Pair("MOD_OWN_DEVICE", 1),
                                       Pair("rocket launcher", 1)));
  EXPECT_THAT(left.killed_by, ElementsAre(Pair(1, 2)));
  EXPECT_EQ(left.falls, 1);
  EXPECT_EQ(left.Deaths(), 3);
  EXPECT_THAT(left.said, ElementsAre("by the way: no"));
  EXPECT_TRUE(left.items.empty());
  const PlayerRecord& right = record.players.at(1);
  EXPECT_EQ(right.score, 2);
  EXPECT_EQ(right.suicides, 1);
  EXPECT_THAT(right.items, ElementsAre(Pair("weapon_rocketlauncher", 2)));
  EXPECT_THAT(right.awards, ElementsAre(Pair("EXCELLENT", 1)));
  EXPECT_THAT(right.said, ElementsAre("yes", "well"));

  EXPECT_EQ(record.events.size(), 14U);
  EXPECT_EQ(record.events.at(2), (LogEvent{.kind = LogEventKind::kKill,
                                           .seconds = 52,
                                           .client = 1,
                                           .victim = 0,
                                           .text = "MOD_ROCKET_SPLASH"}));
}

TEST(MatchLog, GrowsInPiecesOfAnySize) {
  const MatchRecord whole = ReadMatchLog(kLog);
  for (std::size_t piece = 1; piece < 40; ++piece) {
    MatchLogReader reader;
    for (std::size_t at = 0; at < kLog.size(); at += piece) {
      reader.Read(kLog.substr(at, piece));
    }
    EXPECT_EQ(reader.record().events, whole.events) << piece;
  }
  // However it is cut, nothing is counted that is not there in full.
  for (std::size_t size = 0; size < kLog.size(); ++size) {
    const MatchRecord cut = ReadMatchLog(kLog.substr(0, size));
    ASSERT_LE(cut.events.size(), whole.events.size());
    EXPECT_TRUE(
        std::equal(cut.events.begin(), cut.events.end(), whole.events.begin()));
    EXPECT_EQ(cut.IsWhole(), size > kLog.find("rge\n 12:07") + 3) << size;
  }
}

TEST(MatchLog, LeavesOutAWarmUpAndLinesWithoutEnd) {
  std::string log = "  0:00 InitGame: \\\n";
  log += "  0:00 ClientUserinfoChanged: 3 n\\early\\\n  0:05 Item: 3 armor\n";
  log += "  0:09 ShutdownGame:\n  0:06 Item: 3 " + std::string(100000, 'x');
  log += "\n" + std::string(kLog);
  const MatchRecord record = ReadMatchLog(log);
  EXPECT_EQ(record.players.size(), 2U);
  EXPECT_EQ(record.events.size(), 14U);
}

MatchBot OwnBot(const std::string& name) {
  MatchBot bot;
  bot.name = name;
  bot.files = {{"bots/x_c.c", "#include \"mine.h\"\n\"bots\\X_w.c\" \"x_w.c\""},
               {"bots/x_w.c", "#include \"fw_weap.c\" // \" odd"},
               {"mine.h", "#define A 1\r\n"}};
  bot.ai_file = "bots/x_c.c";
  return bot;
}

TEST(MatchBots, LieBesideEachOther) {
  const TestFolder folder;
  const std::vector<MatchBot> bots = {
      OwnBot("^1x; \"y"), {.name = "sarge"}, OwnBot("XY")};
  EXPECT_THAT(ShownNames(bots), ElementsAre("xy", "sarge", "XY-2"));
  ASSERT_TRUE(PutMatchBots(bots, folder.path()));
  EXPECT_EQ(folder.Read("scripts/fragsmith.bot"),
            "{\nname fragsmith1\naifile \"m1/x_c.c\"\n}\n"
            "{\nname fragsmith3\naifile \"m3/x_c.c\"\n}\n");
  EXPECT_EQ(folder.Read("botfiles/m3/x_c.c"),
            "#include \"m3/up/mine.h\"\n\"m3/x_w.c\" \"x_w.c\"");
  EXPECT_EQ(folder.Read("botfiles/m1/x_w.c"), bots[0].files.at("bots/x_w.c"));
  EXPECT_EQ(folder.Read("botfiles/m1/up/mine.h"), "#define A 1\r\n");
  EXPECT_FALSE(fs::exists(folder / "botfiles/m2"));
}

TEST(MatchBots, AreReadAsTheirDescriptionSays) {
  const TestFolder folder;
  folder.Write("x.bot", "{ name Rook aifile bots/X_c.c }");
  folder.Write("x_c.c", "skill 1 {}");
  folder.Write("y.txt", "");
  Result<MatchBot> bot =
      MatchBotOf(GivenFiles::OfFolder(folder.path(), false), "x");
  ASSERT_TRUE(bot);
  EXPECT_EQ(bot->name, "Rook");
  EXPECT_THAT(bot->files, ElementsAre(Pair("bots/x_c.c", "skill 1 {}")));
  folder.Write("x.bot", "{ name Rook aifile bots/other_c.c }");
  bot = MatchBotOf(GivenFiles::OfFolder(folder.path(), false), "x");
  ASSERT_FALSE(bot);
  EXPECT_THAT(bot.error().what, HasSubstr("no character file"));
}

/// Keeps what becomes of the matches, and stops when the test wants.
class Listener : public MatchRunListener {
 public:
  std::optional<Match> MatchAt(int number) override {
    if (number >= games) return std::nullopt;
    return MatchOf(plan, number);
  }
  bool Take(int number, PlayedMatch match) override {
    EXPECT_EQ(number, static_cast<int>(played.size()));
    played.push_back(std::move(match));
    return static_cast<int>(played.size()) < enough;
  }
  void TakeFailure(int /*number*/, const Error& error,
                   bool is_played_again) override {
    failures.push_back(error.what);
    repeats += is_played_again ? 1 : 0;
  }
  bool Watch(const MatchesInPlay& in_play) override {
    most_at_once = std::max(most_at_once, in_play.size());
    return std::none_of(
        in_play.begin(), in_play.end(), [this](const MatchRecord* match) {
          return static_cast<int>(match->events.size()) >= most_events;
        });
  }

  MatchPlan plan;
  int games = 1;
  int enough = 1000;
  int most_events = 1000;
  std::vector<PlayedMatch> played;
  std::vector<std::string> failures;
  int repeats = 0;
  std::size_t most_at_once = 0;
};

/// A server that is a script of the shell: it writes what a test wants.
class FakeEngine : public ::testing::Test {
 protected:
  FakeEngine() {
    if (!kIsUnix) return;
    listener_.plan.bots = {OwnBot("A"), {.name = "sarge", .skill = 2.5}};
    listener_.plan.maps = {"q3dm1"};
    listener_.plan.minutes = 3;
  }

  void SetUp() override {
    if (!kIsUnix) GTEST_SKIP() << "needs a shell";
  }

  /// The script finds its own folder in $home, and writes $log.
  MatchRunEnd Play(const std::string& script, int jobs = 1, int attempts = 1) {
    MatchRunSettings settings;
    settings.server.engine = folder_.WriteProgram(
        "fake-ded",
        "#!/bin/sh\nfor word; do [ \"$last\" = fs_homepath ] && home=$word/"
        "fragsmith; last=$word; done; log=$home/games.log\necho \"$home\" >>" +
            BytesFromPath(folder_ / "homes") + "\n" + script);
    settings.server.longest_silence = silence_;
    settings.jobs = jobs;
    settings.attempts = attempts;
    listener_.played.clear();
    listener_.failures.clear();
    const MatchRunEnd end = RunMatches(settings, listener_);
    std::istringstream homes(folder_.Read("homes"));
    for (std::string home; std::getline(homes, home);) {
      EXPECT_FALSE(fs::exists(home)) << "left behind";
    }
    return end;
  }

  std::string TroubleOf(const std::string& script) {
    EXPECT_EQ(Play(script), MatchRunEnd::kFailed);
    return listener_.failures.empty() ? "played" : listener_.failures[0];
  }

  /// Does it in the first so many starts of the server.
  std::string AtFirst(int starts, const std::string& script) {
    const std::string mark = BytesFromPath(folder_ / "started");
    return "for i in $(seq " + std::to_string(starts) + "); do mkdir " + mark +
           "$i 2>/dev/null && { " + script + "; break; }; done\n";
  }

  static std::string Start() {
    return "printf '%s\\n' ' 0:00 InitGame: x'"
           " ' 0:00 ClientUserinfoChanged: 0 n\\sarge\\t'"
           " ' 0:00 ClientUserinfoChanged: 1 n\\A\\t'"
           " ' 0:09 Kill: 1 0 7: A killed sarge by MOD_ROCKET' >$log\n";
  }
  static std::string End() {
    return "printf '%s\\n' ' 3:00 Exit: Timelimit hit.'"
           " ' 3:00 score: 1  ping: 0  client: 1 A'"
           " ' 3:00 score: 0  ping: 0  client: 0 sarge' >>$log\n";
  }

  TestFolder folder_;
  Listener listener_;
  std::chrono::milliseconds silence_{700};
};

TEST_F(FakeEngine, PlaysAMatch) {
  const std::string keep =
      "cp $home/match.cfg " + BytesFromPath(folder_ / "cfg") + "\n";
  // One that does not end by itself is ended when all is known.
  EXPECT_EQ(Play(keep + Start() + "sleep 0.1\n" + End() + "exec sleep 60"),
            MatchRunEnd::kAllPlayed);
  ASSERT_EQ(listener_.played.size(), 1U);
  const PlayedMatch& played = listener_.played[0];
  EXPECT_EQ(played.Player(0).name, "A");
  EXPECT_THAT(played.Player(0).kills, ElementsAre(Pair("rocket launcher", 1)));
  EXPECT_THAT(played.Player(1).killed_by, ElementsAre(Pair(0, 1)));
  const MatchTally tally = TallyOf(played);
  EXPECT_DOUBLE_EQ(tally.minutes, 3);
  EXPECT_EQ(tally.bots.at(0).score, 1);
  EXPECT_EQ(tally.bots.at(1).deaths, 1);
  const std::string commands = folder_.Read("cfg");
  EXPECT_THAT(commands,
              AllOf(HasSubstr("set timelimit 3\n"),
                    HasSubstr("devmap \"q3dm1\"\nset timescale 50\n"
                              "set fixedtime 50\n"
                              "set nextmap quit\n"
                              "addbot \"fragsmith1\" 4 free 0 \"A\"\n"
                              "addbot \"sarge\" 2.5 free 0 \"sarge\"\n")));
  // On each map the bots come in by turns.
  MatchPlan plan = listener_.plan;
  plan.maps = {"q3dm1\"\nquit", "q3dm2"};
  EXPECT_THAT(MatchCommands(MatchOf(plan, 2)),
              AllOf(HasSubstr("devmap \"q3dm1quit\"\n"),
                    HasSubstr("\"sarge\"\naddbot \"fragsmith1\"")));
  EXPECT_THAT(MatchCommands(MatchOf(plan, 1)),
              AllOf(HasSubstr("devmap \"q3dm2\"\n"),
                    HasSubstr("\"A\"\naddbot \"sarge\"")));
}

TEST_F(FakeEngine, PlaysSeveralAtOnceAndAgain) {
  silence_ = std::chrono::minutes(1);
  listener_.games = 7;
  listener_.plan.maps = {"m0", "m1", "m2", "m3", "m4", "m5", "m6"};
  const auto on_map = [](int number, const std::string& script) {
    return "grep -q '\"m" + std::to_string(number) +
           "\"' $home/match.cfg && { " + script + "; }\n";
  };
  // The first match is over last, and comes first all the same.
  EXPECT_EQ(Play(on_map(0, "sleep 0.4") + Start() + End(), 3),
            MatchRunEnd::kAllPlayed);
  EXPECT_EQ(listener_.played.size(), 7U);
  EXPECT_EQ(listener_.played.at(6).map, "m6");
  EXPECT_EQ(listener_.most_at_once, 3U);
  // One that dies is begun again.
  EXPECT_EQ(Play(AtFirst(1, "echo oh no; exit 1") + Start() + End(), 2, 3),
            MatchRunEnd::kAllPlayed);
  EXPECT_EQ(listener_.played.size(), 7U);
  EXPECT_EQ(listener_.repeats, 1);
  // But not for ever, and what was played before stays.
  EXPECT_EQ(Play(on_map(2, "exit 1") + Start() + End(), 1, 3),
            MatchRunEnd::kFailed);
  EXPECT_EQ(listener_.played.size(), 2U);
  EXPECT_EQ(listener_.failures.size(), 3U);
  // What is not needed any more is ended.
  listener_.enough = 3;
  EXPECT_EQ(Play(on_map(3, "exec sleep 60") + Start() + End(), 2),
            MatchRunEnd::kAnswered);
  EXPECT_EQ(listener_.played.size(), 3U);
}

TEST_F(FakeEngine, MayDieHangOrBabble) {
  EXPECT_THAT(TroubleOf(Start() + "echo Sys_Error: oh; exit 3"),
              AllOf(HasSubstr("ended before"), HasSubstr("Sys_Error: oh")));
  EXPECT_THAT(TroubleOf("kill -SEGV $$"), HasSubstr("ended before"));
  EXPECT_EQ(TroubleOf(Start() + "exec sleep 60"), "The engine hangs.");
  EXPECT_THAT(TroubleOf("exec yes"), HasSubstr("prints without end"));
  EXPECT_THAT(TroubleOf("yes >$log"), HasSubstr("prints without end"));
  // A child of it that is deaf goes too.
  EXPECT_EQ(TroubleOf("(trap '' TERM; sleep 60) & wait"), "The engine hangs.");
  listener_.most_events = 1;
  listener_.games = 3;
  EXPECT_EQ(Play(Start() + "exec sleep 60", 2), MatchRunEnd::kBrokenOff);
}

TEST_F(FakeEngine, SaysAtOnceThatItPlaysNothing) {
  silence_ = std::chrono::minutes(1);
  // It would stay and wait for another command, however often it is asked.
  EXPECT_EQ(
      Play("echo \"^1Can't find map maps/q3dm1.bsp\"; exec sleep 50", 1, 3),
      MatchRunEnd::kFailed);
  EXPECT_THAT(listener_.failures,
              ElementsAre(HasSubstr("Can't find map maps/q3dm1.bsp.")));
  EXPECT_EQ(Play("echo VM_Create on game failed; exit 1", 1, 3),
            MatchRunEnd::kFailed);
  EXPECT_THAT(listener_.failures, ElementsAre(HasSubstr("VM_Create")));
  EXPECT_EQ(listener_.repeats, 0);
}

TEST_F(FakeEngine, MustTakeTheBotsAsTheyAre) {
  EXPECT_THAT(TroubleOf(Start() + End() +
                        "echo loaded cached default skill 4 from m1/x_c.c"),
              HasSubstr("A plays with the game's default character"));
  listener_.plan.bots.push_back({.name = "nobody"});
  EXPECT_THAT(
      TroubleOf(Start() + End() + "echo \"Error: Bot 'nobody' not defined\""),
      AllOf(HasSubstr("did not add nobody"), HasSubstr("not defined")));
}

TEST(MatchEngine, MustBeThere) {
  const TestFolder folder;
  Listener listener;
  listener.plan = {.bots = {{.name = "a"}, {.name = "b"}}, .maps = {"m"}};
  MatchRunSettings settings;
  settings.server.engine = folder / "none";
  EXPECT_EQ(RunMatches(settings, listener), MatchRunEnd::kFailed);
  EXPECT_THAT(listener.failures, ElementsAre(HasSubstr("cannot be started")));
}

}  // namespace
}  // namespace fragsmith
