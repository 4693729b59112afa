#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "checks/bot_checks.h"
#include "checks/location_checks.h"
#include "install/packages/package_writer.h"
#include "tests/checks/engine_cases.h"
#include "tests/support/package_maker.h"
#include "tests/support/test_folder.h"

namespace fragsmith {
namespace {

using ::testing::AllOf;
using ::testing::Contains;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;

/// What a package does to a good bot, and bots to each other.
class PackageChecks : public ::testing::Test {
 protected:
  PackageChecks() {
    std::map<std::string, std::string> files;
    MakeEngineCase({"", "c", "", "", "", ""}, "x", files);
    for (const auto& [part, bytes] : files) {
      entries_.push_back({PathOfPart(part, "x"), bytes});
    }
  }

  std::string Packed() const { return *FormatPackage(entries_); }

  /// "severity id: text" of all findings but hints.
  std::vector<std::string> Found(const std::string& package,
                                 const std::string& name = "bot-x.pk3",
                                 const InstalledGame* game = nullptr) {
    folder_.Write(name, package);
    const LocationCheck check({.name = "x",
                               .folder = {},
                               .package = folder_ / name,
                               .uses_layout = false},
                              false, game);
    std::vector<std::string> found;
    for (const Finding& finding : check.InFiles()) {
      if (finding.severity == Severity::kHint) continue;
      found.push_back(std::string(SeverityWord(finding.severity)) + " " +
                      std::string(finding.id) + ": " + finding.text);
    }
    return found;
  }

  /// A game with what the bot asks for.
  std::optional<InstalledGame> Game() const {
    folder_.Write(
        "game/baseq3/pak0.pk3",
        MakeZip({{"scripts/bots.txt", ""},
                 {"botfiles/chars.h", *StandInGameFile("chars.h")},
                 {"botfiles/inv.h", *StandInGameFile("inv.h")},
                 {"botfiles/fw_weap.c", *StandInGameFile("fw_weap.c")},
                 {"botfiles/fw_items.c", *StandInGameFile("fw_items.c")},
                 {"botfiles/teamplay.h", ""}}));
    return ReadInstalledGame(folder_ / "game");
  }

  /// A number of two bytes behind each of the marks takes another value.
  static std::string Patched(std::string bytes, std::string_view mark,
                             std::size_t place, std::string_view value) {
    for (std::size_t at = bytes.find(mark); at != std::string::npos;
         at = bytes.find(mark, at + 1)) {
      bytes.replace(at + place, value.size(), value);
    }
    return bytes;
  }

  const TestFolder folder_;
  std::vector<PackageEntry> entries_;
};

constexpr std::string_view kEntry = "PK\x01\x02";
constexpr std::string_view kHead = "PK\x03\x04";
constexpr std::string_view kEnd = "PK\x05\x06";

TEST_F(PackageChecks, NameMembersThatTheGameCannotUnpack) {
  EXPECT_THAT(Found(Packed()), IsEmpty());
  using namespace std::string_view_literals;
  const std::string by_bzip2 =
      Patched(Patched(Packed(), kEntry, 10, "\x0c\0"sv), kHead, 8, "\x0c\0"sv);
  EXPECT_THAT(
      Found(by_bzip2),
      ElementsAre(AllOf(HasSubstr("error packed-unreadably"),
                        HasSubstr("scripts/x.bot, botfiles/bots/x_c.c, "),
                        HasSubstr("x_w.c are packed by the method BZip2"),
                        HasSubstr("by the method Deflate"))));
  // Marked as locked, which the game does not look at; and locked in earnest.
  const std::string marked =
      Patched(Patched(Packed(), kEntry, 8, "\1"), kHead, 6, "\1");
  EXPECT_THAT(Found(marked), IsEmpty());
  EXPECT_THAT(Found(Patched(marked, kEntry, 16, "x")),
              ElementsAre(HasSubstr("without a password")));
}

TEST_F(PackageChecks, TakeDamageAsTheGameDoes) {
  EXPECT_THAT(Found(Patched(Packed(), kEntry, 16, "x")),
              ElementsAre(HasSubstr("warning package-damaged")));
  // Offsets do not count what stands in front, and a comment that looks like
  // the end hides it.
  EXPECT_THAT(Found("#!/bin/sh\n" + Packed()), IsEmpty());
  std::string with_comment = Patched(Packed(), kEnd, 20, "\x16");
  with_comment += std::string(kEnd) + std::string(18, '?');
  EXPECT_THAT(Found(with_comment),
              ElementsAre(HasSubstr("error package-unopened")));
}

TEST_F(PackageChecks, TakeTheLastOfTwoMembersOfOneName) {
  const auto chat = std::find_if(
      entries_.begin(), entries_.end(),
      [](const PackageEntry& entry) { return entry.name.ends_with("_t.c"); });
  PackageEntry other = {"botfiles/bots/X_T.C", "broken {"};
  std::vector<PackageEntry> entries = entries_;
  entries_.insert(chat, other);
  EXPECT_THAT(Found(Packed()), ElementsAre(HasSubstr("warning packed-twice")));
  entries_ = std::move(entries);
  entries_.push_back(other);
  EXPECT_THAT(Found(Packed()), Contains(HasSubstr("error ")));
}

TEST_F(PackageChecks, BlameTheFileThatHidesOneOfTheGame) {
  entries_.push_back({"botfiles/chars.h", "#define CHARACTERISTIC_NAME 0\n"});
  EXPECT_THAT(Found(Packed()),
              ElementsAre(AllOf(HasSubstr("error in-place-of-game-file"),
                                HasSubstr("x_c.c, line 5. Remove it."))));
}

TEST_F(PackageChecks, TellWhatHidesTheGamesInThePlayersFolderAlone) {
  const auto game = Game();
  EXPECT_THAT(Found(Packed(), "bot-x.pk3", &*game), IsEmpty());
  entries_.push_back({"botfiles/chars.h", ""});
  EXPECT_THAT(
      Found(Packed(), "bot-x.pk3", &*game),
      ElementsAre(AllOf(HasSubstr("warning in-place-of-game-file"),
                        HasSubstr("In the player's own folder"),
                        HasSubstr("There the game does not add the bot"))));
}

TEST_F(PackageChecks, FollowTheDescriptionToACharacterOfAnotherName) {
  for (PackageEntry& entry : entries_) {
    if (entry.name == "botfiles/bots/x_c.c") entry.name = "botfiles/bots/x.c";
    if (entry.name == "scripts/x.bot") {
      entry.bytes = ReplaceAll(entry.bytes, "x_c.c", "x.c");
    }
  }
  const auto game = Game();
  EXPECT_THAT(Found(Packed(), "bot-x.pk3", &*game), IsEmpty());
  std::erase_if(entries_, [](const PackageEntry& entry) {
    return entry.name.ends_with("_t.c");
  });
  EXPECT_THAT(Found(Packed(), "bot-x.pk3", &*game),
              ElementsAre(AllOf(HasSubstr("error file-missing"),
                                HasSubstr("The game does not add the bot."))));
}

TEST_F(PackageChecks, TakeADescriptionOfABotForNoOther) {
  for (const char* const name :
       {"botfiles/bots/z/x_c.c", "botfiles/bots/y_c.c"}) {
    std::vector<PackageEntry> entries = entries_;
    for (PackageEntry& entry : entries) {
      if (entry.name == "botfiles/bots/x_c.c") entry.name = name;
      if (entry.name == "scripts/x.bot") {
        entry.bytes =
            ReplaceAll(entry.bytes, "bots/x_c.c", std::string(name).substr(9));
      }
    }
    folder_.Write("one.pk3", *FormatPackage(entries));
    const auto bots = BotsAt(folder_ / "one.pk3");
    ASSERT_TRUE(bots);
    EXPECT_EQ(bots->size(), 1U) << name;
  }
}

TEST_F(PackageChecks, ReadTheListThatTheGameReads) {
  const auto game_with = [this](const std::string& list) {
    folder_.Write("game/baseq3/pak0.pk3",
                  MakeZip({{"scripts/bots.txt", list},
                           {"botfiles/bots/default_c.c", ""}}));
    return ReadInstalledGame(folder_ / "game");
  };
  // Its own list, which speaks of other files, lies in a package in front of
  // the game's, or behind it.
  const auto game = game_with("{\nname grism\naifile bots/grism_c.c\n}\n");
  ASSERT_TRUE(game);
  entries_.push_back({"scripts/bots.txt", "{\nname x\naifile bots/y_c.c\n}\n"});
  EXPECT_THAT(Found(Packed(), "a.pk3", &*game),
              Not(Contains(HasSubstr("name-taken"))));
  EXPECT_THAT(Found(Packed(), "z.pk3", &*game),
              Contains(HasSubstr("error name-taken")));
  // All that lies in the player's own folder comes before the game's, and of
  // what lies there the last package by name.
  EXPECT_THAT(Found(Packed(), "home/baseq3/a.pk3", &*game),
              Contains(HasSubstr("already, in a.pk3/scripts/bots.txt")));
  folder_.Write("home/baseq3/b.pk3", MakeZip({{"scripts/bots.txt", "{\n}\n"}}));
  EXPECT_THAT(Found(Packed(), "home/baseq3/a.pk3", &*game),
              Not(Contains(HasSubstr("name-taken"))));
  // Without a description of its own the game's list is the bot's.
  std::erase_if(entries_, [](const PackageEntry& entry) {
    return entry.name.starts_with("scripts/");
  });
  EXPECT_THAT(Found(Packed(), "a.pk3", &*game),
              Contains(HasSubstr("error no-description")));
  const auto of_bot = game_with("{\nname x\naifile bots/x_c.c\n}\n");
  EXPECT_THAT(Found(Packed(), "a.pk3", &*of_bot),
              Not(Contains(HasSubstr("no-description"))));
}

TEST_F(PackageChecks, TellWhereTheGameDoesNotLook) {
  folder_.Write("game/baseoa/pak0.pk3",
                MakeZip({{"botfiles/bots/default_c.c", ""}}));
  folder_.Write("game/baseq3/other.pk3", MakeZip({{"a", ""}}));
  const auto game = ReadInstalledGame(folder_ / "game");
  ASSERT_TRUE(game);
  for (const auto& [place, is_told] : {std::pair("game/baseoa/", false),
                                       {"game/", true},
                                       {"game/baseoa/mods/", true},
                                       {"game/baseq3/", true},
                                       {"game/mod/", false},
                                       {"game/mod/old/", false},
                                       {"", false}}) {
    const std::vector<std::string> found =
        Found(Packed(), std::string(place) + "bot-x.pk3", &*game);
    const bool is_first =
        !found.empty() &&
        fragsmith::Contains(found.front(), "package-in-wrong-folder");
    EXPECT_EQ(is_first, is_told) << place;
  }
}

TEST_F(PackageChecks, NameTheFileThatMayBeMeant) {
  const auto found_with = [this](const std::string& path,
                                 const std::string& other,
                                 const InstalledGame* game = nullptr) {
    std::vector<PackageEntry> entries = entries_;
    for (PackageEntry& entry : entries_) {
      if (entry.name == path) entry.name = other;
    }
    std::vector<std::string> found = Found(Packed(), "bot-x.pk3", game);
    entries_ = std::move(entries);
    return found;
  };
  EXPECT_THAT(found_with("scripts/x.bot", "botfiles/bots/x.bot"),
              ElementsAre(HasSubstr("Move \"botfiles/bots/x.bot\" there.")));
  EXPECT_THAT(found_with("scripts/x.bot", "scripts/x.bot.txt"),
              ElementsAre(HasSubstr("the name of \"x.bot.txt\".")));
  folder_.Write("game/baseq3/pak0.pk3",
                MakeZip({{"botfiles/bots/default_c.c", ""}}));
  const auto game = ReadInstalledGame(folder_ / "game");
  ASSERT_TRUE(game);
  EXPECT_THAT(
      found_with("botfiles/bots/x_c.c", "botfiles/bots/x_c.c.txt", &*game),
      Contains(HasSubstr("the name of \"x_c.c.txt\".")));
}

TEST_F(PackageChecks, TellOfFilesThatAreNoneOfABot) {
  const auto why = [this](const std::string& name) {
    folder_.Write("bot-x.pk3", MakeZip({{name, "skill 1"}}));
    return WhyNoBots(folder_ / "bot-x.pk3");
  };
  EXPECT_THAT(why("x_c.c"), HasSubstr("\"x_c.c\" lies at the top of the"));
  EXPECT_THAT(why("bots/X_c.c"), HasSubstr("lies in the folder \"bots\","));
  EXPECT_THAT(why("botfiles/bots/x_c.c.txt"), HasSubstr("Remove the .txt"));
  EXPECT_EQ(why("readme.txt"), "");
  folder_.Write("loose/bots/x_c.c", "");
  EXPECT_THAT(WhyNoBots(folder_ / "loose"), HasSubstr("folder \"bots\" there"));
  folder_.Write("texts/x.bot.txt", "");
  EXPECT_THAT(WhyNoBots(folder_ / "texts"), HasSubstr("Remove the .txt"));
  EXPECT_EQ(WhyNoBots(folder_ / "none"), "");
}

}  // namespace
}  // namespace fragsmith
