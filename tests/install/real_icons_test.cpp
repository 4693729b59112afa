#include <gtest/gtest.h>

#include <filesystem>
#include <string>

#include "install/packages/package.h"
#include "install/packages/targa.h"
#include "support/text.h"

namespace fragsmith {
namespace {

namespace fs = std::filesystem;

/// A player's icon, also one in a folder below the model's.
bool IsPlayerIcon(const std::string& entry) {
  const std::string path = ToLower(entry);
  return path.starts_with("models/players/") && path.ends_with(".tga") &&
         path.substr(path.rfind('/') + 1).starts_with("icon_");
}

// The packages of a free game that Debian has.
TEST(RealIcons, AllDecode) {
  const fs::path data = "/usr/share/games/openarena";
  if (!fs::exists(data / "baseoa/pak0.pk3") ||
      !fs::exists(data / "baseoa/pak6-patch085.pk3")) {
    GTEST_SKIP() << "openarena-data and openarena-085-data are not installed.";
  }
  int icons = 0;
  for (const auto& file : fs::recursive_directory_iterator(data)) {
    if (file.path().extension() != ".pk3") continue;
    Notes notes;
    const auto entries = ListPackageEntries(file, notes).value();
    for (const std::string& entry : entries) {
      if (!IsPlayerIcon(entry)) continue;
      ++icons;
      const auto picture =
          DecodeTarga(ReadPackageEntry(file, entry).value_or(""));
      ASSERT_TRUE(picture) << entry << ": " << picture.error().what;
      EXPECT_EQ(picture->width, 128) << entry;
      EXPECT_EQ(picture->height, 128) << entry;
    }
  }
  // So many are in those two and the packages that they need.
  EXPECT_GE(icons, 77);
}

}  // namespace
}  // namespace fragsmith
