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

#include "tests/support/package_maker.h"
#include "tests/support/test_folder.h"

namespace fragsmith {
namespace {

namespace fs = std::filesystem;
using nlohmann::json;
using ::testing::ElementsAre;
using ::testing::HasSubstr;

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
  EXPECT_EQ(json::parse(good.out)["funName"], "Good") << good.err;
  const Outcome link = Run("$cli load link.pk3");
  EXPECT_EQ(json::parse(link.out)["funName"], "") << link.err;

  std::istringstream names(Run("$cli load names.pk3").err);
  int climbing = 0;
  for (std::string name; std::getline(names, name);) {
    if (name.find_first_of("/\\") == std::string::npos) continue;
    ++climbing;
    const Outcome outcome = Run("$cli load names.pk3 '" + name + "'");
    EXPECT_EQ(outcome.status, 1) << name;
    EXPECT_THAT(outcome.err, HasSubstr("Load failed!: Bot loading failed\n"));
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
            "Load failed!: Bot loading failed\n"
            "Operation cancelled!: Bot X not loaded.\n");
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
