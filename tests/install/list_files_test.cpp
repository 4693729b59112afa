#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "install/program/bot_list_file.h"
#include "install/program/model_list_file.h"
#include "tests/support/scripted_prompts.h"
#include "tests/support/test_folder.h"

namespace fragsmith {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

constexpr char kModelHeader[] =
    "[Fragsmith additional models & skins list]\r\n";
constexpr char kBotHeader[] = "[Fragsmith additional bots list]\r\n";

std::vector<std::string> Names(const BotList& bots) {
  std::vector<std::string> names;
  for (const BotListEntry& bot : bots.entries()) names.push_back(bot.Name);
  return names;
}

TEST(ModelListFile, IsWrittenAndReadBack) {
  ModelCatalogue catalogue = ModelCatalogue::Standard();
  EXPECT_EQ(FormatModelList(catalogue), "");
  catalogue.AddModelSkin("sarge", "Blackwing", "UserDef", "");
  catalogue.AddModelSkin("a, b", "x", "m.pk3",
                         "models\\players\\x\\icon_x.tga");
  const std::string bytes = FormatModelList(catalogue);
  EXPECT_EQ(bytes, std::string(kModelHeader) +
                       "\"Sarge\",\"Blackwing\",\"UserDef\",\"\"\r\n"
                       "\"A, b\",\"X\",\"m.pk3\","
                       "\"models\\players\\x\\icon_x.tga\"\r\n");
  const ParsedModelList parsed = ParseModelList(bytes);
  EXPECT_FALSE(parsed.has_error);
  EXPECT_THAT(parsed.skins,
              ElementsAre(UserSkin{"Sarge", "Blackwing", "UserDef", ""},
                          UserSkin{"A, b", "X", "m.pk3",
                                   "models\\players\\x\\icon_x.tga"}));
}

TEST(ModelListFile, KeepsWhatStandsBeforeAnError) {
  const std::string good = "\"a\",\"b\",\"c\",\"d\"\r\n";
  const struct {
    std::string bytes;
    std::size_t count;
    bool has_error;
  } cases[] = {
      {"", 0, true},
      {"[header only]", 0, false},
      {kModelHeader + good + good, 2, false},
      {kModelHeader + good + "a, b ,c,", 1, true},
      {kModelHeader + good + "a,b,c,\n" + good, 3, false},
      {kModelHeader + good + "\"a\",\"b\",\"c\"\r\n" + good, 1, true},
      {kModelHeader + good + "\"a\",\"b\",\"c\",\"d\",\"e\"\n", 1, true},
      {kModelHeader + good + "\"a\",\"b\",\"c\",\"d", 1, true},
      {kModelHeader + good + "\r\n", 1, true},
      {std::string("\0\xFF\"", 3), 0, false}};
  for (const auto& one : cases) {
    const ParsedModelList parsed = ParseModelList(one.bytes);
    EXPECT_EQ(parsed.skins.size(), one.count) << one.bytes;
    EXPECT_EQ(parsed.has_error, one.has_error) << one.bytes;
  }
}

TEST(ModelListFile, AddsToTheGamesModelsAndSortsThen) {
  const TestFolder folder;
  ScriptedPrompts prompts;
  // Razor's skins show whether the catalogue was sorted.
  EXPECT_EQ(
      BuildStandardCatalogue(folder.path(), prompts).models()[15].Skins[3].Name,
      "Patriot");
  folder.Write("fgs_models", kModelHeader + std::string("\"sarge\",\"tiger\","
                                                        "\"UserDef\",\"\"\r\n"
                                                        "\"cut"));
  const ModelCatalogue catalogue =
      BuildStandardCatalogue(folder.path(), prompts);
  EXPECT_EQ(catalogue.models()[15].Skins[3].Name, "Id");
  EXPECT_EQ(catalogue.models()[16].Skins[5].Name, "Tiger");
  EXPECT_EQ(catalogue.models().size(), 23U);
  EXPECT_THAT(prompts.log,
              ElementsAre("Load error: Errors occured when trying to load "
                          "model file. Please use Tools/CheckBaseq3."));
}

TEST(ModelListFile, LeavesAnOldFileWhenThereIsNothingToWrite) {
  const TestFolder folder;
  folder.Write("fgs_models", "anything");
  ASSERT_TRUE(SaveUserModels(folder.path(), ModelCatalogue::Standard()));
  EXPECT_EQ(folder.Read("fgs_models"), "anything");

  ModelCatalogue catalogue = ModelCatalogue::Standard();
  catalogue.AddModelSkin("Sarge", "Tiger", "UserDef", "");
  folder.Write("fgs_models", "[header]\r\n\"a\",\"b");
  ASSERT_TRUE(SaveUserModels(folder.path(), catalogue));
  EXPECT_EQ(folder.Read("fgs_models"), FormatModelList(catalogue));
  EXPECT_EQ(folder.Read("fgs_models.bak"), "[header]\r\n\"a\",\"b");
}

TEST(BotList, BeginsWithTheGamesBotsInOrder) {
  const TestFolder folder;
  ScriptedPrompts prompts;
  const BotList bots = BuildStandardBotList(folder.path(), prompts);
  EXPECT_EQ(bots.entries().size(), 32U);
  EXPECT_EQ(bots.entries()[11].Name, "Hossman");
  EXPECT_EQ(bots.entries()[12].Name, "Hunter");
  EXPECT_EQ(bots.Find("hUNTER"), 12U);
  EXPECT_EQ(FormatBotList(bots), "");
}

TEST(BotList, APackagesBotReplacesTheGames) {
  BotList bots = BotList::Standard();
  const std::size_t sarge = *bots.Find("Sarge");
  bots.AddBot("sarge", "mod.pk3", true);
  bots.AddBot("zed", "mod.pk3", false);
  bots.AddBot("abel", "mod.pk3", false);
  bots.AddBot("ABEL", "other.pk3", true);
  EXPECT_EQ(bots.entries().size(), 34U);
  EXPECT_EQ(bots.entries()[sarge],
            (BotListEntry{"Sarge", "mod.pk3", false, true}));
  EXPECT_EQ(bots.entries().back(),
            (BotListEntry{"ABEL", "other.pk3", false, true}));
  bots.SortBotList();
  EXPECT_EQ(bots.entries().front().Name, "ABEL");
  EXPECT_EQ(bots.Find("zed"), 33U);
  // A reset does not bring the replaced one back.
  bots.ResetBotList();
  EXPECT_EQ(bots.entries().size(), 31U);
  EXPECT_FALSE(bots.Find("sarge"));
  EXPECT_EQ(bots.Find("xaero"), 30U);
}

TEST(BotList, LinesHaveFixedColumns) {
  EXPECT_EQ(BotListLine({"Sarge", "pak0.pk3", true, false}),
            "Sarge          pak0.pk3            -D-");
  EXPECT_EQ(BotListLine({"12345678901234", "1234567890123456789", true, true}),
            "12345678901234 1234567890123456789 Yes");
  EXPECT_EQ(
      BotListLine({"123456789012345", "12345678901234567890", false, false}),
      "12345678901234 1234567890123456789 No");
}

TEST(BotListFile, IsWrittenAndReadBack) {
  BotList bots = BotList::Standard();
  bots.AddBot("zed", "m.pk3", false);
  bots.AddBot("sarge", "a, b.pk3", true);
  const std::string bytes = FormatBotList(bots);
  EXPECT_EQ(bytes, std::string(kBotHeader) +
                       "\"Sarge\",\"a, b.pk3\",#TRUE#\r\n"
                       "\"Zed\",\"m.pk3\",#FALSE#\r\n");
  EXPECT_THAT(ParseBotList(bytes).bots,
              ElementsAre(BotListEntry{"Sarge", "a, b.pk3", false, true},
                          BotListEntry{"Zed", "m.pk3", false, false}));
}

TEST(BotListFile, KeepsWhatStandsBeforeAnError) {
  const TestFolder folder;
  ScriptedPrompts prompts;
  const std::string damaged = std::string(kBotHeader) +
                              "\"zed\",\"m.pk3\",#TRUE#\r\n"
                              "\"bad\",\"m.pk3\",maybe\r\n"
                              "\"abel\",\"m.pk3\",#TRUE#\r\n";
  folder.Write("fgs_bots", damaged);
  const BotList bots = BuildStandardBotList(folder.path(), prompts);
  EXPECT_EQ(Names(bots).size(), 33U);
  EXPECT_EQ(Names(bots).back(), "Zed");
  EXPECT_THAT(
      prompts.log,
      ElementsAre(
          "Load error: Errors occured when trying to load botlist "
          "file. Please use Tools/CheckBaseq3 to correct the bot list."));
  ASSERT_TRUE(SaveUserBots(folder.path(), bots));
  EXPECT_EQ(folder.Read("fgs_bots.bak"), damaged);
  for (const char* bytes :
       {"", "[]\n\"a\",\"b\"\n", "[]\na,b,#TRUE#,c", "[]\na,b,#true#"}) {
    EXPECT_TRUE(ParseBotList(bytes).has_error) << bytes;
    EXPECT_THAT(ParseBotList(bytes).bots, IsEmpty()) << bytes;
  }
}

}  // namespace
}  // namespace fragsmith
