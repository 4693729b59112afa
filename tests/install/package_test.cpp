#include "install/packages/package.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <cstddef>
#include <filesystem>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "install/packages/package_writer.h"
#include "install/packages/unzip_command.h"
#include "tests/support/package_maker.h"
#include "tests/support/test_folder.h"

namespace fragsmith {
namespace {

using ::testing::ElementsAre;
using ::testing::HasSubstr;

/// What hostile packages are made of.
std::string Replaced(std::string text, std::string_view from,
                     std::string_view to) {
  for (std::size_t at = text.find(from); at != std::string::npos;
       at = text.find(from, at + to.size())) {
    text.replace(at, from.size(), to);
  }
  return text;
}

class PackageFolder : public ::testing::Test {
 protected:
  Result<std::string> ReadEntry(std::string_view bytes, std::string_view name,
                                std::size_t limit = kMaxUnpackedBytes) {
    return ReadPackageEntry(folder_.Write("p.pk3", bytes), name, limit);
  }

  TestFolder folder_;
};

TEST_F(PackageFolder, IsWrittenAndReadBack) {
  const std::string long_text(100'000, 'x');
  const std::filesystem::path path = folder_.Write("bot.pk3", "older");
  ASSERT_TRUE(WritePackage(path, {{"botfiles/bots/b_c.c", long_text},
                                  {"scripts/\xC4\xE4.bot", "\0\r\n\x1A"},
                                  {"a", ""}}));
  Notes notes;
  EXPECT_EQ(*ListPackage(path, notes),
            "botfiles/bots/b_c.c\r\nscripts/\xC4\xE4.bot\r\na\r\n");
  EXPECT_EQ(*ReadPackageEntry(path, "botfiles/bots/b_c.c"), long_text);
  EXPECT_EQ(*ReadPackageEntry(path, "a"), "");
  EXPECT_LT(std::filesystem::file_size(path), 2000U);
  // Nothing of the writing is left beside it.
  EXPECT_EQ(
      std::distance(std::filesystem::directory_iterator(folder_.path()), {}),
      1);
}

TEST_F(PackageFolder, RefusesWhatCannotBeWritten) {
  const auto twice = WritePackage(folder_ / "b.pk3", {{"a", "1"}, {"a", "2"}});
  ASSERT_FALSE(twice);
  EXPECT_THAT(twice.error().file, HasSubstr("b.pk3"));
  EXPECT_FALSE(std::filesystem::exists(folder_ / "b.pk3"));
  EXPECT_FALSE(WritePackage(folder_ / "no/b.pk3", {{"a", "1"}}));
}

TEST_F(PackageFolder, ListsNamesAsTheyAre) {
  const std::filesystem::path path = folder_.Write(
      "p.pk3", MakeZipOfNames({"b/", "../x", "a\r\nscripts/evil.bot", "a\nb",
                               "\xC3\xA4\xE4\x81", "same", "same", "a\"b"}));
  Notes notes;
  EXPECT_THAT(
      *ListPackageEntries(path, notes),
      ElementsAre("b/", "../x", "\xC3\xA4\xE4\x81", "same", "same", "a\"b"));
  EXPECT_EQ(notes.list().size(), 2U);
}

TEST_F(PackageFolder, RefusesWhatIsNoArchive) {
  const std::string whole = MakeZip({{"a", "text"}});
  Notes notes;
  for (const std::string& bytes :
       {std::string(), std::string("text"), whole.substr(0, whole.size() - 5),
        std::string(70'000, '\0'), whole.substr(0, 30)}) {
    const auto listing = ListPackage(folder_.Write("p.pk3", bytes), notes);
    ASSERT_FALSE(listing) << bytes.size();
    EXPECT_FALSE(listing.error().what.empty());
  }
  EXPECT_FALSE(ListPackage(folder_ / "missing.pk3", notes));
  EXPECT_FALSE(ListPackage(folder_.path(), notes));
}

TEST_F(PackageFolder, RefusesATableOfContentsThatWouldFillTheMemory) {
  // A table of contents of 17 MiB, in front of it a file so that the sizes
  // fit: the library would take it for good.
  const std::string name(60'000, 'n');
  std::vector<std::string> names;
  for (int number = 0; number < 300; ++number) {
    names.push_back(name + std::to_string(number));
  }
  Notes notes;
  const auto large =
      ListPackageEntries(folder_.Write("p.pk3", MakeZipOfNames(names)), notes);
  ASSERT_FALSE(large);
  EXPECT_THAT(large.error().what, HasSubstr("too large"));
  // A large file alone is no reason.
  const std::string content(std::size_t{20} << 20U, 'x');
  EXPECT_TRUE(ListPackageEntries(
      folder_.Write("p.pk3", MakeZip({{"a", content}})), notes));
}

TEST_F(PackageFolder, FindsOneFileIgnoringCaseAndSlashes) {
  const std::string bytes = MakeZip({{"Models/A/Icon.tga", "1"},
                                     {"models/a/icon.tga", "2"},
                                     {"b\\c", "3"},
                                     {"models/a/", ""}});
  EXPECT_EQ(*ReadEntry(bytes, "models\\a\\icon.tga"), "2");
  EXPECT_EQ(*ReadEntry(bytes, "Models/A\\Icon.tga"), "1");
  // As for the game, of several the last counts.
  EXPECT_EQ(*ReadEntry(bytes, "MODELS/a\\icon.tga"), "2");
  EXPECT_EQ(*ReadEntry(bytes, "B/C"), "3");
  for (const char* name : {"icon.tga", "a/icon.tga", "", "models/a"}) {
    EXPECT_FALSE(ReadEntry(bytes, name)) << name;
  }
}

TEST_F(PackageFolder, RefusesBombsAndLies) {
  const std::string zeros(300'000, '\0');
  const std::string bomb = *FormatPackage({{"bomb", zeros}});
  ASSERT_LT(bomb.size(), 2000U);
  EXPECT_EQ(ReadEntry(bomb, "bomb", 300'000)->size(), 300'000U);
  EXPECT_THAT(ReadEntry(bomb, "bomb", 299'999).error().what,
              HasSubstr("larger than 299999 bytes, the most that is read of "
                        "one like it: it has 300000."));
  EXPECT_TRUE(
      ReadEntry(bomb, "bomb", 299'999).error().file.ends_with("p.pk3/bomb"));
  // The same with the size said to be 3: what unpacks to more is refused.
  const std::string lie = Replaced(bomb, std::string("\xE0\x93\x04\0", 4),
                                   std::string("\x03\0\0\0", 4));
  ASSERT_NE(lie, bomb);
  EXPECT_THAT(ReadEntry(lie, "bomb").error().what, HasSubstr("another size"));
  // Damaged data do not pass for good ones.
  EXPECT_FALSE(
      ReadEntry(Replaced(MakeZip({{"a", "text"}}), "text", "next"), "a"));
}

/// The parts of an archive: each file with its head, each line of the table of
/// contents, and the end.
std::vector<std::string> PartsOf(std::string_view bytes) {
  std::vector<std::string> parts;
  for (std::size_t at = 0; at < bytes.size();) {
    const std::size_t end = std::min(bytes.find("PK", at + 1), bytes.size());
    parts.emplace_back(bytes.substr(at, end - at));
    at = end;
  }
  return parts;
}

TEST_F(PackageFolder, GivesOneFileOtherContentsAndKeepsAllElse) {
  const std::string old =
      MakeZip({{"readme.txt", "hello", std::string("\x99\x99\x02\0ab", 6),
                "of mine", 0x81A40000U},
               {"Scripts/", "", {}, {}, 0x10},
               {"Scripts/Rook.bot", "12345", {}, "the bot", 0x20},
               {"twice", "1"},
               {"twice", "2"}},
              "by an \xC4uthor");
  const std::filesystem::path path = folder_.Write("p.pk3", old);
  ASSERT_TRUE(ReplacePackageEntries(path, {{"scripts\\rook.bot", "67890"}}));
  EXPECT_EQ(*ReadPackageEntry(path, "Scripts/Rook.bot"), "67890");
  std::vector<std::string> before = PartsOf(old);
  std::vector<std::string> after = PartsOf(folder_.Read("p.pk3"));
  ASSERT_EQ(before.size(), 11U);
  ASSERT_EQ(after.size(), before.size());
  // Its comment and attributes stay, its check sum and date do not.
  EXPECT_TRUE(after[2].ends_with("Scripts/Rook.bot67890"));
  EXPECT_TRUE(after[7].ends_with("Scripts/Rook.botthe bot"));
  EXPECT_EQ(after[7].substr(36, 6), before[7].substr(36, 6));
  for (const std::size_t own : {2U, 7U}) after[own] = before[own];
  EXPECT_EQ(after, before);

  // Packed files are packed again.
  const std::string long_text(10'000, 'x');
  ASSERT_TRUE(WritePackage(path, {{"a", long_text}, {"b", "1"}}));
  ASSERT_TRUE(ReplacePackageEntries(path, {{"a", long_text + 'y'}}));
  EXPECT_EQ(*ReadPackageEntry(path, "a"), long_text + 'y');
  EXPECT_LT(std::filesystem::file_size(path), 1000U);

  // A long part in front of the one that changes is taken over as a whole.
  std::string noise;
  for (std::uint32_t number = 1; noise.size() < 20'000; number *= 48'271U) {
    noise += static_cast<char>(number >> 16U);
  }
  ASSERT_TRUE(WritePackage(path, {{"a", noise}, {"b", noise}, {"c", "1"}}));
  ASSERT_TRUE(ReplacePackageEntries(path, {{"c", "2"}}));
  EXPECT_EQ(*ReadPackageEntry(path, "b"), noise);
  EXPECT_EQ(*ReadPackageEntry(path, "c"), "2");
}

TEST_F(PackageFolder, GivesNoFileOtherContentsThatCannotBeToldApart) {
  const std::string old = MakeZip({{"a", "1"}, {"b", "2"}, {"B", "3"}});
  const std::filesystem::path path = folder_.Write("p.pk3", old);
  for (const auto& [name, reason] : {std::pair("c", "not in the package"),
                                     std::pair("b", "several times")}) {
    const auto refused = ReplacePackageEntries(path, {{"a", "4"}, {name, "5"}});
    ASSERT_FALSE(refused) << name;
    EXPECT_THAT(refused.error().what, HasSubstr(reason));
    EXPECT_THAT(refused.error().file, HasSubstr("p.pk3"));
  }
  EXPECT_EQ(folder_.Read("p.pk3"), old);
  EXPECT_FALSE(ReplacePackageEntries(folder_ / "missing.pk3", {{"a", "1"}}));
  EXPECT_FALSE(
      ReplacePackageEntries(folder_.Write("no.pk3", "text"), {{"a", "1"}}));
}

class UnzipCommand : public PackageFolder {
 protected:
  void SetUp() override {
    package_ = folder_
                   .Write("p.pk3", MakeZip({{"Models/P/icon_x.tga", "icon"},
                                            {"../../evil.txt", "evil"},
                                            {"evil/..", "evil"},
                                            {"\xE4\xC3\xB6.c", "8-bit"},
                                            {"bo\"t \xE9.c", "quoted"}}))
                   .string();
    std::filesystem::create_directories(folder_ / "in/out");
    target_ = (folder_ / "in/out").string();
  }

  bool Run(const std::string& file) {
    return RunUnzipCommand({"-o", package_, file, target_}).has_value();
  }

  std::string package_;
  std::string target_;
};

TEST_F(UnzipCommand, TakesExactlyFourArguments) {
  const std::string file = "models/p/icon_x.tga";
  const std::vector<std::vector<std::string>> wrong = {
      {},
      {"-o", package_, file},
      {"-o", package_, file, target_, target_},
      {"-x", package_, file, target_},
      {package_, "-o", file, target_}};
  for (const auto& arguments : wrong) {
    const auto done = RunUnzipCommand(arguments);
    ASSERT_FALSE(done);
    EXPECT_EQ(Describe(done.error()), kUnzipUsage);
  }
  EXPECT_TRUE(std::filesystem::is_empty(target_));
}

TEST_F(UnzipCommand, WritesTheBareNameOverAnOlderFile) {
  folder_.Write("in/out/ICON_x.tga", "an older and longer one");
  EXPECT_TRUE(Run("models\\p\\ICON_x.tga"));
  EXPECT_EQ(folder_.Read("in/out/ICON_x.tga"), "icon");
  // The name is UTF-8 here and 8-bit text in the package.
  EXPECT_TRUE(Run("\xC3\xA4\xC3\x83\xC2\xB6.c"));
  EXPECT_EQ(folder_.Read("in/out/\xC3\xA4\xC3\x83\xC2\xB6.c"), "8-bit");
  if (!kIsUnix) return;
  // A quote cannot be in the name of a file elsewhere.
  EXPECT_TRUE(Run("BO\"T \xC3\x89.C"));
  EXPECT_EQ(folder_.Read("in/out/BO\"T \xC3\x89.C"), "quoted");
}

TEST_F(UnzipCommand, WritesNothingOutsideTheFolder) {
  for (const char* file :
       {"../../evil.txt", "..\\..\\evil.txt", "evil/..", "..", "", ".",
        "models/p/", "missing.tga", "/etc/passwd"}) {
    EXPECT_FALSE(Run(file)) << file;
  }
  EXPECT_TRUE(std::filesystem::is_empty(target_));
  EXPECT_FALSE(std::filesystem::exists(folder_ / "evil.txt"));

  // A link that was planted under the name is replaced, not followed. Making
  // one takes a right elsewhere that users seldom have.
  if (!kIsUnix) return;
  const auto victim = folder_.Write("victim", "whole");
  std::filesystem::create_symlink(victim, folder_ / "in/out/icon_x.tga");
  EXPECT_TRUE(Run("models/p/icon_x.tga"));
  EXPECT_EQ(folder_.Read("victim"), "whole");
  EXPECT_EQ(folder_.Read("in/out/icon_x.tga"), "icon");
}

TEST_F(UnzipCommand, FailsWhereItCannotReadOrWrite) {
  const std::string file = "models/p/icon_x.tga";
  EXPECT_FALSE(RunUnzipCommand({"-o", package_ + "x", file, target_}));
  EXPECT_FALSE(RunUnzipCommand({"-o", package_, file, target_ + "/no"}));
  std::filesystem::create_directories(folder_ / "in/out/icon_x.tga");
  EXPECT_FALSE(Run(file));
}

}  // namespace
}  // namespace fragsmith
