#include "install/program/program_folder.h"

#include <gtest/gtest.h>

#include <filesystem>

#include "install/program/settings_file.h"
#include "tests/support/test_folder.h"

namespace fragsmith {
namespace {

namespace fs = std::filesystem;

/// An installed program: its folder is missing, which is as good as one that
/// cannot be written to, also for the super-user.
class ProgramFolder : public ::testing::Test {
 protected:
  TestFolder folder_;
  ProgramLocation place_ = {.executable_folder = folder_ / "usr/bin",
                            .user_folder = folder_ / "home/config/fragsmith"};
};

TEST_F(ProgramFolder, IsTheGivenOneWhereThatIs) {
  fs::create_directories(folder_ / "given");
  EXPECT_EQ(FindProgramFolders(folder_ / "given", place_)->program,
            folder_ / "given");
  EXPECT_FALSE(FindProgramFolders(folder_ / "missing", place_));
  EXPECT_FALSE(fs::exists(place_.user_folder));
}

TEST_F(ProgramFolder, IsThatOfTheExecutableWhenItCanBeWrittenTo) {
  fs::create_directories(place_.executable_folder);
  const auto bare = FindProgramFolders({}, place_);
  EXPECT_EQ(bare->program, place_.executable_folder);
  EXPECT_EQ(bare->data, folder_ / "usr/share/fragsmith");
  folder_.Write("usr/bin/notinuse.tga", "");
  EXPECT_EQ(FindProgramFolders({}, place_)->data, place_.executable_folder);
}

TEST_F(ProgramFolder, IsMadeForTheUserWithTheStarterSettings) {
  folder_.Write("usr/share/fragsmith/fgs.ini",
                FormatSettings({.WinZipDir = "/not/here", .UserName = "You"}));
  folder_.Write("usr/lib/fragsmith/wzunzip.exe", "");
  EXPECT_EQ(FindProgramFolders({}, place_)->program, place_.user_folder);
  const ProgramSettings settings =
      ParseSettings(folder_.Read("home/config/fragsmith/fgs.ini")).settings;
  EXPECT_EQ(settings.UserName, "You");
  EXPECT_EQ(settings.WinZipDir, folder_ / "usr/lib/fragsmith");
  // A folder that exists stays as the user left it.
  fs::remove(place_.user_folder / "fgs.ini");
  EXPECT_EQ(FindProgramFolders({}, place_)->program, place_.user_folder);
  EXPECT_FALSE(fs::exists(place_.user_folder / "fgs.ini"));
}

TEST_F(ProgramFolder, IsNoneOfTheSystems) {
  // The super-user could write there.
#ifdef _WIN32
  const auto folders = {R"(C:\Program Files)", R"(C:\Program Files\fragsmith)"};
#else
  const auto folders = {"/usr", "/usr/bin", "/opt/fragsmith/bin"};
#endif
  for (const char* const folder : folders) {
    place_.executable_folder = folder;
    EXPECT_EQ(FindProgramFolders({}, place_)->program, place_.user_folder);
  }
}

TEST_F(ProgramFolder, KnowsTheToolOfItsInstallation) {
  EXPECT_EQ(FindProgramFolders({}, place_)->unzip_tool, "");
  folder_.Write("usr/lib/fragsmith/wzunzip.exe", "");
  EXPECT_EQ(FindProgramFolders({}, place_)->unzip_tool,
            folder_ / "usr/lib/fragsmith");
  folder_.Write("usr/bin/wzunzip.exe", "");
  EXPECT_EQ(FindProgramFolders({}, place_)->unzip_tool, folder_ / "usr/bin");
}

TEST_F(ProgramFolder, FailsWhereNoneCanBe) {
  folder_.Write("home/config", "a file in the way");
  EXPECT_FALSE(FindProgramFolders({}, place_));
  place_.user_folder.clear();
  EXPECT_FALSE(FindProgramFolders({}, place_));
}

TEST(ProgramLocationTest, KnowsItsOwnExecutable) {
  const char* const own = kIsUnix ? "test_install" : "test_install.exe";
  EXPECT_TRUE(fs::exists(FindProgramLocation().executable_folder / own));
}

}  // namespace
}  // namespace fragsmith
