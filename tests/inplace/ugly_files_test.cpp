// Files in which the game takes something else than stands in a plain line:
// what is included, undefined, passed over, there twice, or of other types.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <ctime>
#include <map>
#include <optional>
#include <string>
#include <tuple>
#include <utility>
#include <vector>

#include "chat/chat_catalogue.h"
#include "inplace/game_values.h"
#include "model/characteristic_catalogue.h"
#include "tests/inplace/editing.h"
#include "tests/inplace/game_view.h"
#include "tests/support/ids.h"

namespace fragsmith {
namespace {

using ::testing::AllOf;
using ::testing::ElementsAre;
using ::testing::EndsWith;
using ::testing::HasSubstr;
using ::testing::Key;
using ::testing::Not;

constexpr ParameterId kAttack1{Level::k1, kAttackSkillIndex};
constexpr ParameterId kAttack4{Level::k4, kAttackSkillIndex};
constexpr ParameterId kAim1{Level::k1, 3};
constexpr ParameterId kChatReply{43};
constexpr ParameterId kRailgun{49};
constexpr ParameterId kQuad{74};

/// Files of the bot's own that others include.
IncludeLookup With(std::map<std::string, std::string, std::less<>> own) {
  return [own = std::move(own)](std::string_view path) {
    const auto found = own.find(path);
    return found == own.end() ? StandInGameFile(path)
                              : std::optional(found->second);
  };
}

std::string Characteristic(const std::string& key, const std::string& value) {
  return "\tCHARACTERISTIC_" + key + "\t\t\t\t\t" + value + "\n";
}

std::string AllWeapons(const std::string& railgun) {
  std::string text = "#include \"inv.h\"\n";
  for (const int index : kWeaponWeightRange) {
    text += index == kRailgun.index() ? railgun
                                      : std::string(PaddedKey(index)) + "50\n";
  }
  return text;
}

const std::string kRail50 = std::string(PaddedKey(49)) + "50\n";
const std::string kRail70 = std::string(PaddedKey(49)) + "70\n";
const std::string kInclude = "#include \"fw_weap.c\"\n";

TEST(UglyFilesTest, RefusesACharacteristicOfAnIncludedFile) {
  const std::string head = "#include \"chars.h\"\nskill 1\n{\n";
  const std::string aim = Characteristic("AIM_SKILL", "0.3");
  const std::string attack = Characteristic("ATTACK_SKILL", "0.4");
  const LoadedFile line(BotFile::kCharacteristics,
                        head + "#include \"more.h\"\n" + aim + "}\n", "rook",
                        With({{"more.h", attack}}));
  EXPECT_THAT(
      line.Difference(line.Edited(kAttack1, 0.7)),
      HasSubstr("At level 1 the game takes the value from a file that is "
                "included."));
  EXPECT_EQ(line.Difference(line.Edited(kAim1, 0.7)),
            "-" + aim + "+" + Characteristic("AIM_SKILL", "0.7"));

  // A macro of that file may give way to a number.
  const LoadedFile macro(
      BotFile::kCharacteristics,
      head + aim + Characteristic("ATTACK_SKILL", "BRAVE") + "}\n", "rook",
      [](std::string_view path) -> std::optional<std::string> {
        if (path != "chars.h") return StandInGameFile(path);
        return *StandInGameFile(path) + "#define BRAVE 0.9\n";
      });
  EXPECT_EQ(macro.Difference(macro.Edited(kAttack1, 0.7)),
            "-" + Characteristic("ATTACK_SKILL", "BRAVE") + "+" +
                Characteristic("ATTACK_SKILL", "0.7"));
}

TEST(UglyFilesTest, RefusesWhatALevelOfAnIncludedFileHasToo) {
  const std::string reply = Characteristic("CHAT_REPLY", "0.5");
  const std::string attack = Characteristic("ATTACK_SKILL", "0.4");
  const std::string file = "#include \"chars.h\"\nskill 1\n{\n" + reply +
                           attack + "}\n#include \"rest.h\"\n";
  const std::string rest = "skill 4\n{\n" + reply + attack + "}\n";
  const LoadedFile known(BotFile::kCharacteristics, file, "rook",
                         With({{"rest.h", rest}}));
  EXPECT_THAT(known.Difference(known.Edited(kChatReply, 1.0)),
              HasSubstr("At level 4 the game takes the value from a file"));
  EXPECT_THAT(known.Difference(known.Edited(kAttack4, 1.0)),
              HasSubstr("At level 4 the game takes the value from a file"));
  EXPECT_EQ(known.Difference(known.Edited(kAttack1, 1.0)),
            "-" + attack + "+" + Characteristic("ATTACK_SKILL", "1.0"));
  // Nobody knows what would be in it.
  const LoadedFile unknown(BotFile::kCharacteristics, file);
  EXPECT_THAT(unknown.Difference(unknown.Edited(kChatReply, 1.0)),
              HasSubstr("There is no file botfiles/rest.h to include."));
  EXPECT_TRUE(unknown.Edited(kAttack1, 1.0));
}

TEST(UglyFilesTest, KnowsCharacteristicsByTheirBareNumbers) {
  std::string bytes = "#include \"chars.h\"\n";
  for (const int level : {1, 2, 4, 5}) {
    bytes += "skill " + std::to_string(level) +
             " {\n  0 \"Rook\"\n  1 \"female\"\n\t28\t0.5 // how often\n"
             "  44 0.0" +
             std::to_string(level) + "\n  48 0.3\n  19 0.4 }\n";
  }
  const LoadedFile file(BotFile::kCharacteristics, bytes);
  EXPECT_EQ(file.before().Name(), "Rook");
  EXPECT_EQ(file.before().Text(ParameterId(36)), "0.5");
  EXPECT_EQ(file.before().Text({Level::k4, 15}), "0.04");
  EXPECT_EQ(file.Difference(file.Edited({Level::k4, 15}, 0.25)),
            "-  44 0.04\n+  44 0.25\n");
  EXPECT_EQ(file.Difference(file.Edited(ParameterId(36), 0.75)),
            "-\t28\t0.5 // how often\n+\t28\t0.75 // how often\n"
            "-\t28\t0.5 // how often\n+\t28\t0.75 // how often\n"
            "-\t28\t0.5 // how often\n+\t28\t0.75 // how often\n");
  // Without a value the number goes as well, and no other line.
  EXPECT_EQ(file.Difference(file.Edited({Level::k1, 28}, 0.0)),
            "-  19 0.4 }\n+   }\n");
  EXPECT_EQ(file.Difference(file.Edited({Level::k5, 17}, 0.5)),
            "+  CHARACTERISTIC_ALERTNESS 0.5\n");

  // One that is no characteristic of a bot here, or has nothing behind it.
  const LoadedFile strays(
      BotFile::kCharacteristics,
      "skill 4\n{\nCHARACTERISTIC_VIEW_MAXCHANGE\t\t\t\t360 5\n}\n");
  EXPECT_EQ(strays.before().Text({Level::k4, kViewMaxChangeIndex}), "360 5");
}

TEST(UglyFilesTest, RefusesALevelThatTheGameDoesNotRead) {
  const LoadedFile twice(BotFile::kCharacteristics,
                         "#include \"chars.h\"\nskill 1\n{\n" +
                             Characteristic("ATTACK_SKILL", "0.5") +
                             Characteristic("ATTACK_SKILL", "0.5") +
                             "}\nskill 4\n{\n" +
                             Characteristic("ATTACK_SKILL", "0.5") + "}\n");
  EXPECT_THAT(twice.Difference(twice.Edited(kAttack1, 0.7)),
              HasSubstr("ATTACK_SKILL stands twice in skill block 1"));
  EXPECT_TRUE(twice.Edited(kAttack4, 0.7));
  const LoadedFile passed_over(
      BotFile::kCharacteristics,
      "#include \"chars.h\"\nskill 1\n{\n" +
          Characteristic("AIM_SKILL", "0.3") + "#if 0\n" +
          Characteristic("ATTACK_SKILL", "0.5") + "#endif\n}\n");
  EXPECT_FALSE(passed_over.Edited(kAttack1, 0.7));
}

/// A value for all levels, which a load takes from where it stands last.
TEST(UglyFilesTest, TakesNumbersOfOurMacrosAsTheGameDoes) {
  const std::string bytes = std::string(PaddedKey(45)) + "0430\n" +
                            std::string(PaddedKey(46)) + "0x10\n" +
                            std::string(PaddedKey(47)) + "08\n" +
                            "#define\tW_RAILGUN 0430\n#include \"fw_weap.c\"\n";
  const LoadedFile file(BotFile::kWeaponWeights, bytes);
  LoadedBot loaded;
  loaded.bot = file.before();
  TakeGameNumbers(BotFile::kWeaponWeights, "file", bytes, StandInGameFile,
                  loaded);
  EXPECT_EQ(loaded.plain_values,
            (std::map<ParameterId, Value>{{Id(45), 280.0}, {Id(46), 16.0}}));
  EXPECT_EQ(file.before().Parameter(kRailgun), Value(280.0));
  EXPECT_EQ(file.Difference(file.Edited(kRailgun, 430.0)),
            "-#define\tW_RAILGUN 0430\n+#define\tW_RAILGUN 430\n");
}

TEST(UglyFilesTest, LeavesLinesThatTheGamePassesOver) {
  const std::string half = Characteristic("CHAT_KILL", "0.5");
  const std::string more = Characteristic("CHAT_KILL", "0.7");
  const std::string easy = "\tCHARACTERISTIC_CHAT_KILL EASY // or 0.1\n";
  const auto level = [](const char* number, const std::string& lines) {
    return "skill " + std::string(number) + "\n{\n" +
           Characteristic("AIM_SKILL", "0.3") + lines + "}\n";
  };
  const auto edited = [](const std::string& levels) {
    const LoadedFile file(
        BotFile::kCharacteristics,
        "#define X 1\n#define EASY 0.3\n#include \"chars.h\"\n" + levels);
    return file.Difference(file.Edited(ParameterId(36), 0.7));
  };
  const std::string either =
      "#ifdef X\n" + easy + "#else\n" + half + "#endif\n";
  EXPECT_EQ(edited(level("1", either) + level("4", half)),
            "-#define EASY 0.3\n+#define EASY 0.7\n-" + half + "+" + more);
  EXPECT_THAT(edited(level("1", half) + level("4", either)),
              HasSubstr("A load takes the value from line 15, which the game "
                        "passes over."));
  // Another level stays too, unless a load takes the value from there.
  for (const std::string& other : {easy, half}) {
    EXPECT_EQ(edited(level("1", half) + level("3", other) + level("4", half)),
              "-" + half + "+" + more + "-" + half + "+" + more);
  }
  EXPECT_EQ(edited(level("1", half) + level("3", half)),
            "-" + half + "+" + more + "-" + half + "+" + more);
  for (const std::string& other :
       {easy, std::string("\tCHARACTERISTIC_CHAT_KILL 1 UNKNOWN_KEY 1\n")}) {
    EXPECT_THAT(edited(level("1", half) + level("3", other)),
                HasSubstr("A load reads line 12 otherwise than the game does"));
  }
}

TEST(UglyFilesTest, RefusesWhatTheGameCalculates) {
  const LoadedFile file(
      BotFile::kCharacteristics,
      "#include \"chars.h\"\nskill 1\n{\n" +
          Characteristic("ATTACK_SKILL", "$evalfloat(0.2 + 0.2)") + "}\n");
  EXPECT_THAT(file.Difference(file.Edited(kAttack1, 0.7)),
              HasSubstr("The file has the game calculate it"));
}

TEST(UglyFilesTest, RefusesAWeightThatTheGameTakesFromElsewhere) {
  struct Case {
    std::string bytes;
    std::string refusal;
  };
  const std::vector<Case> cases = {
      {AllWeapons(kRail50) + kInclude + kRail70,
       "The game takes the value from line 7 of the file, and a load takes "
       "that of line 13. Remove one of them first."},
      {AllWeapons("#define W_RAILGUN \\\n190\n") + kInclude,
       "Line 7 goes on in the next one, and a load reads no further than the "
       "line. Join the lines first."},
      {AllWeapons("#define\tW_RAILGUN\n") + kInclude,
       "The file gives W_RAILGUN no value. Write a number behind it first"},
      {AllWeapons("#define\tW_RAILGUN\tHIGH\n") + kInclude,
       "The file gives W_RAILGUN the value \"HIGH\""},
      {AllWeapons("") + kInclude + kRail50,
       "This #include stands above the #define of W_RAILGUN"},
      {AllWeapons(kRail50 + "#undef W_RAILGUN\n") + kInclude,
       "This line takes the value of W_RAILGUN away."},
      {AllWeapons("#if 0\n" + kRail50 + "#endif\n") + kInclude,
       "asks for W_RAILGUN, which has no value."},
      {AllWeapons(kRail50 + "#if 0\n" + kRail70 + "#endif\n") + kInclude,
       "The game takes the value from line 7 of the file, and a load takes "
       "that of line 9."},
      {AllWeapons(kRail50) + "#include \"more.h\"\n" + kInclude,
       "or takes it from one that is included."}};
  const IncludeLookup game = With({{"more.h", "#define W_RAILGUN 60\n"}});
  for (const Case& one : cases) {
    const LoadedFile file(BotFile::kWeaponWeights, one.bytes, "rook", game);
    EXPECT_THAT(file.Difference(file.Edited(kRailgun, 150.0)),
                HasSubstr(one.refusal))
        << one.bytes;
  }
}

TEST(UglyFilesTest, EditsALineThatTheGameAloneReads) {
  const std::string own = "weight \"Railgun\" { return W_RAILGUN; }\n";
  for (const auto& [line, shown, edited_line] :
       std::vector<std::tuple<std::string, double, std::string>>{
           {"#define\tW_RAILGUN\t280\n", 280, "#define\tW_RAILGUN\t155\n"},
           {"#define  W_RAILGUN 280\n", 280, "#define  W_RAILGUN 155\n"},
           {"  #  define W_RAILGUN 280 // x\n", 280,
            "  #  define W_RAILGUN 155 // x\n"},
           {"#define\tW_RAILGUN 0240\n", 160, "#define\tW_RAILGUN 155\n"}}) {
    for (const std::string& end : {kInclude, own}) {
      const LoadedFile file(BotFile::kWeaponWeights, AllWeapons(line) + end);
      EXPECT_EQ(file.before().Parameter(kRailgun), Value(shown)) << line;
      for (const Note& note : file.notes().list()) {
        EXPECT_THAT(note.text, Not(HasSubstr("not read from this line")));
      }
      const auto edited = file.Edited(kRailgun, 155.0);
      EXPECT_EQ(file.Difference(edited), "-" + line + "+" + edited_line);
      ASSERT_TRUE(edited);
      const LoadedFile again(BotFile::kWeaponWeights, *edited);
      EXPECT_EQ(again.before().Parameter(kRailgun), Value(155.0));
    }
  }
}

TEST(UglyFilesTest, TellsThatOtherMacrosMayStandForTheWeight) {
  const std::string macros = AllWeapons(kRail50) + "#define RGW 50\n";
  const auto notes_of = [](const std::string& bytes, IncludeLookup game) {
    const LoadedFile file(BotFile::kWeaponWeights, bytes, "rook",
                          std::move(game));
    Bot after = file.before();
    after.Put(kRailgun, 70.0);
    Notes notes;
    const auto edited = file.Edited(after, &notes);
    EXPECT_TRUE(edited) << edited.error().what;
    std::string text = edited.value_or(std::string()) + "|";
    for (const Note& note : notes.list()) text += note.text;
    return text;
  };
  const std::string include = "#include \"own.c\"\n";
  EXPECT_THAT(notes_of(macros + include, StandInGameFile),
              HasSubstr("W_RAILGUN is changed alone. The file sets other "
                        "macros too (RGW), "));
  // With the weight code both change, and of the plain file nothing is told.
  const std::string both =
      notes_of(macros + include,
               With({{"own.c", "weight \"Railgun\" { return RGW; }\n"}}));
  EXPECT_THAT(both, AllOf(HasSubstr("#define RGW 70\n"), HasSubstr(kRail70),
                          EndsWith("|")));
  EXPECT_THAT(notes_of(AllWeapons(kRail50) + include, StandInGameFile),
              EndsWith("|"));
}

TEST(UglyFilesTest, TellsThatALoadTakesACommentAlong) {
  const std::string line = "\tCHARACTERISTIC_ATTACK_SKILL 0.35 // x";
  const LoadedFile file(BotFile::kCharacteristics,
                        "#include \"chars.h\"\nskill 1\n{\n" + line + "\n}\n");
  Bot after = file.before();
  after.Put(kAttack1, 0.2);
  Notes notes;
  const auto edited = file.Edited(after, &notes);
  ASSERT_TRUE(edited) << edited.error().what;
  const LoadedFile again(BotFile::kCharacteristics, *edited);
  EXPECT_EQ(again.before().Parameter(kAttack1), Value(std::string("0.2 // x")));
  ASSERT_EQ(notes.list().size(), 1);
  EXPECT_THAT(notes.list().front().text,
              HasSubstr("is now 0.2 for the game, but a load reads \"0.2 // "
                        "x\" from line 4. Put the comment in a line of its "
                        "own."));
}

TEST(UglyFilesTest, EditsTheWeightThatTheGameTakes) {
  const IncludeLookup game = With({{"more.h", "#define W_RAILGUN 60\n"}});
  for (const std::string& bytes :
       {AllWeapons(kRail50) + kInclude + "#undef W_RAILGUN\n",
        AllWeapons("#ifdef W_RAILGUN\n" + kRail70 + "#else\n" + kRail50 +
                   "#endif\n") +
            kInclude,
        AllWeapons("#include \"more.h\"\n" + kRail50) + kInclude,
        AllWeapons("#include \"more.h\"\n") + kInclude}) {
    const LoadedFile file(BotFile::kWeaponWeights, bytes, "rook", game);
    const auto edited = file.Edited(kRailgun, 150.0);
    ASSERT_TRUE(edited) << bytes << edited.error().what;
    const auto changes =
        Differences(ViewOf(BotFile::kWeaponWeights, bytes, game),
                    ViewOf(BotFile::kWeaponWeights, *edited, game));
    ASSERT_THAT(changes, ElementsAre(Key("weight W_RAILGUN"))) << *edited;
    EXPECT_THAT(changes.begin()->second.second, HasSubstr("=150.000000 "));
  }
}

TEST(UglyFilesTest, KeepsToTheFirstWeightOfAName) {
  const std::string slug = "weight \"Railgun\" { return 12; }\n";
  const auto first = [](const std::string& weight) {
    return LoadedFile(BotFile::kWeaponWeights,
                      AllWeapons(kRail50) + weight + kInclude);
  };
  const LoadedFile other = first(slug);
  EXPECT_THAT(other.Difference(other.Edited(kRailgun, 150.0)),
              HasSubstr("The game takes the value from line 12 of the file, "
                        "and a load takes that of line 7."));
  const LoadedFile same = first("weight \"Railgun\" { return 50; }\n");
  EXPECT_EQ(same.Difference(same.Edited(kRailgun, 150.0)),
            "-" + kRail50 + "+" + std::string(PaddedKey(49)) + "150\n" +
                "-weight \"Railgun\" { return 50; }\n"
                "+weight \"Railgun\" { return 150; }\n");
  // The first is from a file of others.
  const LoadedFile included(
      BotFile::kWeaponWeights,
      AllWeapons(kRail50) + "#include \"more.h\"\n" + kInclude, "rook",
      With({{"more.h", slug}}));
  EXPECT_THAT(included.Difference(included.Edited(kRailgun, 150.0)),
              HasSubstr("The game takes the weight from another file"));
  // One behind is never asked for.
  const LoadedFile behind(BotFile::kWeaponWeights,
                          AllWeapons(kRail50) + kInclude + slug);
  EXPECT_EQ(behind.Difference(behind.Edited(kRailgun, 150.0)),
            "-" + kRail50 + "+" + std::string(PaddedKey(49)) + "150\n");
  const std::string quad = "weight \"item_quad\" { return 7; }\n";
  const LoadedFile item(BotFile::kItemWeights,
                        quad + "weight \"item_quad\" { return 9; }\n");
  EXPECT_EQ(item.before().Parameter(kQuad), Value(7.0));
  EXPECT_EQ(item.Difference(item.Edited(kQuad, 8.0)),
            "-" + quad + "+weight \"item_quad\" { return 8; }\n");
}

TEST(UglyFilesTest, KeepsLevelsMixable) {
  const auto file_of = [](const std::vector<std::string>& numbers) {
    std::string text = "#include \"chars.h\"\n";
    for (std::size_t at = 0; at < numbers.size(); ++at) {
      text +=
          "skill " + std::to_string(NumberOf(kLevels.at(at))) + "\n{\n" +
          Characteristic("ATTACK_SKILL", "0.5") +
          (numbers[at].empty() ? ""
                               : Characteristic("REACTIONTIME", numbers[at])) +
          "}\n";
    }
    return text;
  };
  struct Case {
    std::vector<std::string> before;
    Level level;
    double value;
    std::vector<std::string> after;
  };
  const std::vector<Case> cases = {
      {{"3", "3", "2"}, Level::k1, 2.5, {"2.5", "3.0", "2.0"}},
      {{"3", "2.5", "2.5"}, Level::k1, 2.5, {"2.5", "2.5", "2.5"}},
      {{"2.5", "2.5", "2"}, Level::k4, 3, {"2.5", "3.0", "2"}},
      {{"2.5", "", "2"}, Level::k4, 3, {"2.5", "3.0", "2.0"}},
      {{"3", "3", "2"}, Level::k4, 2.5, {"3", "2.5", "2.0"}},
      // Lost before.
      {{"2.5", "3", "2"}, Level::k4, 4, {"2.5", "4", "2"}},
      {{"3", "3", "2"}, Level::k5, 1.5, {"3", "3", "1.5"}}};
  for (const Case& one : cases) {
    const LoadedFile file(BotFile::kCharacteristics, file_of(one.before));
    const auto edited = file.Edited({one.level, kReactionTimeIndex}, one.value);
    EXPECT_EQ(edited ? *edited : edited.error().what, file_of(one.after));
  }
  const LoadedFile macro(
      BotFile::kCharacteristics, file_of({"3", "SLOW", "2"}), "rook",
      [](std::string_view path) -> std::optional<std::string> {
        if (path != "chars.h") return StandInGameFile(path);
        return *StandInGameFile(path) + "#define SLOW 3\n";
      });
  EXPECT_THAT(
      macro.Difference(macro.Edited({Level::k1, kReactionTimeIndex}, 2.5)),
      HasSubstr("At skills between the levels 1 and 4 the game would "
                "have no value"));
}

const std::string kTypes[] = {
    "\ttype \"hit_nokill\"\n\t{\n\t\t\"ha\";\n\t\t\"next time\";\n\t}\n",
    "\ttype \"enemy_suicide\"\n\t{\n\t\t\"he did it\";\n\t\t\"ha\";\n\t}\n",
    "\ttype \"random_insult\"\n\t{\n\t\t\"you\";\n\t}\n"};
const std::string kChat =
    "chat \"rook\"\n{\n" + kTypes[0] + kTypes[1] + kTypes[2] + "}\n";

ChatTypeId TypeOf(std::string_view key) {
  for (const ChatTypeId type : kAllChatTypes) {
    if (ChatTypeAt(type).Key == key) return type;
  }
  throw std::out_of_range("no such type");
}

TEST(UglyFilesTest, KeepsATypeOfOtherGamesAsItIs) {
  const LoadedFile file(BotFile::kChat, kChat);
  const ChatTypeId type = TypeOf("hit_nokill");
  const std::vector<std::string> all = {"ha", "next time", "he did it", "ha"};
  ASSERT_EQ(file.before().ChatLines(type), all);

  // Our list has the other type's lines as well, wherever they are put.
  EXPECT_EQ(
      file.Difference(file.Edited(type, {"ha", "soon", "he did it", "ha"})),
      "-\t\t\"next time\";\n+\t\t\"soon\";\n");
  const auto edited =
      file.Edited(type, {"ha", "next time", "he did it", "ha", "at the end"});
  EXPECT_EQ(file.Difference(edited), "+\t\t\"at the end\";\n");
  ASSERT_TRUE(edited);
  EXPECT_THAT(*edited, HasSubstr("next time\";\n\t\t\"at the end\";\n\t}\n"));
  EXPECT_THAT(Differences(ViewOf(BotFile::kChat, kChat, StandInGameFile),
                          ViewOf(BotFile::kChat, *edited, StandInGameFile)),
              ElementsAre(Key("chat hit_nokill")));
  // Of two that are alike its own line goes, and all of its own may go.
  EXPECT_EQ(
      file.Difference(file.Edited(type, {"next time", "he did it", "ha"})),
      "-\t\t\"ha\";\n");
  const auto none = file.Edited(type, {"he did it", "ha"});
  EXPECT_EQ(file.Difference(none), "-\t\t\"ha\";\n-\t\t\"next time\";\n");
  EXPECT_EQ(file.Difference(
                file.Edited(type, {"he did it", "ha", "next time", "ha"})),
            "");

  const std::string refusal =
      "The line \"he did it\" stands in the block of the type "
      "\"enemy_suicide\", and that is what the game takes it for: it has to "
      "stay in the list.";
  for (const std::vector<std::string>& lines :
       {std::vector<std::string>{"ha", "next time", "he did", "ha"},
        std::vector<std::string>{"ha", "next time", "ha"}}) {
    EXPECT_THAT(file.Difference(file.Edited(type, lines)), HasSubstr(refusal));
  }
  EXPECT_FALSE(file.Edited(type, {}));
}

TEST(UglyFilesTest, EditsTheBlockOfATypeThatTheGameUses) {
  const ChatTypeId type = TypeOf("hit_nokill");
  std::string again = kTypes[0];
  again.replace(again.find("ha"), 2, "ho");
  const std::string one = "chat \"rook\"\n{\n" + kTypes[0] + kTypes[2] + again;
  // The game puts the blocks of two chats of one name together.
  const std::string two = "chat \"rook\"\n{\n" + kTypes[0] + kTypes[2] +
                          "}\nchat \"rook\"\n{\n" + again;
  for (const std::string& bytes : {one + "}\n", two + "}\n"}) {
    const LoadedFile file(BotFile::kChat, bytes);
    EXPECT_THAT(
        file.Difference(
            file.Edited(type, {"new", "next time", "ho", "next time"})),
        HasSubstr("The line \"ha\" stands in a block that the game does not "
                  "use, as another one of this type follows"));
    const auto edited =
        file.Edited(type, {"ha", "next time", "new", "next time"});
    EXPECT_EQ(file.Difference(edited), "-\t\t\"ho\";\n+\t\t\"new\";\n");
    ASSERT_TRUE(edited);
    EXPECT_THAT(Differences(ViewOf(BotFile::kChat, bytes, StandInGameFile),
                            ViewOf(BotFile::kChat, *edited, StandInGameFile)),
                ElementsAre(Key("chat hit_nokill")));
  }
  const LoadedFile two_blocks(BotFile::kChat, one + "}\n");
  for (const bool is_first : {true, false}) {
    std::vector<std::string> lines = {"ha", "next time", "ho", "next time"};
    lines.insert(is_first ? lines.begin() : lines.end(), "new");
    Notes notes;
    ASSERT_TRUE(two_blocks.Edited(type, lines, &notes));
    ASSERT_EQ(notes.empty(), !is_first);
    if (is_first) {
      EXPECT_THAT(notes.list().front().text,
                  HasSubstr("they come back in another order than given"));
    }
  }
  const IncludeLookup game = With({{"more.h", kTypes[0]}});
  for (const std::string& bytes :
       {one + "#include \"more.h\"\n}\n",
        "chat \"rook\"\n{\n#include \"more.h\"\n" + kTypes[2] + "}\n"}) {
    const LoadedFile file(BotFile::kChat, bytes, "rook", game);
    std::vector<std::string> lines = file.before().ChatLines(type);
    lines.emplace_back("more");
    EXPECT_THAT(file.Difference(file.Edited(type, lines)),
                HasSubstr("The game takes the lines of this type from a file "
                          "that is included here."));
  }
}

TEST(UglyFilesTest, EditsTheChatThatTheCharacterAsksFor) {
  std::string other = "chat \"other\"\n{\n" + kTypes[0] + "}\n";
  other.replace(other.find("\"ha\""), 4, "\"ho\"");
  const std::string bytes = other + kChat;
  const BothReaders readers({.kind = BotFile::kChat,
                             .shown = "file",
                             .called = "tower",
                             .chat_names = {"tower", "Rook"}},
                            StandInGameFile);
  const Bot before = readers.Read(bytes).bot;
  const ChatTypeId type = TypeOf("hit_nokill");
  Bot after = before;
  after.SetChatLine(type, ChatLineIndex(0), "new");
  // The first lines are those of the other chat.
  EXPECT_FALSE(EditInPlace(readers, bytes, before, after));
  after = before;
  after.SetChatLine(type, ChatLineIndex(3), "new");
  const auto edited = EditInPlace(readers, bytes, before, after);
  ASSERT_TRUE(edited) << edited.error().what;
  EXPECT_EQ(LoadedFile::Changed(bytes, *edited),
            "-\t\t\"next time\";\n+\t\t\"new\";\n");
  EXPECT_THAT(Differences(ViewOf(BotFile::kChat, bytes, StandInGameFile),
                          ViewOf(BotFile::kChat, *edited, StandInGameFile)),
              ElementsAre(Key("chat hit_nokill")));
}

/// What the edit has no number for of its own: a number that is calculated from
/// two of the file, the number of a case, and one behind an #if.
TEST(UglyFilesTest, RefusesANumberThatOthersAreMadeOf) {
  for (const char* const more :
       {"weight \"Nailgun\" { return $evalint(W_RAILGUN * W_SHOTGUN); }\n",
        "weight \"W_BFG10K\" { return $evalint(W_RAILGUN * W_SHOTGUN); }\n",
        "weight \"W_BFG10K\" { switch(INVENTORY_SLUGS) { case W_RAILGUN: "
        "return 1; default: return 2; } }\n",
        "#if W_RAILGUN > 60\nweight \"W_BFG10K\" { return 1; }\n#else\n"
        "weight \"W_BFG10K\" { return 2; }\n#endif\n"}) {
    const std::string script =
        std::string(more) + "weight \"W_RAILGUN\" { return W_RAILGUN; }\n";
    const std::string bytes = AllWeapons(kRail50) + "#include \"own.c\"\n";
    const LoadedFile file(BotFile::kWeaponWeights, bytes, "rook",
                          With({{"own.c", script}}));
    const auto edited = file.Edited(kRailgun, 150.0);
    // Of a weight that the bot has none for all may change.
    if (Contains(more, "Nailgun")) {
      EXPECT_TRUE(edited) << edited.error().what;
    } else {
      EXPECT_THAT(file.Difference(edited),
                  HasSubstr("Another value would change with it"))
          << more;
    }
    EXPECT_EQ(file.Difference(file.Edited(kRailgun, 50.0)), "");
  }
}

TEST(UglyFilesTest, RefusesABackslashThatTheGameStumblesOver) {
  const LoadedFile file(BotFile::kChat, kChat);
  const ChatTypeId type = TypeOf("random_insult");
  EXPECT_THAT(file.Difference(file.Edited(type, {"kill \\quick"})),
              HasSubstr("The game does not know what the backslash in \"kill "
                        "\\quick\" is to mean, complains and cuts the text "
                        "there. Take it out, or write two of them."));
  EXPECT_FALSE(file.Edited(type, {"you\\"}));
  EXPECT_TRUE(file.Edited(type, {"one \\\\ of two"}));
}

TEST(UglyFilesTest, TakesTimeForALongTypeByItsLength) {
  const auto time_for = [](int lines) {
    std::string bytes = "chat \"rook\"\n{\n\ttype \"hit_nokill\"\n\t{\n";
    for (int line = 0; line < lines; ++line) {
      bytes += "\t\t\"line " + std::to_string(line) + "\"; // one\n";
    }
    const LoadedFile file(BotFile::kChat, bytes + "\t}\n}\n");
    // Of this process alone: others are busy too.
    const std::clock_t start = std::clock();
    EXPECT_TRUE(file.Edited(TypeOf("hit_nokill"), {"the only one"}));
    return static_cast<double>(std::clock() - start);
  };
  const double base = time_for(10'000);
  // Where each line is looked for among all of them it is 16 times as much.
  EXPECT_LT(time_for(40'000), 10 * base);
}

TEST(UglyFilesTest, GivesANumberItsOldLookBack) {
  const auto there_and_back = [](BotFile kind, const std::string& bytes,
                                 ParameterId id, double other) {
    const LoadedFile file(kind, bytes);
    const auto edited = file.Edited(id, other);
    EXPECT_TRUE(edited) << edited.error().what;
    if (!edited) return std::string();
    const LoadedFile again(kind, *edited);
    return again.Edited(id, file.before().Parameter(id))
        .value_or(std::string("not editable"));
  };
  const std::string head = "#include \"chars.h\"\nskill 1\n{\n";
  for (const std::string& lines :
       {Characteristic("AIM_SKILL", "0.3") +
            Characteristic("ATTACK_SKILL", "0.5"),
        Characteristic("AIM_SKILL", "0.30") +
            Characteristic("ATTACK_SKILL", "0.50"),
        Characteristic("AIM_SKILL", "0") + Characteristic("ATTACK_SKILL", "1"),
        Characteristic("AIM_SKILL", "1.0") +
            Characteristic("ATTACK_SKILL", "1.0")}) {
    for (const double other : {0.75, 0.125, 0.6}) {
      // Of three digits nothing follows for one of two.
      if (Contains(lines, "0.50") && other != 0.75) continue;
      const std::string bytes = head + lines + "}\n";
      EXPECT_EQ(
          there_and_back(BotFile::kCharacteristics, bytes, kAttack1, other),
          bytes)
          << other;
    }
  }
  const std::string weights = AllWeapons(kRail50) + kInclude;
  for (const double other : {7.0, 12.5, 0.375}) {
    EXPECT_EQ(there_and_back(BotFile::kWeaponWeights, weights, kRailgun, other),
              weights);
  }
}

}  // namespace
}  // namespace fragsmith
