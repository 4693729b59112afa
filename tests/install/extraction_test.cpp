#include "install/program/extraction.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <chrono>
#include <string>

#include "tests/support/scripted_prompts.h"
#include "tests/support/test_folder.h"

namespace fragsmith {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

class Extraction : public ::testing::Test {
 protected:
  void SetUp() override {
    if (!kIsUnix) GTEST_SKIP() << "The tool is a shell script.";
  }

  void UseTool(std::string_view script) {
    folder_.WriteProgram("tool dir/wzunzip",
                         "#!/bin/sh\n" + std::string(script));
    tool_.folder = folder_ / "tool dir";
  }

  bool Extract() {
    return ExtractFromPackage(tool_, folder_ / "a b/mod.pk3",
                              "models\\players\\x\\icon_\xE4 $HOME.tga",
                              folder_ / "out \"dir", prompts_)
               .end == ExtractionEnd::kEnded;
  }

  TestFolder folder_;
  UnzipTool tool_;
  ScriptedPrompts prompts_;
};

TEST_F(Extraction, GivesTheToolFourArgumentsAsTheyAre) {
  UseTool(
      "for text in \"$@\"; do printf '%s|' \"$text\"; done >\"$0.log\"\n"
      "exit 3\n");
  // How the tool ended does not matter, only that it did.
  EXPECT_TRUE(Extract());
  EXPECT_EQ(folder_.Read("tool dir/wzunzip.log"),
            "-o|" + (folder_ / "a b/mod.pk3").string() +
                "|models\\players\\x\\icon_\xC3\xA4 $HOME.tga|" +
                (folder_ / "out \"dir").string() + "|");
  EXPECT_THAT(prompts_.log, IsEmpty());
}

TEST_F(Extraction, LeavesAToolAloneThatTakesTooLong) {
  UseTool(
      "until [ -e \"$0.go\" ]; do sleep 0.01; done\n"
      "echo late >\"$0.new\"; mv \"$0.new\" \"$0.log\"\n");
  tool_.patience = std::chrono::milliseconds(100);
  EXPECT_FALSE(Extract());
  EXPECT_THAT(prompts_.log,
              ElementsAre("Load failed: Couldn't load models\\players\\x\\"
                          "icon_\xC3\xA4 $HOME.tga from mod.pk3. Check that "
                          "the pk3-file still exists. '" +
                          (folder_ / "tool dir/wzunzip").string() +
                          "' did not come to its end within 0.1 seconds."));
  EXPECT_EQ(prompts_.messages[0].icon, MessageIcon::kInformation);
  folder_.Write("tool dir/wzunzip.go", "");
  const auto log = folder_ / "tool dir/wzunzip.log";
  const auto give_up =
      std::chrono::steady_clock::now() + std::chrono::seconds(20);
  while (!std::filesystem::exists(log) &&
         std::chrono::steady_clock::now() < give_up) {
  }
  EXPECT_TRUE(std::filesystem::exists(log));
}

TEST_F(Extraction, EndsWhenItIsCancelled) {
  UseTool("sleep 5\n");
  int calls = 0;
  tool_.keep_going = [&calls] { return ++calls < 3; };
  EXPECT_EQ(RunUnzipTool(tool_, "p", "f", "t").end, ExtractionEnd::kCancelled);
  EXPECT_EQ(calls, 3);
}

TEST_F(Extraction, FailsWithoutATool) {
  tool_.folder = folder_.path();
  EXPECT_EQ(RunUnzipTool(tool_, "p", "f", "t").end, ExtractionEnd::kNotStarted);
  EXPECT_FALSE(Extract());
  folder_.Write("wzunzip.exe", "no program");
  EXPECT_EQ(RunUnzipTool(tool_, "p", "f", "t").end, ExtractionEnd::kNotStarted);
  EXPECT_FALSE(Extract());
  const std::string box =
      "Load failed: Couldn't load models\\players\\x\\icon_\xC3\xA4 "
      "$HOME.tga from mod.pk3. Check that the pk3-file still exists. ";
  EXPECT_THAT(
      prompts_.log,
      ElementsAre(
          box + "There is no unzip tool in '" + folder_.path().string() + "'.",
          testing::StartsWith(box + (folder_ / "wzunzip.exe").string() +
                              ": The program cannot be started: ")));
}

}  // namespace
}  // namespace fragsmith
