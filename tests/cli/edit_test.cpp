#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <sstream>
#include <string>
#include <system_error>
#include <utility>
#include <vector>

#include "cli/command_line.h"
#include "tests/support/test_folder.h"

namespace fragsmith {
namespace {

using ::testing::AllOf;
using ::testing::HasSubstr;
using ::testing::Not;

// The game takes the first weight of the railgun, a load the last.
constexpr const char* kWeights =
    "// by hand\n#include \"inv.h\"\n#define W_GAUNTLET 20\n#ifndef HARD\n"
    "#define W_RAILGUN 5\n#else\n#define W_RAILGUN 7\n#endif\n"
    "#include \"fw_weap.c\"";

class EditCommand : public ::testing::Test {
 protected:
  struct Outcome {
    int status;
    std::string out;
    std::string err;
  };

  EditCommand() {
    folder_.Write("rook_w.c", kWeights);
    folder_.Write("rook_t.c",
                  "chat \"rook\"\n{\n\ttype \"kill_rail\"\n\t{\n\t\t\"one\";\n"
                  "\t}\n}\n");
    folder_.Write("program/fgs.ini", "");
  }

  Outcome Run(std::vector<std::string> arguments,
              const std::string& input = {}) {
    arguments.insert(arguments.begin(),
                     {"edit", folder_.path().string(), "rook"});
    arguments.insert(arguments.end(),
                     {"--program-folder", (folder_ / "program").string()});
    std::istringstream in(input);
    std::ostringstream out;
    std::ostringstream err;
    const int status = RunCommandLine(std::move(arguments), in, out, err);
    return {status, out.str(), err.str()};
  }

  TestFolder folder_;
};

TEST_F(EditCommand, ShowsTheDifferenceAndThenWritesIt) {
  const std::vector<std::string> sets = {"--set", "weaponWeights.W_GAUNTLET=45",
                                         "--set",
                                         R"(chats.kill_rail=["one", "two"])"};
  std::vector<std::string> dry = sets;
  dry.push_back("--dry-run");
  EXPECT_EQ(Run(dry).out,
            "--- a/rook_w.c\n+++ b/rook_w.c\n@@ -1,6 +1,6 @@\n // by hand\n"
            " #include \"inv.h\"\n-#define W_GAUNTLET 20\n"
            "+#define W_GAUNTLET 45\n #ifndef HARD\n #define W_RAILGUN 5\n"
            " #else\n"
            "--- a/rook_t.c\n+++ b/rook_t.c\n@@ -3,5 +3,6 @@\n"
            " \ttype \"kill_rail\"\n \t{\n \t\t\"one\";\n+\t\t\"two\";\n \t}\n"
            " }\n");
  EXPECT_EQ(folder_.Read("rook_w.c"), kWeights);
  const Outcome done = Run(sets);
  EXPECT_EQ(done.status, 0);
  EXPECT_EQ(done.out, (folder_ / "rook_t.c").string() + "\n" +
                          (folder_ / "rook_w.c").string() + "\n");
  EXPECT_THAT(folder_.Read("rook_w.c"), HasSubstr("W_GAUNTLET 45\n"));
  EXPECT_THAT(folder_.Read("rook_t.c"), HasSubstr("\t\t\"two\";\n"));
}

TEST_F(EditCommand, TakesADocumentThatLeavesKeysOut) {
  const Outcome done =
      Run({"--from", "-"}, R"({"chats": {"kill_rail": ["other"]}})");
  EXPECT_EQ(done.status, 0) << done.err;
  EXPECT_THAT(folder_.Read("rook_t.c"), HasSubstr("\t\t\"other\";\n"));
  EXPECT_EQ(folder_.Read("rook_w.c"), kWeights);
}

TEST_F(EditCommand, LeavesTheBlocksOfOtherTypesWhenItTakesNewLists) {
  const std::string other =
      "\ttype \"enemy_suicide\"\n\t{\n\t\t\"he did it\";\n"
      "\t\t\"ha\";\n\t}\n";
  const auto chat = [&other](const std::string& lines) {
    return "chat \"rook\"\n{\n\ttype \"hit_nokill\"\n\t{\n" + lines + "\t}\n" +
           other + "}\n";
  };
  folder_.Write("rook_t.c", chat("\t\t\"ha\";\n"));
  const Outcome done =
      Run({"--from", "-"}, R"({"chats": {"hit_nokill": ["ha", "oh", "ah"]}})");
  EXPECT_EQ(done.status, 0);
  EXPECT_THAT(done.err, HasSubstr("keeps a line that stands in the block "
                                  "\"enemy_suicide\" and that the new list"));
  EXPECT_EQ(folder_.Read("rook_t.c"), chat("\t\t\"oh\";\n\t\t\"ah\";\n"));
}

TEST_F(EditCommand, RefusesWithTheReasonAndWritesNothing) {
  Outcome refused = Run({"--set", "weaponWeights.W_GAUNTLET=45", "--set",
                         "weaponWeights.W_RAILGUN=150"});
  EXPECT_EQ(refused.status, 1);
  EXPECT_THAT(refused.err, HasSubstr("\"Railgun usage\" cannot be changed in "
                                     "place."));
  EXPECT_THAT(refused.err, HasSubstr("would lose or change:\n  Line "));
  EXPECT_EQ(folder_.Read("rook_w.c"), kWeights);

  // A file written anew could not have it either.
  refused = Run({"--set", "weaponWeights.W_GAUNTLET=-4"});
  EXPECT_EQ(refused.status, 1);
  EXPECT_THAT(refused.err, AllOf(HasSubstr("no negative numbers. Use 0 or"),
                                 Not(HasSubstr("would lose or change"))));

  refused = Run({"--set", "comment=mine"});
  EXPECT_EQ(refused.status, 1);
  EXPECT_THAT(refused.err, HasSubstr("stands in none of the bot's files"));

  EXPECT_EQ(Run({}).status, 2);
  EXPECT_EQ(Run({"--set", "no sign"}).status, 2);
  EXPECT_THAT(Run({"--set", "weaponWeights.W_X=1"}).err,
              HasSubstr("Field weaponWeights.W_X: there is no such key."));
  EXPECT_THAT(Run({"--set", "chats.kill_rail=one"}).err,
              HasSubstr("a list of texts is wanted here."));
}

TEST_F(EditCommand, WantsNumbersAndChatLinesThatSaySomething) {
  for (const char* const value :
       {"abc", "", "nan", "1e400", "0x10", "true", "[1]", "1;", "\"\""}) {
    const Outcome refused =
        Run({"--set", "weaponWeights.W_GAUNTLET=" + std::string(value)});
    EXPECT_EQ(refused.status, 1) << value;
    EXPECT_THAT(refused.err,
                HasSubstr("Field weaponWeights.W_GAUNTLET: a number is "
                          "wanted here."));
  }
  EXPECT_EQ(
      Run({"--from", "-"}, R"({"levels": {"4": {"CHARACTERISTIC_AIM_SKILL":
                                "high"}}})")
          .status,
      1);
  EXPECT_THAT(Run({"--set", R"(chats.kill_rail=["a", "", "b"])"}).err,
              HasSubstr("Field chats.kill_rail: a chat line is empty."));
  EXPECT_EQ(folder_.Read("rook_w.c"), kWeights);
}

TEST_F(EditCommand, RefusesWhatWouldBecomeZero) {
  folder_.Write("rook.bot",
                "{\nname rook\nmodel sarge\narenaLord 1\n"
                "aifile bots/rook_c.c\n}\n");
  const std::string description = folder_.Read("rook.bot");
  for (const char* const value : {"0.4", "yes", "true", "\"0.5\""}) {
    EXPECT_THAT(Run({"--set", "arenaLord=" + std::string(value)}).err,
                HasSubstr("Field arenaLord: a whole number is wanted here. "
                          "Write 1 for yes or 0 for no."))
        << value;
  }
  const auto take = [&](const char* json) {
    return Run({"--from", "-"}, json).err;
  };
  EXPECT_THAT(take(R"({"arenaLord": null})"),
              HasSubstr("Field arenaLord: null is no value."));
  EXPECT_THAT(take(R"({"weaponWeights": {"W_GAUNTLET": null}})"),
              HasSubstr("Field weaponWeights.W_GAUNTLET: null is no value."));
  EXPECT_THAT(take(R"({"chats": null})"), HasSubstr("null is no value."));
  EXPECT_EQ(folder_.Read("rook.bot"), description);
  EXPECT_EQ(folder_.Read("rook_w.c"), kWeights);
  EXPECT_EQ(Run({"--set", "arenaLord=0"}).status, 0);
  EXPECT_THAT(folder_.Read("rook.bot"), HasSubstr("arenaLord 0\n"));
}

TEST_F(EditCommand, WritesWhatItCanOfADocument) {
  const Outcome part = Run(
      {"--from", "-"},
      R"({"funName": "Joe", "weaponWeights": {"W_RAILGUN": 9, "W_BFG10K": "x",
          "W_GAUNTLET": 45}, "chats": {"kill_rail": ["other"]}})");
  EXPECT_EQ(part.status, 1);
  EXPECT_THAT(part.err,
              AllOf(HasSubstr("Field weaponWeights.W_BFG10K: a number is"),
                    HasSubstr("\"Railgun usage\" cannot be changed in place."),
                    HasSubstr("\"Funname\" stands in none")));
  std::string weights = kWeights;
  weights.replace(weights.find("20"), 2, "45");
  EXPECT_EQ(folder_.Read("rook_w.c"), weights);
  EXPECT_THAT(folder_.Read("rook_t.c"), HasSubstr("\t\t\"other\";\n"));
  // The name stands in two files, of which one cannot have another.
  const std::string character =
      "#include \"chars.h\"\nskill 4\n{\n\tCHARACTERISTIC_NAME\t\"Rook\"\n}\n";
  folder_.Write("rook_c.c", character);
  folder_.Write("rook.bot",
                "{\nname Other\nmodel major\naifile bots/rook_c.c\n}\n"
                "{\nname Rook\nmodel sarge\naifile bots/rook_c.c\n}\n");
  const Outcome named =
      Run({"--from", "-"}, R"({"name": "Tower", "funName": "Joe"})");
  EXPECT_EQ(named.status, 1);
  EXPECT_THAT(named.err, HasSubstr("\"Other\" has the same files"));
  EXPECT_EQ(folder_.Read("rook_c.c"), character);
  EXPECT_THAT(folder_.Read("rook.bot"),
              HasSubstr("name Rook\nmodel sarge\nfunname\tJoe\n"));
  // What is typed is all done or nothing.
  EXPECT_EQ(Run({"--set", "weaponWeights.W_RAILGUN=9", "--set",
                 "weaponWeights.W_GAUNTLET=20"})
                .status,
            1);
  EXPECT_EQ(folder_.Read("rook_w.c"), weights);
}

TEST_F(EditCommand, NamesWhatOfADocumentNoBotCanHaveAndTakesTheRest) {
  constexpr const char* kDescription =
      "{\nname Rook\nmodel sarge\naifile bots/rook_c.c\n}\n";
  struct Case {
    const char* json;
    const char* reason;
  };
  for (const Case& one : {
           Case{R"("name": "../evil")",
                "\"Name\" cannot be \"../evil\". Bot "
                "name can't have any of these"},
           Case{R"("name": "two words")", "Bot name can't have any spaces."},
           Case{R"("name": "")", "Bot must have a name!"},
           Case{R"("name": "\u0416")", "name: the text has a character that"},
           Case{R"("versionMajor": "x")", "Value must be a number!"},
           Case{R"("arenaLord": "yes")", "a whole number is wanted here."},
           Case{R"("chats": {"kill_rail": [""]})", "a chat line is empty."},
           Case{R"("chats": {"kill_rail": ["a", 1]})", "a text is wanted"},
       }) {
    folder_.Write("rook.bot", kDescription);
    folder_.Write("rook_w.c", kWeights);
    const Outcome part =
        Run({"--from", "-"},
            "{" + std::string(one.json) +
                R"(, "skin": "Red", "weaponWeights": {"W_GAUNTLET": 45}})");
    EXPECT_EQ(part.status, 1) << one.json;
    EXPECT_THAT(part.err, HasSubstr(one.reason));
    EXPECT_THAT(folder_.Read("rook.bot"),
                HasSubstr("name Rook\nmodel sarge/red\n"))
        << one.json;
    EXPECT_THAT(folder_.Read("rook_w.c"), HasSubstr("W_GAUNTLET 45\n"));
    EXPECT_THAT(folder_.Read("rook_t.c"), HasSubstr("\t\t\"one\";\n"));
  }
}

TEST_F(EditCommand, NamesFilesInTheDifferenceFromTheirRoot) {
  folder_.Write("set/botfiles/bots/rook_c.c",
                "#include \"chars.h\"\nskill 4\n{\n"
                "\tCHARACTERISTIC_WEAPONWEIGHTS\t\"bots/strong_w.c\"\n"
                "\tCHARACTERISTIC_CHAT_KILL\t\t\t\t\t0.5\n}\n");
  folder_.Write("set/botfiles/bots/rook_w.c", kWeights);
  folder_.Write("set/scripts/rook.bot",
                "{\nname Rook\nmodel sarge\naifile bots/rook_c.c\n}\n");
  const auto run = [&](const std::string& set) {
    std::istringstream in;
    std::ostringstream out;
    std::ostringstream err;
    const int status = RunCommandLine(
        {"edit", (folder_ / "set").string(), "rook", "--dry-run", "--set", set,
         "--program-folder", (folder_ / "program").string()},
        in, out, err);
    return Outcome{status, out.str(), err.str()};
  };
  EXPECT_THAT(run("skin=Red").out,
              HasSubstr("--- a/scripts/rook.bot\n+++ b/scripts/rook.bot\n"));
  EXPECT_THAT(run("chatCharacteristics.CHARACTERISTIC_CHAT_KILL=1").out,
              HasSubstr("--- a/botfiles/bots/rook_c.c\n"));
  // The character has another file of weights.
  const Outcome refused = run("weaponWeights.W_GAUNTLET=45");
  EXPECT_EQ(refused.status, 1);
  EXPECT_THAT(refused.err, HasSubstr("names bots/strong_w.c."));
}

TEST_F(EditCommand, EditsWhatALoadShowsAndTheGameHasOtherwise) {
  const auto character = [](const std::string& number) {
    return "#include \"chars.h\"\nskill 1\n{\n"
           "\tCHARACTERISTIC_VIEW_MAXCHANGE\t\t\t\t" +
           number + "\n}\n";
  };
  folder_.Write("rook_c.c", character("0240"));
  const std::string path = "levels.1.CHARACTERISTIC_VIEW_MAXCHANGE=";
  for (const char* const number : {"240", "160"}) {
    folder_.Write("rook_c.c", character("0240"));
    const Outcome outcome = Run({"--set", path + number});
    EXPECT_EQ(outcome.status, 0) << outcome.err;
    EXPECT_EQ(folder_.Read("rook_c.c"), character(number));
  }
  // A line that a load takes for one of another level.
  const std::string behind =
      "#include \"chars.h\"\nskill 1\n{\n\tCHARACTERISTIC_ATTACK_SKILL"
      "\t\t\t\t\t0.5\n/*\nskill 4\n*/\n\tCHARACTERISTIC_CAMPER"
      "\t\t\t\t\t\t0.05\n}\n";
  folder_.Write("rook_c.c", behind);
  EXPECT_EQ(Run({"--set", "levels.1.CHARACTERISTIC_CAMPER=0"}).status, 1);
  EXPECT_EQ(folder_.Read("rook_c.c"), behind);
}

TEST_F(EditCommand, TellsNothingFalseOfAFileForTwoGames) {
  folder_.Write("set/botfiles/bots/rook_c.c", "#include \"chars.h\"\n");
  folder_.Write("set/botfiles/bots/rook_w.c",
                "#include \"inv.h\"\n#define SGW 20\n#define W_SHOTGUN 77\n"
                "#define GTW 10\n#define CGW 1\n#include \"own.c\"\n");
  folder_.Write("set/botfiles/own.c",
                "weight \"Shotgun\" { return SGW; }\n"
                "weight \"Gauntlet\" { return GTW; }\n");
  const auto told = [&](const std::string& set) {
    std::istringstream in;
    std::ostringstream out;
    std::ostringstream err;
    RunCommandLine({"edit", (folder_ / "set").string(), "rook", "--dry-run",
                    "--set", "weaponWeights." + set, "--program-folder",
                    (folder_ / "program").string()},
                   in, out, err);
    return out.str() + err.str();
  };
  EXPECT_THAT(told("W_GAUNTLET=45"),
              AllOf(HasSubstr("+#define GTW 45\n"),
                    HasSubstr("\"Gauntlet usage\" from GTW (line 4)"),
                    HasSubstr("another line: \"Shotgun usage\" (20)."),
                    HasSubstr("no place for (1): CGW."),
                    Not(HasSubstr("does not include")),
                    Not(HasSubstr("a save writes 0"))));
  // A load shows 77, but the game has it not.
  EXPECT_THAT(told("W_SHOTGUN=77"),
              HasSubstr("The game takes the value from line 2 of the file, and "
                        "a load takes that of line 3."));
}

TEST_F(EditCommand, WritesThroughALink) {
  std::filesystem::create_directory(folder_ / "elsewhere");
  std::filesystem::rename(folder_ / "rook_w.c", folder_ / "elsewhere/real.c");
  std::error_code reason;
  std::filesystem::create_symlink("elsewhere/real.c", folder_ / "rook_w.c",
                                  reason);
  if (reason) GTEST_SKIP() << "no symbolic links here";
  EXPECT_EQ(Run({"--set", "weaponWeights.W_GAUNTLET=45"}).status, 0);
  EXPECT_TRUE(std::filesystem::is_symlink(folder_ / "rook_w.c"));
  EXPECT_THAT(folder_.Read("elsewhere/real.c"), HasSubstr("W_GAUNTLET 45\n"));
}

TEST_F(EditCommand, LeavesFilesAloneThatALinkMakesOne) {
  const auto weights = folder_ / "rook_w.c";
  const auto items = folder_ / "rook_i.c";
  const std::string old =
      "#include \"inv.h\"\n#define W_GAUNTLET 20\n#define W_HEALTH 30\n";
  folder_.Write("rook_w.c", old);
  std::error_code reason;
  std::filesystem::create_hard_link(weights, items, reason);
  if (reason) GTEST_SKIP() << "no links here";
  const Outcome linked = Run({"--set", "weaponWeights.W_GAUNTLET=45"});
  EXPECT_EQ(linked.status, 1);
  EXPECT_THAT(linked.err,
              HasSubstr("rook_w.c: By a link this file and rook_i.c are one"));
  std::filesystem::remove(items);
  std::filesystem::create_symlink("rook_w.c", items, reason);
  if (reason) GTEST_SKIP() << "no symbolic links here";
  EXPECT_EQ(Run({"--set", "itemWeights.W_HEALTH=45"}).status, 1);
  EXPECT_EQ(folder_.Read("rook_w.c"), old);
}

TEST_F(EditCommand, TellsOfFilesThatTheGameDoesNotReadForTheBot) {
  const auto character = [](const std::string& chat) {
    return "#include \"chars.h\"\nskill "
           "1\n{\n\tCHARACTERISTIC_NAME\t\t\t\t\t\t\t\"rook\"\n"
           "\tCHARACTERISTIC_CHAT_FILE\t\"bots/rook_t.c\"\n"
           "\tCHARACTERISTIC_CHAT_NAME\t\"" +
           chat + "\"\n}\n";
  };
  const auto told = [&](const std::string& file, const std::string& chat) {
    folder_.Write("rook.bot", "{\nname rook\naifile " + file + "\n}\n");
    folder_.Write("rook_c.c", character(chat));
    const Outcome outcome =
        Run({"--set", "weaponWeights.W_GAUNTLET=45", "--set",
             "chats.kill_rail=[\"new\"]", "--dry-run"});
    EXPECT_EQ(outcome.status, 0);
    return outcome.err;
  };
  EXPECT_THAT(told("bots/rook_c.c", "Rook"),
              Not(HasSubstr("The game does not read")));
  EXPECT_THAT(told("bots/other_c.c", "rook"),
              AllOf(HasSubstr("rook_w.c: The game does not read this file for "
                              "the bot: behind aifile rook.bot names "
                              "bots/other_c.c."),
                    HasSubstr("rook_t.c: The game does not read this file"),
                    Not(HasSubstr("asks for the chat"))));
  EXPECT_THAT(told("bots\\rook_c.c", "other"),
              AllOf(HasSubstr("asks for the chat \"other\": the file has the "
                              "chat \"rook\"."),
                    Not(HasSubstr("behind aifile"))));
  // It is not the bot's own, and has its name.
  std::filesystem::remove(folder_ / "rook.bot");
  folder_.Write("bots.txt", "{\nname Rook\naifile bots/other_c.c\n}\n");
  EXPECT_THAT(Run({"--set", "weaponWeights.W_GAUNTLET=45"}).err,
              HasSubstr("behind aifile bots.txt names bots/other_c.c."));
}

TEST_F(EditCommand, WantsADocumentThatSaysSomething) {
  for (const char* const empty : {"", " \n"}) {
    const Outcome refused = Run({"--from", "-"}, empty);
    EXPECT_EQ(refused.status, 1);
    EXPECT_THAT(refused.err, HasSubstr("This is no valid JSON"));
  }
}

TEST_F(EditCommand, NamesAFileThatIsTooLarge) {
  folder_.Write("rook_w.c", kWeights + std::string(5'000'000, '\n'));
  const Outcome refused = Run({"--set", "weaponWeights.W_GAUNTLET=45"});
  EXPECT_EQ(refused.status, 1);
  EXPECT_THAT(
      refused.err,
      HasSubstr("rook_w.c: The file is larger than 4 MiB, the most that "
                "is read of one like it: it has 50001"));
  EXPECT_THAT(refused.err, Not(HasSubstr("stands in none")));
  // What does not stand in it can be edited.
  EXPECT_EQ(Run({"--set", R"(chats.kill_rail=["two"])"}).status, 0);
}

TEST_F(EditCommand, NamesAGameFolderThatIsNotThere) {
  const Outcome refused = Run({"--set", "weaponWeights.W_GAUNTLET=45", "--game",
                               (folder_ / "none").string()});
  EXPECT_EQ(refused.status, 1);
  EXPECT_THAT(refused.err, HasSubstr("There is no such game folder."));
}

TEST_F(EditCommand, EditsTheOneThatIsNamedOfSeveralWithTheSameFiles) {
  const auto block = [](const std::string& name, const std::string& model) {
    return "{\nname " + name + "\nmodel " + model +
           "\naifile bots/rook_c.c\n}\n";
  };
  const std::vector<std::string> names = {"Rook", "Tower", "Keep"};
  folder_.Write("rook_c.c",
                "#include \"chars.h\"\nskill 1\n{\n"
                "CHARACTERISTIC_NAME \"Rook\"\n}\n");
  const auto run = [this](const std::string& command, const std::string& name,
                          std::vector<std::string> more) {
    more.insert(more.begin(), {command, folder_.path().string(), name});
    more.insert(more.end(),
                {"--program-folder", (folder_ / "program").string()});
    std::istringstream in;
    std::ostringstream out;
    std::ostringstream err;
    const int status = RunCommandLine(std::move(more), in, out, err);
    return Outcome{status, out.str(), err.str()};
  };
  for (const char* const file : {"mine.bot", "bots.txt", "rook.bot"}) {
    for (const std::string& wanted : names) {
      std::string old;
      std::string edited;
      for (const std::string& name : names) {
        old += block(name, "of" + name);
        edited += block(name, name == wanted ? "biker" : "of" + name);
      }
      folder_.Write(file, old);
      EXPECT_THAT(run("load", wanted, {}).out, HasSubstr("of" + wanted));
      const Outcome outcome = run("edit", wanted, {"--set", "model=biker"});
      EXPECT_EQ(folder_.Read(file), edited) << file << outcome.err;
      // Nothing is missing there.
      EXPECT_THAT(outcome.err, Not(HasSubstr("Unable to find bot file")));
    }
    std::filesystem::remove(folder_ / file);
  }
  // The other may stand in a description of its own, beside the bot's.
  folder_.Write("rook.bot", block("Rook", "sarge") + "// Hello\n");
  folder_.Write("more.bot", block("Tower", "major"));
  for (const auto& [name, file] :
       {std::pair("TOWER", "more.bot"), {"Rook", "rook.bot"}}) {
    const Outcome outcome = run("edit", name, {"--set", "model=biker"});
    EXPECT_THAT(folder_.Read(file), HasSubstr("model biker")) << outcome.err;
    EXPECT_EQ(outcome.err.find("rook.bot:") != std::string::npos,
              std::string(file) == "rook.bot");
    EXPECT_THAT(run("check", name, {}).out, HasSubstr(file));
  }
}

TEST_F(EditCommand, EditsAFunNameAmongBlanksAndTellsTheLimits) {
  const std::string begin = "{\nname rook\n";
  const std::string end = "aifile bots/rook_c.c\n}\n";
  const std::vector<std::string> to_max = {"--set", "funName=Max"};
  for (const std::string line :
       {"funname  \"Hugo\"\n", "funname\t\t\"Hugo\" \t\n"}) {
    folder_.Write("rook.bot", begin + line + end);
    EXPECT_EQ(Run(to_max).status, 0) << line;
    EXPECT_THAT(folder_.Read("rook.bot"), HasSubstr("\"Max\""));
  }
  const std::string glued =
      "{\nname rook\naifile bots/rook_c.c\nfunname Hugo}\n";
  folder_.Write("rook.bot", glued);
  EXPECT_THAT(Run(to_max).err, HasSubstr("Put the brace into a line of its"));
  EXPECT_EQ(folder_.Read("rook.bot"), glued);
  folder_.Write("rook.bot",
                begin + end + "//" +
                    std::string(8190 - begin.size() - end.size() - 3, 'x'));
  EXPECT_THAT(Run(to_max).err, HasSubstr("With that the file would be too "
                                         "large: the game reads no "
                                         "description of 8192 bytes or more."));
  EXPECT_THAT(
      Run({"--set", "weaponWeights.W_GAUNTLET=" + std::string(400, '9')}).err,
      HasSubstr("this number has more digits than can be held."));
}

TEST_F(EditCommand, TellsOfAnotherBotWithTheNewName) {
  const std::string zora = "{\nname Zora\naifile bots/zora_c.c\n}\n";
  folder_.Write("rook.bot", "{\nname rook\naifile bots/rook_c.c\n}\n");
  folder_.Write("zora.bot", zora);
  const Outcome outcome = Run({"--set", "name=Zora"});
  EXPECT_EQ(outcome.status, 0) << outcome.err;
  EXPECT_THAT(outcome.err, HasSubstr("zora.bot' describes a bot \"Zora\" too"));
  EXPECT_EQ(folder_.Read("zora.bot"), zora);
  EXPECT_THAT(Run({"--set", "name=Zoe"}).err, Not(HasSubstr("too")));
  // The other one may stand in the very file.
  folder_.Write("rook.bot",
                "{\nname rook\naifile bots/rook_c.c\n}\n"
                "{\nname Nasty\naifile bots/nasty_c.c\n}\n");
  EXPECT_THAT(Run({"--set", "name=nasty"}).err,
              HasSubstr("'rook.bot' then describes two bots \"nasty\""));
}

}  // namespace
}  // namespace fragsmith
