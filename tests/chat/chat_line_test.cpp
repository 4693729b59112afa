#include "chat/chat_line.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <iterator>

#include "support/localization.h"
#include "support/random.h"
#include "tests/support/ids.h"

namespace fragsmith {
namespace {

using ::testing::ElementsAre;

constexpr ChatTypeId kInsult{24};  // Knows {TARGET} as 0 and {WEAPONUSED} as 1.
constexpr ChatTypeId kRandom{
    26};  // Knows {RANDOMOPP2} as 0, {LAST VICTIM} as 1.
constexpr ChatTypeId kLevelEnd{3};

using Forms = std::pair<std::string, std::string>;

void ExpectThereAndBack(ChatTypeId type, const Forms& forms) {
  const auto& [editor, file] = forms;
  EXPECT_EQ(ChatLineToFile(type, editor), file);
  const std::string line = file.substr(file.find_first_not_of(' '));
  EXPECT_EQ(ChatLineFromFile(type, line).text, editor) << file;
  EXPECT_TRUE(ChatLineFromFile(type, line).oddities.empty()) << file;
}

// clang-format off
TEST(ChatLine, GoesThereAndBack) {
  const Forms members[] = {
      {"{{KILLINSULT12}}", "KILL_INSULT12;"}, {"{{GAMEENTER0}}", "HELLO;"},
      {"{{KILLINSULT02}}", "KILL_INSULT02;"}, {"{{TAUNT0}}", "TAUNT;"},
      {"{{TAUNTFEM3}}", "TAUNT_FEM3;"}, {"{{TAUNTFEM0}}", "TAUNT_FEM;"},
      {"{{LEVELEND0}}", "LEVEL_END0;"}, {"{{DEATHPRAISE0}}", "D_PRAISE;"},
      {"{{LEVELENDVICTORY3}}", "LEVEL_END_VICTORY3;"},
      {"{{LEVELENDLOSE1}}", "LEVEL_END_LOSE1;"},
      {"{{DEATHTELEFRAG2}}", "DEATH_TELEFRAGGED2;"},
      {"{{KILLTELEFRAG2}}", "TELEFRAGGED2;"}};
  for (const Forms& forms : members) ExpectThereAndBack(kLevelEnd, forms);
  const Forms texts[] = {
      {"{CURSE}", "curse;"}, {"PROFESSION", "profession;"},
      {" a\xFF ; // b ", "\" a\xFF ; // b \";"},
      {"a {x} }} {{ b", "\"a {x} }} {{ b\";"},
      {"Nice shot, {TARGET}!", "\"Nice shot, \", 0, \"!\";"},
      {"{EXCLAMATION} I win", "exclamation, \" I win\";"},
      {"Got you with my {WEAPONUSED}", "\"Got you with my \", 1;"},
      {"{TARGET} is {GOOD}", " 0, \" is \", good;"},
      {"{TARGET}", " 0, \"\";"}, {"{GOOD}{WEAPON}", "good, \"\", weapon;"},
      {"{GOOD}{TARGET}{GOOD}", "good, \"\", 0, \"\", good;"},
      {"a{GOOD}{GOOD}b", "\"a\", good, \"\", good, \"b\";"},
      {"my PROFESSIONS", "\"my \", profession, \"S\";"},
      {"a {RANDOMCONSELOR}", "\"a \", random_counselor;"},
      // A pointer that the type does not offer is plain text.
      {"{ATTACKER}!", "\"{ATTACKER}!\";"}};
  for (const Forms& forms : texts) ExpectThereAndBack(kInsult, forms);
  ExpectThereAndBack(kRandom, {"{LAST VICTIM} and {RANDOMOPP2}",
                               " 1, \" and \", 0;"});
  ExpectThereAndBack(kLevelEnd,
      {"{ANYBOTNAME} {RANDOMOPP} {LEVELWINNER} {LEVELLOSER} {LEVELTITLE}",
       " 0, \" \", 1, \" \", 2, \" \", 3, \" \", 4;"});
  // Only a whole line is a member.
  for (const std::string text :
       {"x{{TAUNT3}}", "{{TAUNT3}} x", "{{TAUNT}}", "{{TAUNTX}}", "{{TAUNT3}",
        "{{TAUNT-1}}", "{{NONE3}}", "{{}}", "{{TAUNT}", "TAUNT3"}) {
    ExpectThereAndBack(kInsult, {text, "\"" + text + "\";"});
  }
}

TEST(ChatLine, ReadsOtherSpellingsAndKeepsTheRest) {
  const Forms spellings[] = {
      {"a{GOOD}b", "\"a\",good,\"b\";"}, {"{TARGET} b", "0,\" b\";"},
      {"a{GOOD}b", "\"a\" , go od  ,\"b\" ;"}, {"a {TARGET}", "\"a \",0;"},
      {"{TARGET}", "0;"}, {"a{TARGET}{GOOD}b", "\"a\", 0, good, \"b\";"},
      {"{GOOD}{WEAPON}", "good, weapon;"}, {"Rrrrrr.", "\"Rrrrrr.\";  "},
      {"Rrrrrr.", "\"Rrrrrr.\"; // growl; \"x\""}, {"R", "\"R\"; /* x */"}};
  for (const auto& [editor, file] : spellings) {
    EXPECT_EQ(ChatLineFromFile(kInsult, file).text, editor) << file;
    EXPECT_TRUE(ChatLineFromFile(kInsult, file).oddities.empty()) << file;
  }
  // What is not understood is kept, with one note.
  const Forms oddities[] = {
      {"new \", 5, \"? ", "\"new \", 5, \"? \";"}, {"HELO3", "HELO3;"}, {"", ""},
      {"\", disease, \" again", "disease, \" again\";"},
      {"I have \", disease, \"", "\"I have \", disease;"},
      {"a\", 0, disease, \"b", "\"a\", 0, disease, \"b\";"},
      {"\", 0, disease, \"", "0, disease;"}, {"a\", \"b", "\"a\", \"b\";"},
      {"a\" \"b", "\"a\" \"b\";"}, {"say \"no\"", "\"say \"no\"\";"},
      {"5\" nails", "\"5\" nails\";"}, {"disease", "disease;"},
      {"a\"; \"b", "\"a\"; \"b\";"}, {"{WEAPON}", "\"weapon\";"},
      {"no end", "\"no end\""}};
  for (const auto& [editor, file] : oddities) {
    EXPECT_EQ(ChatLineFromFile(kInsult, file).text, editor) << file;
    EXPECT_EQ(ChatLineFromFile(kInsult, file).oddities.size(), 1U) << file;
  }
  const ChatOddity oddity =
      ChatLineFromFile(kInsult, "\"a\", \xE4, \"b\";").oddities.at(0);
  EXPECT_EQ(Localized(oddity.kind, {oddity.what}),
            "\", ä, \": not understood; stays as it is written.");
  for (const char* const line : {"line\";", "0, \" \", 1, \" \", 2;",
                                 "/* old */ \"hi\";"}) {
    EXPECT_EQ(ChatLineFromFile(kInsult, line).oddities.at(0).kind,
              "%1: not understood; a save writes the line in another way.")
        << line;
  }
}
// clang-format on

TEST(ChatLine, ReadsTheSameAgainOnceWritten) {
  // No editor variables: one that a file names outside a text is replaced.
  constexpr std::string_view kParts[] = {
      "\"", "\"", "\", ", ", \"",   ", ",    ",",  " ",          ";", "//",
      "0",  "1",  "5",    "weapon", "TAUNT", "12", "{{TAUNT3}}", "a", "\xE4"};
  const RandomSource random = SeededRandom(8);
  for (int round = 0; round < 20'000; ++round) {
    std::string line;
    for (int parts = static_cast<int>(random() * 9); parts >= 0; --parts) {
      line += kParts[static_cast<std::size_t>(random() * std::size(kParts))];
    }
    const ChatTypeId type = TypeAt(static_cast<int>(random() * 28));
    const std::string first = ChatLineFromFile(type, line + ";").text;
    std::string file = ChatLineToFile(type, first);
    file.erase(0, file.find_first_not_of(' '));
    ASSERT_EQ(ChatLineFromFile(type, file).text, first) << line << file;
  }
}

}  // namespace
}  // namespace fragsmith
