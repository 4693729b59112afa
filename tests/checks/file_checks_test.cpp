#include "checks/file_checks.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <string>
#include <vector>

#include "botfiles/characteristic_file.h"
#include "botfiles/description_file.h"
#include "botfiles/weight_file.h"
#include "chat/chat_file.h"
#include "model/characteristic_catalogue.h"
#include "session/presets.h"
#include "tests/checks/engine_cases.h"

namespace fragsmith {
namespace {

using ::testing::Contains;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::UnorderedElementsAreArray;

/// "file:line: severity id" of each finding but hints.
std::vector<std::string> Found(const BotFileSet& set) {
  std::vector<std::string> found;
  for (const Finding& finding : CheckFiles(set, StandInGameFile)) {
    if (finding.severity == Severity::kHint) continue;
    found.push_back(
        finding.place.file + ":" + std::to_string(finding.place.line) + ": " +
        (finding.severity == Severity::kError ? "error " : "warning ") +
        std::string(finding.id));
  }
  return found;
}

std::string Verdicts(const BotFileSet& set) {
  return VerdictLetters(set, "game", StandInGameFile);
}

TEST(CheckFiles, FindsNothingInWhatTheEditorWrites) {
  Bot bot = CreateAverageBot([] { return 0.5; });
  (void)bot.SetParameter(kNameIndex, "Robo");
  (void)bot.SetParameter(kFunNameField, "\"^1Ro bo\"");
  (void)bot.SetParameter(kModelField, "Sarge");
  (void)bot.SetParameter(kSkinField, "default");
  const BotFileSet set = FileSetOf({{"bot", WriteDescriptionFile(bot, {})},
                                    {"c", WriteCharacteristicFile(bot, {})},
                                    {"w", WriteWeaponWeightFile(bot, {})},
                                    {"i", WriteItemWeightFile(bot, {})},
                                    {"t", WriteChatFile(bot, {})}},
                                   "robo");
  for (const Finding& finding : CheckFiles(set, StandInGameFile)) {
    ADD_FAILURE() << finding.place.file << ":" << finding.place.line << ": "
                  << finding.text;
  }
  EXPECT_EQ(Verdicts(set), "WWWW");
}

TEST(CheckFiles, SaysWhereAndHowGravely) {
  const struct {
    EngineCase change;  ///< Of verdicts, file, find and put alone.
    std::vector<std::string> found;
  } cases[] = {
      {{"WWWW", "c", "", "", "", ""}, {}},
      {{"WDDW", "c", "", "", "SKILL 0.7", "SKILL 0.7\nFOO 1"},
       {"x_c.c:0: error default-character", "x_c.c:0: error no-level",
        "x_c.c:18: error unknown-characteristic"}},
      // An error that harms nobody is a warning.
      {{"WWWW", "t", "", "", "$", "@"}, {"x_t.c:14: warning unreadable"}},
      {{"WWWW", "c", "", "", "SKILL 0.7", "SKILL 0240"},
       {"x_c.c:17: warning leading-zero", "x_c.c:17: error no-mix"}},
      {{"WWWW", "c", "", "", "TIME 0.5", "TIME 1."},
       {"x_c.c:11: warning point-at-end"}},
      // What goes wrong in the game's file is told where its cause is.
      {{"RRRR", "w", "", "", "W_RAILGUN 60", "W_RAILGUN"},
       {"x_c.c:0: error not-added", "x_w.c:8: error empty-macro",
        "x_w.c:8: error bad-weight"}},
      {{"RRRR", "w", "", "", "W_RAILGUN 60", "W_RAILGUN 5;"},
       {"x_c.c:0: error not-added", "x_w.c:8: error weight-syntax"}},
      {{"RRRR", "w", "", "", "#define W_RAILGUN 60", ""},
       {"x_c.c:0: error not-added", "x_w.c:0: error macro-missing"}},
      {{"WWWW", "w", "", "", "W_RAILGUN 60", "W_RAILGUN -5"},
       {"x_w.c:8: warning negative-weight"}},
      {{"WWWW", "w", "", "", "#include \"fw_weap.c\"", ""},
       {"x_w.c:0: warning no-weights"}},
      {{"RRRR", "t", "", "", "\"bye\"", "\"by\"e\""},
       {"x_c.c:0: error not-added", "x_t.c:11: error expected-other"}},
      {{"RRRR", "t", "", "", "chat \"botx\"", "chat \"other\""},
       {"x_c.c:0: error not-added", "x_t.c:0: error chat-name"}},
      {{"RRRR", "t", "", "", "bye", "%256%"},
       {"x_c.c:0: error not-added", "x_t.c:11: error chat-line-too-long"}},
      {{"RRRR", "bot", "", "", "aifile\tbots/", "aifile\tbots\\\\"},
       {"x_c.c:0: error not-added", "x.bot:1: error no-aifile",
        "x.bot:4: error description-sign"}},
      {{"RRRR", "bot", "", "", "name", "nam;e"},
       {"x_c.c:0: error not-added", "x.bot:0: error no-name",
        "x.bot:2: error description-sign"}},
      {{"WWWW", "bot", "", "", "sarge", ""},
       {"x.bot:3: warning description-no-value"}},
      {{"WWWW", "bot", "", "", "bots/botx", "BOTS/botx"},
       {"x_c.c:0: warning path-case"}},
      {{"RRRR", "bot", "", "", "*", "!"},
       {"x_c.c:0: error not-added", "x_c.c:0: error no-description"}},
      {{"RRRR", "i", "", "", "*", "!"},
       {"x_c.c:0: error not-added", "x_c.c:0: error file-missing"}},
      {{"RRRR", "c", "", "", "bots/botx_t.c", "bots/%60%.c"},
       {"x_c.c:0: error not-added", "x_c.c:0: error path-too-long"}},
  };
  for (const auto& [change, found] : cases) {
    SCOPED_TRACE(change.part + ": " + change.put);
    std::map<std::string, std::string> files;
    ASSERT_TRUE(MakeEngineCase(change, "x", files));
    const BotFileSet set = FileSetOf(files, "x");
    if (change.verdicts != "RRRR" ||
        change.put.find("%60%") == std::string::npos) {
      EXPECT_EQ(Verdicts(set), change.verdicts);
    }
    EXPECT_THAT(Found(set), UnorderedElementsAreArray(found));
  }
}

TEST(CheckFiles, TakesSkillsBetweenFromBothLevels) {
  std::map<std::string, std::string> files;
  ASSERT_TRUE(
      MakeEngineCase({"", "c", "", "", "SKILL 0.9", "SKILL high"}, "x", files));
  const BotFileSet set = FileSetOf(files, "x");
  const std::map<double, Verdict> wanted = {
      {1, Verdict::kAsWritten},     {3.99, Verdict::kAsWritten},
      {4, Verdict::kAsWritten},     {4.01, Verdict::kWithDefault},
      {4.5, Verdict::kWithDefault}, {5, Verdict::kWithDefault}};
  for (const auto& [skill, verdict] : wanted) {
    EXPECT_EQ(VerdictAt(set, StandInGameFile, skill), verdict) << skill;
  }
}

TEST(CheckFiles, PicksTheBotOfTheDescriptionThatIsMeant) {
  std::map<std::string, std::string> files;
  ASSERT_TRUE(MakeEngineCase({"", "bot", "", "", "", ""}, "x", files));
  files["bot"] = "{\nname other\naifile bots/o;c\n}\n" + files["bot"];
  EXPECT_EQ(Verdicts(FileSetOf(files, "x")), "WWWW");
  files["bot"] = "{\nname X\naifile bots/y_c.c\n}\n" + files["bot"];
  const BotFileSet set = FileSetOf(files, "x");
  EXPECT_EQ(Verdicts(set), "DDDD");
  EXPECT_THAT(Found(set), Contains("x.bot:3: warning other-character"));
}

TEST(CheckFiles, BearsFilesWithoutEnd) {
  std::map<std::string, std::string> files;
  ASSERT_TRUE(MakeEngineCase(
      {"", "c", "", "", "skill 1", "#define A B\n#define B A\nA\nskill 1"}, "x",
      files));
  BotFileSet set = FileSetOf(files, "x");
  EXPECT_THAT(Found(set), Contains("x_c.c:4: error endless-file"));
  set.character->bytes.clear();
  for (int line = 0; line < 100'000; ++line) {
    set.character->bytes += "#include \"chars.h\" \"\n";
  }
  EXPECT_LE(CheckFiles(set, StandInGameFile).size(), FileFindings::kMost);
  EXPECT_THAT(CheckFiles({}, StandInGameFile), ::testing::Not(IsEmpty()));
}

}  // namespace
}  // namespace fragsmith
