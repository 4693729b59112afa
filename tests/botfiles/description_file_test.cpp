#include "botfiles/description_file.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>

#include "botfiles/left_out.h"
#include "botfiles/standard_identity.h"
#include "model/characteristic_catalogue.h"
#include "tests/support/game_lines.h"
#include "tests/support/ids.h"
#include "tests/support/set_parameter.h"

namespace fragsmith {
namespace {

using ::testing::AllOf;
using ::testing::Contains;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;

/// "fun name|rail colour|model|skin|arena lord" of a bot, and the reverse.
std::string Looks(const Bot& bot) {
  return bot.Text(Id(2)) + "|" + bot.Text(Id(3)) + "|" + bot.Text(Id(5)) + "|" +
         bot.Text(Id(6)) + "|" + bot.Text(Id(10));
}

Bot BotWith(const std::string& name, std::string_view looks) {
  Bot bot;
  Set(bot, kNameField, name);
  for (const int field : {2, 3, 5, 6, 10}) {
    const std::size_t end = looks.find('|');
    Set(bot, Id(field), std::string(looks.substr(0, end)));
    looks.remove_prefix(std::min(end, looks.size() - 1) + 1);
  }
  return bot;
}

TEST(DescriptionFile, IsWrittenToTheByte) {
  const std::pair<std::string_view, std::string> cases[] = {
      {"|None|Sarge|Default|0", "model>>sarge|%"},
      {"^1N^2ix|4|Sarge|Blue|1",
       "model>>sarge/blue|funname>^1N^2ix|color>>4|%arenaLord>1|"},
      {"\"Big Nix\"|none|RedBot|DEFAULT|2",
       "model>>RedBot|funname>\"Big Nix\"|color>>none|%"},
      {"||X|bLue|-1", "model>>x/bLue|color>>|%"},
      {"|None|\xC4\xD6|Sarge-2A|0", "model>>\xE4\xF6/Sarge-2A|%"}};
  for (const auto& [looks, lines] : cases) {
    std::string body = "|{|name>>Nix|" + lines + "}|";
    body.replace(body.find('%'), 1, "aifile>bots/nix_c.c|");
    const Bot bot = BotWith("Nix", looks);
    EXPECT_EQ(WriteDescriptionFile(bot, {}),
              HeaderComment(bot, {}) + GameLines(body));
  }
}

TEST(DescriptionFile, ReadsOddLinesByItsOwnRules) {
  // clang-format off
  const struct {
    std::string_view lines;
    std::string_view looks;
    std::size_t odd_fields;  ///< That the game reads otherwise.
  } cases[] = {{"{|name>>X|model>>Biker/Hossman|funname>^1H|color>>3|"
                "aifile>bots/x_c.c|arenaLord>1|}|",
                "^1H|3|Biker|Hossman|1", 0},
               {" {", "|None|M|S|5", 0}, {"model a/b/c", "|None|a|b/c|5", 0},
      {"MODEL>>A>B", "|None|AB|default|5", 1},
      {"model B F / R S", "|None|BF|RS|5", 2},
      // A path before the key parts nothing: that line names a file.
      {"aifile bots/supermodel_c.c", "|None|M|S|5", 0},
      {"funname \"A B\";", " \"A B|None|M|S|5", 1},
      {"funname>\"A B\";", "A B|None|M|S|5", 0},
      {"funname>0.10", "0.1|None|M|S|5", 1},
      {"FunName>a|funname>b", "b|None|M|S|5", 0},
      {"color>>red", "|red|M|S|5", 0}, {"color 4 ", "|4|M|S|5", 0},
      {"color1>4", "|14|M|S|5", 1}, {"ARENALORD>-3", "|None|M|S|-3", 0},
      // One line may feed several fields.
      {"funname>colormodelx/y", "colormodelx/y|modelx/y|x|y|5", 3},
      {"// no model has color", "||M|S|5", 1},
      {"arenalord 2.5", "|None|M|S|2", 1},
      // No number of 16 bits: the old value stays.
      {"arenaLord>99999", "|None|M|S|5", 0},
      {"arenaLord>\"1\"", "|None|M|S|5", 1}, {"color2>5", "|25|M|S|5", 1},
      {"color>3|color1>4", "|14|M|S|5", 1},
      {"model>>\x93x/y\x94", "|None|\x93x|y\x94|5", 2},
      // Of several bots the one with the file, or with the name.
      {"{|model>a|}|{|name>n|model>b|}", "|None|b|default|5", 0},
      {"{|name>N|color>3|}|{|aifile>bots/n_c.c|model>b|} {|name n|}",
       "|None|b|default|5", 0},
      // A brace that the key is glued to takes nothing from the one before.
      {"{|model>a|aifile bots/n_c.c|}|{|name N|model>b|aifile bots/n_c.c|}|"
       "{name O model c aifile bots/o_c.c}",
       "|None|b|default|5", 0}};
  // clang-format on
  for (const auto& row : cases) {
    Bot bot = BotWith("N", "old|9|M|S|5");
    const DescriptionReport report =
        ReadDescriptionFile(GameLines(row.lines), "f.bot", bot);
    EXPECT_EQ(Looks(bot), row.looks) << row.lines;
    EXPECT_EQ(report.plain_values.size(), row.odd_fields) << row.lines;
  }
  Bot bot;
  const DescriptionReport report = ReadDescriptionFile(
      "name N\nmodel m\naifile bots/n_c.c\nfunname \xE4 b\narenaLord \xE4",
      "f.bot", bot);
  EXPECT_THAT(Described(report.notes),
              ElementsAre("f.bot:4: funname: read as \" ä b\", but the game "
                          "takes \"b\".",
                          "f.bot:5: arenaLord: \" ä\" is not a number. The "
                          "bot keeps its value."));
}

TEST(DescriptionFile, TellsWhatItLacksAndWhatItHasTwice) {
  const std::string whole = "{|name N|aifile bots/n_c.c|model m|funname>F|";
  const auto notes = [](const std::string& lines) {
    Bot bot;
    return Described(ReadDescriptionFile(GameLines(lines), "f.bot", bot).notes);
  };
  EXPECT_THAT(notes(whole + "}"), IsEmpty());
  EXPECT_THAT(notes("{|name N|aifile bots/n_c.c|}"),
              ElementsAre(HasSubstr("no model, so the game takes its own")));
  EXPECT_THAT(notes("{|model m|}"),
              ElementsAre(HasSubstr("no name"), HasSubstr("no aifile")));
  EXPECT_THAT(notes("// nothing"),
              Contains(HasSubstr("The game finds no bot in this file")));
  EXPECT_THAT(notes(whole + "model n|model m|}"),
              ElementsAre(AllOf(HasSubstr("f.bot:4: "),
                                HasSubstr("model \"m\" (line 4), model \"n\" "
                                          "(line 6)"))));
}

TEST(StandardIdentity, GivesStandardBotsTheirLooks) {
  // clang-format off
  const std::pair<std::string, std::string> cases[] = {
      {"Anarki", "^1A^2n^3a^4r^5k^6i|None|Anarki|Default|1"},
      {"Cadavre", "|None|Biker|Cadavre|7"}, {"Angel", "|None|Lucy|Angel|7"},
      {"Hossman", "|None|Biker|Hossman|7"}, {"Daemia", "|None|Major|Daemia|7"},
      {"Patriot", "|None|Razor|Patriot|7"}, {"Gorre", "|None|Visor|Gorre|7"},
      {"Phobos", "|None|Doom|Phobos|7"}, {"Stripe", "|None|Grunt|Stripe|7"},
      {"Wrack", "|None|Ranger|Wrack|7"}, {"Sarge", "|None|Sarge|Default|1"},
      {"Hunter", "|None|Hunter|Default|1"}, {"Uriel", "|None|Uriel|Default|1"},
      {"Xaero", "|None|Xaero|Default|1"}, {"Klesk", "|None|Klesk|Default|1"},
      {"Bones", "|None|Bones|Default|7"}};
  // clang-format on
  for (const auto& [name, looks] : cases) {
    Bot bot = BotWith(name, "old|3|M|S|7");
    // Another case is another bot.
    SetStandardIdentity(bot, {bot.Text(Id(85))});
    EXPECT_EQ(Looks(bot), "|None|Sarge|Default|7");
    SetStandardIdentity(bot, {name});
    EXPECT_EQ(Looks(bot), looks);
  }
  Bot bot = BotWith("Anarki", "|3|M|S|0");
  FillStandardIdentity(bot, true, {"Anarki"});
  EXPECT_EQ(Looks(bot), "^1A^2n^3a^4r^5k^6i|3|M|S|0");
  bot = BotWith("Anarki", "own|3|M|S|0");
  FillStandardIdentity(bot, false, {"Klesk"});
  EXPECT_EQ(Looks(bot), "own|3|M|S|0");
  FillStandardIdentity(bot, false, {"Anarki"});
  EXPECT_EQ(Looks(bot), "own|3|M|S|1");
}

}  // namespace
}  // namespace fragsmith
