#include "inplace/chat_statement.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/inplace/editing.h"
#include "tests/support/ids.h"

namespace fragsmith {
namespace {

using ::testing::AllOf;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;

const WordLists kNoGame;

WordLists ListsOf(const std::string& names) {
  std::string text;
  std::string name;
  for (const char letter : names + ' ') {
    if (letter != ' ') {
      name += letter;
      continue;
    }
    text += name + " = { \"a line\"; }\n";
    name.clear();
  }
  return WordLists::Parse(text);
}

TEST(StatementForTest, CallsTheFirstOfALineGroupAsTheGameDoes) {
  const std::string taunt = "{{TAUNT0}}";
  const auto written = [&](const ChatSpellings& spellings,
                           const WordLists& lists) {
    return StatementFor(TypeAt(0), taunt, spellings, lists).text;
  };
  EXPECT_EQ(written({}, kNoGame), "TAUNT;");
  EXPECT_EQ(written({}, ListsOf("TAUNT0 TAUNT1")), "TAUNT0;");
  EXPECT_EQ(written({}, ListsOf("TAUNT TAUNT0")), "TAUNT;");
  EXPECT_EQ(written({}, ListsOf("OTHER")), "TAUNT;");
  // As the author wrote this line, else one like it.
  EXPECT_EQ(written({{taunt, "TAUNT0 ;"}}, kNoGame), "TAUNT0 ;");
  EXPECT_EQ(written({{"{{GAMEENTER0}}", "HELLO0;"}}, kNoGame), "TAUNT0;");
  EXPECT_EQ(written({{"{{MISC0}}", "MISC0 ;"}}, kNoGame), "TAUNT;");
  EXPECT_EQ(StatementFor(TypeAt(0), "{{MISC0}}", {}, ListsOf("MISC0")).text,
            "MISC0;");
}

TEST(StatementForTest, WritesANameWhereTheGameHasTheList) {
  const auto plain = [](const std::string& line, const WordLists& lists) {
    return StatementFor(TypeAt(0), line, {}, lists);
  };
  const ChatStatement name = plain("GRRLTALK1", ListsOf("GRRLTALK1"));
  EXPECT_EQ(name.text, "GRRLTALK1;");
  EXPECT_THAT(name.note, HasSubstr("\"GRRLTALK1\" is written as the game's"));
  const ChatStatement text = plain("GRRLTALK1", kNoGame);
  EXPECT_EQ(text.text, "\"GRRLTALK1\";");
  EXPECT_THAT(text.note, HasSubstr("is written as a text."));
  for (const std::string line : {"GG", "gg2", "GRRLTALK1!", "HA HA"}) {
    EXPECT_EQ(plain(line, kNoGame).text, '"' + line + "\";");
    EXPECT_THAT(plain(line, kNoGame).note, IsEmpty()) << line;
  }
  EXPECT_EQ(plain("HA HA", ListsOf("HA")).text, "\"HA HA\";");
  // A word that people write is one, whatever lists the game has.
  const ChatStatement word = plain("peeps", ListsOf("peeps peeps01"));
  EXPECT_EQ(word.text, "\"peeps\";");
  EXPECT_THAT(word.note, HasSubstr("has a list of that name, too"));
  EXPECT_EQ(plain("peeps01", ListsOf("peeps peeps01")).text, "peeps01;");
  const ChatSpellings own = {{"peeps", "peeps;"}};
  EXPECT_EQ(StatementFor(TypeAt(0), "peeps", own, ListsOf("peeps")).text,
            "peeps;");
  // The word alone is the variable of a list that the editor knows.
  EXPECT_EQ(plain("food", ListsOf("food")).text, "\"food\";");
}

TEST(StatementForTest, GivesANameBackThatAnotherEditTookOut) {
  const std::string chat =
      "chat \"rook\"\n{\n\ttype \"game_enter\"\n\t{\n\t\tTAUNT0;\n"
      "\t\tGRRLTALK1;\n\t\t\"in\";\n\t}\n}\n";
  const auto game = [](std::string_view path) -> std::optional<std::string> {
    if (path != "rnd.c") return StandInGameFile(path);
    return "TAUNT0 = { \"a\"; }\nGRRLTALK1 = { \"b\"; }\n";
  };
  const LoadedFile file(BotFile::kChat, chat, "rook", game);
  const auto edited = file.Edited(TypeAt(0), {"in"});
  ASSERT_TRUE(edited) << edited.error().what;
  const LoadedFile again(BotFile::kChat, *edited, "rook", game);
  Notes notes;
  const auto back = EditInPlace(again.readers(), *edited, again.before(),
                                file.before(), {}, {&notes});
  ASSERT_TRUE(back) << back.error().what;
  EXPECT_EQ(*back, chat);
  EXPECT_EQ(notes.list().size(), 1U);
}

TEST(StatementForTest, SaysHowALineWasWrittenThatWouldComeBackOtherwise) {
  const LoadedFile file(
      BotFile::kChat,
      "chat \"rook\"\n{\n\ttype \"game_enter\"\n\t{\n\t\t\"looser\";\n"
      "\t\tpeeps;\n\t\tlooser;\n\t\tTAUNT1;\n\t\t\"in\";\n\t}\n}\n");
  const auto notes_of = [&file](const std::vector<std::string>& lines) {
    Notes notes;
    Bot after = file.before();
    after.SetChatLines(TypeAt(0), lines);
    EXPECT_TRUE(EditInPlace(file.readers(), file.bytes(), file.before(), after,
                            {}, {&notes}));
    std::vector<std::string> texts;
    for (const Note& note : notes.list()) texts.push_back(note.text);
    return texts;
  };
  EXPECT_THAT(notes_of({"in"}),
              ElementsAre(AllOf(HasSubstr("\"{LOSER}\" goes, which was written "
                                          "as \"looser\";."),
                                HasSubstr("would be looser;,")),
                          HasSubstr("would be \"peeps\";,")));
  // It is there still.
  EXPECT_THAT(notes_of({"in", "peeps", "{LOSER}", "{LOSER}"}), IsEmpty());
}

}  // namespace
}  // namespace fragsmith
