#include "botfiles/weight_file.h"

#include <gtest/gtest.h>

#include <map>

#include "tests/support/game_lines.h"
#include "tests/support/ids.h"
#include "tests/support/set_parameter.h"

namespace fragsmith {
namespace {

/// Every weight is its own index; one has a text, one is empty.
Bot DistinctiveBot() {
  Bot bot;
  for (int index = 44; index < 80; ++index) {
    Set(bot, Id(index), static_cast<double>(index));
  }
  Set(bot, Id(53), "many");
  return bot;
}

TEST(WeightFiles, AreWrittenToTheByte) {
  const Bot bot = DistinctiveBot();
  EXPECT_EQ(WriteWeaponWeightFile(bot, {"Ann", "", ""}),
            HeaderComment(bot, {"Ann", "", ""}) + GameLines(R"(
||#include "inv.h"||&W_GAUNTLET>>>>44|&W_SHOTGUN>>>>45|&W_MACHINEGUN>>>46|
&W_GRENADELAUNCHER>>47|&W_ROCKETLAUNCHER>>48|&W_RAILGUN>>>>49|&W_BFG10K>>>>50|
&W_LIGHTNING>>>>51|&W_PLASMAGUN>>>>52|&W_GRAPPLE>>>>"many"||
//|#include "fw_weap.c"|)"));
  EXPECT_EQ(WriteItemWeightFile(bot, {}), HeaderComment(bot, {}) + GameLines(R"(
||#include "inv.h"||&FS_HEALTH>>>>54|&FS_ARMOR>>>>55||&W_SHOTGUN>>>>56|
&W_MACHINEGUN>>>57|&W_GRENADELAUNCHER>>58|&W_ROCKETLAUNCHER>>59|
&W_RAILGUN>>>>60|&W_BFG10K>>>>61|&W_LIGHTNING>>>>62|&W_PLASMAGUN>>>>63||
&GWW_SHOTGUN>>>>64|&GWW_MACHINEGUN>>>65|&GWW_GRENADELAUNCHER>>66|
&GWW_ROCKETLAUNCHER>>67|&GWW_RAILGUN>>>>68|&GWW_BFG10K>>>>69|
&GWW_LIGHTNING>>>70|&GWW_PLASMAGUN>>>71||&W_TELEPORTER>>>72|&W_MEDKIT>>>>73|
&W_QUAD>>>>>74|&W_ENVIRO>>>>75|&W_HASTE>>>>>76|&W_INVISIBILITY>>>77|
&W_REGEN>>>>>78|&W_FLIGHT>>>>79||&FLAG_WEIGHT>>>>0.0||
//|#include "fw_items.c"|)"));
}

TEST(WeightFiles, TakeValuesByThePaddingOfTheKey) {
  const struct {
    std::string_view line;
    int index;
    Value value;
    std::map<ParameterId, Value> plain_values;
  } cases[] = {{"&W_RAILGUN>>>>250", 60, 250.0, {}},
               {"&W_RAILGUN>>>250", 60, 250.0, {}},
               // With one blank the column falls on the last digit.
               {"&W_RAILGUN 250", 60, 0.0, {{Id(60), 250.0}}},
               {"&W_RAILGUN 25", 60, 25.0, {}},
               {"&W_QUAD 5", 74, 5.0, {}},
               {"&GWW_RAILGUN>>>>9", 60, {}, {}},
               {"&GWW_RAILGUN>>>>9", 68, 9.0, {}},
               {">&W_HASTE>>>>>9 // x", 76, "9 // x", {{Id(76), 9.0}}},
               {"#define w_railgun>>>>250", 60, {}, {}},
               {"&W_GAUNTLET>>>>250", 44, {}, {}},
               {"// &W_RAILGUN>>>>250", 60, {}, {}},
               // Other spellings of the directive, for the game alone.
               {"& W_RAILGUN>>>>250", 60, {}, {{Id(60), 250.0}}},
               {"#define>W_RAILGUN 250", 60, {}, {{Id(60), 250.0}}},
               {" # define W_RAILGUN 250", 60, {}, {{Id(60), 250.0}}}};
  for (const auto& row : cases) {
    Bot bot;
    const ReadReport report =
        ReadItemWeightFile(GameLines(row.line), "f_i.c", bot);
    EXPECT_EQ(bot.Parameter(Id(row.index)), row.value) << row.line;
    EXPECT_EQ(report.plain_values, row.plain_values) << row.line;
  }
}

}  // namespace
}  // namespace fragsmith
