#include "install/program/find_games.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>

#include "install/program/base_scan.h"
#include "install/program/game_folder.h"
#include "support/files.h"
#include "tests/support/package_maker.h"
#include "tests/support/scripted_prompts.h"
#include "tests/support/test_folder.h"

namespace fragsmith {
namespace {

namespace fs = std::filesystem;
using testing::ElementsAre;
using testing::IsEmpty;

class Games : public ::testing::Test {
 protected:
  std::vector<std::string> Found() {
    std::vector<std::string> found;
    for (const FoundGame& game : FindGames({.home = folder_ / "home",
                                 .root = folder_.path(),
                                 .installed = installed_})) {
      found.push_back(
          game.name + ": " +
          fs::relative(game.folder, folder_.path()).generic_string());
    }
    return found;
  }

  TestFolder folder_;
  std::vector<InstalledProgram> installed_ = {
      {"QUAKE III: Gold", folder_ / "listed"}};
};

TEST_F(Games, AreFoundWhereTheyArePut) {
  folder_.Write("listed/quake3.exe", "");
  folder_.Write("listed/baseq3/pak0.pk3", "");
  folder_.Write("home/.steam/steam/steamapps/libraryfolders.vdf",
                "\"libraryfolders\"\n{\n\t\"0\"\n\t{\n\t\t\"path\"\t\t\"" +
                    (folder_ / "disk").generic_string() + "\"\n\t}\n}\n");
  const std::string shop = "disk/steamapps/common/Quake 3 Arena/";
  folder_.Write(shop + "quake3.exe", "");
  folder_.Write(shop + "baseq3/pak0.pk3", "");
  EXPECT_THAT(Found(), ElementsAre("Quake III Arena: listed",
                                   "Quake III Arena: " +
                                       shop.substr(0, shop.size() - 1)));
}

TEST_F(Games, OfTheSystemsListAreKnownByTheirNames) {
  const std::string shop = "shop/steamapps/common/Quake 3 Arena";
  for (const std::string& game :
       {std::string("a"), std::string("b"), std::string("c"), shop}) {
    folder_.Write(game + "/quake3.exe", "");
    folder_.Write(game + "/baseq3/pak0.pk3", "");
  }
  installed_ = {{"Quake III Arena", folder_ / "a/"},
                {"Paint", folder_ / "b"},
                {"OpenArena 0.8.8", folder_ / "c"},
                {"Quake III Arena", folder_ / "a"},
                {"Steam", folder_ / "shop/"}};
  EXPECT_THAT(Found(), ElementsAre("Quake III Arena: a", "Quake III Arena: c",
                                   "Quake III Arena: " + shop));
}

TEST_F(Games, OfPackagesAloneAreFoundWhereSystemsPutThem) {
  folder_.Write("usr/share/games/openarena/baseoa/pak0.pk3", "");
  folder_.Write("usr/share/games/openarena/missionpack/mp-pak0.pk3", "");
  folder_.Write("home/.q3a/baseq3/pak0.pk3", "");
  // Settings and pictures alone are no game.
  folder_.Write("home/.ioquake3/baseq3/q3config.cfg", "");
  // Elsewhere a game has its program.
  folder_.Write("opt/quake3/baseq3/pak0.pk3", "");
  EXPECT_THAT(Found(), ElementsAre("OpenArena: usr/share/games/openarena",
                                   "Quake III Arena: home/.q3a"));
}

TEST_F(Games, AreNamedOnceWhateverLeadsThere) {
#ifdef _WIN32
  GTEST_SKIP() << "Links need a right of their own.";
#endif
  const fs::path game =
      "home/.local/share/Steam/steamapps/common/Quake 3 Arena";
  folder_.Write((game / "quake3.exe").string(), "");
  folder_.Write((game / "baseq3/pak0.pk3").string(), "");
  fs::create_directories(folder_ / "home/.steam");
  fs::create_directory_symlink(folder_ / "home/.local/share/Steam",
                               folder_ / "home/.steam/steam");
  EXPECT_EQ(Found().size(), 1U);
  fs::remove_all(folder_ / "home");
  EXPECT_THAT(Found(), IsEmpty());
}

TEST_F(Games, OfAnotherNameAreScannedWithTheirOwnPackage) {
  const fs::path game = folder_ / "game";
  for (const char* const base : {"game/baseoa", "other/baseq3"}) {
    folder_.Write(std::string(base) + "/pak0.pk3",
                  MakeZipOfNames({"models/players/Penguin/icon_default.tga",
                                  "models/players/sarge/icon_default.tga"}));
  }
  folder_.Write("game/missionpack/pak0.pk3", "");
  EXPECT_EQ(PackageFolder(game), game / "baseoa");
  // One without the game's package is none that it reads.
  folder_.Write("game/baseq3/bot-x.pk3", "");
  EXPECT_EQ(PackageFolder(game), game / "baseoa");
  ScriptedPrompts prompts;
  Notes notes;
  BaseLists lists;
  lists.models = ModelCatalogue::Standard();
  const std::size_t skins = lists.models.CountSkins();
  ASSERT_TRUE(ScanBaseq3(game, lists, prompts, {}, notes));
  // Sarge is known already.
  EXPECT_TRUE(lists.models.FindModel("penguin").has_value());
  EXPECT_EQ(lists.models.CountSkins(), skins + 1);
  BaseLists standard;
  ASSERT_TRUE(ScanBaseq3(folder_ / "other", standard, prompts, {}, notes));
  EXPECT_THAT(standard.models.models(), IsEmpty());
}

}  // namespace
}  // namespace fragsmith
