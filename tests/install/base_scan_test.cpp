#include "install/program/base_scan.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <chrono>
#include <filesystem>
#include <optional>
#include <string>
#include <vector>

#include "install/program/bot_list_file.h"
#include "install/program/model_list_file.h"
#include "tests/support/package_maker.h"
#include "tests/support/scripted_prompts.h"
#include "tests/support/test_folder.h"

namespace fragsmith {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

/// "model/skin: icon" for every skin.
std::vector<std::string> Skins(const BaseLists& lists) {
  std::vector<std::string> skins;
  for (const ModelEntry& model : lists.models.models()) {
    for (const SkinEntry& skin : model.Skins) {
      if (skin.IsOriginal) continue;
      skins.push_back(model.Name + "/" + skin.Name + ": " + skin.IconFile);
    }
  }
  return skins;
}

/// "name package status" for every bot that is not the game's own.
std::vector<std::string> Bots(const BaseLists& lists) {
  std::vector<std::string> bots;
  for (const BotListEntry& bot : lists.bots.entries()) {
    if (bot.IsStandard) continue;
    bots.push_back(bot.Name + " " + bot.PK3File + " " +
                   std::string(BotStatus(bot)));
  }
  return bots;
}

class PackageListing : public ::testing::Test {
 protected:
  void Parse(std::string_view listing) {
    ParsePackageListing(listing, "mod.pk3", lists_, prompts_, notes_);
  }

  BaseLists lists_;
  ScriptedPrompts prompts_;
  Notes notes_;
};

TEST_F(PackageListing, FindsSkinsByTheirIcons) {
  Parse(
      "models/players/Sarge/icon_Tiger.tga\r\n"
      "x/MODELS/Players/crash/icon_a.b.jpg\r\n"
      "models/players/crash/sub/my_icon_red.tga\r\n"
      "models/players/icon_man/icon_default.tga\r\n"
      "models/players/J\xF6rg/icon_\xE4.tga\r\n"
      // Each of these lacks something.
      "models/players/sarge/Icon_x.tga\r\n"
      "models/players/sarge/icon.tga\r\n"
      "models/players/sarge/icon_x\r\n"
      "models/players/icon_x.tga\r\n"
      "models/weapons/icon_x.tga\r\n"
      "models/players/sarge/icon_x.tga/\r\n"
      "\r\n");
  EXPECT_THAT(
      Skins(lists_),
      ElementsAre("Sarge/Tiger: models\\players\\Sarge\\icon_Tiger.tga",
                  "Crash/A: x\\MODELS\\Players\\crash\\icon_a.b.jpg",
                  "Crash/Red: models\\players\\crash\\sub\\my_icon_red.tga",
                  "Icon_man/Man/icon_default: "
                  "models\\players\\icon_man\\icon_default.tga",
                  "J\xF6rg/\xC4: models\\players\\J\xF6rg\\icon_\xE4.tga"));
  EXPECT_THAT(Bots(lists_), IsEmpty());
  EXPECT_TRUE(notes_.empty());
}

TEST_F(PackageListing, FindsBotsByTheirFiles) {
  Parse(
      "botfiles/bots/first_c.c\r\n"
      "BotFiles/Bots/McLeod_c.cfg\r\n"
      "botfiles/bots/_c.c_t\r\n"
      "botfiles/bots/x_C.C\r\n"
      "x_c.c/botfiles/bots/y\r\n"
      "botfiles/bots/folder_c.c/\r\n");
  EXPECT_THAT(Bots(lists_), ElementsAre("First mod.pk3 No", "McLeod mod.pk3 No",
                                        " mod.pk3 No"));
}

TEST_F(PackageListing, AScriptCountsForAllThatFollow) {
  Parse(
      "botfiles/bots/before_c.c\r\n"
      "scripts/bots.txt\r\n"
      "botfiles/bots/between_c.c\r\n"
      "Scripts/mybot.bot\r\n"
      "botfiles/bots/mybot_c.c\r\n"
      "botfiles/bots/other_c.c\r\n");
  EXPECT_THAT(Bots(lists_),
              ElementsAre("Before mod.pk3 No", "Between mod.pk3 No",
                          "Mybot mod.pk3 Yes", "Other mod.pk3 Yes"));
  // The next package begins anew.
  Parse("botfiles/bots/next_c.c\r\n");
  EXPECT_EQ(Bots(lists_).back(), "Next mod.pk3 No");
}

TEST_F(PackageListing, OneLineMayMeanSeveralThings) {
  Parse("scripts/botfiles/bots/models/players/m/icon_a_c.c.bot\r\n");
  EXPECT_THAT(Skins(lists_),
              ElementsAre("M/A_c: scripts\\botfiles\\bots\\models\\players\\m"
                          "\\icon_a_c.c.bot"));
  EXPECT_THAT(Bots(lists_),
              ElementsAre("Models/players/m/icon_a mod.pk3 No",
                          "Botfiles/bots/models/players/m/icon_a_c.c mod.pk3 "
                          "Yes"));
}

TEST_F(PackageListing, TellsOfBotsTxt) {
  Parse("scripts/Bots.txt\r\nbots.txt\r\nscripts/bots.txt\r\n");
  EXPECT_THAT(prompts_.log, ElementsAre("Bots.txt found!: mod.pk3 has an "
                                        "additional 'bots.txt' file!"));
  EXPECT_EQ(prompts_.messages[0].icon, MessageIcon::kExclamation);
  // A package that asks for boxes without end gets notes.
  std::string many;
  for (int line = 0; line < 5000; ++line) many += "a/bots.txt\r\n";
  Parse(many);
  EXPECT_LT(prompts_.log.size(), 20U);
  EXPECT_FALSE(notes_.empty());
}

TEST_F(PackageListing, SkipsWhatTheListsCannotHold) {
  Parse(
      "models/players/a\"b/icon_x.tga\r\n"
      "a\"/models/players/b/icon_x.tga\r\n"
      "botfiles/bots/b\"_c.c\r\n"
      "a\"/botfiles/bots/good_c.c\r\n");
  EXPECT_THAT(Skins(lists_), IsEmpty());
  EXPECT_THAT(Bots(lists_), ElementsAre("Good mod.pk3 No"));
  EXPECT_EQ(notes_.list().size(), 3U);
}

class BaseScan : public ::testing::Test {
 protected:
  void SetUp() override {
    settings_.Q3Baseq3 = folder_.path().string();
    lists_.models = ModelCatalogue::Standard();
    lists_.bots = BotList::Standard();
  }

  void WritePackage(const std::string& name,
                    const std::vector<std::string>& entries) {
    folder_.Write("baseq3/" + name, MakeZipOfNames(entries));
  }

  bool Check(const ScanProgress& progress = {}) {
    const std::optional<ScanSummary> summary =
        CheckBaseq3(settings_, lists_, selection_, prompts_, progress, notes_);
    summary_ = summary ? Describe(*summary) : "";
    return summary.has_value();
  }

  TestFolder folder_;
  ProgramSettings settings_;
  BaseLists lists_;
  CatalogueSelection selection_;
  std::string summary_;
  ScriptedPrompts prompts_;
  Notes notes_;
};

TEST_F(BaseScan, NeedsTheGamesFolder) {
  settings_.Q3Baseq3.clear();
  EXPECT_FALSE(Check());
  EXPECT_FALSE(settings_.BaseQ3Check);
  EXPECT_THAT(prompts_.log,
              ElementsAre("Can't check folder: Quake III Arena folder isn't "
                          "set. Use 'Program/Options' to set it."));
}

TEST_F(BaseScan, ReadsEveryPackageButTheGames) {
  WritePackage("pak0.pk3", {"botfiles/bots/own_c.c"});
  // Where case does not count, this is the same file.
  if (kIsUnix) WritePackage("PAK0.PK3", {"botfiles/bots/twin_c.c"});
  WritePackage("b.pk3", {"botfiles/bots/sarge_c.c", "botfiles/bots/b_c.c"});
  WritePackage("a.Pk3", {"scripts/b.bot", "models/players/b/icon_x.tga"});
  WritePackage("c.zip", {"botfiles/bots/c_c.c"});
  folder_.Write("baseq3/broken.pk3", "no archive");
  WritePackage("z.pk3/in.pk3", {"botfiles/bots/in_c.c"});
  lists_.models.AddModelSkin("sarge", "mine", "UserDef", "");
  lists_.models.AddModelSkin("sarge", "old", "gone.pk3", "");
  lists_.bots.AddBot("gone", "gone.pk3", true);
  selection_ = {16, 5};
  std::vector<std::size_t> wanted_steps = {0, 1, 2, 3};
  std::vector<std::string> wanted_bots = {"B b.pk3 No", "Sarge b.pk3 No"};
  if (kIsUnix) {
    wanted_steps.push_back(4);
    wanted_bots.emplace_back("Twin PAK0.PK3 No");
  }
  std::vector<std::size_t> steps;
  EXPECT_TRUE(Check([&](std::size_t done, std::size_t total) {
    steps.push_back(done);
    return total == wanted_steps.back();
  }));
  EXPECT_EQ(steps, wanted_steps);
  EXPECT_TRUE(settings_.BaseQ3Check);
  EXPECT_EQ(Bots(lists_), wanted_bots);
  EXPECT_THAT(Skins(lists_), ElementsAre("B/X: models\\players\\b\\icon_x.tga",
                                         "Sarge/Mine: "));
  EXPECT_EQ(prompts_.log.size(), 1U);
  EXPECT_EQ(prompts_.messages.at(0).title, "Fragsmith");
  EXPECT_EQ(notes_.list().at(0).file, "broken.pk3");
  // The selected skin has moved with its model, and behind Krusade.
  EXPECT_EQ(lists_.models.models()[selection_.modelIndex].Name, "Sarge");
  EXPECT_EQ(lists_.models.models()[selection_.modelIndex]
                .Skins[selection_.skinIndex]
                .Name,
            "Mine");

  const BaseLists first = lists_;
  EXPECT_TRUE(Check());
  EXPECT_EQ(Skins(lists_), Skins(first));
  // Sarge was replaced by a package's, which went; so he comes but once.
  EXPECT_EQ(lists_.bots.entries(), first.bots.entries());
}

TEST_F(BaseScan, CancelledScanChangesNothing) {
  WritePackage("a.pk3", {"botfiles/bots/a_c.c"});
  WritePackage("b.pk3", {"botfiles/bots/b_c.c"});
  lists_.bots.AddBot("old", "gone.pk3", true);
  selection_ = {15, 4};
  EXPECT_FALSE(Check([](std::size_t done, std::size_t) { return done == 0; }));
  EXPECT_FALSE(settings_.BaseQ3Check);
  EXPECT_THAT(Bots(lists_), ElementsAre("Old gone.pk3 Yes"));
  EXPECT_EQ(lists_.models.models()[15].Skins[3].Name, "Patriot");
  EXPECT_EQ(selection_, (CatalogueSelection{15, 4}));
}

TEST_F(BaseScan, SaysWhatItFoundAndWhatIsGone) {
  WritePackage("m.pk3", {"models/players/m\xFCller/icon_red.tga",
                         "models/players/sarge/icon_tiger.tga",
                         "botfiles/bots/zed_c.c"});
  lists_.models.AddModelSkin("sarge", "mine", "UserDef", "");
  EXPECT_TRUE(Check());
  EXPECT_EQ(summary_,
            "Add-ons: 1 model, 2 skins, 1 bot. New: M\xC3\xBCller/Red, "
            "Sarge/Tiger, Zed.");
  ASSERT_TRUE(SaveUserModels(folder_.path(), lists_.models));
  ASSERT_TRUE(SaveUserBots(folder_.path(), lists_.bots));
  EXPECT_TRUE(Check());
  EXPECT_EQ(summary_, "Add-ons: 1 model, 2 skins, 1 bot.");

  // What is gone does not come back with the next start.
  std::filesystem::remove(folder_ / "baseq3/m.pk3");
  EXPECT_TRUE(Check());
  EXPECT_EQ(summary_,
            "Add-ons: 0 models, 0 skins, 0 bots. Gone: M\xC3\xBCller/Red, "
            "Sarge/Tiger, Zed.");
  for (const EmptyList empty :
       {EmptyList::kReplacesOldFile, EmptyList::kKeepsOldFile}) {
    ASSERT_TRUE(SaveUserModels(folder_.path(), lists_.models, empty));
    ASSERT_TRUE(SaveUserBots(folder_.path(), lists_.bots, empty));
    EXPECT_THAT(Bots({{}, BuildStandardBotList(folder_.path(), prompts_)}),
                IsEmpty());
    EXPECT_THAT(Skins({BuildStandardCatalogue(folder_.path(), prompts_), {}}),
                ElementsAre("Sarge/Mine: "));
  }
  EXPECT_THAT(prompts_.log, IsEmpty());

  // A folder that is away for a while is no reason to forget all.
  WritePackage("m.pk3", {"botfiles/bots/zed_c.c"});
  EXPECT_TRUE(Check());
  std::filesystem::rename(folder_ / "baseq3", folder_ / "away");
  EXPECT_FALSE(Check());
  EXPECT_THAT(Bots(lists_), ElementsAre("Zed m.pk3 No"));
  EXPECT_THAT(
      prompts_.log,
      ElementsAre("Can't check folder: There is no folder baseq3 in '" +
                  folder_.path().string() + "'. The lists stay as they are."));
}

TEST_F(BaseScan, FolderWithoutPackagesLeavesTheSortedLists) {
  std::filesystem::create_directory(folder_ / "baseq3");
  EXPECT_TRUE(Check());
  EXPECT_EQ(lists_.bots.entries().size(), 32U);
  EXPECT_EQ(lists_.models.models()[15].Skins[3].Name, "Id");
}

}  // namespace
}  // namespace fragsmith
