#include "chat/synonym_list.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/support/scripted_prompts.h"

namespace fragsmith {
namespace {

using ::testing::ElementsAre;

TEST(SynonymList, ReadsFieldsBehindTheHeader) {
  const std::string head = "[Fragsmith synonym list]\r\n";
  const struct {
    std::string bytes;
    std::vector<std::string> words;
    bool is_whole;
  } cases[] = {{"", {""}, true},
               {head, {""}, true},
               {"\"a\"\r\n\"b\"\r\n", {"a", "b"}, true},
               {head + "\"a\"\r\n\"b \xC4\"\r\n", {"a", "b \xC4"}, true},
               {head + "a,b\r\r\"a,\r\nb\"", {"a", "b", "a,\r\nb"}, true},
               {head + "\"\"\n\"\"\n\"a\"\n\"\"\n", {"a", ""}, true},
               {head + "\"a\"\n\"b", {"a"}, false}};
  for (const auto& row : cases) {
    const ParsedSynonyms parsed = ParseSynonyms(row.bytes);
    EXPECT_EQ(parsed.list.words, row.words) << row.bytes;
    EXPECT_EQ(parsed.is_whole, row.is_whole) << row.bytes;
  }
}

TEST(SynonymList, TakesNewWordsAndRefusesOthers) {
  SynonymList list;
  ScriptedPrompts prompts;
  prompts.answers = {"Hello", "ä", "hELLO", "a\"b", "日", "", std::nullopt};
  for (int times = 0; times < 7; ++times) AskForSynonym(list, prompts);
  EXPECT_THAT(list.words, ElementsAre("", "Hello", "\xE4"));
  ASSERT_EQ(prompts.log.size(), 10U);
  EXPECT_EQ(prompts.log[0], "Add synonym: Give the new synonym");
  EXPECT_EQ(prompts.log[3],
            "Synonym not added: Synonym 'hELLO' exists in the list already.");
  EXPECT_EQ(
      prompts.log[7],
      "Synonym not added: '日' has a character that the list cannot hold.");
  EXPECT_EQ(FormatSynonyms(list),
            "[Fragsmith synonym list]\r\n\"Hello\"\r\n\"\xE4\"\r\n");
  EXPECT_THAT(ParseSynonyms(FormatSynonyms(list)).list.words,
              ElementsAre("Hello", "\xE4"));
}

TEST(SynonymList, MarksWholeWords) {
  const struct {
    std::vector<std::string> words;
    std::string text;
    std::string marked;
  } cases[] = {{{"hello"}, "Hello world", "~Hello world"},
               {{"", "HELLO", "hello"}, "Hello world", "~Hello world"},
               {{"hello"}, "~Hello hello, HELLO", "~Hello hello, ~HELLO"},
               {{"a", "b"}, " b  a ", " ~b  ~a "},
               {{"~a"}, "~a a", "~~a a"},
               {{"\xC4", "{weapon}"}, "\xE4 {WEAPON}", "~\xE4 ~{WEAPON}"},
               {{"a b"}, "a b", "a b"},
               {{"a"}, "", ""}};
  ScriptedPrompts prompts;
  for (const auto& row : cases) {
    EXPECT_EQ(MarkSynonyms(row.text, {row.words}, prompts), row.marked);
  }
  EXPECT_TRUE(prompts.log.empty());
  EXPECT_EQ(MarkSynonyms("Hello", {}, prompts), "Hello");
  EXPECT_EQ(MarkSynonyms("", {}, prompts), "");
  const std::string message =
      "Synonym list is missing: Synonym list is empty. Check that file "
      "'fgs_synonyms' exists in Fragsmith folder. You can create a new "
      "'fgs_synonyms' by adding synomyns from the Tools-menu";
  EXPECT_THAT(prompts.log, ElementsAre(message, message));
}

}  // namespace
}  // namespace fragsmith
