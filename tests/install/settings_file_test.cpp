#include "install/program/settings_file.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <stdexcept>
#include <string>

#include "install/program/game_folder.h"
#include "support/files.h"
#include "tests/support/scripted_prompts.h"
#include "tests/support/test_folder.h"

namespace fragsmith {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

constexpr char kLoadError[] =
    "Load error: Errors occured when trying to load ini file. Please check "
    "your options from Program/Options.";

ProgramSettings Sample() {
  return {.Q3Baseq3 = "/games/quake 3",
          .WorkDir = "/home/me/bots",
          .WinZipDir = "/opt/tools",
          .UserName = "J\xF6rg \"X\" Doe",
          .Email = "joe@example.org",
          .Http = "https://example.org",
          .Bots = 12,
          .BaseQ3Check = true};
}

constexpr char kSampleFile[] =
    "[Fragsmith settings]\r\n"
    "Q3Baseq3 = /games/quake 3\r\n"
    "WorkDir = /home/me/bots\r\n"
    "WinZipDir = /opt/tools\r\n"
    "\r\n"
    "UserName = J\xF6rg \"X\" Doe\r\n"
    "Email = joe@example.org\r\n"
    "Http = https://example.org\r\n"
    "Bots = 12\r\n"
    "\r\n"
    "BaseQ3Check = True\r\n";

TEST(SettingsFile, IsWrittenAndReadBack) {
  EXPECT_EQ(FormatSettings(Sample()), kSampleFile);
  const ParsedSettings parsed = ParseSettings(kSampleFile);
  EXPECT_FALSE(parsed.has_error);
  EXPECT_EQ(parsed.settings, Sample());

  const std::string empty = FormatSettings({});
  EXPECT_EQ(empty,
            "[Fragsmith settings]\r\nQ3Baseq3 = \r\nWorkDir = \r\n"
            "WinZipDir = \r\n\r\nUserName = \r\nEmail = \r\nHttp = \r\n"
            "Bots = 0\r\n\r\nBaseQ3Check = False\r\n");
  EXPECT_FALSE(ParseSettings(empty).has_error);
  EXPECT_EQ(ParseSettings(empty).settings, ProgramSettings());
}

TEST(SettingsFile, ValueCannotBreakItsLine) {
  ProgramSettings settings = Sample();
  settings.UserName = "Joe\r\nDoe";
  EXPECT_EQ(ParseSettings(FormatSettings(settings)).settings.UserName,
            "JoeDoe");
}

TEST(SettingsFile, IsReadByPosition) {
  // Other keys of the same length, other line ends, blanks in front, values
  // shorter than their keys.
  const ParsedSettings other = ParseSettings(
      "anything\nXXXXXXXXXXX/game\r \tWorkDir = /work\nshort\n\n"
      "UserName = Joe  \n\n\nBots =  7 \n\nBaseQ3Check = fALSE ");
  EXPECT_FALSE(other.has_error);
  EXPECT_EQ(other.settings, (ProgramSettings{.Q3Baseq3 = "/game",
                                             .WorkDir = "/work",
                                             .UserName = "Joe  ",
                                             .Bots = 7}));
  // A comma ends an item, and all that follows is shifted by one.
  const ParsedSettings shifted = ParseSettings(
      "[]\r\nQ3Baseq3 = /a,0123456789/b\r\nWorkDir = /cd/e\r\nWinZipDir = \r\n"
      "\r\nUserName = Joe\r\nEmail = a@b\r\nHttp = 5\r\nBots = 3\r\n\r\n"
      "BaseQ3Check = True\r\n");
  EXPECT_TRUE(shifted.has_error);
  EXPECT_EQ(shifted.settings, (ProgramSettings{.Q3Baseq3 = "/a",
                                               .WorkDir = "/b",
                                               .WinZipDir = "d/e",
                                               .Email = " = Joe",
                                               .Http = " a@b",
                                               .Bots = 5}));
}

TEST(SettingsFile, QuotedItemRunsToItsQuote) {
  const ParsedSettings parsed = ParseSettings(
      "[]\r\n\"Q3Baseq3 = /a, b\"\r\nWorkDir = \"/c\"\r\nWinZipDir = \r\n\r\n"
      "\"\"\r\n\r\n\r\nBots = \r\n\r\nBaseQ3Check = 1");
  EXPECT_FALSE(parsed.has_error);
  EXPECT_EQ(parsed.settings, (ProgramSettings{.Q3Baseq3 = "/a, b",
                                              .WorkDir = "\"/c\"",
                                              .BaseQ3Check = true}));
  EXPECT_TRUE(ParseSettings("[]\r\n\"Q3Baseq3 = /a\r\n").has_error);
}

TEST(SettingsFile, StopsAtAnError) {
  const std::string start =
      "[]\r\nQ3Baseq3 = /a\r\nWorkDir = /b\r\nWinZipDir = /c\r\n";
  const std::string rest = "\r\nUserName = U\r\nEmail = E\r\nHttp = H\r\n";
  const ProgramSettings folders = {
      .Q3Baseq3 = "/a", .WorkDir = "/b", .WinZipDir = "/c"};
  ProgramSettings texts = folders;
  texts.UserName = "U";
  texts.Email = "E";
  texts.Http = "H";
  const struct {
    std::string bytes;
    ProgramSettings settings;
  } cases[] = {
      {"", {}},
      {start, folders},
      {start + rest, texts},
      {start + rest + "Bots = x\r\n\r\nBaseQ3Check = True\r\n", texts},
      {start + rest + "Bots = 1e3\r\n\r\nBaseQ3Check = True\r\n", texts},
      {start + rest + "Bots = 99999999999999999999\r\n\r\n", texts},
      {start + rest + "Bots = 0\r\n\r\nBaseQ3Check = maybe\r\n", texts},
      {start + rest + "Bots = 0\r\n\r\nBaseQ3Check = \r\n", texts},
      {start + rest + "Bots = 0\r\n\r\n", texts},
  };
  for (const auto& one : cases) {
    const ParsedSettings parsed = ParseSettings(one.bytes);
    EXPECT_TRUE(parsed.has_error) << one.bytes;
    EXPECT_EQ(parsed.settings, one.settings) << one.bytes;
  }
  EXPECT_TRUE(ParseSettings(std::string(10'000'000, ',')).has_error);
  EXPECT_TRUE(ParseSettings(std::string(10'000'000, 'x')).has_error);
  EXPECT_TRUE(ParseSettings(std::string("\0\x1A\"", 3)).has_error);
}

TEST(SettingsFile, OptionsAreReachedByIndex) {
  ProgramSettings settings = Sample();
  EXPECT_EQ(GetOptionValue(settings, 0), "/games/quake 3");
  EXPECT_EQ(GetOptionValue(settings, 5), "https://example.org");
  EXPECT_EQ(GetOptionValue(settings, 6), "12");
  SetOptionValue(settings, 2, "/other");
  SetOptionValue(settings, 6, "99");
  EXPECT_EQ(settings.WinZipDir, "/other");
  EXPECT_EQ(settings.Bots, 12);
  EXPECT_THROW(GetOptionValue(settings, 7), std::out_of_range);
}

class SettingsFolder : public ::testing::Test {
 protected:
  FolderState Load(std::string_view bytes) {
    folder_.Write("fgs.ini", bytes);
    return LoadSettings(folder_.path(), settings_, prompts_);
  }

  TestFolder folder_;
  ProgramSettings settings_;
  ScriptedPrompts prompts_;
};

TEST_F(SettingsFolder, MissingFileGivesDefaults) {
  const FolderState state = LoadSettings(folder_.path(), settings_, prompts_);
  EXPECT_THAT(prompts_.log, IsEmpty());
  EXPECT_EQ(settings_, (ProgramSettings{.WorkDir = folder_.path().string()}));
  EXPECT_FALSE(state.WinZipFound);
  EXPECT_FALSE(state.Pk3Ready);
  EXPECT_TRUE(state.ResetsIcon);
  EXPECT_EQ(state.CurrentFolder, folder_.path());
}

TEST_F(SettingsFolder, NamesTheProgramsOwnToolWhereTheUserNamesNone) {
  folder_.Write("own/wzunzip.exe", "");
  const auto load = [&](std::string_view own) {
    settings_ = {};
    return LoadSettings(folder_.path(), settings_, prompts_, folder_ / own);
  };
  // A lost file, and one that was written when there was no tool.
  EXPECT_TRUE(load("own").WinZipFound);
  EXPECT_EQ(settings_.WinZipDir, folder_ / "own");
  folder_.Write("fgs.ini", FormatSettings({.UserName = "You"}));
  EXPECT_TRUE(load("own").WinZipFound);
  EXPECT_EQ(settings_.UserName, "You");
  // The file could not hold that folder.
  EXPECT_FALSE(load("own, other").WinZipFound);
  EXPECT_EQ(settings_.WinZipDir, "");
  // The user's own stays, also where it has no tool any more.
  folder_.Write("fgs.ini", FormatSettings({.WinZipDir = "/no/tool"}));
  EXPECT_FALSE(load("own").WinZipFound);
  EXPECT_EQ(settings_.WinZipDir, "/no/tool");
}

TEST_F(SettingsFolder, KeepsADamagedFileBesideTheNewOne) {
  const std::string damaged = "[]\r\nQ3Baseq3 = \r\nWorkDir = \r\n";
  Load(damaged);
  EXPECT_THAT(prompts_.log, ElementsAre(kLoadError));
  ASSERT_TRUE(SaveSettings(folder_.path(), settings_));
  EXPECT_EQ(folder_.Read("fgs.ini.bak"), damaged);
  EXPECT_EQ(folder_.Read("fgs.ini"), FormatSettings(settings_));
  // A whole file makes no copy over the first.
  ASSERT_TRUE(SaveSettings(folder_.path(), {}));
  EXPECT_EQ(folder_.Read("fgs.ini.bak"), damaged);
}

TEST_F(SettingsFolder, KeepsAFileThatIsTooLargeToRead) {
  const std::filesystem::path path = folder_.Write("fgs.ini", "[]\r\n");
  std::filesystem::resize_file(path, std::uintmax_t{200} << 20U);
  LoadSettings(folder_.path(), settings_, prompts_);
  EXPECT_THAT(prompts_.log, ElementsAre(kLoadError));
  ASSERT_TRUE(SaveSettings(folder_.path(), settings_));
  EXPECT_EQ(std::filesystem::file_size(folder_ / "fgs.ini.bak"),
            std::uintmax_t{200} << 20U);
}

TEST_F(SettingsFolder, TellsOfFoldersThatAreNotThere) {
  const FolderState state = Load(
      "[]\r\nQ3Baseq3 = /no/game\r\nWorkDir = /no/work\r\n"
      "WinZipDir = /no/tool\r\n\r\n\r\n\r\n\r\nBots = 3\r\n\r\n"
      "BaseQ3Check = False\r\n");
  EXPECT_THAT(
      prompts_.log,
      ElementsAre("Fragsmith: Quake3.exe missing: Quake3.exe not found in "
                  "'/no/game'",
                  "Fragsmith: Work directory missing: Given working directory "
                  "not found in '/no/work'. Using application directory.",
                  "Fragsmith: Work directory missing: Winzip command line "
                  "support executives not found in '/no/tool'. Pk3 bot loading "
                  "disabled."));
  EXPECT_EQ(prompts_.messages[0].icon, MessageIcon::kExclamation);
  EXPECT_EQ(settings_.Q3Baseq3, "");
  EXPECT_EQ(settings_.WorkDir, folder_.path());
  EXPECT_EQ(settings_.WinZipDir, "/no/tool");
  EXPECT_FALSE(state.WinZipFound);
  EXPECT_FALSE(state.Pk3Ready);
}

TEST_F(SettingsFolder, IconsAreTriedForEvenWithoutTheTool) {
  folder_.Write("QUAKE3.EXE", "");
  settings_.Q3Baseq3 = folder_.path().string();
  settings_.WinZipDir = folder_.path().string();
  const FolderState without =
      ValidateFolders(settings_, folder_.path(), prompts_);
  EXPECT_EQ(prompts_.log.size(), 1U);
  EXPECT_FALSE(without.WinZipFound);
  EXPECT_TRUE(without.Pk3Ready);
  EXPECT_TRUE(without.ResetsIcon);

  folder_.Write("wzunzip.exe", "");
  const FolderState with = ValidateFolders(settings_, folder_.path(), prompts_);
  EXPECT_EQ(prompts_.log.size(), 1U);
  EXPECT_TRUE(with.WinZipFound);
  EXPECT_TRUE(with.Pk3Ready);
  EXPECT_FALSE(with.ResetsIcon);
}

TEST(GameFolder, KnowsTheProgramByItsNames) {
  const struct {
    const char* name;
    bool is_executable;
    bool counts;
  } cases[] = {
      {"quake3.exe", false, true},        {"Quake3.EXE", false, true},
      {"OpenArena.exe", false, true},     {"ioquake3.x86_64.exe", false, true},
      {"quake3e.x64.exe", false, true},   {"oa_ded.exe", false, true},
      {"ioquake3", true, kIsUnix},        {"quake3e.x64", true, kIsUnix},
      {"openarena", true, kIsUnix},       {"ioq3ded", true, kIsUnix},
      {"quake3", false, false},           {"quake3.txt", false, false},
      {"quake2.exe", true, false},        {"quake3.exe/x", true, false},
      {"ioquake3/a-file", true, false},   {"baseoa/pak0.pk3", false, true},
      {"baseoa/other.pk3", false, false}, {"baseq3/pak0.pk3", false, false}};
  for (const auto& one : cases) {
    const TestFolder folder;
    if (one.is_executable) {
      folder.WriteProgram(one.name, "");
    } else {
      folder.Write(one.name, "");
    }
    EXPECT_EQ(HasGameProgram(folder.path()), one.counts) << one.name;
  }
}

TEST(GameFolder, FindsPackagesAndTheTool) {
  const TestFolder folder;
  folder.Write("BaseQ3/Mod.PK3", "");
  folder.Write("secret.pk3", "");
  EXPECT_TRUE(
      folder.Is(FindPackage(folder.path(), "mod.pk3"), "BaseQ3/Mod.PK3"));
  EXPECT_FALSE(FindPackage(folder.path(), "../secret.pk3"));
  EXPECT_FALSE(FindPackage(folder.path(), ""));
  EXPECT_FALSE(FindPackage("", "mod.pk3"));

  folder.Write("wzunzip", "");
  EXPECT_FALSE(FindUnzipTool(folder.path()));
  folder.Write("WzUnzip.exe", "");
  EXPECT_TRUE(folder.Is(FindUnzipTool(folder.path()), "WzUnzip.exe"));
  // Anything could lie in the current folder, and did.
  const std::filesystem::path here = std::filesystem::current_path();
  std::filesystem::current_path(folder.path());
  EXPECT_FALSE(FindUnzipTool(""));
  EXPECT_FALSE(FindUnzipTool("."));
  std::filesystem::current_path(here);
  // Elsewhere a program is one by its suffix.
  if (!kIsUnix) return;
  folder.WriteProgram("wzunzip", "");
  EXPECT_EQ(FindUnzipTool(folder.path()), folder / "wzunzip");
}

}  // namespace
}  // namespace fragsmith
