#include "game/game_macros.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <map>
#include <optional>
#include <string>

#include "game/stand_ins.h"

namespace fragsmith {
namespace {

using ::testing::ElementsAre;

/// A game with these scripts beside its list of inventory names.
IncludeLookup GameWith(std::map<std::string, std::string, std::less<>> files) {
  return [files = std::move(files)](
             std::string_view path) -> std::optional<std::string> {
    if (path == "inv.h") return StandInGameFile(path);
    const auto found = files.find(path);
    if (found == files.end()) return std::nullopt;
    return found->second;
  };
}

/// "NAME=INDEX", with 0 for what is no weight of a bot.
std::vector<std::string> Shown(const std::optional<GameMacros>& macros) {
  std::vector<std::string> shown;
  if (!macros) return shown;
  shown.push_back(macros->script);
  for (const auto& [name, parameter] : macros->macros) {
    shown.push_back(name + '=' +
                    std::to_string(parameter ? parameter->index() : 0));
  }
  return shown;
}

constexpr const char* kTheirWeapons =
    "#define HALF(x) $evalfloat(x/2)\n"
    "weight \"Shotgun\" { switch(INVENTORY_SHOTGUN) { case 1: return 0;\n"
    "default: switch(ENEMY_HORIZONTAL_DIST) { case 600: return SGW;\n"
    "default: return HALF(SGW); } } }\n"
    "weight \"Nailgun\" { return balance(NGW, 1, 2); }\n";

TEST(GameMacros, AreWhatTheGamesOwnCodeMisses) {
  EXPECT_THAT(Shown(OtherMacros(kWeaponWeightRange,
                                GameWith({{"fuzw.c", kTheirWeapons}}))),
              ElementsAre("fuzw.c", "SGW=45", "NGW=0"));
  // A script of that name takes precedence, and it may stand for theirs.
  EXPECT_FALSE(
      OtherMacros(kWeaponWeightRange,
                  GameWith({{"fuzw.c", kTheirWeapons},
                            {"fw_weap.c",
                             "#define SGW W_SHOTGUN\n#define NGW W_SHOTGUN\n"
                             "#include \"fuzw.c\"\n"}})));
  EXPECT_THAT(Shown(OtherMacros(
                  kWeaponWeightRange,
                  GameWith({{"fw_weap.c",
                             "weight \"Railgun\" { return W_RAILGUN; }\n"
                             "weight \"Shotgun\" { return PELLETS; }\n"}}))),
              ElementsAre("fw_weap.c", "PELLETS=45"));
  // One that the bot's author names.
  EXPECT_THAT(Shown(OtherMacros(kItemWeightRange,
                                GameWith({{"mod.c",
                                           "weight \"item_quad\" { return "
                                           "QUAD; }\n"}}),
                                {"none.c", "mod.c"})),
              ElementsAre("mod.c", "QUAD=74"));
}

TEST(GameMacros, AreNoneWhereTheGameReadsNothing) {
  EXPECT_FALSE(OtherMacros(kWeaponWeightRange, StandInGameFile));
  EXPECT_FALSE(OtherMacros(kItemWeightRange, GameWith({})));
  // What no number helps, and what would go on for ever.
  for (const char* const script :
       {"weight \"Shotgun\" { return \"much\"; }", "#include \"fw_weap.c\"",
        "weight \"Shotgun\" { return A }"}) {
    EXPECT_FALSE(
        OtherMacros(kWeaponWeightRange, GameWith({{"fw_weap.c", script}})))
        << script;
  }
}

}  // namespace
}  // namespace fragsmith
