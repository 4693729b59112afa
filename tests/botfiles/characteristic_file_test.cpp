#include "botfiles/characteristic_file.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "botfiles/left_out.h"
#include "model/characteristic_catalogue.h"
#include "tests/support/game_lines.h"
#include "tests/support/ids.h"
#include "tests/support/set_parameter.h"

namespace fragsmith {
namespace {

using ::testing::Contains;
using ::testing::Each;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::Pair;

// Of a block; "@" is its level and "~" what the values of that level end in.
constexpr std::string_view kLines = R"(
>$NAME>>>>>>>"Nix"|>$GENDER>>>>>>"it"|>$ATTACK_SKILL>>>>>@02~|
>$WEAPONWEIGHTS>>>>"bots/nix_w.c"|>$AIM_SKILL>>>>>@03~|
>$AIM_ACCURACY>>>>>@04~|>$VIEW_FACTOR>>>>>@05~|>$VIEW_MAXCHANGE>>>>@06~|
>$REACTIONTIME>>>>>@07~||>$CHAT_FILE>>>>>"bots/nix_t.c"|>$CHAT_NAME>>>>>"nix"|
>$CHAT_CPM>>>>>>31.5|>$CHAT_INSULT>>>>>32.5|>$CHAT_MISC>>>>>33.5|
>$CHAT_STARTENDLEVEL>>>34.5|>$CHAT_ENTEREXITGAME>>>35.5|>$CHAT_KILL>>>>>36.5|
>$CHAT_DEATH>>>>>37.5|>$CHAT_ENEMYSUICIDE>>>38.5|>$CHAT_HITTALKING>>>>39.5|
>$CHAT_HITNODEATH>>>>40.5|>$CHAT_HITNOKILL>>>>41.5|>$CHAT_RANDOM>>>>>42.5|
>$CHAT_REPLY>>>>>43.5||>$CROUCHER>>>>>>@08~|>$JUMPER>>>>>>@09~|
>$WEAPONJUMPING>>>>@10~|>$GRAPPLE_USER>>>>>@11~||
>$ITEMWEIGHTS>>>>>"bots/nix_i.c"|>$AGGRESSION>>>>>@12~|
>$SELFPRESERVATION>>>>@13~|>$VENGEFULNESS>>>>>@14~|>$CAMPER>>>>>>@15~||
>$EASY_FRAGGER>>>>>@16~|>$ALERTNESS>>>>>@17~||)";
constexpr std::string_view kOptionalLines = R"(
>$AIM_ACCURACY_MACHINEGUN>>@18~|>$AIM_ACCURACY_SHOTGUN>>>@19~|
>$AIM_ACCURACY_ROCKETLAUNCHER>@20~|>$AIM_ACCURACY_GRENADELAUNCHER>@21~|
>$AIM_ACCURACY_LIGHTNING>>@22~|>$AIM_ACCURACY_PLASMAGUN>>@23~|
>$AIM_ACCURACY_RAILGUN>>>@24~|>$AIM_ACCURACY_BFG10K>>>@25~|
>$AIM_SKILL_ROCKETLAUNCHER>>@26~|>$AIM_SKILL_GRENADELAUNCHER>@27~|
>$AIM_SKILL_PLASMAGUN>>>@28~|>$AIM_SKILL_BFG10K>>>>@29~||
>$FIRETHROTTLE>>>>>@30~|)";

std::string Filled(std::string_view lines, char level, std::string_view end) {
  std::string filled;
  for (const char letter : lines) {
    if (letter == '~') {
      filled += end;
    } else {
      filled += letter == '@' ? level : letter;
    }
  }
  return filled;
}

/// Level 1 has two optional values, one of them odd; level 4 the fire
/// throttle alone; level 5 everything, as floats.
Bot DistinctiveBot() {
  Bot bot;
  Set(bot, kNameField, "Nix");
  Set(bot, kGenderField, "it");
  for (int index = 2; index <= 30; ++index) {
    const bool is_optional = index >= 18;
    Set(bot, Id(100 + index), is_optional ? 0.0 : 100.0 + index);
    Set(bot, Id(400 + index), is_optional ? -1.0 : 400.0 + index);
    Set(bot, Id(500 + index), static_cast<float>(500 + index) + 0.1F);
  }
  Set(bot, Id(119), 0.1F);
  Set(bot, Id(122), "x;");
  Set(bot, Id(430), 0.7F);
  for (int index = 31; index <= 43; ++index) {
    Set(bot, Id(index), index + 0.5);
  }
  return bot;
}

TEST(CharacteristicFile, IsWrittenToTheByte) {
  const Bot bot = DistinctiveBot();
  const std::string body =
      "|#include \"chars.h\"||skill 1|{|" + Filled(kLines, '1', "") +
      ">$AIM_ACCURACY_SHOTGUN>>>0.1|>$AIM_ACCURACY_LIGHTNING>>\"x;\"|}||"
      "skill 4|{|" +
      Filled(kLines, '4', "") + "|>$FIRETHROTTLE>>>>>0.7|}||skill 5|{|" +
      Filled(kLines, '5', ".1") + Filled(kOptionalLines, '5', ".1") + "}|";
  EXPECT_EQ(WriteCharacteristicFile(bot, {}),
            HeaderComment(bot, {}) + GameLines(body));
}

/// Reads lines of level 4 into a bot whose jumper is 7 there.
ReadReport Read(const std::string& lines, Bot& bot) {
  Set(bot, Id(409), 7.0);
  return ReadCharacteristicFile(GameLines("skill 4|" + lines), "f_c.c",
                                ReadIdentity::kNo, bot);
}

TEST(CharacteristicFile, TakesValuesByThePaddingOfTheKey) {
  const std::string huge(40, '9');
  const struct {
    std::string line;
    Value value;
    std::optional<Value> plain;  ///< Where the game reads something else.
  } cases[] = {
      {">$JUMPER>>>>>>0.5", 0.5F, {}},
      {">$JUMPER>>>>>>>.125 ", 0.125F, {}},
      // One TAB less: the column falls on the last TAB, or on the value.
      {">$JUMPER>>>>>0.5", 0.5F, {}},
      {"$JUMPER>>>>>0.25", 0.25F, {}},
      // Still less: what stands left of the column is lost.
      {"$JUMPER>>>>1.25", 0.25F, 1.25},
      {">$JUMPER>>>42", 2.0, 42.0},
      {">$JUMPER 0.75 // x", "5 // x", 0.75},
      // Nothing at the column, or the key itself: what follows the key.
      {">$JUMPER>>>4 ", 4.0, {}},
      {">$JUMPER 0.5", 0.5F, {}},
      {"$JUMPER                        0.5", 0.5F, {}},
      {">>>>>>>>>$JUMPER 0.5 0.75", 0.5F, {}},
      // Nothing behind the key at all leaves it empty, not as it was.
      {">$JUMPER>>>>>> > ", {}, {}},
      {">$JUMPER", {}, {}},
      // A comment for the game, but not for these rules.
      {">// $JUMPER>>>>>>0.5", 0.5F, 7.0},
      {"/* $JUMPER>>>>>>0.5", 0.5F, 7.0},
      {"/* x */ $JUMPER>>>>>>0.5", 0.5F, {}},
      {">$JUMPER>>>>>>0.1234", 0.0F, 0.1234},
      {">$JUMPER>>>>>>-0.5", 0.5F, -0.5},
      {">$JUMPER>>>>>>-2", -2.0, {}},
      {">$JUMPER>>>>>>0.5 // x", "0.5 // x", 0.5},
      {">$JUMPER>>>>>>\"a b\" c", "a b\" c", "a b"},
      // Letters outside of quotes that the game takes for blanks.
      {">$JUMPER>>>>>>\xC4\xFF", "\xC4\xFF", Value()},
      {">$JUMPER>>>>>>" + huge + ".5", huge + ".5", 1e40},
      // Lines that hold no value.
      {"//>$JUMPER>>>>>>0.5", 7.0, {}},
      {"}>$JUMPER>>>>>>0.5", 7.0, 0.5},
      {"{>$JUMPER>>>>>>0.5", 7.0, 0.5},
      {">$JUMPER|>>0.5", {}, 0.5},
      {">characteristic_jumper>>>>>>0.5", 7.0, {}}};
  for (const auto& row : cases) {
    Bot bot;
    const ReadReport report = Read(row.line, bot);
    EXPECT_EQ(bot.Parameter(Id(409)), row.value) << row.line;
    if (row.plain) {
      EXPECT_THAT(report.plain_values, ElementsAre(Pair(Id(409), *row.plain)));
      EXPECT_THAT(NotedLines(report.notes), Each(2)) << row.line;
      EXPECT_FALSE(report.notes.empty()) << row.line;
    } else {
      EXPECT_THAT(report.plain_values, IsEmpty()) << row.line;
    }
  }
}

TEST(CharacteristicFile, NamesPlaceAndBothValuesInNotes) {
  Bot bot;
  const ReadReport report = Read(
      ">$JUMPER>>>>>>0.1234||>$CHAT_KILL>>>>>\"\xE4;\" x|"
      ">$CAMPER>>>>>>a|>$ALERTNESS>>>>>-2",
      bot);
  EXPECT_THAT(
      Described(report.notes),
      ElementsAre("f_c.c:2: CHARACTERISTIC_JUMPER of level 4: read as "
                  "0, but 0.1234 stands behind the key.",
                  "f_c.c:4: CHARACTERISTIC_CHAT_KILL: read as \"ä;\" "
                  "x\", but \"ä;\" stands behind the key.",
                  "f_c.c:5: CHARACTERISTIC_CAMPER of level 4: \"a\" "
                  "is not a number; it is kept as text, and a save puts "
                  "quotes around it.",
                  "f_c.c:6: CHARACTERISTIC_ALERTNESS of level 4: a "
                  "save writes 02 for -2.",
                  Describe(AlsoInFile("f_c.c", 4, 1, "x"))));
  // Of two, each as it was read.
  EXPECT_THAT(Described(Read(">$CAMPER>>>>>>0.25||>$CAMPER>0.99", bot).notes),
              Contains(HasSubstr("f_c.c:2: The file has several values where a "
                                 "bot has one. The last one counts, and a save "
                                 "writes it everywhere: CHARACTERISTIC_CAMPER "
                                 "of level 4: 0.25 gives way to 9.")));
}

TEST(CharacteristicFile, TakesTheFirstKeyOfTheCatalogue) {
  Bot bot;
  EXPECT_THAT(Read(">$AIM_SKILL>>>>>3|>$AIM_SKILL_RAILGUN>>>>99|"
                   ">$CHAT_NAME>>>>>\"x\"|>$CROUCHER>>>>>>8 $ATTACK_SKILL 2|",
                   bot)
                  .given,
              ::testing::IsSupersetOf({Id(403), Id(402), Id(408)}));
  EXPECT_EQ(bot.Text(Id(403)) + bot.Text(Id(402)) + bot.Text(Id(408)), "32");
  EXPECT_EQ(bot.Text(kChatNameField), "bot");
}

TEST(CharacteristicFile, KnowsSkillLines) {
  const struct {
    std::string line;
    int level;      ///< Of the value behind the line; 0 for none.
    bool is_noted;  ///< The line is no such one for the game, or no bare one.
  } cases[] = {{"skill 4", 4, false},      {"skill>4", 4, false},
               {"> skill  5>{", 5, false}, {"skill 4{", 4, false},
               {"skill 4//x", 4, true},    {"skill 04", 4, false},
               {"} skill 4", 4, true},     {"/* hard */ skill 4", 4, true},
               {"skill4", 4, true},        {"skill 4x", 1, true},
               {"skill 4.0", 1, true},     {"skill -4", 1, true},
               {"skill", 1, true},         {"Skill 4", 1, true},
               {"// skill 4", 1, true},    {"a skill 4", 1, true},
               {">\"skill 4\"", 1, true},  {"skill 2", 0, true},
               {"skill 11", 0, true},      {"skill 44444444444444", 0, true}};
  for (const auto& row : cases) {
    Bot bot;
    const ReadReport report = ReadCharacteristicFile(
        GameLines("skill 1|" + row.line + "|>$JUMPER>>>>>>9"), "f",
        ReadIdentity::kNo, bot);
    for (const Level level : kLevels) {
      EXPECT_EQ(bot.Text(ParameterId(level, 9)),
                NumberOf(level) == row.level ? "9" : "");
    }
    EXPECT_EQ(!report.notes.empty(), row.is_noted) << row.line;
  }
  // A byte order mark is nothing to the game, also where files were joined.
  for (const char* const above : {"", "skill 1\n{\n}\n"}) {
    Bot bot;
    EXPECT_THAT(ReadCharacteristicFile(above + ("\xEF\xBB\xBFskill 5\n" +
                                                GameLines(">$JUMPER>>>>>>9")),
                                       "f", ReadIdentity::kNo, bot)
                    .given,
                Contains(Id(509)));
    EXPECT_EQ(bot.Text(Id(509)), "9") << above;
  }
}

TEST(CharacteristicFile, OffersWhatTheGameReadsInAnotherLevel) {
  Bot bot;
  const ReadReport report = Read(
      ">$JUMPER>>>>>>1|skill 5.0|>$JUMPER>>>>>>2|>$CAMPER>>>>>>3|"
      "skill 4|>$JUMPER>>>>>>4|",
      bot);
  EXPECT_THAT(
      report.plain_values,
      ElementsAre(Pair(Id(409), Value(1.0)), Pair(Id(415), Value()),
                  Pair(Id(509), Value(2.0)), Pair(Id(515), Value(3.0))));
  // One note for a block, not one for each of its keys.
  EXPECT_THAT(NotedLines(report.notes), ElementsAre(2, 3, 6));
}

TEST(CharacteristicFile, KnowsTheLevelsOfOneLineAsTheGameDoes) {
  Bot bot;
  const ReadReport report = ReadCharacteristicFile(
      GameLines(
          "skill 1 { $JUMPER 1 } skill 4 { $JUMPER 4 } skill 5 { $JUMPER 5 }"),
      "f", ReadIdentity::kNo, bot);
  for (const Level level : kLevels) {
    const ParameterId jumper(level, 9);
    EXPECT_EQ(report.plain_values.at(jumper), Value(1.0 * NumberOf(level)));
    EXPECT_TRUE(report.Gives(jumper));
  }
}

TEST(CharacteristicFile, SkipsUnknownLevelsButNotTheirSingleValues) {
  Bot bot;
  const std::string values = ">$JUMPER>>>>>>1|>$CROUCHER>>>>>>1|>$CHAT_KILL ";
  const ReadReport report = ReadCharacteristicFile(
      GameLines(values + "1|skill 2|" + values + "2|skill 3|" + values +
                "3|skill 4|>$CAMPER>>>>>>0.5|"),
      "f", ReadIdentity::kNo, bot);
  EXPECT_THAT(NotedLines(report.notes), ElementsAre(1, 3, 5, 9));
  EXPECT_EQ(bot.Text(Id(36)), "3");
  EXPECT_EQ(bot.Text(Id(415)), "0.5");
}

TEST(CharacteristicFile, ForgetsWhatALaterLinePutsRight) {
  Bot bot;
  EXPECT_THAT(Read(">$CHAT_KILL>>>>>-0.5|>$CHAT_MISC>>>>>0.5|"
                   ">$CHAT_KILL>>>>>0.25|>$CHAT_MISC>>>>>0.1234|",
                   bot)
                  .plain_values,
              ElementsAre(Pair(Id(33), Value(0.1234))));
  EXPECT_EQ(bot.Text(Id(36)), "0.25");
}

TEST(CharacteristicFile, TakesTheIdentityOnlyWhenAsked) {
  const std::string lines =
      ">$NAME>>>>>>>\"Big \xC4x\"|>$GENDER>>>>>>\"fe male\"|";
  Bot bot;
  Set(bot, kCommentField, "c");
  Set(bot, kVersionMajorField, 3.0);
  EXPECT_FALSE(Read(lines, bot).Gives(kNameField));
  EXPECT_EQ(bot.Name() + bot.Text(Id(1)) + bot.Text(Id(9)) + bot.Text(Id(7)),
            "Botmalec3");
  EXPECT_THAT(
      ReadCharacteristicFile(GameLines(lines), "f", ReadIdentity::kYes, bot)
          .given,
      ElementsAre(kNameField, kGenderField));
  EXPECT_EQ(bot.Name() + bot.Text(Id(1)) + bot.Text(Id(9)) + bot.Text(Id(7)),
            "Big\xC4xfemale0");
  EXPECT_EQ(bot.Text(Id(85)), "big\xE4x");
}

}  // namespace
}  // namespace fragsmith
