#include "inplace/edit_in_place.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

#include "botfiles/left_out.h"
#include "model/characteristic_catalogue.h"
#include "tests/inplace/editing.h"
#include "tests/support/ids.h"

namespace fragsmith {
namespace {

using ::testing::AllOf;
using ::testing::EndsWith;
using ::testing::HasSubstr;
using ::testing::StartsWith;

constexpr ParameterId kAttack4{Level::k4, kAttackSkillIndex};
constexpr ParameterId kRocketSkill4{Level::k4, 26};
constexpr ParameterId kRailgun{49};
constexpr ParameterId kShotgun{45};

/// Line ends of all kinds but the CR alone, TABs and blanks, comments, keys of
/// other games, texts in two encodings, no end of line at the end.
const std::string kUglyCharacter =
    "// by somebody, caf\xC3\xA9\r\n"
    "#include \"chars.h\"\n"
    "#define BRAVE 0.9 /* used below */\r\n"
    "skill 1 { // weak\n"
    "\tCHARACTERISTIC_NAME\t\t\t\t\t\t\t\"Rook\"\n"
    "  CHARACTERISTIC_ATTACK_SKILL                 0.250\r\n"
    "\tCHARACTERISTIC_CHAT_KILL\t\t\t\t\t0.5\n"
    "\tCHARACTERISTIC_AIM_SKILL_PLASMAGUN\t\t\t0.3 // a comment behind\n"
    "}\n"
    "\n"
    "skill 4\r\n"
    "{\r\n"
    "\tCHARACTERISTIC_NAME\t\t\t\t\t\t\t\"Rook\"\r\n"
    "\tCHARACTERISTIC_GENDER\t\t\t\t\t\t\"m\xE4nnlich\"\r\n"
    "\t/* inside */ CHARACTERISTIC_ATTACK_SKILL .5 // and behind\r\n"
    "\tCHARACTERISTIC_REACTIONTIME\t\t\t\t\t2.00\r\n"
    "\tCHARACTERISTIC_VIEW_MAXCHANGE\t\t\t\t90\r\n"
    "\tCHARACTERISTIC_WALKER\t\t\t\t\t\t0.000\r\n"
    "\tCHARACTERISTIC_CHAT_KILL\t\t\t\t\t0.5\r\n"
    "\tCHARACTERISTIC_AGGRESSION\t\t\t\t\tBRAVE\r\n"
    "}\n"
    "skill 5 {\n"
    "\tCHARACTERISTIC_NAME\t\t\t\t\t\t\t\"Rook\"\n"
    "\tCHARACTERISTIC_CHAT_KILL\t\t\t\t\t0.75\n"
    "\tCHARACTERISTIC_VENGEFULNESS\t\t\t\t\tBRAVE\n"
    "}";

TEST(EditInPlaceTest, ReplacesTheTokenOfACharacteristicAlone) {
  const LoadedFile file(BotFile::kCharacteristics, kUglyCharacter);
  EXPECT_EQ(file.Difference(file.Edited(file.before())), "");
  // In the way in which the old one is written.
  EXPECT_EQ(file.Difference(file.Edited({Level::k1, kAttackSkillIndex}, 0.7)),
            "-  CHARACTERISTIC_ATTACK_SKILL                 0.250\r\n"
            "+  CHARACTERISTIC_ATTACK_SKILL                 0.700\r\n");
  EXPECT_EQ(
      file.Difference(file.Edited(kAttack4, 0.25)),
      "-\t/* inside */ CHARACTERISTIC_ATTACK_SKILL .5 // and behind\r\n"
      "+\t/* inside */ CHARACTERISTIC_ATTACK_SKILL 0.25 // and behind\r\n");
  EXPECT_EQ(file.Difference(file.Edited({Level::k4, kReactionTimeIndex}, 3.0)),
            "-\tCHARACTERISTIC_REACTIONTIME\t\t\t\t\t2.00\r\n"
            "+\tCHARACTERISTIC_REACTIONTIME\t\t\t\t\t3.00\r\n");
  EXPECT_EQ(
      file.Difference(file.Edited({Level::k4, kViewMaxChangeIndex}, 120.0)),
      "-\tCHARACTERISTIC_VIEW_MAXCHANGE\t\t\t\t90\r\n"
      "+\tCHARACTERISTIC_VIEW_MAXCHANGE\t\t\t\t120\r\n");
  EXPECT_EQ(file.Difference(file.Edited({Level::k1, 28}, 0.4)),
            "-\tCHARACTERISTIC_AIM_SKILL_PLASMAGUN\t\t\t0.3 // a comment "
            "behind\n"
            "+\tCHARACTERISTIC_AIM_SKILL_PLASMAGUN\t\t\t0.4 // a comment "
            "behind\n");
}

TEST(EditInPlaceTest, ChangesWhatABotHasOnceInEachBlock) {
  const LoadedFile file(BotFile::kCharacteristics, kUglyCharacter);
  EXPECT_EQ(file.Difference(file.Edited(ParameterId(36), 1.0)),
            "-\tCHARACTERISTIC_CHAT_KILL\t\t\t\t\t0.5\n"
            "+\tCHARACTERISTIC_CHAT_KILL\t\t\t\t\t1.0\n"
            "-\tCHARACTERISTIC_CHAT_KILL\t\t\t\t\t0.5\r\n"
            "+\tCHARACTERISTIC_CHAT_KILL\t\t\t\t\t1.0\r\n"
            "-\tCHARACTERISTIC_CHAT_KILL\t\t\t\t\t0.75\n"
            "+\tCHARACTERISTIC_CHAT_KILL\t\t\t\t\t1.0\n");
}

TEST(EditInPlaceTest, PutsALineWhereOurWriterWouldAndTakesOneOut) {
  const LoadedFile file(BotFile::kCharacteristics, kUglyCharacter);
  EXPECT_EQ(file.Difference(file.Edited(kRocketSkill4, 0.5)),
            "+\tCHARACTERISTIC_AIM_SKILL_ROCKETLAUNCHER\t\t0.5\r\n");
  EXPECT_EQ(file.Difference(file.Edited({Level::k1, 3}, 0.5)),
            "+  CHARACTERISTIC_AIM_SKILL                    0.5\r\n");
  // 0 is none: the game's default character decides, and the comment stays.
  EXPECT_EQ(file.Difference(file.Edited({Level::k1, 28}, 0.0)),
            "-\tCHARACTERISTIC_AIM_SKILL_PLASMAGUN\t\t\t0.3 // a comment "
            "behind\n"
            "+\t // a comment behind\n");
}

TEST(EditInPlaceTest, ReplacesAMacroWhereItIsUsedAndRefusesWhatTwoShare) {
  const LoadedFile file(BotFile::kCharacteristics, kUglyCharacter);
  EXPECT_EQ(file.Difference(file.Edited({Level::k4, 12}, 0.4)),
            "-\tCHARACTERISTIC_AGGRESSION\t\t\t\t\tBRAVE\r\n"
            "+\tCHARACTERISTIC_AGGRESSION\t\t\t\t\t0.4\r\n");
}

TEST(EditInPlaceTest, RefusesWhatTheTwoReadersSeeInTwoPlaces) {
  const LoadedFile file(BotFile::kCharacteristics,
                        "#include \"chars.h\"\n"
                        "skill 4\n{\n"
                        "#ifdef HARD\n"
                        "\tCHARACTERISTIC_ATTACK_SKILL\t\t\t\t\t0.9\n"
                        "#else\n"
                        "\tCHARACTERISTIC_ATTACK_SKILL\t\t\t\t\t0.4\n"
                        "#endif\n"
                        "#ifndef HARD\n"
                        "\tCHARACTERISTIC_AIM_SKILL\t\t\t\t\t0.3\n"
                        "#else\n"
                        "\tCHARACTERISTIC_AIM_SKILL\t\t\t\t\t0.8\n"
                        "#endif\n"
                        "}\n");
  EXPECT_EQ(file.Difference(file.Edited(kAttack4, 0.5)),
            "-\tCHARACTERISTIC_ATTACK_SKILL\t\t\t\t\t0.4\n"
            "+\tCHARACTERISTIC_ATTACK_SKILL\t\t\t\t\t0.5\n");
  EXPECT_EQ(file.Difference(file.Edited({Level::k4, 3}, 0.5)),
            "\"Aim skill\" at level 4 cannot be changed in place. The game "
            "takes the value from line 10 of the file, and a load takes that "
            "of line 12. Remove one of them first.");
  // More digits than a load reads.
  EXPECT_FALSE(file.Edited(kAttack4, 0.12345));
  EXPECT_FALSE(file.Edited({Level::k1, kAttackSkillIndex}, 0.5));
  EXPECT_FALSE(file.Edited(kGenderField, "a \"quoted\" word"));
}

TEST(EditInPlaceTest, KeepsToTheMacrosOfAWeightFile) {
  const LoadedFile file(BotFile::kWeaponWeights,
                        "#include \"inv.h\"\r\n"
                        "#define W_GAUNTLET 20 // hands\r\n"
                        "#define W_SHOTGUN\t\t\t\t010\r\n"
                        "#define W_SHOTGUN\t\t\t\t30\n"
                        "#define MINE 7\n"
                        "#include \"fw_weap.c\"");
  EXPECT_EQ(file.Difference(file.Edited(kShotgun, 45.0)),
            "-#define W_SHOTGUN\t\t\t\t30\n+#define W_SHOTGUN\t\t\t\t45\n");
  EXPECT_EQ(file.Difference(file.Edited(ParameterId(44), 35.0)),
            "-#define W_GAUNTLET 20 // hands\r\n"
            "+#define W_GAUNTLET\t\t\t\t35 // hands\r\n");
  EXPECT_EQ(file.Difference(file.Edited(kRailgun, 150.0)),
            "+#define W_RAILGUN\t\t\t\t150\n");
}

/// Weight code of a game of our own, in place of what the game has.
std::optional<std::string> OtherGame(std::string_view path) {
  if (path == "other.c") {
    return "#define F(x) (x < 0 ? 1 : x)\n"
           "weight \"Shotgun\" { switch(INVENTORY_SHOTGUN) {\n"
           "case 1: return 0; default: switch(INVENTORY_SHELLS) {\n"
           "case 1: return 0; default: return $evalint(F(BANG)*0.5); } } }\n"
           "weight \"Railgun\" { switch(INVENTORY_RAILGUN) {\n"
           "case 1: return 0; default: return SLUG; } }\n";
  }
  return StandInGameFile(path);
}

TEST(EditInPlaceTest, FindsWeightsByTheWeightCodeOfTheGame) {
  const LoadedFile file(BotFile::kWeaponWeights,
                        "#include \"inv.h\"\n"
                        "#define BANG 120\n"
                        "#define TWICE SLUG\n"
                        "#define SLUG 90\n"
                        "weight \"Gauntlet\" { return 15; }\n"
                        "weight \"Machinegun\" { switch(ENEMY_HEIGHT) {\n"
                        "case 100: return 70; default: return 80; } }\n"
                        "#include \"other.c\"\n",
                        "rook", OtherGame);
  EXPECT_EQ(file.before().Parameter(kShotgun), Value(120.0));
  EXPECT_EQ(file.before().Parameter(kRailgun), Value(90.0));
  EXPECT_EQ(file.before().Parameter(ParameterId(44)), Value(15.0));
  EXPECT_EQ(file.before().Parameter(ParameterId(46)), Value(80.0));
  ASSERT_EQ(file.notes().list().size(), 4U);
  EXPECT_EQ(file.notes().list()[0].text,
            "Weights that the file sets in its own way, as the game's weight "
            "code takes them: \"Gauntlet usage\" from the number in line 5, "
            "\"Shotgun usage\" from BANG (line 2), \"Machinegun usage\" from "
            "the number in line 7, \"Railgun usage\" from SLUG (line 4).");
  EXPECT_EQ(file.notes().list()[1].text, AlsoInFile({}, 0, 1, "TWICE").text);
  EXPECT_EQ(
      file.notes().list()[2].text,
      "The weight code takes no number of the file, or no single one, "
      "for \"Grenade launcher usage\", \"Rocket launcher usage\", "
      "\"BFG10K usage\", \"Lightning gun usage\", \"Plasma gun usage\", "
      "\"Grapple usage\". The 0 shown there is none of the bot's values.");
  EXPECT_EQ(file.Difference(file.Edited(kShotgun, 60.0)),
            "-#define BANG 120\n+#define BANG 60\n");
  EXPECT_EQ(file.Difference(file.Edited(kRailgun, 60.0)),
            "-#define SLUG 90\n+#define SLUG 60\n");
  EXPECT_EQ(file.Difference(file.Edited(ParameterId(44), 16.0)),
            "-weight \"Gauntlet\" { return 15; }\n"
            "+weight \"Gauntlet\" { return 16; }\n");
  EXPECT_FALSE(file.Edited(ParameterId(46), 90.0));
  EXPECT_FALSE(file.Edited(ParameterId(50), 90.0));
}

TEST(EditInPlaceTest, RefusesANumberThatOtherWeightsShare) {
  const LoadedFile code(BotFile::kWeaponWeights,
                        "#include \"inv.h\"\n#define SLUG BANG\n"
                        "#define BANG 120\n#define BASE 100\n"
                        "weight \"Gauntlet\" { return BASE; }\n"
                        "weight \"Nailgun\" { return BASE; }\n"
                        "#include \"other.c\"\n",
                        "rook", OtherGame);
  EXPECT_EQ(code.Difference(code.Edited(kShotgun, 60.0)),
            "\"Shotgun usage\" cannot be changed in place. Another value would "
            "change with it: \"Railgun usage\".");
  EXPECT_EQ(code.Difference(code.Edited(kRailgun, 60.0)),
            "\"Railgun usage\" cannot be changed in place. Another value would "
            "change with it: \"Shotgun usage\".");
  EXPECT_EQ(code.Difference(code.Edited(ParameterId(44), 60.0)),
            "\"Gauntlet usage\" cannot be changed in place. Another value "
            "would change with it: \"Nailgun\".");
  std::string all = "#include \"inv.h\"\n";
  for (const int index : kWeaponWeightRange) {
    const bool is_shared = index == kRailgun.index();
    all += std::string(PaddedKey(index)) + (is_shared ? "W_SHOTGUN" : "100");
    all += '\n';
  }
  const LoadedFile ours(BotFile::kWeaponWeights,
                        all + "#include \"fw_weap.c\"\n");
  EXPECT_EQ(ours.Difference(ours.Edited(kShotgun, 250.0)),
            "\"Shotgun usage\" cannot be changed in place. Another value would "
            "change with it: \"W_RAILGUN\".");
}

TEST(EditInPlaceTest, SaysWhyAWeightThatIsNoPlainNumberStays) {
  for (const std::string odd : {"-5", "(50*2)", "200;"}) {
    std::string all = "#include \"inv.h\"\n";
    for (const int index : kWeaponWeightRange) {
      all += std::string(PaddedKey(index)) +
             (index == kShotgun.index() ? odd : "100") + '\n';
    }
    const LoadedFile file(BotFile::kWeaponWeights,
                          all + "#include \"fw_weap.c\"\n");
    EXPECT_EQ(file.Difference(file.Edited(kShotgun, 60.0)),
              "\"Shotgun usage\" cannot be changed in place. The file gives "
              "W_SHOTGUN the value \"" +
                  odd +
                  "\", and only a plain number can be changed. Write one there "
                  "first, such as 50.");
  }
  const LoadedFile plain(BotFile::kWeaponWeights, "#define W_SHOTGUN 50\n");
  EXPECT_EQ(plain.Difference(plain.Edited(kShotgun, -5.0)),
            "\"Shotgun usage\" cannot be changed in place. The game's files "
            "have no negative numbers. Use 0 or more.");
  const LoadedFile open(BotFile::kWeaponWeights, "#define W_SHOTGUN 5\"0\n");
  EXPECT_THAT(open.Difference(open.Edited(kShotgun, 60.0)),
              HasSubstr("take this file as it is: line 1: A quotation mark"));
}

TEST(EditInPlaceTest, SaysInPlainWordsWhatTheFilesCannotHold) {
  const LoadedFile character(BotFile::kCharacteristics, kUglyCharacter);
  EXPECT_THAT(character.Difference(character.Edited(kGenderField, "x\"y")),
              EndsWith("no double quote within a text. Take it out."));
  EXPECT_THAT(character.Difference(character.Edited(kGenderField, "x\\y")),
              EndsWith("the letter behind it for one sign. Take it out."));
  const LoadedFile weights(
      BotFile::kWeaponWeights,
      "#define W_RAILGUN\t\t\t\t50\n#include \"fw_weap.c\"\n");
  EXPECT_THAT(weights.Difference(weights.Edited(kRailgun, 0.00001)),
              EndsWith("three digits behind the point, no more, and 0.00001 "
                       "has more. Round it."));
  const std::string odd = "#define/**/W_RAILGUN/*50*/50\n#define RGW 4\n";
  const LoadedFile commented(
      BotFile::kWeaponWeights,
      odd + "weight \"Railgun\" { return W_RAILGUN; }\n");
  EXPECT_EQ(commented.Difference(commented.Edited(kRailgun, 60.0)),
            "-#define/**/W_RAILGUN/*50*/50\n+#define/**/W_RAILGUN/*50*/60\n");
  const LoadedFile braces(BotFile::kChat,
                          "chat \"rook\"\n{\n\ttype \"game_enter\" {}\n}\n");
  EXPECT_THAT(braces.Difference(braces.Edited(TypeAt(0), {"in"})),
              EndsWith("The braces of this type stand in one line. Put each of "
                       "them into a line of its own first."));
}

TEST(EditInPlaceTest, PadsALineThatOurReaderWouldReadOtherwise) {
  const LoadedFile character(BotFile::kCharacteristics,
                             "#include \"chars.h\"\nskill 4\n{\n"
                             "\tCHARACTERISTIC_AIM_SKILL 0.3\n}\n");
  const auto edited = character.Edited({Level::k4, 3}, 0.45);
  EXPECT_EQ(character.Difference(edited),
            "-\tCHARACTERISTIC_AIM_SKILL 0.3\n"
            "+\tCHARACTERISTIC_AIM_SKILL\t\t\t\t\t0.45\n");
  ASSERT_TRUE(edited);
  EXPECT_EQ(
      ToNumber(character.readers().Read(*edited).bot.Parameter({Level::k4, 3})),
      0.45);
}

TEST(EditInPlaceTest, GivesTheGameTheNumbersThatItMisses) {
  const auto game = [](std::string_view path) {
    return path.ends_with("code.c")
               ? "weight \"Gauntlet\" { return W_GAUNTLET; }\n"
                 "weight \"Railgun\" { return W_RAILGUN; }\n"
                 "weight \"Shotgun\" { return W_SHOTGUN; }\n"
               : StandInGameFile(path);
  };
  const LoadedFile file(BotFile::kWeaponWeights,
                        "#include \"inv.h\"\n#define W_GAUNTLET\t\t\t\t20\n"
                        "#include \"code.c\"\n",
                        "rook", game);
  Bot after = file.before();
  after.Put(kRailgun, 70.0);
  after.Put(kShotgun, 30.0);
  const Result<std::string> edited = file.Edited(after);
  ASSERT_TRUE(edited) << edited.error().what;
  EXPECT_THAT(file.Difference(edited), HasSubstr("#define W_RAILGUN"));
  EXPECT_EQ(file.readers().Read(*edited).first_error, "");
}

TEST(EditInPlaceTest, LeavesCommentsAlone) {
  // The game throws the first block away, and our reader takes a comment for
  // the value in the other.
  const LoadedFile thrown(
      BotFile::kCharacteristics,
      "#include \"chars.h\"\nskill 1\n{\n"
      "\tCHARACTERISTIC_HOPPER\t1\n"
      "\tCHARACTERISTIC_AIM_ACCURACY_BFG10K\t/* was 0.2 */\t0.1\n}\n");
  EXPECT_FALSE(thrown.Edited({Level::k1, 24}, 0.5));
  const LoadedFile commented(BotFile::kCharacteristics,
                             "#include \"chars.h\"\nskill 4\n{\n"
                             "/* \tCHARACTERISTIC_CHAT_KILL\t\t\t\t\t0.6 */\n"
                             "\tCHARACTERISTIC_CHAT_KILL\t\t\t\t\t0.5\n}\n");
  EXPECT_EQ(commented.Difference(commented.Edited(ParameterId(36), 1.0)),
            "-\tCHARACTERISTIC_CHAT_KILL\t\t\t\t\t0.5\n"
            "+\tCHARACTERISTIC_CHAT_KILL\t\t\t\t\t1.0\n");
}

TEST(EditInPlaceTest, TellsOfWhatOneValueTakesThePlace) {
  const auto edited_with_notes = [](const LoadedFile& file, ParameterId id,
                                    Value value) {
    Bot after = file.before();
    after.Put(id, std::move(value));
    Notes notes;
    const auto edited = EditInPlace(file.readers(), file.bytes(), file.before(),
                                    after, {}, {&notes});
    EXPECT_TRUE(edited) << edited.error().what;
    std::string told;
    for (const Note& note : notes.list()) told += note.text + '\n';
    return std::pair(file.Difference(edited), told);
  };
  // Two levels have it in columns in which a load sees something else.
  const LoadedFile levels(BotFile::kCharacteristics,
                          "#include \"chars.h\"\n"
                          "skill 1\n{\n\tCHARACTERISTIC_CHAT_KILL 0.5\n}\n"
                          "skill 4\n{\n CHARACTERISTIC_CHAT_KILL 0.7\n}\n"
                          "skill 5\n{\n}\n");
  const auto [kill, old_values] =
      edited_with_notes(levels, ParameterId(36), 0.25);
  EXPECT_THAT(kill, HasSubstr("-\tCHARACTERISTIC_CHAT_KILL 0.5\n"));
  EXPECT_THAT(kill, HasSubstr("- CHARACTERISTIC_CHAT_KILL 0.7\n"));
  EXPECT_THAT(old_values, HasSubstr("0.5 at level 1, 0.7 at level 4, no value "
                                    "at level 5; now each"));

  const std::string begin = "{\nname rook\naifile bots/rook_c.c\n";
  const LoadedFile utf8(BotFile::kDescription,
                        begin + "funname\t\"Ren\xC3\xA9\"\n}\n");
  const auto [name, encoding] =
      edited_with_notes(utf8, kFunNameField, "Andr\xE9");
  EXPECT_THAT(name, EndsWith("+funname\t\"Andr\xE9\"\n"));
  EXPECT_THAT(encoding, HasSubstr("Windows-1252, in a file that was in UTF-8"));
  EXPECT_EQ(edited_with_notes(utf8, kFunNameField, "Andr\xC3\xA9").second, "");
  const LoadedFile ascii(BotFile::kDescription, begin + "}\n");
  const auto [added, none] =
      edited_with_notes(ascii, kFunNameField, "Andr\xE9");
  EXPECT_THAT(added, HasSubstr("\"Andr\xE9\""));
  EXPECT_EQ(none, "");
}

TEST(EditInPlaceTest, KeepsTheCommentBehindAField) {
  const auto file_with = [](const std::string& line) {
    return LoadedFile(BotFile::kDescription,
                      "{\nname rook\n" + line + "\naifile bots/rook_c.c\n}\n");
  };
  const auto expect = [&](std::string line, std::string later,
                          const std::string& comment, ParameterId field,
                          const std::string& text) {
    line += comment;
    later += comment;
    const LoadedFile file = file_with(line);
    std::string difference = "-" + line;
    difference.append("\n+").append(later).append("\n");
    EXPECT_EQ(file.Difference(file.Edited(field, text)), difference);
  };
  for (const std::string comment :
       {" // why", "\t// it's \"me\"", "//", " /* why */"}) {
    for (const std::string start : {"funname ", "funname \t"}) {
      const std::string later = start + "\"Max II\"";
      expect(start + "\"x\"", later, comment, kFunNameField, "Max II");
      expect(start + "\"x y\"", later, comment, kFunNameField, "Max II");
    }
    if (comment == "//") continue;
    expect("model grism", "model grism/blue", comment, kSkinField, "blue");
  }
  const LoadedFile inside = file_with("funname /* why */ x");
  EXPECT_THAT(inside.Difference(inside.Edited(kFunNameField, "Max")),
              HasSubstr("A load takes the comment in its line for a part"));
  const LoadedFile weights(BotFile::kWeaponWeights,
                           "#include \"inv.h\"\n"
                           "#define W_RAILGUN\t\t\t\t50 // why\n"
                           "#include \"fw_weap.c\"\n");
  EXPECT_EQ(weights.Difference(weights.Edited(kRailgun, 70.0)),
            "-#define W_RAILGUN\t\t\t\t50 // why\n"
            "+#define W_RAILGUN\t\t\t\t70 // why\n");
}

TEST(EditInPlaceTest, KeepsTheCommentBetweenKeyAndValue) {
  for (const std::string comment :
       {" /*x*/ ", "\t\t\t\t/*x*/", " /* 1 *//*2*/ "}) {
    for (const std::string end : {"\n", " // why\n"}) {
      const std::string define = "#define W_RAILGUN" + comment;
      const LoadedFile weights(
          BotFile::kWeaponWeights,
          define + "280" + end + "#include \"fw_weap.c\"\n");
      EXPECT_EQ(weights.Difference(weights.Edited(kRailgun, 70.0)),
                "-" + define + "280" + end + "+" + define + "70" + end);
      const std::string key = "CHARACTERISTIC_ATTACK_SKILL" + comment;
      const LoadedFile character(
          BotFile::kCharacteristics,
          "#include \"chars.h\"\nskill 4\n{\n" + key + "0.5" + end + "}\n");
      EXPECT_EQ(character.Difference(character.Edited(kAttack4, 0.25)),
                "-" + key + "0.5" + end + "+" + key + "0.25" + end);
    }
  }
}

const std::string kUglyDescriptions =
    "// all of them\r\n"
    "{\n"
    "name\tother\n"
    "model\tmajor\n"
    "aifile\tbots/other_c.c\n"
    "}\n"
    "{ // ours\r\n"
    "\tname   \"Rook\"\r\n"
    "\tmodel\tsarge/Classic // the old one\r\n"
    "\taifile\tbots/rook_c.c\r\n"
    "\tspecial\t7\r\n"
    "}\n";

TEST(EditInPlaceTest, TouchesThisBotsBlockOfADescriptionAlone) {
  const LoadedFile file(BotFile::kDescription, kUglyDescriptions);
  Bot bot = file.before();
  bot.Put(kFunNameField, "^1Mr. Rook");
  EXPECT_EQ(file.Difference(file.Edited(bot)),
            "+\tfunname\t\"^1Mr. Rook\"\r\n");
  bot = file.before();
  bot.Put(kRailColorField, 4.0);
  EXPECT_EQ(file.Difference(file.Edited(bot)), "+\tcolor\t\t4\r\n");
  bot = file.before();
  bot.Put(kNameField, "Tower");
  EXPECT_EQ(file.Difference(file.Edited(bot)),
            "-\tname   \"Rook\"\r\n+\tname   \"Tower\"\r\n");
}

TEST(EditInPlaceTest, KeepsTheNameOfOneOfSeveralWithTheSameFiles) {
  const LoadedFile file(BotFile::kDescription,
                        "{\nname Other\nmodel major\naifile bots/rook_c.c\n}\n"
                        "{\nname Rook\nmodel sarge\naifile bots/rook_c.c\n}\n");
  EXPECT_THAT(file.Difference(file.Edited(kNameField, "Tower")),
              HasSubstr("\"Other\" has the same files, and without the old"));
}

TEST(EditInPlaceTest, ReplacesAndTakesOutFieldsOfADescription) {
  const LoadedFile file(BotFile::kDescription,
                        "{\nname rook\nmodel sarge\nfunname \"A B\"\n"
                        "arenaLord 1\naifile bots/rook_c.c\n}");
  Bot bot = file.before();
  bot.Put(kModelField, "Major");
  bot.Put(kSkinField, "Red");
  EXPECT_EQ(file.Difference(file.Edited(bot)),
            "-model sarge\n+model major/red\n");
  EXPECT_EQ(file.Difference(file.Edited(kFunNameField, std::string())),
            "-funname \"A B\"\n");
  EXPECT_EQ(file.Difference(file.Edited(kArenaLordField, 0.0)),
            "-arenaLord 1\n+arenaLord 0\n");
  // What the game has no place for is named.
  for (const char* const name : {"A;b", "A\"b", "A\\b"}) {
    EXPECT_THAT(file.Difference(file.Edited(kFunNameField, name)),
                HasSubstr("The game throws away a line with " +
                          std::string(name).substr(1, 1) + " in its value."));
  }
  EXPECT_THAT(file.Difference(file.Edited(kModelField, "my model")),
              HasSubstr("has a blank in its name. Take it out."));
}

TEST(EditInPlaceTest, EditsLinesOfADescriptionThatSayNothingOrSayItAgain) {
  struct Case {
    const char* lines;
    ParameterId field;
    const char* value;
    const char* difference;
  };
  for (const Case& one : {
           // The game throws a value with a ; away, and knows the one before.
           Case{"funname x;y\n", kFunNameField, "Joe",
                "-funname x;y\n+funname\tJoe\n"},
           Case{"funname a\nfunname x;y\n", kFunNameField, "Joe",
                "-funname x;y\n+funname\tJoe\n"},
           Case{"funname x;y\n", kFunNameField, "", "-funname x;y\n"},
           Case{"funname a\nfunname b\n", kFunNameField, "",
                "\"Funname\" cannot be changed in place. Its key stands in "
                "line 4, too, and that line would count then. Take it out "
                "first."},
           Case{"funname\n", kFunNameField, "Joe", "-funname\n+funname\tJoe\n"},
           Case{"color 4\ncolor 3\n", kRailColorField, "2",
                "-color 3\n+color 2\n"},
           // A load wants a "/" behind the key where one stands before it.
           Case{"gender a/b model sarge\n", kModelField, "Major",
                "-gender a/b model sarge\n+gender a/b model major/default\n"},
       }) {
    const LoadedFile file(BotFile::kDescription,
                          "{\nname rook\naifile bots/rook_c.c\n" +
                              std::string(one.lines) + "}\n");
    EXPECT_EQ(file.Difference(file.Edited(one.field, std::string(one.value))),
              one.difference)
        << one.lines;
  }
}

TEST(EditInPlaceTest, RefusesADescriptionWhoseLinesHoldMore) {
  for (const std::string& text :
       {std::string("{\nname Rook\nmodel sarge aifile bots/rook_c.c\n}\n"),
        std::string("{ name Rook model sarge aifile bots/rook_c.c }\n"),
        std::string("{\nname Rook\nmodel sarge\naifile bots/rook_c.c\n}{name "
                    "Rook2 model x/y aifile bots/rook_c.c}\n")}) {
    const LoadedFile file(BotFile::kDescription, text);
    for (const ParameterId half : {kSkinField, kModelField}) {
      EXPECT_THAT(file.Difference(file.Edited(half, "Other")),
                  HasSubstr("into a line of its own first."))
          << text;
    }
  }
}

TEST(EditInPlaceTest, AddsNoLineBesideAKeyThatACommentSpoils) {
  const LoadedFile file(BotFile::kDescription,
                        "{\nname Rook\nmodel/**/ sarge\nfunname//x Joe\n"
                        "aifile bots/rook_c.c\n}\n");
  EXPECT_THAT(file.Difference(file.Edited(kSkinField, "blue")),
              HasSubstr("In line 3 a comment stands right behind the key"));
  EXPECT_THAT(file.Difference(file.Edited(kFunNameField, "Max")),
              HasSubstr("In line 4 a comment stands right behind the key"));
}

TEST(EditInPlaceTest, SaysWhyALineCannotBeWritten) {
  const auto chat_with = [](const std::string& lines) {
    return LoadedFile(
        BotFile::kChat,
        "chat \"rook\"\n{\n\ttype \"game_enter\"\n\t{\n" + lines + "\t}\n}\n");
  };
  const ChatTypeId enter = TypeAt(0);
  const LoadedFile whole = chat_with("\t\t\"one\";\n");
  const auto refusal_of = [&](std::string line) {
    return whole.Difference(whole.Edited(enter, {std::move(line)}));
  };
  EXPECT_THAT(refusal_of("say \"hi\""), HasSubstr("no double quote"));
  EXPECT_THAT(refusal_of(std::string("a\0b", 3)), HasSubstr("the number 0"));
  EXPECT_THAT(refusal_of(std::string(300, 'x')), HasSubstr("is too long"));
  // The game has not read it, and so nothing can go behind it.
  const LoadedFile open = chat_with("\t\t\"one\"\n");
  EXPECT_THAT(open.Difference(open.Edited(enter, {"one", "two"})),
              HasSubstr("A ; is missing at the end of this line"));
}

TEST(EditInPlaceTest, SaysThatADescriptionStandsInOneLine) {
  const LoadedFile file(BotFile::kDescription,
                        "{ name rook model sarge aifile bots/rook_c.c }\n");
  EXPECT_THAT(file.Difference(file.Edited(kFunNameField, "Joe")),
              HasSubstr("The description stands in one line."));
}

TEST(EditInPlaceTest, EditsTheColorThatTheGameReads) {
  const auto edited = [](const std::string& lines, Value color) {
    const LoadedFile file(BotFile::kDescription,
                          "{\nname rook\nmodel sarge\nfunname Joe\n" + lines +
                              "aifile bots/rook_c.c\n}\n");
    return file.Difference(file.Edited(kRailColorField, std::move(color)));
  };
  for (const std::string line : {"color1 5", "Color1\t5", "color1\t\t\"5\""}) {
    std::string later = line;
    later.replace(later.find('5'), 1, "7");
    for (const std::string comment : {"", " // why"}) {
      EXPECT_EQ(edited(line + comment + "\n", 7.0),
                "-" + line + comment + "\n+" + later + comment + "\n");
    }
    EXPECT_EQ(edited("color2 3\n" + line + "\n", 7.0),
              "-" + line + "\n+" + later + "\n");
    EXPECT_EQ(edited(line + "\n", "None"), "-" + line + "\n");
  }
  EXPECT_THAT(edited("color2 3\ncolor1 5\n", "None"),
              HasSubstr("A load takes it from line 5 then, where its key"));
  EXPECT_EQ(edited("color2 3\n", 7.0), "+color  7\n");
  EXPECT_THAT(edited("color1 5\ncolor2 3\n", 7.0),
              HasSubstr("A load takes it from line 6, where its key"));
  EXPECT_THAT(edited("color1 5 color2 3\n", 7.0),
              HasSubstr("More than this value stands in its line"));
}

const std::string kUglyChat =
    "#include \"teamplay.h\"\r\n"
    "chat \"rook\"\r\n"
    "{\r\n"
    "\ttype \"game_enter\" // hello\n"
    "\t{\r\n"
    "\t\t\"one\"; // first\r\n"
    "\t\t// 0 = bot name\r\n"
    "    0 , \" two\";\n"
    "\t\tHELLO1;\n"
    "\t} //end\n"
    "\ttype \"game_exit\"\n"
    "\t{\n"
    "\t}\n"
    "\ttype \"unknown_type\"\n"
    "\t{\n"
    "\t\t\"kept\";\n"
    "\t}\n"
    "}";

TEST(EditInPlaceTest, ReplacesChatLinesOneByOne) {
  const LoadedFile file(BotFile::kChat, kUglyChat);
  const ChatTypeId enter = TypeAt(0);
  const std::vector<std::string> lines = file.before().ChatLines(enter);
  ASSERT_EQ(lines.size(), 3U);
  EXPECT_EQ(file.Difference(file.Edited(enter, {"uno", lines[1], lines[2]})),
            "-\t\t\"one\"; // first\r\n+\t\t\"uno\"; // first\r\n");
  EXPECT_EQ(file.Difference(file.Edited(enter, {lines[0], lines[2]})),
            "-    0 , \" two\";\n");
  EXPECT_EQ(file.Difference(file.Edited(enter, {"new", lines[0], lines[1], "",
                                                "newer", lines[2], "last"})),
            "+\t\t\"new\";\r\n+    \"newer\";\n+\t\t\"last\";\n");
  EXPECT_EQ(file.Difference(file.Edited(TypeAt(1), {"kept", "bye", "so long"})),
            "+\t\t\"bye\";\n+\t\t\"so long\";\n");
  EXPECT_EQ(file.Difference(file.Edited(enter, {})),
            "-\t\t\"one\"; // first\r\n+\t\t // first\r\n"
            "-    0 , \" two\";\n-\t\tHELLO1;\n");
  // A type that the file lacks: not where a type that we do not know, whose
  // lines count for the one before it, would then count for the new one.
  const Result<std::string> more = file.Edited(TypeAt(2), {"go"});
  ASSERT_TRUE(more);
  EXPECT_TRUE(
      more->ends_with("\t\t\"kept\";\n\t}\n\n\ttype \"level_start\"\n"
                      "\t{\n\t\t\"go\";\n\t}\n}"));
  EXPECT_EQ(file.Difference(more),
            "+\n+\ttype \"level_start\"\n+\t{\n+\t\t\"go\";\n+\t}\n");
}

TEST(EditInPlaceTest, WritesALineThatComesAgainAsItsAuthorDid) {
  const std::string chat =
      "chat \"rook\"\n{\n\ttype \"game_enter\"\n\t{\n\t\tTAUNT0;\n"
      "\t\t0 , \" in\"; // me\n\t}\n\ttype \"death_bfg\"\n\t{\n"
      "\t\t\"no\";\n\t}\n}\n";
  const LoadedFile file(BotFile::kChat, chat);
  Bot after = file.before();
  const std::vector<std::string> lines = after.ChatLines(TypeAt(0));
  ASSERT_EQ(lines.size(), 2U);
  // From one type to another, and a copy of the other line.
  after.RemoveChatLine(TypeAt(0), ChatLineIndex(0));
  after.SetChatLine(TypeAt(0), ChatLineIndex(1), lines[1]);
  after.SetChatLine(TypeAt(17), ChatLineIndex(1), lines[0]);
  EXPECT_EQ(file.Difference(file.Edited(after)),
            "-\t\tTAUNT0;\n+\t\t0 , \" in\";\n+\t\tTAUNT0;\n");
  // The same words elsewhere are another line where the numbers mean other
  // things.
  after = file.before();
  after.SetChatLine(TypeAt(17), ChatLineIndex(1), lines[1]);
  EXPECT_THAT(file.Difference(file.Edited(after)),
              AllOf(StartsWith("+\t\t\""), EndsWith(" in\";\n")));

  // A line that is gone is known from before.
  const BothReaders readers(
      {BotFile::kChat, "file", "rook", {{lines[0], "TAUNT0;"}}},
      StandInGameFile);
  const std::string without = chat.substr(0, chat.find("\t\tTAUNT0")) +
                              chat.substr(chat.find("\t\t0 ,"));
  const Bot before = readers.Read(without).bot;
  EXPECT_EQ(LoadedFile::Changed(
                without, *EditInPlace(readers, without, before, file.before())),
            "+\t\tTAUNT0;\n");
}

TEST(EditInPlaceTest, RefusesChatLinesThatTheGameReadsOtherwise) {
  const LoadedFile file(BotFile::kChat,
                        "chat \"rook\"\n{\n\ttype \"game_enter\"\n\t{\n"
                        "\t\t\"one\"; \"two\";\n\t\t\"and\n\t\tmore\";\n"
                        "\t}\n}\n");
  EXPECT_FALSE(file.Edited(TypeAt(0), {"new"}));
  const LoadedFile good(BotFile::kChat, kUglyChat);
  EXPECT_FALSE(good.Edited(TypeAt(1), {"a \"quote\" in it"}));
  EXPECT_FALSE(good.Edited(TypeAt(1), {std::string(300, 'x')}));
}

}  // namespace
}  // namespace fragsmith
