#include "checks/file_checks.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <string>
#include <utility>
#include <vector>

#include "botfiles/characteristic_file.h"
#include "botfiles/description_file.h"
#include "botfiles/weight_file.h"
#include "chat/chat_file.h"
#include "model/characteristic_catalogue.h"
#include "session/presets.h"
#include "tests/checks/engine_cases.h"
#include "tests/support/set_parameter.h"

namespace fragsmith {
namespace {

using ::testing::Contains;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::UnorderedElementsAreArray;

std::string PlaceIn(const Finding& finding) {
  const auto& place = std::get<FilePlace>(finding.place);
  return place.file + ":" + std::to_string(place.line) + ": ";
}

/// "file:line: severity id" of each finding but hints.
std::vector<std::string> Found(const BotFileSet& set,
                               const IncludeLookup& game = StandInGameFile) {
  std::vector<std::string> found;
  for (const Finding& finding : CheckFiles(set, game)) {
    if (finding.severity == Severity::kHint) continue;
    const auto& place = std::get<FilePlace>(finding.place);
    EXPECT_TRUE(place.kind && place.file.ends_with(FileSuffix(*place.kind)))
        << place.file;
    found.push_back(
        PlaceIn(finding) +
        (finding.severity == Severity::kError ? "error " : "warning ") +
        std::string(finding.id));
  }
  return found;
}

std::string Verdicts(const BotFileSet& set) {
  return VerdictLetters(set, StandInGameFile);
}

TEST(CheckFiles, FindsNothingInWhatTheEditorWrites) {
  Bot bot = CreateAverageBot([] { return 0.5; });
  Set(bot, kNameField, "Robo");
  Set(bot, kFunNameField, "\"^1Ro bo\"");
  Set(bot, kModelField, "Sarge");
  Set(bot, kSkinField, "default");
  const BotFileSet set = FileSetOf({{"bot", WriteDescriptionFile(bot, {})},
                                    {"c", WriteCharacteristicFile(bot, {})},
                                    {"w", WriteWeaponWeightFile(bot, {})},
                                    {"i", WriteItemWeightFile(bot, {})},
                                    {"t", WriteChatFile(bot, {})}},
                                   "robo");
  for (const Finding& finding : CheckFiles(set, StandInGameFile)) {
    ADD_FAILURE() << PlaceIn(finding) << finding.text;
  }
  EXPECT_EQ(Verdicts(set), "WWWW");
}

TEST(CheckFiles, SaysWhereAndHowGravely) {
  const struct {
    EngineCase change;  ///< Of verdicts, file, find and put alone.
    std::vector<std::string> found;
  } cases[] = {
      {{"WWWW", "c", "", "", "", ""}, {}},
      {{"WDDW", "c", "", "", "SKILL 0.7", "SKILL 0.7\nFOO 1"},
       {"x_c.c:18: error unknown-characteristic"}},
      // An error that harms nobody is a warning.
      {{"WWWW", "t", "", "", "$", "@"}, {"x_t.c:14: warning unreadable"}},
      {{"WWWW", "c", "", "", "SKILL 0.7", "SKILL 0240"},
       {"x_c.c:17: warning leading-zero", "x_c.c:17: error no-mix"}},
      {{"WWWW", "c", "", "", "TIME 0.5", "TIME 1."},
       {"x_c.c:11: warning point-at-end"}},
      // Of two of a name one is passed over.
      {{"WWWW", "c", "", "", "skill 4", "skill 1\n{\n}\nskill 4"},
       {"x_c.c:13: warning skill-block-twice"}},
      {{"WWWW", "t", "", "", "death_rail", "Game_Enter"},
       {"x_t.c:5: warning chat-type-twice"}},
      // The first one has nothing: of blocks it counts, of types it does not.
      {{"DDWW", "c", "", "", "skill 1", "skill 1\n{\n}\nskill 1"},
       {"x_c.c:2: error no-file-key"}},
      {{"WWWW", "t", "", "", "type \"death_rail\"",
        "type \"death_rail\"\n{\n}\ntype \"death_rail\""},
       {}},
      // One fault, whatever follows from it.
      {{"DDDD", "c", "", "", "*", "#include \"chars.h\"\n"},
       {"x_c.c:0: error no-level"}},
      {{"WWWW", "w", "", "", "#include \"inv.h\"", "#include \"no.h\""},
       {"x_w.c:1: error include-missing"}},
      {{"WWWW", "w", "", "", "*", "#include \"inv.h\"\r#define A 1\r"},
       {"x_w.c:1: error old-line-ends"}},
      // What an #include brings in is told at its line.
      {{"RRRR", "t", "", "", "",
        "\n#include \"inv.h\"\n#include \"fw_weap.c\"\n"},
       {"x_t.c:3: error outside-chat"}},
      // Texts that come out of what the game passes over.
      {{"RRRR", "t", "", "", "\"bye\";",
        "#ifdef NO\n\"bye\";\n#endif\nHELLO1;"},
       {"x_t.c:11: error text-in-condition"}},
      {{"WWWW", "t", "", "", "\"bye\";",
        "#ifdef NO\n\"bye\";\n#endif\n\"you\";"},
       {"x_t.c:11: warning text-in-condition"}},
      {{"WWWW", "t", "", "", "\"bye\";",
        "#ifdef NO\n\"%600%\";\n\"%600%\";\n#endif\nHELLO1;"},
       {"x_t.c:11: warning text-in-condition"}},
      {{"RRRR", "t", "", "", "\"bye\";", "So long now;"},
       {"x_t.c:11: error chat-text-unquoted"}},
      {{"WWWW", "bot", "", "", "$$", "{\nname Rook\naifile bots/botx_c.c\n}"},
       {"x.bot:5: error description-bots-merged"}},
      {{"WWWD", "c", "", "", "skill 5", "skill 4"},
       {"x_c.c:24: error no-level"}},
      // What goes wrong in the game's file is told where its cause is.
      {{"RRRR", "w", "", "", "W_RAILGUN 60", "W_RAILGUN"},
       {"x_w.c:8: error empty-macro"}},
      {{"RRRR", "w", "", "", "W_RAILGUN 60", "W_RAILGUN 5;"},
       {"x_w.c:8: error macro-not-a-number"}},
      {{"RRRR", "w", "", "", "#define W_RAILGUN 60", ""},
       {"x_w.c:12: error macro-missing"}},
      {{"WWWW", "w", "", "", "W_RAILGUN 60", "W_RAILGUN -5"},
       {"x_w.c:8: warning negative-weight"}},
      {{"WWWW", "w", "", "", "#include \"fw_weap.c\"", ""},
       {"x_w.c:0: error no-weights"}},
      {{"WWWW", "w", "", "", "fw_weap.c", "bots/botx_w.c"},
       {"x_w.c:12: error includes-itself"}},
      {{"RRRR", "t", "", "", "\"bye\"", "\"by\"e\""},
       {"x_t.c:11: error chat-text-ends-early"}},
      {{"RRRR", "t", "", "", "chat \"botx\"", "chat \"other\""},
       {"x_t.c:1: error chat-name"}},
      {{"RRRR", "t", "", "", "bye", "%256%"},
       {"x_t.c:11: error chat-line-too-long"}},
      {{"WDDW", "c", "", "", "SKILL 0.7", "SKILL"},
       {"x_c.c:17: error value-missing"}},
      // A path that is none: the file that the game reads for it is not at
      // fault.
      {{"WWWW", "c", "", "", "\"bots/botx_w.c\"", "3.5"},
       {"x_c.c:9: error number-for-text"}},
      {{"RRWW", "c", "", "", "\"bots/botx_t.c\"", "1"},
       {"x_c.c:7: error number-for-text"}},
      {{"WWWW", "c", "", "", "bots/botx_w.c", ""},
       {"x_c.c:9: error path-empty"}},
      {{"WWWW", "c", "", "", "bots/botx_i.c", ""},
       {"x_c.c:10: warning path-empty"}},
      {{"RRWW", "c", "", "", "bots/botx_t.c", ""},
       {"x_c.c:7: error path-empty"}},
      {{"RRRR",
        "c",
        "",
        "",
        "bots/botx_w",
        "bots/none_w",
        {},
        {{{"c", "bots/botx_w", "bots/none_w"}},
         {{"c", "bots/botx_w", "bots/none_w"}}}},
       {"x_c.c:9: error file-missing"}},
      {{"RRRR", "t", "", "", "teamplay.h\"", "teamplay.h\"\n\"Hello, \""},
       {"x_t.c:3: error include-joined"}},
      // The description ends there for the game.
      {{"RRRR", "bot", "", "", "model", "/* him\nmodel"},
       {"x.bot:3: error open-comment"}},
      {{"RRRR", "bot", "", "", "model", "\\x00model"},
       {"x.bot:3: error null-character"}},
      {{"WWWW", "w", "", "", "#define W_RAILGUN 60", "#defin W_RAILGUN 60"},
       {"x_w.c:8: error unknown-command"}},
      {{"RRRR", "w", "", "", "#define W_RAILGUN 60", "#define w_railgun 60"},
       {"x_w.c:8: error macro-missing"}},
      {{"RRRR", "w", "", "", "#define W_RAILGUN 60", "// #define W_RAILGUN 60"},
       {"x_w.c:8: error macro-missing"}},
      {{"RRRR", "w", "", "", "60\n", "60\n#undef W_RAILGUN\n"},
       {"x_w.c:9: error macro-missing"}},
      {{"RRRR", "w", "", "", "W_RAILGUN 60", "W_RAILGUN high"},
       {"x_w.c:8: error macro-not-a-number"}},
      {{"RRRR", "t", "", "", "chat \"botx\"\n{", "chat \"botx\"\n"},
       {"x_t.c:1: error expected-brace"}},
      // What a brace too many does to another level follows from it.
      {{"WDDD", "c", "", "", "skill 4\n{", "skill 4\n{{"},
       {"x_c.c:14: error not-a-key"}},
      {{"DDDD", "c", "", "", "skill 1\n", "\\x00skill 1\n"},
       {"x_c.c:2: error null-character"}},
      // Spoken otherwise than it looks.
      {{"WWWW", "t", "", "", "death_rail", "death_railgun"},
       {"x_t.c:10: warning chat-type-unknown"}},
      {{"WWWW", "t", "", "", "death_rail", "DEATH_RAIL"}, {}},
      {{"WWWW", "t", "", "", "bye", "bye {ATTACKER}"},
       {"x_t.c:11: warning chat-braces"}},
      {{"WWWW", "t", "", "", "\"bye\"", "\"bye \", 99"},
       {"x_t.c:11: warning chat-variable-out-of-range"}},
      {{"WWWW", "t", "", "", "\"bye\";", "\"bye\"\n\"you\";"},
       {"x_t.c:11: warning chat-lines-merged"}},
      {{"RRRR", "t", "", "", "\"bye\";", "\"bye\"; /*"},
       {"x_t.c:11: error open-comment"}},
      // A sign that is missing is told where it belongs, not where the game
      // stumbles.
      {{"RRRR", "t", "", "", "\"bye\";", "\"bye\""},
       {"x_t.c:11: error chat-semicolon-missing"}},
      {{"RRRR", "t", "", "", "HELLO1;\n\t}", "HELLO1;"},
       {"x_t.c:8: error chat-type-not-closed"}},
      {{"RRRR", "w", "", "", "W_GRAPPLE 1", "W_GRAPPLE 1\\\\"},
       {"x_w.c:3: error macro-missing"}},
      {{"DDDD", "c", "", "", "*", "// all\\rskill 1\\r{\\r}"},
       {"x_c.c:1: error old-line-ends"}},
      // A line that was left as it was in another bot.
      {{"RRWW", "c", "", "", "NAME \"botx\"\n\tCHARACTERISTIC_WEAPON",
        "NAME \"other\"\n\tCHARACTERISTIC_WEAPON"},
       {"x_c.c:8: error chat-name"}},
      {{"RRWW", "c", "", "", "bots/botx_t", "bots/default_t"},
       {"x_c.c:7: error chat-name"}},
      {{"RRWW", "c", "", "", "bots/botx_w", "bots\\\\rother_w"},
       {"x_c.c:9: error path-backslash"}},
      {{"WWWW", "t", "", "", "\"bye\"", "\\x93bye\\x94"},
       {"x_t.c:11: warning chat-curly-quotes"}},
      // A text for a number, another bot's file, no weapon to begin with.
      {{"WWWW", "c", "", "", "SKILL 0.7", "SKILL \"abc\""},
       {"x_c.c:17: warning value-not-a-number"}},
      {{"RRWW", "c", "", "", "bots/botx_w", "bots/other_w"},
       {"x_c.c:9: error file-missing"}},
      {{"WWWW",
        "w",
        "",
        "",
        "W_GAUNTLET 10",
        "W_GAUNTLET 0",
        {},
        {{{"w", "W_MACHINEGUN 40", "W_MACHINEGUN 0"}}}},
       {"x_w.c:5: error no-weapon-at-start"}},
      // Weights in code of its author's own.
      {{"WWWW", "w", "", "", "*",
        "weight \"Gauntlet\" { return 0; }\n"
        "weight \"Machinegun\" { switch(16) { case 1: return 0;\n"
        "default: return 0; } }\nweight \"Railgun\" { return 50; }\n"},
       {"x_w.c:2: error no-weapon-at-start"}},
      {{"WWWW", "w", "", "", "*", "weight \"machinegun\" { return 9; }\n"},
       {"x_w.c:1: warning weapon-unknown",
        "x_w.c:0: error no-weapon-at-start"}},
      {{"WWWW", "w", "", "", "*",
        "weight \"Machinegun\" { return 9; }\n"
        "weight \"Rail gun\" { return 9; }\n"
        "weight \"Machinegun\" { return 8; }\n"},
       {"x_w.c:2: warning weapon-unknown", "x_w.c:3: warning weight-twice"}},
      {{"RRRR", "w", "", "", "#include \"inv.h\"",
        "#include \"inv.h\"\n#include \"fw_weap.c\""},
       {"x_w.c:2: error macro-missing"}},
      {{"WWWW", "bot", "", "", "model", "funname Big Bad\nmodel"},
       {"x.bot:3: warning description-more-words"}},
      {{"WWWW", "bot", "", "", "model", "# my own model\nmodel"},
       {"x.bot:3: warning description-hash"}},
      {{"WWWW", "bot", "", "", "model", "model:"},
       {"x.bot:3: warning description-colon"}},
      {{"RRRR", "bot", "", "", "name\tbotx", "name"},
       {"x.bot:2: error no-name"}},
      {{"DDDD", "bot", "", "", "_c.c", "_c.c// mine"},
       {"x.bot:4: error description-comment"}},
      {{"WWWW", "bot", "", "", "sarge", "sarge/* him */"},
       {"x.bot:3: warning description-comment"}},
      {{"WWWW", "bot", "", "", "name\t", "name = "},
       {"x.bot:2: error description-equals"}},
      // The game's code for items, or for weapons, in the file of the others.
      {{"RRRR", "i", "", "", "fw_items.c", "fw_weap.c"},
       {"x_i.c:29: error weights-of-other-kind"}},
      {{"RRRR", "w", "", "", "fw_weap.c", "fw_items.c"},
       {"x_w.c:12: error weights-of-other-kind"}},
      {{"WWWW",
        "i",
        "",
        "",
        "fw_items.c\"",
        "fw_weap.c\"",
        {},
        {{{"i", "#define FS_ARMOR", "#define W_GAUNTLET 1\n#define FS_ARMOR"},
          {"i", "#define FS_ARMOR", "#define W_GRAPPLE 1\n#define FS_ARMOR"}}}},
       {"x_i.c:31: warning weights-of-other-kind"}},
      // Texts come out of what the game passes over.
      {{"WDDD",
        "c",
        "",
        "",
        "skill 4",
        "#if 0\nskill 4",
        {},
        {{{"c", "skill 5", "#endif\nskill 5"}}}},
       {"x_c.c:13: error text-in-condition"}},
      {{"WWWD", "c", "", "", "skill 5", "#ifdef NO\nskill 5"},
       {"x_c.c:24: error endif-missing"}},
      // A = between key and value.
      {{"RRRR", "bot", "", "", "name\t", "name="},
       {"x.bot:2: error description-equals"}},
      {{"WWWW", "bot", "", "", "model\t", "model = "},
       {"x.bot:3: warning description-equals"}},
      {{"DDDD", "bot", "", "", "aifile\t", "aifile ="},
       {"x.bot:4: error description-equals"}},
      {{"RRRR", "bot", "", "", "aifile\tbots/", "aifile\tbots\\\\"},
       {"x.bot:4: error description-sign"}},
      // What the game reads on in is another bot's, whichever that may be.
      {{"RRRR", "bot", "", "", "$$", "funname \"Big\n}"},
       {"x.bot:5: error description-quote"}},
      {{"RRRR", "bot", "", "", "name", "nam;e"},
       {"x.bot:2: error description-sign"}},
      {{"WWWW", "bot", "", "", "sarge", ""},
       {"x.bot:3: warning description-no-value"}},
#ifdef _WIN32
      {{"WWWW", "bot", "", "", "bots/botx", "BOTS/botx"}, {}},
#else
      {{"DDDD", "bot", "", "", "bots/botx", "BOTS/botx"},
       {"x.bot:4: error path-case"}},
#endif
      {{"RRRR", "bot", "", "", "*", "!"}, {"x_c.c:0: error no-description"}},
      {{"RRRR", "i", "", "", "*", "!"}, {"x_c.c:10: error file-missing"}},
      // The path may have 54 bytes: 5, these and 2.
      {{"RRWW", "c", "", "", "bots/botx_t.c", "bots/%47%.c"},
       {"x_c.c:7: error file-missing"}},
      {{"RRWW", "c", "", "", "bots/botx_t.c", "bots/%48%.c"},
       {"x_c.c:7: error path-too-long"}},
  };
  for (const auto& [change, found] : cases) {
    SCOPED_TRACE(change.part + ": " + change.put);
    std::map<std::string, std::string> files;
    ASSERT_TRUE(MakeEngineCase(change, "x", files));
    const BotFileSet set = FileSetOf(files, "x");
    EXPECT_EQ(Verdicts(set), change.verdicts);
    EXPECT_THAT(Found(set), UnorderedElementsAreArray(found));
  }
}

TEST(CheckFiles, SaysWhatToDo) {
  const struct {
    const char* part;
    const char* find;
    const char* put;
    const char* advice;
  } cases[] = {
      {"c", "SKILL 0.7", "SKILL 0.7;", "Remove it."},
      {"c", "SKILL 0.7", "SKILL 70%", "Write 0.7 for 70 percent."},
      {"c", "SKILL 0.7", "SKILL = 0.7", "no \"=\" between"},
      {"c", "SKILL 0.7", "SKILL 'x'", "Put it in double ones"},
      {"c", "ATTACK_SKILL 0.7", "ATACK_SKILL 0.7",
       "Perhaps CHARACTERISTIC_ATTACK_SKILL is meant."},
      {"c", "#include \"chars.h\"", "",
       "Write #include \"chars.h\" at the top"},
      {"c", "skill 4", "Skill 4", "Write skill."},
      {"c", "skill 4", "; mine\nskill 4", "a comment begins with //"},
      {"w", "#define W_RAILGUN", "#Define W_RAILGUN", "Write #define."},
      {"w", "#define W_RAILGUN", "define W_RAILGUN", "Write #define."},
      {"w", "#define W_RAILGUN", "W_RAILGUN", "Write #define in front of it."},
      {"w", "W_RAILGUN 60", "W_RAILGUN60", "Write a blank between them."},
      {"w", "W_RAILGUN 60", "W_RAILGUN = 60", "Write 60 and nothing else."},
      {"w", "W_RAILGUN 60", "W_RAILGUN '60'", "Write 60 and nothing else."},
      {"w", "W_RAILGUN 60", "W_RAILGUN 60+5", "Write one number, such as 50."},
      {"w", "W_RAILGUN 60", "W_RAILGUN 60\n%", "Remove it."},
      {"t", "\"bye\";", "\"bye\",;", "Remove the comma"},
      {"t", "\"bye\";", "\"bye\";;", "Remove it."},
      {"t", "\"bye\";", "'bye';", "Put it in double ones"},
      {"t", "\"bye\";", "{{HELLO}};", "Remove the brace."},
      {"t", "\"bye\";", "\"bye \", {0};", "Write it without braces."},
      {"t", "type \"death", "typ \"death", "Write type."},
      {"w", "fw_weap.c", "bots/fw_weap.c", "Write \"fw_weap.c\"."},
      {"bot", "bots/", "botfiles/bots/", "leave botfiles/ out."},
      {"bot", "bots/", "bots/../bots/", "refuses a path with \"..\""},
      {"bot", "_c.c", "_c", "Write \"bots/x_c.c\"."},
      // A text without quotation marks, or with one that is none.
      {"t", "\"bye\";", "So long now;", "Put the text in quotation marks"},
      {"t", "\"bye\";", "\\x93So long\\x94;", "Type straight ones"},
      {"t", "\"bye\";", "Don't;\nHELLO1;", "Put the whole text in double"},
      {"t", "\"bye\";", "\"bye\\\\\";\nHELLO1;", "Remove the \\."},
      {"t", "\"bye\";", "\"bye;\nHELLO1;", "Close the text on the same line"},
      {"bot", "model", "funname \"The \"Great\"\"\nmodel",
       "Remove the quotation marks inside the text"},
      {"bot", "model",
       "funname \xE2\x80\x9C"
       "Big Bad\xE2\x80\x9D\nmodel",
       "behind it for a key. There are curly quotation marks"},
      {"bot", "$$", "funname \"Big\n}",
       "The game adds the bot, but it may be with those files."},
      {"bot", "model", "funname \"Big\nmodel", "another bot's files, or not"},
      {"bot", "aifile\t", "aifile\t\"", "The game does not add the bot."},
      // The number that was meant.
      {"c", "TIME 0.5", "TIME 0,9", "number \"0,9\" and"},
      {"c", "TIME 0.5", "TIME 0,9", "Write 0.9."},
      {"c", "ATTACK_SKILL 0.5", "ATTACK_SKILL 0. 5", "write 0.5, or"},
      {"c", "TIME 0.5", "TIME O.5", "Write 0.5, in digits"},
      {"c", "TIME 0.5", "TIME l.0", "Write 1.0, in digits"},
      {"c", "TIME 0.5", "TIME high", "Write a number, such as 0.6."},
      {"c", "\"bots/botx_w.c\"", "weapons", "Put a text in quotation marks."},
      {"c", "TIME 0.5", "TIME 24O", "Write 240."},
      {"c", "skill 1\n{", "skill 1\n(", "Write { in its place."},
      {"c", "$$", ")", "Write } in its place."},
      {"t", "$$", ")", "Write } in its place."},
      {"t", "chat \"", "chta \"", "Write chat."},
      {"t", "type", "tpye", "Write type."},
      {"c", "skill 1", "level 1", "{. Perhaps skill is meant."},
      {"c", "TIME 0.5", "TIME 2 40", "write 240, or"},
      {"c", "TIME 0.5", "TIME 0.2 0.5", "remove one of them."},
      {"c", "TIME 0.5", "TIME 9e-1;", "Write 0.9."},
      {"c", "chars.h\"", "chars.h\";", "\";\" behind the name of"},
      {"c", "TIME 0.5", "TIME 0.9f // fast", "Write 0.9."},
      {"c", "TIME 0.5", "TIME 0.5 /* a /* b */ c */",
       "Remove the comment inside it."},
      {"w", "W_RAILGUN 60", "W_RAILGUN W_RAILGUN", "is defined by itself"},
      {"w", "fw_weap.c", "bots/x_f.c", "Write \"fw_weap.c\"."},
      {"w", "fw_weap.c", "bots/x_f.c", "does not know what to fight with."},
      {"i", "\"inv.h\"", "\"inw.h\"", "Write \"inv.h\"."},
      {"t", "\"bye\";", "#ifdef NO\n\"bye\";", "Put an #endif where"},
      {"t", "\"bye\"", "\"%250%\", 0", "behind 249 characters at most"},
      {"w", "W_RAILGUN", "5W_RAILGUN", "Begin the name with a letter."},
      // Two bots, or two blocks, of which one is lost.
      {"bot", "$$", "{\nname Rook\naifile bots/botx_c.c\n}",
       "does not know \"x\". Write } in front of this line."},
      {"bot", "$$", "},\n{\nname Rook\naifile bots/botx_c.c\n}",
       "does not know \"x\". Write } and a blank behind it."},
      {"bot", "$$", "},", "Write } and a blank behind it."},
      {"bot", "$$", "name Rook\naifile bots/botx_c.c\n}",
       "does not know \"x\". Write } and { above this line."},
      {"c", "botx_w.c", "botw.c", "the bot's own is \"bots/x_w.c\"."},
      {"c", "*", "{\\\\rtf1 skill 1}", "saved by a word processor"},
      {"t", "*", "<!DOCTYPE html>\n<html></html>", "as a web page, with"},
      // A file in the place of another.
      {"bot", "botx_c.c", "botx_w.c", "weights and not the bot's character."},
      {"c", "*", "chat \"x\"\n{\n}\n", "This file holds chats, but the game"},
      {"bot", "name\tbotx", "name abcdefghijklmnop", "menu of a skirmish can"},
      {"bot", "model", "name Rook\nmodel", "does not know \"x\". Remove one"},
      {"bot", "", "{\nname botx\n}\n",
       "twice in this file, here and in line 4"},
      {"bot", "$", "{\nname botx\naifile bots/botx_c.c\n}\n",
       "twice in this file, first in line 1"},
      {"c", "skill 5", "skill 4",
       "here for the second time: correct its number"},
      {"c", "skill 1", "skill 1\n{\n}\nskill 1",
       "no CHARACTERISTIC_ITEMWEIGHTS, CHARACTERISTIC_WEAPONWEIGHTS, "
       "CHARACTERISTIC_CHAT_FILE and CHARACTERISTIC_CHAT_NAME."},
  };
  for (const auto& one : cases) {
    SCOPED_TRACE(std::string(one.part) + ": " + one.put);
    std::map<std::string, std::string> files;
    ASSERT_TRUE(
        MakeEngineCase({"", one.part, "", "", one.find, one.put}, "x", files));
    const std::vector<Finding> findings =
        CheckFiles(FileSetOf(files, "x"), StandInGameFile);
    const auto told = std::find_if(findings.begin(), findings.end(),
                                   [](const Finding& finding) {
                                     return finding.severity != Severity::kHint;
                                   });
    ASSERT_NE(told, findings.end());
    EXPECT_THAT(told->text, HasSubstr(one.advice));
    EXPECT_EQ(Found(FileSetOf(files, "x")).size(), 1U);
  }
}

TEST(CheckFiles, LooksBareWordsUpInTheGame) {
  const IncludeLookup game =
      [](std::string_view path) -> std::optional<std::string> {
    if (path == "rnd.c") return "HELLO1 = { \"hi\"; }\nMINE = { \"ho\"; }\n";
    return StandInGameFile(path);
  };
  std::map<std::string, std::string> files;
  ASSERT_TRUE(MakeEngineCase(
      {"", "t", "", "", "\"bye\";", "MINE;\nHELLO_MINE;\nOTHER;\nGIVEN;\n"},
      "x", files));
  files["t"].insert(0, "#define GIVEN \"ha\"\n");
  EXPECT_THAT(Found(FileSetOf(files, "x"), game),
              ElementsAre("x_t.c:13: warning chat-word-unknown",
                          "x_t.c:14: warning chat-word-unknown"));
}

TEST(CheckFiles, LeavesTheChatsAloneWhereTheirNameIsMissing) {
  std::map<std::string, std::string> files;
  ASSERT_TRUE(MakeEngineCase(
      {"", "c", "", "", "CHARACTERISTIC_CHAT_NAME \"botx\"", ""}, "x", files));
  EXPECT_THAT(
      Found(FileSetOf(files, "x"), WithFallback("ours", StandInGameFile)),
      ElementsAre("x_c.c:2: error no-file-key"));
}

TEST(CheckFiles, BlamesTheIncludedFileOfTheBot) {
  std::map<std::string, std::string> files;
  ASSERT_TRUE(MakeEngineCase(
      {"", "w", "", "", "#define W_RAILGUN 60", "#include \"bots/own.h\""}, "x",
      files));
  const IncludeLookup with_own = [](std::string_view path) {
    return path == "bots/own.h"
               ? std::optional<std::string>("\n#define W_RAILGUN high\n")
               : StandInGameFile(path);
  };
  const BotFileSet set = FileSetOf(files, "x");
  EXPECT_THAT(Found(set, with_own),
              ElementsAre("x_w.c:8: error macro-not-a-number"));
  EXPECT_THAT(CheckFiles(set, with_own).front().text,
              HasSubstr("The value of W_RAILGUN must be one plain number, and "
                        "not \"high\". Write one number, such as 50. (Noticed "
                        "in botfiles/bots/own.h, line 2"));
}

TEST(CheckFiles, TakesSkillsBetweenFromBothLevels) {
  std::map<std::string, std::string> files;
  ASSERT_TRUE(
      MakeEngineCase({"", "c", "", "", "SKILL 0.9", "SKILL high"}, "x", files));
  const BotFileSet set = FileSetOf(files, "x");
  const std::map<double, Verdict> wanted = {
      {1, Verdict::kAsWritten},     {3.99, Verdict::kAsWritten},
      {4, Verdict::kAsWritten},     {4.01, Verdict::kWithDefault},
      {4.5, Verdict::kWithDefault}, {5, Verdict::kWithDefault}};
  for (const auto& [skill, verdict] : wanted) {
    EXPECT_EQ(VerdictAt(set, StandInGameFile, skill), verdict) << skill;
  }
}

TEST(CheckFiles, PicksTheBotOfTheDescriptionThatIsMeant) {
  std::map<std::string, std::string> files;
  ASSERT_TRUE(MakeEngineCase({"", "bot", "", "", "", ""}, "x", files));
  files["bot"] = "{\nname other\naifile bots/o;c\n}\n" + files["bot"];
  EXPECT_EQ(Verdicts(FileSetOf(files, "x")), "WWWW");
  files["bot"] = "{\nname X\naifile bots/default_c.c\n}\n" + files["bot"];
  const BotFileSet set = FileSetOf(files, "x");
  EXPECT_EQ(Verdicts(set), "RRRR");
  EXPECT_THAT(Found(set), Contains("x.bot:3: error other-character"));
  EXPECT_THAT(CheckFiles(set, StandInGameFile).front().text,
              HasSubstr("with the character and the files of that one."));
}

TEST(CheckFiles, TellsSwappedPathsOfWeights) {
  std::map<std::string, std::string> files;
  ASSERT_TRUE(MakeEngineCase({"", "c", "", "", "", ""}, "x", files));
  files["c"] = ReplaceAll(files["c"], "x_w.c", "x_?.c");
  files["c"] = ReplaceAll(files["c"], "x_i.c", "x_w.c");
  files["c"] = ReplaceAll(files["c"], "x_?.c", "x_i.c");
  const BotFileSet set = FileSetOf(files, "x");
  EXPECT_THAT(Found(set), Contains("x_c.c:9: error weights-of-other-kind"));
  const std::vector<Finding> findings = CheckFiles(set, StandInGameFile);
  const auto told =
      std::ranges::find(findings, Severity::kError, &Finding::severity);
  ASSERT_NE(told, findings.end());
  EXPECT_THAT(told->text,
              HasSubstr("of items. Write \"bots/x_w.c\" in each skill block."));
}

TEST(CheckFiles, TellsSwappedWeightsOnce) {
  std::map<std::string, std::string> files;
  ASSERT_TRUE(MakeEngineCase({"", "c", "", "", "", ""}, "x", files));
  std::swap(files["w"], files["i"]);
  EXPECT_THAT(Found(FileSetOf(files, "x")),
              ElementsAre("x_w.c:29: error weights-of-other-kind"));
}

TEST(CheckFiles, KnowsTheChanceOfTwoBotsOfOneName) {
  std::map<std::string, std::string> files;
  ASSERT_TRUE(MakeEngineCase({"", "c", "", "", "", ""}, "x", files));
  BotFileSet set = FileSetOf(files, "x");
  const std::string other = "{\nname X\naifile bots/other_c.c\n}\n";
  AddNamesTaken(other, "other.bot", set, true);
  EXPECT_THAT(Found(set), ElementsAre("x.bot:2: warning name-shared"));
  EXPECT_EQ(Verdicts(set), "WWWW");
  set.names_taken.clear();
  AddNamesTaken(other, "bots.txt", set);
  EXPECT_THAT(Found(set), ElementsAre("x.bot:2: error name-taken"));
}

TEST(CheckFiles, TellsFilesThatChangedPlaces) {
  std::map<std::string, std::string> files;
  ASSERT_TRUE(MakeEngineCase({"", "c", "", "", "ITEMWEIGHTS \"bots/botx_i.c\"",
                              "ITEMWEIGHTS \"bots/botx_w.c\""},
                             "x", files));
  EXPECT_THAT(Found(FileSetOf(files, "x")),
              Contains("x_c.c:10: warning wrong-file"));
}

TEST(CheckFiles, BearsFilesWithoutEnd) {
  std::map<std::string, std::string> files;
  ASSERT_TRUE(MakeEngineCase(
      {"", "c", "", "", "skill 1", "#define A B\n#define B A\nA\nskill 1"}, "x",
      files));
  BotFileSet set = FileSetOf(files, "x");
  EXPECT_THAT(Found(set), Contains("x_c.c:4: error endless-file"));
  set.character->bytes.clear();
  for (int line = 0; line < 100'000; ++line) {
    set.character->bytes += "#include \"chars.h\" \"\n";
  }
  EXPECT_LE(CheckFiles(set, StandInGameFile).size(), 3 * Complaints::kMax);
  // No number of warnings hides what becomes of the bot, and no file is asked
  // for more than once.
  set.character->bytes.clear();
  for (int line = 0; line < 100'000; ++line) {
    set.character->bytes += "#define A 1\n#include \"small.h\"\n";
  }
  int reads = 0;
  const IncludeLookup count = [&reads](std::string_view path) {
    if (path != "small.h") return StandInGameFile(path);
    ++reads;
    return std::optional<std::string>("#pragma");
  };
  EXPECT_THAT(Found(set, count), Contains(HasSubstr(": error endless-file")));
  EXPECT_EQ(reads, 1);
  EXPECT_THAT(CheckFiles({}, StandInGameFile), ::testing::Not(IsEmpty()));

  files.clear();
  ASSERT_TRUE(
      MakeEngineCase({"", "c", "", "", "skill 1", "skill 1"}, "x", files));
  set = FileSetOf(files, "x");
  for (int depth = 0; depth < 150; ++depth) {
    set.weapon_weights->bytes +=
        depth == 0 ? "\nweight \"x\" { " : " default: ";
    set.weapon_weights->bytes += "switch(1) {";
  }
  EXPECT_THAT(Found(set), Contains(HasSubstr(": error switch-too-deep")));
}

}  // namespace
}  // namespace fragsmith
