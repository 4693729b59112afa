#include "install/program/skin_icon.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <set>
#include <string>

#include "install/packages/targa.h"
#include "tests/support/test_folder.h"

namespace fragsmith {
namespace {

using ::testing::ElementsAre;
using ::testing::HasSubstr;

/// A Targa file: 18 bytes of header, then what is given.
std::string Targa(int type, int width, int height, int bits,
                  std::string_view data) {
  std::string bytes(18, '\0');
  const auto put = [&bytes](std::size_t at, int number) {
    bytes[at] = static_cast<char>(number & 0xFF);
  };
  put(2, type);
  put(12, width);
  put(13, width >> 8);
  put(14, height);
  put(15, height >> 8);
  put(16, bits);
  return bytes.append(data);
}

TEST(Targa, DecodesPlainAndRunLengthPictures) {
  // Rows stand from the bottom up, each pixel as blue, green, red, alpha.
  const Result<Picture> plain =
      DecodeTarga(Targa(2, 1, 2, 32, "\x01\x02\x03\x04\x05\x06\x07\x08"));
  ASSERT_TRUE(plain);
  EXPECT_EQ(plain->width, 1);
  EXPECT_EQ(plain->height, 2);
  EXPECT_THAT(plain->pixels, ElementsAre(7, 6, 5, 8, 3, 2, 1, 4));
  const Result<Picture> packed = DecodeTarga(
      Targa(10, 3, 1, 24, std::string("\x81\x01\x02\x03\x00\x04\x05\x06", 8)));
  ASSERT_TRUE(packed);
  EXPECT_THAT(packed->pixels,
              ElementsAre(3, 2, 1, 255, 3, 2, 1, 255, 6, 5, 4, 255));
  // A picture of palette indices.
  std::string indexed = Targa(1, 2, 1, 8, "\x01\x02\x03\x04\x05\x06\x01");
  indexed += '\0';
  indexed[1] = 1;
  indexed[5] = 2;
  indexed[7] = 24;
  EXPECT_THAT(DecodeTarga(indexed)->pixels,
              ElementsAre(6, 5, 4, 255, 3, 2, 1, 255));
}

TEST(Targa, RefusesWhatIsCutOrTooLarge) {
  const std::string kilobyte(1024, 'x');
  const std::string plain = Targa(2, 2, 2, 24, kilobyte.substr(0, 12));
  const std::string packed = Targa(10, 4, 1, 24,
                                   "\x81"
                                   "abc"
                                   "\x01"
                                   "abcdef");
  ASSERT_TRUE(DecodeTarga(plain));
  ASSERT_TRUE(DecodeTarga(packed));
  for (const std::string& whole : {plain, packed}) {
    for (std::size_t size = 0; size < whole.size(); ++size) {
      EXPECT_FALSE(DecodeTarga(whole.substr(0, size))) << size;
    }
  }
  EXPECT_THAT(DecodeTarga(Targa(2, 65535, 65535, 32, kilobyte)).error().what,
              HasSubstr("65535 x 65535"));
  EXPECT_FALSE(DecodeTarga(Targa(10, 1025, 1, 32, kilobyte)));
  EXPECT_FALSE(DecodeTarga(Targa(2, 0, 1, 24, kilobyte)));
  EXPECT_FALSE(DecodeTarga(Targa(2, 1, 1, 0, kilobyte)));
  EXPECT_FALSE(DecodeTarga(Targa(2, 1, 1, 7, kilobyte)));
  EXPECT_FALSE(DecodeTarga(Targa(0, 1, 1, 24, kilobyte)));
  EXPECT_FALSE(DecodeTarga(Targa(99, 1, 1, 24, kilobyte)));
  EXPECT_FALSE(DecodeTarga("\x89PNG\r\n\x1A\n" + kilobyte));
}

class SkinIcon : public ::testing::Test {
 protected:
  void SetUp() override {
    folder_.Write("baseq3/mod.pk3", "");
    folder_.Write("icon.tga", Targa(2, 1, 1, 24, "abc"));
    UseTool("cp '" + (folder_ / "icon.tga").string() + "' \"$4/${3##*\\\\}\"");
    tool_.folder = folder_.path();
    held_ = TemporaryFiles();
  }

  std::set<std::filesystem::path> TemporaryFiles() {
    return {std::filesystem::directory_iterator(*temporary_.GetTempFolder()),
            {}};
  }

  void UseTool(const std::string& script) {
    folder_.WriteProgram("wzunzip", "#!/bin/sh\n" + script);
  }

  IconKind Show(std::string_view iconFile, std::string_view pk3File) {
    const IconResult result =
        ShowSkinIcon(iconFile, pk3File, folder_.path(), tool_, temporary_);
    const bool is_icon = result.kind == IconKind::kIcon;
    EXPECT_EQ(result.picture.pixels.size(), is_icon ? 4U : 0U);
    EXPECT_EQ(TemporaryFiles(), held_);
    return result.kind;
  }

  TestFolder folder_;
  UnzipTool tool_;
  TemporaryFolder temporary_;
  /// What the folder holds itself with, on some systems a file.
  std::set<std::filesystem::path> held_;
};

constexpr char kIconPath[] = "models\\players\\x\\icon_default.tga";

TEST_F(SkinIcon, SaysWhyThereIsNone) {
  EXPECT_EQ(Show("", ""), IconKind::kNotInUse);
  EXPECT_EQ(Show(kIconPath, "other.pk3"), IconKind::kNoPackage);
  EXPECT_EQ(Show(kIconPath, ""), IconKind::kNoPackage);
  EXPECT_EQ(Show("", "UserDef"), IconKind::kNoPackage);
  EXPECT_EQ(Show("", "mod.pk3"), IconKind::kNotFound);
  EXPECT_EQ(Show("models\\players\\x\\face.tga", "mod.pk3"),
            IconKind::kNotFound);
  folder_.Write("baseq3/UserDef", "");
  EXPECT_EQ(Show("", "UserDef"), IconKind::kUserDefined);
}

TEST_F(SkinIcon, TakesTheIconOutAndLeavesNothingBehind) {
  if (!kIsUnix) GTEST_SKIP() << "The tool is a shell script.";
  EXPECT_EQ(Show(kIconPath, "mod.pk3"), IconKind::kIcon);
  EXPECT_EQ(Show("models\\players\\x\\ICON_X.tga", "mod.pk3"), IconKind::kIcon);
  // The name begins at the first "icon" of the path.
  EXPECT_EQ(Show("models\\players\\icon\\icon_x.tga", "mod.pk3"),
            IconKind::kNotFound);
  EXPECT_EQ(Show("models\\players\\x\\my_icon_x.tga", "mod.pk3"),
            IconKind::kNotFound);
}

TEST_F(SkinIcon, AsksAToolThatHangsOnceForEachPackage) {
  if (!kIsUnix) GTEST_SKIP() << "The tool is a shell script.";
  folder_.Write("baseq3/other.pk3", "");
  UseTool("echo >>\"$0.calls\"\nexec sleep 1\n");
  SilentPackages silent;
  tool_.silent = &silent;
  tool_.patience = std::chrono::milliseconds(200);
  for (const char* const package : {"mod.pk3", "mod.pk3", "other.pk3"}) {
    EXPECT_EQ(Show(kIconPath, package), IconKind::kNotFound);
  }
  EXPECT_EQ(folder_.Read("wzunzip.calls"), "\n\n");
}

TEST_F(SkinIcon, NeverShowsAnOlderFile) {
  const auto stale = *temporary_.GetTempFolder() / "icon_default.tga";
  std::filesystem::copy_file(folder_ / "icon.tga", stale);
  UseTool("exit 1");
  EXPECT_EQ(Show(kIconPath, "mod.pk3"), IconKind::kNotFound);
  UseTool("echo broken >\"$4/icon_default.tga\"");
  EXPECT_EQ(Show(kIconPath, "mod.pk3"), IconKind::kNotFound);
}

TEST_F(SkinIcon, FixedPicturesComeFromTheFirstFolderThatHasThem) {
  folder_.Write("program/notfound.tga", Targa(2, 1, 1, 24, "abc"));
  folder_.Write("data/notfound.tga", Targa(2, 2, 1, 24, "abcdef"));
  folder_.Write("data/NoPk3.tga", Targa(2, 3, 1, 24, "abcdefghi"));
  const std::vector<std::filesystem::path> folders = {folder_ / "program",
                                                      folder_ / "data"};
  EXPECT_EQ(LoadFixedPicture(IconKind::kNotFound, folders)->width, 1);
  EXPECT_EQ(LoadFixedPicture(IconKind::kNoPackage, folders)->width, 3);
  EXPECT_FALSE(LoadFixedPicture(IconKind::kUserDefined, folders));
}

}  // namespace
}  // namespace fragsmith
