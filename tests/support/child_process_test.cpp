#include "support/child_process.h"

#include <gtest/gtest.h>
#ifdef __linux__
#include <sys/wait.h>
#include <unistd.h>

#include <csignal>
#endif

#include <chrono>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <optional>
#include <set>
#include <string>
#include <thread>
#include <vector>

#include "support/files.h"
#include "support/system/program_arguments.h"
#include "support/temporary_folder.h"
#include "tests/support/test_folder.h"

namespace fragsmith {
namespace {

namespace fs = std::filesystem;

/// Numbers of this process's children, ended ones that nobody waited for
/// among them.
std::set<std::string> Children() {
  std::set<std::string> children;
  for (const auto& task : fs::directory_iterator("/proc/self/task")) {
    std::ifstream file(task.path() / "children");
    for (std::string number; file >> number;) children.insert(number);
  }
  return children;
}

/// Waits for something that another process is about to do.
template <typename Condition>
bool Within20Seconds(Condition condition) {
  const auto end = std::chrono::steady_clock::now() + std::chrono::seconds(20);
  while (!condition()) {
    if (std::chrono::steady_clock::now() > end) return false;
    std::this_thread::sleep_for(std::chrono::milliseconds(5));
  }
  return true;
}

class ChildProcessTest : public ::testing::Test {
 protected:
  Result<ChildProcess> Start(const std::string& script) {
    return ChildProcess::Start(
        folder_.WriteProgram("program", "#!/bin/sh\n" + script), {});
  }

  TestFolder folder_;
};

TEST_F(ChildProcessTest, HasNoneOfOurStreams) {
  if (!kIsUnix) GTEST_SKIP() << "The program is a shell script.";
  Result<ChildProcess> child =
      Start("cat; echo out; echo error >&2; ls -l /proc/$$/fd >\"$0.log\"");
  ASSERT_TRUE(child);
  EXPECT_TRUE(Within20Seconds([&] { return !child->IsRunning(); }));
  const std::string open = folder_.Read("program.log");
  for (const char* stream : {" 0 -> /dev/null", " 2 -> /dev/null"}) {
    EXPECT_NE(open.find(stream), std::string::npos) << open;
  }
}

#ifdef __linux__
TEST_F(ChildProcessTest, EndsWithUsWhenWeAreKilled) {
  const fs::path program = folder_.WriteProgram(
      "program", "#!/bin/sh\necho $$ end\nwhile :; do sleep 0.01; done");
  const pid_t starter = ::fork();
  if (starter == 0) {
    const auto child = ChildProcess::Start(program, {}, folder_ / "output");
    while (child) ::pause();
    ::_exit(EXIT_FAILURE);
  }
  ASSERT_TRUE(Within20Seconds([&] {
    return fs::exists(folder_ / "output") &&
           folder_.Read("output").find("end") != std::string::npos;
  }));
  const fs::path state = fs::path("/proc") /
                         std::to_string(std::stoi(folder_.Read("output"))) /
                         "stat";
  const auto is_running = [&state] {
    const Result<std::string> text = ReadFile(state);
    return text && text->find(") Z") == std::string::npos;
  };
  EXPECT_TRUE(is_running());
  ::kill(starter, SIGKILL);
  ::waitpid(starter, nullptr, 0);
  EXPECT_TRUE(Within20Seconds([&] { return !is_running(); }));
}
#endif

TEST_F(ChildProcessTest, LeavesNoZombie) {
  if (!kIsUnix) GTEST_SKIP() << "There are none elsewhere.";
  ASSERT_TRUE(Children().empty());
  {
    Result<ChildProcess> child = Start("exit 0");
    ASSERT_TRUE(child);
    EXPECT_TRUE(Within20Seconds([&] { return !child->IsRunning(); }));
    EXPECT_FALSE(child->IsRunning());
  }
  EXPECT_TRUE(Children().empty());
  // One that we lost interest in is cleared away when it has ended and the
  // next begins.
  Start("touch \"$0.begun\"; sleep 0.1; touch \"$0.ended\"").value();
  EXPECT_EQ(Children().size(), 1U);
  EXPECT_TRUE(
      Within20Seconds([&] { return fs::exists(folder_ / "program.ended"); }));
  EXPECT_TRUE(Within20Seconds([&] {
    Result<ChildProcess> next = Start("exit 0");
    return Within20Seconds([&] { return !next->IsRunning(); }) &&
           Children().empty();
  }));
}

TEST_F(ChildProcessTest, PrintsIntoAFileAndEndsWhenItIsTo) {
  if (!kIsUnix) GTEST_SKIP() << "The program is a shell script.";
  const fs::path output = folder_.Write("output", "of an earlier one");
  const auto start = [&](const std::string& script) {
    Result<ChildProcess> child = ChildProcess::Start(
        folder_.WriteProgram("program", "#!/bin/sh\n" + script), {"a b"},
        output);
    EXPECT_TRUE(child);
    EXPECT_TRUE(Within20Seconds([&] {
      return folder_.Read("output").find("go") != std::string::npos;
    })) << script;
    return child;
  };
  Result<ChildProcess> polite = start(
      "trap 'echo bye; exit' TERM; cat; echo \"$1\"; echo go >&2\n"
      "while :; do sleep 0.01; done");
  EXPECT_TRUE(polite->IsRunning());
  polite->End();
  EXPECT_FALSE(polite->IsRunning());
  EXPECT_EQ(folder_.Read("output"), "a b\ngo\nbye\n");
  polite->End();

  Result<ChildProcess> stubborn =
      start("trap '' TERM; echo go; while :; do sleep 0.01; done");
  stubborn->End();
  EXPECT_FALSE(stubborn->IsRunning());
  EXPECT_TRUE(Children().empty());
}

TEST_F(ChildProcessTest, SaysWhatCannotBeStarted) {
  const fs::path text = folder_.Write("text", "no program");
  for (const fs::path& path : {folder_ / "missing", text, folder_.path()}) {
    const Result<ChildProcess> child = ChildProcess::Start(path, {});
    ASSERT_FALSE(child);
    EXPECT_EQ(child.error().file, path.string());
  }
}

#ifdef _WIN32
// Not a test: the program that the one below starts.
TEST(ChildProcessArguments, DISABLED_AreWritten) {
  const std::vector<std::string> arguments = ProgramArguments(0, nullptr);
  std::ofstream file(PathFromBytes(arguments.back()), std::ios::binary);
  for (const std::string& text : arguments) file << text << '\n';
}

// One line of text holds them all there, to be taken apart again.
TEST_F(ChildProcessTest, GetsItsArgumentsAsTheyAre) {
  const std::string log = Utf8FromPath(folder_ / "ärger 日本.log");
  const std::vector<std::string> arguments = {
      "--gtest_also_run_disabled_tests",
      "--gtest_filter=ChildProcessArguments.*",
      "",
      "a b",
      "C:\\dir\\",
      "\\\\x\\y z\\\\",
      "say \"no\"\\\"",
      "*.exe",
      "%PATH% ^ & | <",
      "\t日本 €",
      log};
  Result<ChildProcess> child = ChildProcess::Start(
      PathFromBytes(::testing::internal::GetArgvs().front()), arguments);
  ASSERT_TRUE(child);
  EXPECT_TRUE(Within20Seconds([&] { return !child->IsRunning(); }));
  std::string lines;
  for (const std::string& text : arguments) lines += text + '\n';
  EXPECT_EQ(folder_.Read("ärger 日本.log"), lines);
}
#endif

TEST(TemporaryFolderTest, IsOursAloneAndGoesWithAllInIt) {
  std::optional<TemporaryFolder> temporary(std::in_place);
  const Result<fs::path> path = temporary->GetTempFolder();
  ASSERT_TRUE(path);
  EXPECT_EQ(*temporary->GetTempFolder(), *path);
  std::ofstream(*path / "file") << "text";
  const TestFolder other;
  other.Write("kept", "");
  if (kIsUnix) {
    EXPECT_EQ(fs::status(*path).permissions(), fs::perms::owner_all);
    fs::create_directory_symlink(other.path(), *path / "link");
  }
  temporary.reset();
  EXPECT_FALSE(fs::exists(*path));
  EXPECT_TRUE(fs::exists(other / "kept"));
}

#ifndef _WIN32
TEST(TemporaryFolderTest, RemovesWhatAKilledRunLeft) {
  const TestFolder place;
  const std::string before = fs::temp_directory_path();
  ::setenv("TMPDIR", place.path().c_str(), 1);  // NOLINT(*-mt-unsafe)
  const auto age = [](const fs::path& folder) {
    fs::last_write_time(
        folder, fs::file_time_type::clock::now() - std::chrono::hours(2));
  };
  const auto leave = [&](const std::string& name, fs::perms access) {
    place.Write(name + "/deep/file", "");
    fs::permissions(place / name, access);
    age(place / name);
  };
  TemporaryFolder held;
  const fs::path used = *held.GetTempFolder();
  age(used);
  leave("fragsmith-killed", fs::perms::owner_all);
  leave("fragsmith-shared", fs::perms::owner_all | fs::perms::others_exec);
  leave("other", fs::perms::owner_all);
  place.Write("fragsmith-young/file", "");
  fs::permissions(place / "fragsmith-young", fs::perms::owner_all);
  fs::create_directory_symlink(place / "other", place / "fragsmith-link");
  fs::create_directory_symlink(place / "other",
                               place / "fragsmith-killed/data");
  age(place / "fragsmith-killed");
  {
    TemporaryFolder next;
    EXPECT_TRUE(next.GetTempFolder());
  }
  ::setenv("TMPDIR", before.c_str(), 1);  // NOLINT(*-mt-unsafe)
  EXPECT_FALSE(fs::exists(place / "fragsmith-killed"));
  EXPECT_TRUE(fs::exists(used));
  for (const char* const kept :
       {"fragsmith-shared/deep/file", "fragsmith-young/file",
        "fragsmith-link/deep/file"}) {
    EXPECT_TRUE(fs::exists(place / kept)) << kept;
  }
}
#endif

}  // namespace
}  // namespace fragsmith
