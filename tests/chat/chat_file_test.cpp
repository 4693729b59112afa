#include "chat/chat_file.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <iterator>

#include "chat/chat_commands.h"
#include "support/random.h"
#include "tests/support/game_lines.h"
#include "tests/support/ids.h"
#include "tests/support/set_parameter.h"

namespace fragsmith {
namespace {

using ::testing::ElementsAre;

/// The file of a bot with these lines of the first type and no others.
std::string FileOf(const std::string& name, const std::string& first_lines) {
  // clang-format off
  constexpr std::string_view kKeys[] = {
      "game_exit", "level_start", "level_end", "level_end_victory",
      "level_end_lose", "hit_talking", "hit_nodeath", "hit_nokill",
      "death_telefrag", "death_cratered", "death_lava", "death_slime",
      "death_drown", "death_suicide", "death_gauntlet", "death_rail",
      "death_bfg", "death_insult", "death_praise", "kill_rail",
      "kill_gauntlet", "kill_telefrag", "kill_suicide", "kill_insult",
      "kill_praise", "random_insult", "random_misc"};
  // clang-format on
  std::string text = "||chat \"" + name + "\"|{|>#include \"teamplay.h\"|" +
                     "|>type \"game_enter\"|>{|" + first_lines + ">}|";
  for (const std::string_view key : kKeys) {
    text += "|>type \"" + std::string(key) + "\"|>{|>}|";
  }
  return GameLines(text + "}|");
}

TEST(ChatFile, IsWrittenToTheByte) {
  Bot bot;
  Set(bot, Id(0), "123");
  EXPECT_EQ(WriteChatFile(bot, {"Ann", "", ""}),
            HeaderComment(bot, {"Ann", "", ""}) + FileOf("123", ""));
  Set(bot, Id(0), "mybot");
  bot.SetChatLine(TypeAt(0), ChatLineIndex(0), "{{GAMEENTER0}}");
  bot.SetChatLine(TypeAt(0), ChatLineIndex(2), "Hi {ANYBOTNAME}!");
  EXPECT_EQ(WriteChatFile(bot, {}),
            HeaderComment(bot, {}) +
                FileOf("mybot", ">>HELLO;|>>\"Hi \", 0, \"!\";|"));
}

TEST(ChatFile, ReadsBackWhatItWrote) {
  const RandomSource random = SeededRandom(9);
  constexpr std::string_view kParts[] = {
      "{WEAPON}",   "PROFESSION", "{ATTACKER}", "{TARGET}", "{LAST VICTIM}",
      "type \"x\"", "}",          "{",          "//",       ";",
      " ",          ", ",         "\xC4",       "a",        "7"};
  for (int round = 0; round < 100; ++round) {
    Bot bot;
    for (const ChatTypeId type : kAllChatTypes) {
      for (int lines = static_cast<int>(random() * 4); lines > 0; --lines) {
        std::string line = "x";
        for (int parts = static_cast<int>(random() * 6); parts > 0; --parts) {
          line +=
              kParts[static_cast<std::size_t>(random() * std::size(kParts))];
        }
        bot.SetChatLine(type, NextFreeChatLine(bot, type), line);
      }
      // In which line it came to stand does not matter.
      if (random() < 0.5) (void)AddRandomChatLine(bot, type, random);
    }
    Bot read;
    EXPECT_TRUE(
        ReadChatFile(WriteChatFile(bot, {}), "f", read).missing_types.empty());
    ASSERT_EQ(read, bot) << WriteChatFile(bot, {});
  }
}

TEST(ChatFile, ReadsOddFilesToTheirEnd) {
  const std::string enter = ">type \"game_enter\"|>{|>>\"a\";|";
  const std::string misc = ">type \"random_misc\"|>{|>>\"b\";|";
  const struct {
    std::string text;
    std::vector<std::string> enter;  ///< Lines of game_enter.
    std::vector<std::string> misc;   ///< Lines of random_misc.
    std::vector<std::size_t> noted;  ///< Lines with a note.
  } cases[] = {
      {enter + ">}|" + misc + "  >}|>>\"out\";|", {"a"}, {"b"}, {9}},
      // A "}" is missing at the end, or before the next type.
      {enter, {"a"}, {""}, {3}},
      {enter + misc + ">}|", {"a"}, {"b"}, {4}},
      {enter + ">type \"random_misc\"|>>\"b\";|>}|", {"a"}, {"b"}, {4}},
      {enter + ">>\"type \"x\"\";|>}|", {"a", "type \"x\""}, {""}, {4}},
      // An unknown type goes to the one in force, a second block behind.
      {">type \"game_leave\"|>{|>>\"c\";|>}|" + misc +
           ">}|>type \"nothing\"|>{|>>\"d\";|>}|",
       {"c"},
       {"b", "d"},
       {1, 9}},
      {enter + ">}|" + misc + ">}|" + enter + ">}|", {"a", "a"}, {"b"}, {9}},
      // A save puts quotes on, and makes one chat of two.
      {"chat \"x\"|{|>type game_enter|>{|>>\"a\";|>}|}|chat \"y\"|{|" + misc +
           ">}|}|",
       {"a"},
       {"b"},
       {3, 8}},
      // Blocks of one line are not open, though what is in them is not read.
      {"chat \"x\"|{|>type \"game_exit\" { \"c\"; }|>type \"game_enter\" {}|" +
           misc + ">}|}|",
       {""},
       {"b"},
       {3}},
      // Braces that open or close nothing.
      {"chat \"x\"|{ {|" + enter + ">}|" + misc + ">}|}|}|", {"a"}, {"b"}, {2}},
      // The name of the bot holds the word.
      {"chat \"typebot\"|{|" + enter + ">}|}|", {"a"}, {""}, {1, 3}},
      // What is passed over inside and outside of blocks.
      {"//>type \"game_enter\"|}type|{type|#itype|typo|" + enter +
           ">>//no|> >{ no||>> >|>>\"e\"; // yes|>}|",
       {"a", "e"},
       {""},
       {1, 2}},
      {"type \"game_enter\" {|\"a>b\";|>>0x\x1A;|}",
       {"ab", "0x"},
       {""},
       {2, 3}}};
  for (const auto& row : cases) {
    Bot bot;
    const Notes notes = ReadChatFile(GameLines(row.text), "f_t.c", bot).notes;
    EXPECT_EQ(bot.ChatLines(TypeAt(0)), row.enter) << row.text;
    EXPECT_EQ(bot.ChatLines(TypeAt(27)), row.misc) << row.text;
    EXPECT_EQ(NotedLines(notes), row.noted) << row.text;
  }
}

TEST(ChatFile, TellsTypesThatBeginAlikeApart) {
  Bot bot;
  const Notes notes =
      ReadChatFile(
          GameLines(
              "type \"level_end_lose\"|\"l\";|}|type \"level_end\"|\"e\";|}|"
              "type \"level_end_victory\"|\"v\";|}|type \"level_end\"|}|"),
          "f_t.c", bot)
          .notes;
  EXPECT_THAT(Described(notes),
              ElementsAre("f_t.c:10: The type level_end was there before; the "
                          "game uses the last block alone."));
  EXPECT_EQ(bot.ChatLine(TypeAt(3), ChatLineIndex(0)) +
                bot.ChatLine(TypeAt(4), ChatLineIndex(0)) +
                bot.ChatLine(TypeAt(5), ChatLineIndex(0)),
            "evl");
}

TEST(ChatFile, PassesOverTheBlanksThatNobodySees) {
  const std::string text = "a\xA0z\xC2\xA0 \x93hi\x94";
  for (const std::string blank : {"\xA0", "\xC2\xA0", "\x1A"}) {
    std::string file;
    for (const char letter :
         GameLines("chat \"x\"|{|>#include \"teamplay.h\"|>type \"death_lava\"|"
                   ">{|>>\"" +
                   text +
                   "\";|>>\"b\",>0;|>}|>type>\"kill_rail\"|>{|>>\"c\";|"
                   ">}|}|")) {
      file += letter == '\t' ? blank : std::string(1, letter);
    }
    Bot bot;
    const ReadReport report = ReadChatFile(file, "f_t.c", bot);
    EXPECT_EQ(bot.ChatLine(TypeAt(11), ChatLineIndex(0)), text);
    EXPECT_EQ(bot.ChatLine(TypeAt(11), ChatLineIndex(1)), "b{RANDOMOPP2}");
    EXPECT_EQ(bot.ChatLine(TypeAt(20), ChatLineIndex(0)), "c");
    EXPECT_THAT(Described(report.notes), ElementsAre());
  }
}

TEST(ChatFile, SurvivesHugeAndBinaryInput) {
  const RandomSource random = SeededRandom(10);
  const std::string type = "type \"game_enter\"\n";
  std::string noise = type;
  while (noise.size() < 1'000'000) {
    noise += static_cast<char>(random() * 256);
  }
  for (const std::string& bytes :
       {noise, Repeated("\", ", type), Repeated("\"a\", 0, ", type),
        Repeated("weapon,", type), Repeated(";", type), Repeated("9", type),
        Repeated("{WEAPON}", type), Repeated("type \"\"\n", type, 1),
        Repeated("a\n", type, 1)}) {
    Bot bot;
    const Notes notes = ReadChatFile(bytes, "f", bot).notes;
    std::size_t note_bytes = 0;
    for (const Note& note : notes.list()) note_bytes += note.text.size();
    EXPECT_LT(note_bytes, 200'000U) << bytes.substr(18, 10);
    EXPECT_FALSE(WriteChatFile(bot, {}).empty());
  }
}

}  // namespace
}  // namespace fragsmith
