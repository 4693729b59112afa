#include "game/game_data.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>

#include "tests/support/package_maker.h"
#include "tests/support/test_folder.h"

namespace fragsmith {
namespace {

using ::testing::ElementsAre;
using ::testing::Field;
using ::testing::Pair;

TEST(GameFiles, AreThoseThatTheGameFinds) {
  const TestFolder folder;
  const auto pack = [&folder](const std::string& name, const std::string& path,
                              const std::string& bytes) {
    folder.Write("game/baseq3/" + name, MakeZip({{path, bytes}}));
  };
  EXPECT_FALSE(GameFiles::Open(folder / "game").is_game());
  pack("pak0.pk3", "botfiles/rnd.c", "first");
  pack("PAK1.PK3", "BotFiles\\RND.c", "second");
  pack("pak2.pk3", "botfiles/fw_weap.c", "weapons");
  folder.Write("game/baseq3/pak3.pk3", "no package");
  const GameFiles files = GameFiles::Open(folder / "game");
  EXPECT_TRUE(files.is_game());
  EXPECT_EQ(files.Read("botfiles/rnd.c"), "second");
  EXPECT_EQ(files.Read("BOTFILES/Rnd.C"), "second");
  EXPECT_EQ(files.Read("botfiles/fw_weap.c"), "weapons");
  EXPECT_EQ(files.Read("botfiles/none.c"), std::nullopt);
  folder.Write("game/baseq3/botfiles/rnd.c", "loose");
  EXPECT_EQ(files.Read("botfiles/rnd.c"), "loose");
  // All of the player's own folder comes before all of the game's.
  GameFiles with_players = files;
  folder.Write("home/baseq3/a.pk3", MakeZip({{"botfiles/rnd.c", "player's"}}));
  folder.Write("home/baseq3/b.pk3", MakeZip({{"botfiles/rnd.c", "left out"}}));
  with_players.AddPlayersFolder(folder / "home/baseq3", "b.pk3");
  EXPECT_EQ(with_players.Read("botfiles/rnd.c"), "player's");
  EXPECT_EQ(with_players.Read("botfiles/fw_weap.c"), "weapons");
  folder.Write("home/baseq3/botfiles/rnd.c", "player's loose");
  EXPECT_EQ(with_players.Read("botfiles/rnd.c"), "player's loose");
  folder.Write("game/secret", "secret");
  for (const std::string path :
       {"../secret", "botfiles/../../secret", "/etc/passwd", "..\\secret", "",
        "botfiles/", "botfiles//rnd.c"}) {
    EXPECT_EQ(files.Read(path), std::nullopt) << path;
  }
}

TEST(GameData, TellsWhatTheGameHolds) {
  const TestFolder folder;
  folder.Write("game/baseq3/pak0.pk3",
               MakeZip({{"scripts/bots.txt",
                         "// name Hidden\n{\nname\tGrism // a\nmodel name\n}\n"
                         "{ NAME \"The Beast\" aifile bots/x_c.c }\n"},
                        {"scripts/One.bot", "{\nname One\n}\n"},
                        {"scripts/deep/two.bot", {}},
                        {"botfiles/bots/Grism_c.c", {}},
                        {"models/players/Sarge/lower_Red.skin", {}},
                        {"models/players/sarge/icon_red.tga", {}},
                        {"botfiles/rnd.c", "food = { \"soup\"; }"},
                        {"botfiles/fw_items.c", "#include \"fuzi.c\""},
                        {"botfiles/fuzi.c", "return GWW_SHOTGUN;"}}));
  folder.Write(
      "game/baseq3/zbot.pk3",
      MakeZip({{"botfiles/bots/grism_c.c", {}},
               {"scripts/other.bot", "{\nname One\n}\n{\nname GRISM\n}\n"}}));
  const GameData game = ReadGameData(GameFiles::Open(folder / "game"));
  const auto winner = [&game](std::string_view name,
                              const DescriptionSource& own) {
    const KnownBot* const bot = BotThatWins(game, name, own);
    return bot == nullptr ? "" : ShownPlace(*bot);
  };
  EXPECT_EQ(winner("THE Beast", {"scripts/a.bot"}), "scripts/bots.txt");
  EXPECT_EQ(winner("grism", {"scripts/a.bot", GamePackage{"zz.pk3"}}),
            "scripts/bots.txt");
  // Loose descriptions come first, then those of the last package by name.
  EXPECT_EQ(winner("one", {"scripts/a.bot"}), "");
  EXPECT_EQ(winner("one", {"scripts/a.bot", GamePackage{"zz.pk3"}}), "");
  EXPECT_EQ(winner("one", {"scripts/a.bot", GamePackage{"Z.pk3"}}),
            "zbot.pk3/scripts/other.bot");
  EXPECT_EQ(winner("one", {"scripts/Other.bot", GamePackage{"a.pk3"}}),
            "pak0.pk3/scripts/one.bot");
  EXPECT_THAT(
      game.bot_packages,
      ElementsAre(Pair("grism", Field(&GamePackage::name, "zbot.pk3"))));
  EXPECT_THAT(game.description_files, ElementsAre("one.bot", "other.bot"));
  EXPECT_THAT(game.models, ElementsAre("sarge"));
  EXPECT_THAT(game.skins, ElementsAre("sarge/red"));
  EXPECT_NE(game.words.Find("food"), nullptr);
  EXPECT_FALSE(game.has_weapon_script);
  EXPECT_TRUE(game.has_item_script);
  EXPECT_TRUE(game.uses_owned_weights);

  folder.Write("game/baseq3/zz.pk3",
               MakeZip({{"scripts/bots.txt", std::string(8192, ' ')},
                        {"botfiles/fuzi.c", {}}}));
  const GameData other = ReadGameData(GameFiles::Open(folder / "game"));
  EXPECT_FALSE(other.known_bots.contains("grism") &&
               other.known_bots.find("grism")->second.is_of_list());
  EXPECT_FALSE(other.uses_owned_weights);
}

}  // namespace
}  // namespace fragsmith
