#include "game/spoken_line.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>

#include "chat/chat_catalogue.h"
#include "chat/chat_line.h"
#include "game/limits.h"
#include "tests/support/game_lines.h"
#include "tests/support/ids.h"

namespace fragsmith {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

constexpr ChatTypeId kGameEntry{0};
constexpr ChatTypeId kDeathInsult{18};
constexpr ChatTypeId kRandomMisc{27};

const RandomSource kFirst = [] { return 0.0; };
const RandomSource kLast = [] { return 0.999; };

TEST(ChatMessage, CountsWhatTheGameKeeps) {
  struct Row {
    std::string statement;
    std::size_t length;
    bool is_broken;
    bool is_cut;
  };
  for (const Row& row : std::vector<Row>{
           {"\"abc\";", 3, false, false},
           {"\"a\" \"bc\";", 3, false, false},
           {"\"a\", 0, \"b\", food, \"c\";", 3 + 4 + 7, false, false},
           {"HELLO;", 8, false, false},
           {"\"a\\\\b\\\"c\\65\";", 6, false, false},
           {"\"a\\o/\";", 1, false, true},
           {"\"a\"", 1, true, false},
           {"\"a\" 0;", 1, true, false},
           {"\"a\", ;", 1, true, false},
           {"0.5;", 0, true, false},
           {"\"a;", 0, true, false},
           {"", 0, true, false},
           {"\"a\"; \"b\";", 1, true, false}}) {
    const ChatMessage message = ReadChatMessage(row.statement);
    EXPECT_EQ(SizeOf(message).length, row.length) << row.statement;
    EXPECT_EQ(message.is_broken, row.is_broken) << row.statement;
    EXPECT_EQ(message.is_cut, row.is_cut) << row.statement;
  }
}

TEST(SpokenLine, LosesAndChangesCharacters) {
  using Row = std::pair<std::string, std::string>;
  for (const auto& [text, shown] :
       {Row{"caf\xE9 na\xEFve!", "caf na ve!"}, Row{"50% ;off", "50.  off"},
        Row{"see http://x", "see http:"}, Row{"a /* b */ c", "a c"},
        Row{"a /* b", "a"}, Row{"  a \t\n b ", "a b"},
        Row{"~can't ~~go", "can't ~go"}, Row{"^1Red \"x\"", "^1Red x"},
        // As a server printed them.
        Row{"\"x // y\" z", "x // y z"}, Row{"a;b", "a b"}, Row{"a; b", "a  b"},
        Row{"a ;  ; b", "a     b"}, Row{"say \"hi\"! end", "say hi ! end"},
        Row{"x\"y  z\"w", "x y  z w"},
        Row{"open \"to  the // end", "open to  the // end"},
        Row{"\"in /* x */ q\" r", "in /* x */ q r"}, Row{"p/* q */r", "p r"},
        Row{"B \"\" empty", "B  empty"}, Row{"end\"", "end "},
        Row{"a/*b", "a"}}) {
    EXPECT_EQ(AsOnScreen(text), shown);
  }
  EXPECT_EQ(SimpleName("^1Mr. X-Ray"), "xray");
  EXPECT_EQ(SimpleName("[Clan] The ^2Best_1"), "thebest_1");
}

TEST(SpokenLine, FillsVariablesAndDrawsWords) {
  const WordLists lists = WordLists::Parse(
      "// a comment\n food = { \"soup\"; \"hot \", dish; }\n"
      "dish = { \"pie\"; \"stew for \", 0; }\n"
      "TAUNT = { \"Ha\"; } endless = { \"e\", endless; } empty = { }");
  const auto speak = [&lists](ChatTypeId type, const std::string& line,
                              const RandomSource& random) {
    return SpeakLine(type, line, {}, lists, random).text;
  };
  EXPECT_EQ(speak(kDeathInsult, "I eat {FOOD}!", kFirst), "I eat soup!");
  EXPECT_EQ(speak(kDeathInsult, "I eat {FOOD}!", kLast),
            "I eat hot stew for marla!");
  EXPECT_EQ(speak(kDeathInsult, "{{TAUNT0}}", kFirst), "Ha");
  EXPECT_EQ(speak(kDeathInsult, "{ATTACKER} with a {WEAPONUSED}", kFirst),
            "marla with a Rocket Launcher");
  EXPECT_EQ(speak(kGameEntry, "I am {ANYBOTNAME} on {LEVELTITLE}", kFirst),
            "I am rookie on q3dm1");
  EXPECT_EQ(speak(kRandomMisc, "a\", 2, \"b\", 7, \"c", kFirst),
            "a[invalid var]bc");
  EXPECT_EQ(speak(kRandomMisc, "x\", endless, \"y", kFirst), "xeeeeeeeeeey");
  EXPECT_EQ(speak(kRandomMisc, "x\", empty, \"y", kFirst), "xy");

  const SpokenLine unknown =
      SpeakLine(kDeathInsult, "My {CURSE} {FOOD}", {}, lists, kFirst);
  EXPECT_EQ(unknown.text, "My");
  EXPECT_THAT(unknown.unknown_lists, ElementsAre("curse"));
  EXPECT_TRUE(SpeakLine(kDeathInsult, "a \"b", {}, lists, kFirst).is_broken);
}

TEST(SpokenLine, CountsUpToItsLimits) {
  const WordLists lists = WordLists::Parse("food = { \"a\"; \"abcd\"; }");
  const SpokenLine line =
      SpeakLine(kDeathInsult, std::string(100, 'x') + "{FOOD}{ATTACKER}", {},
                lists, kFirst);
  EXPECT_EQ(line.encoded_length, 100U + 7 + 4);
  EXPECT_EQ(line.spoken_length, 100U + 1 + 5);
  EXPECT_EQ(line.longest_length, 100U + 4 + limits::kMaxPlayerName);
  const SpokenLine cut =
      SpeakLine(kDeathInsult, std::string(255, 'x'), {}, lists, kFirst);
  EXPECT_EQ(cut.text.size(), limits::kMaxSpokenBytes);
  EXPECT_EQ(cut.spoken_length, 255U);
  EXPECT_TRUE(SpeakLine(kDeathInsult, std::string(256, 'x'), {}, lists, kFirst)
                  .is_broken);
}

TEST(WordLists, BearWhatTheyFind) {
  EXPECT_TRUE(WordLists::Parse("").empty());
  EXPECT_EQ(WordLists::Parse("a = { \"x\"; \"y\" oops }").size(), 1U);
  // Lists that draw on each other grow without end, but not here.
  std::string text = "a = {";
  for (int number = 0; number < 50; ++number) text += " a, a, b;";
  const WordLists lists = WordLists::Parse(text + "} b = { a, \"x\", a; }");
  EXPECT_EQ(lists.Find("a")->longest, limits::kMaxEncodedBytes + 1);
  EXPECT_LE(SpeakLine(TypeAt(0), "x\", a, \"y", {}, lists, kFirst).text.size(),
            limits::kMaxSpokenBytes);
  EXPECT_EQ(lists.Find("A"), nullptr);
  WordLists::Parse(Repeated("a={a;}", "a = {"));
}

TEST(WordLists, HaveASampleForAllThatTheEditorOffers) {
  const WordLists& sample = WordLists::Sample();
  for (const WordList& list : kWordLists) {
    EXPECT_NE(sample.Find(list.Key), nullptr) << list.Key;
  }
  for (int group = 0; group < static_cast<int>(kChatGroups.size()); ++group) {
    for (const int number : MemberNumbers(group)) {
      const std::string member = GroupMember(group, std::to_string(number));
      EXPECT_THAT(SpeakLine(TypeAt(0), member, {}, sample, kLast).unknown_lists,
                  IsEmpty())
          << member;
    }
  }
}

}  // namespace
}  // namespace fragsmith
