// The programs are driven by a shell and looked at by what is Unix's own.
// packaging/windows/try drives the programs for Windows.
#ifndef _WIN32

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/wait.h>

#include <cstdlib>
#include <filesystem>
#include <nlohmann/json.hpp>
#include <set>
#include <sstream>
#include <string>
#include <tuple>
#include <utility>
#include <vector>

#include "install/program/settings_file.h"
#include "tests/support/package_maker.h"
#include "tests/support/test_folder.h"

namespace fragsmith {
namespace {

namespace fs = std::filesystem;
using nlohmann::json;
using ::testing::AllOf;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::Not;

/// The files of a bot "x", all empty but the description.
std::vector<TestEntry> BotFiles(const std::string& description) {
  return {{"botfiles/bots/x_c.c", {}},
          {"botfiles/bots/x_t.c", {}},
          {"botfiles/bots/x_i.c", {}},
          {"botfiles/bots/x_w.c", {}},
          {"scripts/x.bot", description}};
}

/// The archive with the entry of that name made a symbolic link, as a Unix
/// program would have packed it.
std::string MakeLink(std::string archive, const std::string& name) {
  constexpr std::size_t kHeaderSize = 46;
  const std::size_t header = archive.rfind(name) - kHeaderSize;
  EXPECT_EQ(archive.substr(header, 4), "PK\x01\x02");
  archive[header + 5] = 3;
  archive[header + 40] = '\xFF';
  archive[header + 41] = '\xA1';
  return archive;
}

class ProcessTest : public ::testing::Test {
 protected:
  struct Outcome {
    int status;
    std::string out;
    std::string err;
  };

  ProcessTest() {
    fs::create_directory(folder_ / "run");
    fs::create_directory(folder_ / "program");
    folder_.WriteProgram("cli", "#!/bin/sh\nexec '" FRAGSMITH_CLI_PATH
                                "' \"$@\" --program-folder '" +
                                    (folder_ / "program").string() + "'\n");
  }

  /// Runs a line of shell in the folder "run". "$cli" is the command line with
  /// a program folder of the test's own, "$wzunzip" the unzip tool.
  Outcome Run(const std::string& line) {
    const std::string command = "cd '" + (folder_ / "run").string() +
                                "' && wzunzip='" WZUNZIP_PATH "' && cli='" +
                                (folder_ / "cli").string() + "' && { " + line +
                                "\n} >../out 2>../err";
    const int state = std::system(command.c_str());
    EXPECT_TRUE(WIFEXITED(state)) << line;
    return {WEXITSTATUS(state), folder_.Read("out"), folder_.Read("err")};
  }

  /// All that there is in the test's folder but the output.
  std::set<std::string> Listing() const {
    std::set<std::string> paths;
    for (const auto& entry : fs::recursive_directory_iterator(folder_.path())) {
      paths.insert(fs::relative(entry, folder_.path()).string());
    }
    paths.erase("out");
    paths.erase("err");
    return paths;
  }

  TestFolder folder_;
};

TEST_F(ProcessTest, PipesABotFromCommandToCommand) {
  const Outcome made =
      Run("$cli new --preset average --name R\xC3\xB6kie --seed 5 |"
          " tee bot.json | $cli make - --into 'odd \xFF \"dir' --layout --pk3");
  EXPECT_EQ(made.status, 0);
  const std::string to = "odd \xFF \"dir/";
  const std::string bot = to + "botfiles/bots/r\xC3\xB6kie";
  EXPECT_EQ(made.out, bot + "_c.c\n" + bot + "_w.c\n" + bot + "_i.c\n" + bot +
                          "_t.c\n" + to + "scripts/r\xC3\xB6kie.bot\n" + to +
                          "bot-R\xC3\xB6kie.pk3\n");
  EXPECT_EQ(made.err,
            "Fragsmith: " + to + "bot-R\xC3\xB6kie.pk3 created succesfully\n");
  for (const std::string line :
       {"cat bot.json", "$cli load odd*/bot-R\xC3\xB6kie.pk3",
        "cd odd* && $cli load bot-R\xC3\xB6kie.pk3 r\xC3\x96kie",
        "cd odd*/botfiles && $cli load bots --layout",
        "cd odd*/botfiles/bots && $cli load r\xC3\xB6kie_c.c --layout",
        "$cli make bot.json --into . >/dev/null && $cli load ."}) {
    const Outcome loaded = Run(line);
    EXPECT_EQ(loaded.status, 0) << line;
    EXPECT_EQ(loaded.out, folder_.Read("run/bot.json")) << line;
    EXPECT_EQ(loaded.err, "") << line;
  }
}

TEST_F(ProcessTest, AnswersWithItsExitStatus) {
  using Row = std::tuple<std::string, int, std::string>;
  const std::string full = "The output could not be written.";
  for (const auto& [line, status, error] :
       {Row("$cli settings", 0, ""), Row("$cli", 2, "required"),
        Row("$cli make - --into d </dev/null", 1, "no valid JSON"),
        Row("$cli make - --into d --pk3 <&-", 1, "no valid JSON"),
        Row("$cli new >/dev/full", 1, full), Row("$cli new >&-", 1, full),
        Row("$cli new 2>&-", 0, ""),
        Row("\"$wzunzip\"", 1, "usage: wzunzip -o PACKAGE FILE FOLDER"),
        Row("\"$wzunzip\" -o none x .", 1, "none: There is no such")}) {
    const Outcome outcome = Run(line);
    EXPECT_EQ(outcome.status, status) << line << outcome.err;
    EXPECT_THAT(outcome.err, HasSubstr(error)) << line;
  }
  EXPECT_THAT(Listing(), ElementsAre("cli", "program", "run"));
}

// What a package's names say never decides where something is written.
TEST_F(ProcessTest, CallsMembersAsThePackageSpellsThem) {
  std::vector<TestEntry> entries =
      BotFiles("{\nname x\nfunname Good\naifile bots/x_c.c\n}\n");
  entries.back().name = "scripts/X.BOT";
  folder_.Write("run/bot-x.pk3", MakeZip(entries));
  const Outcome edit = Run("$cli edit bot-x.pk3 --set funName=Max --dry-run");
  EXPECT_THAT(edit.out, HasSubstr("--- a/scripts/X.BOT")) << edit.err;
  // What a package that is called by the name cannot take leaves all else.
  const Outcome from =
      Run("$cli load bot-x.pk3 | sed 's/\"name\": \"X\"/\"name\": \"Y\"/;"
          " s/\" Good\"/\"Max\"/' | $cli edit bot-x.pk3 --from - --dry-run");
  EXPECT_EQ(from.status, 1);
  EXPECT_THAT(from.err, HasSubstr("Under its new name"));
  EXPECT_THAT(from.out, HasSubstr("Max"));
  // The game looks one folder deeper for descriptions.
  entries.back().name = "scripts/deep/x.bot";
  folder_.Write("run/deep.pk3", MakeZip(entries));
  EXPECT_THAT(Run("$cli check deep.pk3").out,
              HasSubstr("The game reads scripts/deep/x.bot"));
}

TEST_F(ProcessTest, LoadsNothingButPlainFilesOutOfAPackage) {
  std::vector<TestEntry> hostile = BotFiles("funname\tGood\n");
  const std::string outside = (folder_ / "outside").string();
  for (const std::string& name :
       {std::string("../../outside"), std::string("..\\..\\outside"), outside,
        std::string("botfiles/bots/../../../outside_c.c"),
        "botfiles/bots/" + outside + "_c.c",
        std::string("botfiles/bots/..\\evil_c.c")}) {
    hostile.push_back({name, "evil"});
  }
  hostile.push_back({"scripts/x.bot", "funname\tSecond\n"});
  folder_.Write("run/names.pk3", MakeZip(hostile));
  // A link is a file that holds the name of another.
  const fs::path secret = folder_.Write("secret", "funname\tSecret\n");
  folder_.Write("run/link.pk3",
                MakeLink(MakeZip(BotFiles(secret.string())), "scripts/x.bot"));
  const std::set<std::string> before = Listing();
  const Outcome good = Run("$cli load names.pk3 x");
  // Of two of one name the last counts, as for the game.
  EXPECT_EQ(json::parse(good.out)["funName"], "Second") << good.err;
  const Outcome link = Run("$cli load link.pk3");
  EXPECT_EQ(json::parse(link.out)["funName"], "") << link.err;

  std::istringstream names(Run("$cli load names.pk3").err);
  int climbing = 0;
  for (std::string name; std::getline(names, name);) {
    if (name.find_first_of("/\\") == std::string::npos) continue;
    ++climbing;
    const Outcome outcome = Run("$cli load names.pk3 '" + name + "'");
    EXPECT_EQ(outcome.status, 1) << name;
    EXPECT_THAT(outcome.err, HasSubstr("Load failed!: Bot loading failed"));
  }
  EXPECT_EQ(climbing, 3);
  EXPECT_EQ(Listing(), before);
}

TEST_F(ProcessTest, LeavesTheTemporaryFolderAsItWas) {
  folder_.Write("run/x.pk3", MakeZip(BotFiles("")));
  EXPECT_EQ(Run("mkdir t && TMPDIR=$PWD/t $cli load x.pk3").status, 0);
  EXPECT_TRUE(fs::is_empty(folder_ / "run/t"));
  const Outcome nowhere = Run("TMPDIR=/dev/null $cli load x.pk3");
  EXPECT_EQ(nowhere.status, 1);
  EXPECT_EQ(nowhere.err,
            "Load failed!: Bot loading failed. No temporary folder can be "
            "made: Not a directory. Check the system's temporary folder "
            "(TMPDIR) and its free space.\n"
            "Operation cancelled!: Bot X not loaded.\n");
}

TEST_F(ProcessTest, EndsTheServerAndItsFilesWhenInterrupted) {
  ASSERT_EQ(Run("$cli new --preset average --name x >x.json && mkdir t").status,
            0);
  // One that is started in turn, and deaf, ends with it.
  folder_.WriteProgram("run/ioq3ded",
                       "#!/bin/sh\n"
                       "sh -c 'trap \"\" TERM; echo $$ >>pids; sleep 60' &\n"
                       "echo $$ >>pids; wait\n");
  const std::string trial = "try x.json --engine ioq3ded --seconds 500";
  // Two side by side, whatever processors there are.
  const std::string match = "match x.json x.json --engine ioq3ded --jobs 2";
  for (const auto& [command, processes, signal, status] :
       {std::tuple(trial, "2", "INT", 130), std::tuple(trial, "2", "TERM", 143),
        std::tuple(trial, "2", "HUP", 129), std::tuple(trial, "2", "PIPE", 141),
        std::tuple(match, "4", "INT", 130),
        std::tuple(match, "4", "TERM", 143)}) {
    SCOPED_TRACE(signal);
    const Outcome outcome =
        Run("rm -f pids; export TMPDIR=$PWD/t; env --default-signal=INT $cli"
            " " +
            command +
            " &"
            " for i in $(seq 2000); do [ \"$(wc -l <pids)\" = " +
            std::string(processes) +
            " ] && break;"
            "   sleep 0.01; done 2>/dev/null;"
            " kill -" +
            std::string(signal) +
            " $!; wait $!; status=$?;"
            " for pid in $(cat pids); do"
            "   kill -0 $pid && ! grep -q ') Z' /proc/$pid/stat && echo left;"
            " done 2>/dev/null; ls -A t; exit $status");
    EXPECT_EQ(outcome.status, status) << outcome.err;
    EXPECT_EQ(outcome.out, "");
  }
}

TEST_F(ProcessTest, PlaysMatchesAndTellsWhatCameOfThem) {
  ASSERT_EQ(Run("$cli new --preset average --name x >x.json && mkdir t").status,
            0);
  // The first bot wins each match by 20 to 2; the third goes wrong once.
  folder_.WriteProgram(
      "run/ded",
      "#!/bin/sh\nlog=$(echo \"$*\" | sed 's/.*fs_homepath \\([^ ]*\\) "
      ".*/\\1/')\n"
      "cp $log/fragsmith/match.cfg $$.cfg; log=$log/fragsmith/games.log\n"
      "echo >>count; [ $(wc -l <count) = 3 ] && { [ -e slow ] && exec sleep "
      "60; echo oh no; exit 1; }\n"
      "{ echo ' 0:00 InitGame: '; echo ' 0:00 ClientUserinfoChanged: 0 "
      "n\\x\\'\n"
      "echo ' 0:00 ClientUserinfoChanged: 1 n\\x-2\\'\n"
      "for i in $(seq 20); do\n"
      "echo ' 1:00 Kill: 0 1 7: x killed x-2 by MOD_ROCKET'; done\n"
      "echo ' 2:00 Exit: Timelimit hit.'\n"
      "echo ' 2:00 score: 20  ping: 0  client: 0 x'\n"
      "echo ' 2:00 score: 2  ping: 0  client: 1 x-2'; } >$log\n");
  const std::string match =
      "rm -f count *.cfg; TMPDIR=$PWD/t $cli match x.json x.json --engine ded"
      " --minutes 2 --games ";
  const Outcome text = Run(match +
                           "6; echo $?; ls -A t; grep -h '^addbot'"
                           " *.cfg | grep -c 'x-2'");
  EXPECT_THAT(text.err, HasSubstr("It printed last: oh no"));
  EXPECT_THAT(text.err, HasSubstr("is played again.\n"));
  EXPECT_THAT(text.out, HasSubstr("6 matches of 2 minutes on q3dm1"));
  EXPECT_THAT(text.out, HasSubstr("x killed with: 120 rocket launcher;"));
  EXPECT_THAT(text.out, HasSubstr("\nx is better than x-2: 91 % ("));
  EXPECT_TRUE(text.out.ends_with("\n0\n7\n")) << text.out;
  const Outcome bare = Run(match + "2 --json");
  EXPECT_EQ(bare.status, 0) << bare.err;
  EXPECT_THAT(bare.out, HasSubstr("\"fragsPerMinute\": {\n        \"value\": "
                                  "10.0,"));
  EXPECT_THAT(bare.out, HasSubstr("\"difference\": \"none\""));

  const Outcome sure = Run(match + "90 --until-sure");
  EXPECT_THAT(sure.out, HasSubstr("better than x-2, which was clear after 8 "
                                  "matches: 91 % ("));
  const Outcome csv = Run(match + "1 --csv");
  EXPECT_EQ(csv.out,
            "match,map,seconds,bot,source,skill,score,kills,deaths,suicides,"
            "falls\n1,q3dm1,120,x,x.json,4,20,20,0,0,0\n"
            "1,q3dm1,120,x-2,x.json,4,2,0,20,0,0\n");
  // Played apart and put together, it is the same.
  const std::string whole = Run(match + "4").out;
  const Outcome jobs = Run(match +
                           "4 --print-jobs >jobs && wc -l <jobs;"
                           " sed \"s|^fragsmith-cli|$cli|; s/ --program-folder"
                           " [^ ]*//\" jobs | sh >results;"
                           " $cli match --merge results ./results");
  EXPECT_EQ(jobs.out, "4\n" + whole);
  EXPECT_THAT(jobs.err, HasSubstr("./results: given twice, counted once.\n"));
  EXPECT_EQ(Run("echo '{\"bots\": 1}' >odd; $cli match --merge odd").status, 1);

  const Outcome ladder =
      Run("mkdir l; cp x.json l; $cli make x.json --into l >made;"
          " rm -f l/*.pk3 count; $cli match --ladder l --engine ded --games 4"
          " --jobs 1");
  EXPECT_THAT(ladder.out, HasSubstr("\nx    4      195 ("));
  EXPECT_THAT(ladder.out, HasSubstr("x-2  4      -195 ("));
  EXPECT_THAT(ladder.out, HasSubstr("x@l\n"));

  const Outcome cut_off =
      Run("touch slow; rm -f count; env --default-signal=INT $cli match x.json"
          " x.json --engine ded --minutes 2 --jobs 1 & for i in $(seq 2000); do"
          " [ \"$(wc -l <count)\" = 3 ] && break; sleep 0.01; done 2>/dev/null;"
          " kill -INT $!; wait $!; status=$?; rm slow; exit $status");
  EXPECT_EQ(cut_off.status, 130);
  EXPECT_THAT(cut_off.out, HasSubstr("2 matches of 2 minutes on q3dm1"));

  // It wins by 20 to 2 whatever its values are.
  const Outcome tuned =
      Run("rm -f count; $cli tune x.json x.json --engine ded --jobs 1"
          " --output tuned.json; echo $?; $cli diff x.json tuned.json");
  EXPECT_THAT(tuned.out, HasSubstr("\nstrength 0.000: 91 % ("));
  EXPECT_THAT(tuned.out, HasSubstr("\nstrength -1.000: 91 % ("));
  EXPECT_THAT(tuned.out, HasSubstr("the bot does not come to 50 %. It took"));
  const std::size_t status = tuned.out.find("\n3\n");
  ASSERT_NE(status, std::string::npos) << tuned.out << tuned.err;
  EXPECT_THAT(tuned.out.substr(0, status + 1),
              HasSubstr(tuned.out.substr(status + 3)));

  EXPECT_EQ(Run(match + "2 --skill 1,2,3").status, 2);
  EXPECT_EQ(Run("$cli match x.json --engine ded").status, 2);
  EXPECT_EQ(Run("$cli match x.json none/y_c.c --engine ded").status, 1);
  const Outcome none =
      Run("printf '#!/bin/sh\nexit 1\n' >ded; chmod +x ded;"
          " $cli match x.json x.json --engine ded");
  EXPECT_EQ(none.status, 1);
  EXPECT_EQ(none.out, "");
}

TEST_F(ProcessTest, FindsTheServerOfTheGameFolder) {
  folder_.WriteProgram("game/oa_ded.x86_64", "#!/bin/sh\necho \"$@\"\n");
  folder_.Write("game/baseoa/pak0.pk3", "");
  const std::string game = (folder_ / "game").string();
  folder_.Write("program/fgs.ini", FormatSettings({.Q3Baseq3 = game}));
  const std::string line = "$cli new --preset average --name x | $cli try -";
  EXPECT_THAT(Run(line).err, AllOf(HasSubstr("+set fs_basepath " + game + " "),
                                   HasSubstr("+set com_basegame baseoa "),
                                   HasSubstr("+map oa_dm1 ")));
  // What is given counts.
  EXPECT_THAT(Run(line + " --data .").err,
              HasSubstr("+set fs_basepath " + (folder_ / "run").string()));
}

TEST_F(ProcessTest, BearsABabblingServerAndOddPaths) {
  ASSERT_EQ(Run("$cli new --preset average --name x >x.json").status, 0);
  folder_.WriteProgram("run/babble-ded", "#!/bin/sh\nexec yes\n");
  const Outcome babble =
      Run("mkdir t; TMPDIR=$PWD/t $cli try x.json --engine babble-ded"
          " --seconds 500; ls -A t");
  EXPECT_THAT(babble.err, HasSubstr("The engine prints without end."));
  EXPECT_EQ(babble.out, "It is not known what the game makes of x.\n");

  // Tells what it is given, for each path whether it is there.
  folder_.WriteProgram("run/\xC3\xA4 \"'ded",
                       "#!/bin/sh\necho \"$@\"; ls -d \"$6/fragsmith\" "
                       "\"$3/baseq3\"\n");
  const Outcome odd =
      Run("mkdir -p \"\xC3\xA4 'b\" 'd\"e/baseq3'; TMPDIR=\"$PWD//\xC3\xA4 "
          "'b\" $cli"
          " try x.json --engine \"$PWD//\xC3\xA4 \\\"'ded\" --data './/d\"e'");
  EXPECT_THAT(odd.err, HasSubstr("/data +set fs_homepath "));
  EXPECT_THAT(odd.err, HasSubstr("/data/baseq3\n"));
  EXPECT_THAT(odd.err, HasSubstr("/fragsmith\n"));
  EXPECT_THAT(odd.err, Not(HasSubstr("//")));
  const Outcome quote =
      Run("mkdir 'q\"'; TMPDIR=\"$PWD/q\\\"\" $cli try x.json --engine"
          " babble-ded");
  EXPECT_THAT(quote.err, HasSubstr("Name another temporary folder."));
}

TEST_F(ProcessTest, RefusesHugeAndOddFiles) {
  Run("truncate -s 200M x.pk3 x_c.c x.json; mkdir folder.pk3 folder_c.c;"
      " mkfifo pipe_c.c pipe.pk3 pipe.json");
  const std::set<std::string> before = Listing();
  EXPECT_EQ(before.size(), 11U);
  using Row = std::pair<std::string, std::string>;
  for (const auto& [arguments, error] :
       {Row("load x.pk3", "x.pk3: "),
        Row("load x_c.c --no-description", "is larger than 4 MiB"),
        Row("make x.json --into d", "is larger than 32 MiB"),
        Row("make - --into d <x.json", "is larger than 32 MiB"),
        Row("load pipe_c.c", "pipe_c.c: "), Row("load pipe.pk3", "pipe.pk3: "),
        Row("load folder.pk3", "There are no bot files."),
        Row("make pipe.json --into d", "This is not a file."),
        Row("load . pipe", "Unable to find characteristics file for pipe.")}) {
    const Outcome outcome = Run("timeout 60 $cli " + arguments);
    EXPECT_EQ(outcome.status, 1) << arguments;
    EXPECT_EQ(outcome.out, "") << arguments;
    EXPECT_THAT(outcome.err, HasSubstr(error)) << arguments;
  }
  EXPECT_EQ(Listing(), before);
}

}  // namespace
}  // namespace fragsmith

#endif  // _WIN32
