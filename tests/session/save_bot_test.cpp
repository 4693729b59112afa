#include "session/save_bot.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <string>
#include <vector>

#include "install/packages/package.h"
#include "model/characteristic_catalogue.h"
#include "tests/support/scripted_prompts.h"
#include "tests/support/test_folder.h"

namespace fragsmith {
namespace {

namespace fs = std::filesystem;
using ::testing::ElementsAre;
using ::testing::ElementsAreArray;
using ::testing::HasSubstr;
using ::testing::IsEmpty;

/// In the order of writing, in the game's layout.
const std::vector<std::string> kSet = {
    "botfiles/bots/rookie_c.c", "botfiles/bots/rookie_w.c",
    "botfiles/bots/rookie_i.c", "botfiles/bots/rookie_t.c",
    "scripts/rookie.bot"};
/// What each of them has and the others lack.
const std::vector<std::string> kSigns = {
    "#include \"chars.h\"", "#define W_GAUNTLET", "#define FS_HEALTH",
    "chat \"Rookie\"", "aifile\tbots/rookie_c.c"};

class SaveBotTest : public ::testing::Test {
 protected:
  SaveBotTest() { Rename("Rookie"); }

  void Rename(const std::string& name) {
    ASSERT_TRUE(bot_.SetParameter(kNameField, name));
  }

  SavedBot Save(const std::string& folder, bool uses_layout, bool packs) {
    return SaveBot(bot_, folder_ / folder, {uses_layout, packs},
                   {.name = "You", .email = {}, .web_page = {}}, prompts_);
  }

  std::string Path(const std::string& name) const {
    return (folder_ / name).string();
  }

  /// Counts what there is below a folder, folders among it.
  std::ptrdiff_t Count(const std::string& folder) const {
    return std::distance(fs::recursive_directory_iterator(folder_ / folder),
                         {});
  }

  TestFolder folder_;
  Bot bot_;
  ScriptedPrompts prompts_;
};

TEST_F(SaveBotTest, WritesAndPacksTheSetAgainAndAgain) {
  folder_.Write("layout/scripts/rookie.bot", std::string(100'000, 'x'));
  folder_.Write("flat/bot-Rookie.pk3", "no archive");
  for (const std::string round : {"first", "second"}) {
    ASSERT_TRUE(bot_.SetParameter(kCommentField, round));
    for (const std::string folder : {"flat", "layout"}) {
      const bool uses_layout = folder == "layout";
      std::vector<fs::path> wanted;
      for (const fs::path file : kSet) {
        wanted.push_back(folder_ / folder /
                         (uses_layout ? file : file.filename()));
      }
      EXPECT_THAT(Save(folder, uses_layout, false).written,
                  ElementsAreArray(wanted));
      EXPECT_THAT(prompts_.log, IsEmpty());
      const fs::path package = folder_ / folder / "bot-Rookie.pk3";
      wanted.push_back(package);
      const SavedBot saved = Save(folder, uses_layout, true);
      EXPECT_FALSE(saved.error);
      EXPECT_TRUE(saved.counts_package);
      EXPECT_THAT(saved.written, ElementsAreArray(wanted));
      EXPECT_THAT(prompts_.log, ElementsAre("Fragsmith: " + package.string() +
                                            " created succesfully"));
      EXPECT_EQ(prompts_.messages[0].icon, MessageIcon::kNone);
      prompts_.log.clear();
      EXPECT_EQ(Count(folder), uses_layout ? 9 : 6);

      Notes notes;
      EXPECT_THAT(*ListPackageEntries(package, notes), ElementsAreArray(kSet));
      for (std::size_t file = 0; file < kSet.size(); ++file) {
        const std::string bytes = folder_.Read(wanted[file].string());
        EXPECT_EQ(bytes, *ReadPackageEntry(package, kSet[file]));
        EXPECT_THAT(bytes,
                    HasSubstr("\tRookie\tversion 0.0\r\n//\tBy: You\r\n//\t" +
                              round + "\r\n"));
        for (std::size_t sign = 0; sign < kSigns.size(); ++sign) {
          EXPECT_EQ(bytes.find(kSigns[sign]) != std::string::npos, sign == file)
              << kSet[file] << ' ' << kSigns[sign];
        }
      }
    }
  }
}

TEST_F(SaveBotTest, StopsAtWhatCannotBeWritten) {
  std::vector<std::string> all = kSet;
  all.emplace_back("bot-Rookie.pk3");
  for (std::size_t blocked = 0; blocked < all.size(); ++blocked) {
    const std::string folder = std::to_string(blocked) + "/";
    for (std::size_t file = 0; file < all.size(); ++file) {
      folder_.Write(folder + all[file] + (file == blocked ? "/in the way" : ""),
                    "old");
    }
    const auto before = Count(folder);
    const SavedBot saved = Save(folder, true, true);
    ASSERT_TRUE(saved.error) << blocked;
    EXPECT_EQ(saved.error->file, Path(folder + all[blocked]));
    EXPECT_THAT(saved.error->what, HasSubstr(kIsUnix ? "directory" : "denied"));
    EXPECT_EQ(saved.written.size(), blocked);
    EXPECT_EQ(Count(folder), before);
    for (std::size_t file = 0; file < all.size(); ++file) {
      if (file == blocked) continue;
      EXPECT_EQ(folder_.Read(folder + all[file]) == "old", file > blocked);
    }
    // A package counts also when it fails, which a box tells.
    EXPECT_EQ(saved.counts_package, blocked == kSet.size());
    EXPECT_EQ(prompts_.log.size(), blocked == kSet.size() ? 1U : 0U);
  }
  EXPECT_THAT(prompts_.log[0], HasSubstr(Path("5/bot-Rookie.pk3") + ": "));

  folder_.Write("file/scripts", "");
  EXPECT_EQ(Save("file", true, true).error->file, Path("file/scripts"));
  EXPECT_EQ(Count("file"), 3);
  EXPECT_EQ(Save("no", false, true).error->file, Path("no/rookie_c.c"));
  EXPECT_FALSE(fs::exists(folder_ / "no"));
}

TEST_F(SaveBotTest, NeverLeavesTheFolder) {
  fs::create_directories(folder_ / "outer/target/a");
  for (const std::string& name :
       {std::string(), std::string("."), std::string(".."),
        std::string("../evil"), std::string("a/b"), std::string("..\\evil"),
        Path("evil"), std::string("ev il"), std::string("ev\nil"),
        std::string("e\0l", 3)}) {
    Rename(name);
    for (const bool uses_layout : {false, true}) {
      const SavedBot saved = Save("outer/target", uses_layout, true);
      EXPECT_TRUE(saved.error) << name;
      EXPECT_THAT(saved.written, IsEmpty());
      EXPECT_FALSE(saved.counts_package);
    }
  }
  EXPECT_EQ(Count(""), 3);
  EXPECT_THAT(prompts_.log, IsEmpty());
  // A link is replaced, not followed. Making one takes a right elsewhere that
  // users seldom have.
  if (!kIsUnix) return;
  Rename("Rookie");
  const fs::path victim = folder_.Write("victim", "whole");
  fs::create_symlink(victim, folder_ / "outer/target/rookie_c.c");
  EXPECT_FALSE(Save("outer/target", false, false).error);
  EXPECT_EQ(folder_.Read("victim"), "whole");
}

// On disk a name is in the system's encoding, in the package it is raw.
TEST_F(SaveBotTest, SpellsEightBitNames) {
  Rename("\xD6rg\x80");
  const std::string name = "\xC3\xB6rg\xE2\x82\xAC";
  const fs::path package = folder_ / "bot-\xC3\x96rg\xE2\x82\xAC.pk3";
  EXPECT_THAT(Save("", false, true).written,
              ElementsAre(folder_ / (name + "_c.c"), folder_ / (name + "_w.c"),
                          folder_ / (name + "_i.c"), folder_ / (name + "_t.c"),
                          folder_ / (name + ".bot"), package));
  Notes notes;
  const auto entries = *ListPackageEntries(package, notes);
  EXPECT_EQ(entries.front(), "botfiles/bots/\xF6rg\x80_c.c");
  EXPECT_EQ(entries.back(), "scripts/\xF6rg\x80.bot");
  EXPECT_THAT(prompts_.log, ElementsAre("Fragsmith: " + package.string() +
                                        " created succesfully"));
  EXPECT_THAT(folder_.Read(name + ".bot"),
              HasSubstr("\r\naifile\tbots/\xF6rg\x80_c.c\r\n"));
}

}  // namespace
}  // namespace fragsmith
