// Bots of a free game, where its packages are installed. Of their values a
// sample is edited; with FRAGSMITH_ALL_EDITS in the environment it is all.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cstdlib>
#include <filesystem>
#include <map>
#include <optional>
#include <random>
#include <string>
#include <vector>

#include "chat/chat_catalogue.h"
#include "game/lexer.h"
#include "inplace/lines_there.h"
#include "install/packages/package.h"
#include "model/characteristic_catalogue.h"
#include "session/bot_difference.h"
#include "support/files.h"
#include "support/notes.h"
#include "support/numbers.h"
#include "support/text.h"
#include "tests/inplace/editing.h"
#include "tests/inplace/game_view.h"

namespace fragsmith {
namespace {

namespace fs = std::filesystem;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::Key;
using ::testing::Not;

constexpr std::array kKinds = {BotFile::kCharacteristics,
                               BotFile::kWeaponWeights, BotFile::kItemWeights,
                               BotFile::kChat};

/// All that concerns bots in the packages, the later one first.
class RealBots : public testing::Test {
 protected:
  void SetUp() override {
    for (const char* const name : {"pak6-misc.pk3", "pak6-patch088.pk3"}) {
      const fs::path package = fs::path(kFolder) / name;
      Notes notes;
      const auto entries = ListPackageEntries(package, notes);
      if (!entries) GTEST_SKIP() << "no " << package;
      for (const std::string& entry : *entries) {
        const std::string path = ToLower(entry);
        if (!path.starts_with("botfiles/") || path.ends_with('/')) continue;
        const auto bytes = ReadPackageEntry(package, path, kMaxBotFileBytes);
        ASSERT_TRUE(bytes) << path;
        files_[path] = *bytes;
      }
    }
    for (const auto& [path, bytes] : files_) {
      constexpr std::string_view kStart = "botfiles/bots/";
      if (path.starts_with(kStart) && path.ends_with("_c.c")) {
        bots_.push_back(
            path.substr(kStart.size(), path.size() - kStart.size() - 4));
      }
    }
    ASSERT_EQ(bots_.size(), 24);
  }

  LoadedFile File(const std::string& bot, BotFile kind) const {
    return File(
        bot, kind,
        files_.at("botfiles/bots/" + bot + std::string(FileSuffix(kind))));
  }
  LoadedFile File(const std::string& bot, BotFile kind,
                  std::string bytes) const {
    return {kind, std::move(bytes), bot, Game()};
  }

  IncludeLookup Game() const {
    return [this](std::string_view path) -> std::optional<std::string> {
      const auto found = files_.find("botfiles/" + ToLower(path));
      if (found == files_.end()) return std::nullopt;
      return found->second;
    };
  }

  /// What the game has otherwise after an edit.
  auto ChangesFor(BotFile kind, const LoadedFile& file,
                  const std::string& edited) const {
    const std::string name = ChatNameIn(file.bytes());
    return Differences(ViewOf(kind, file.bytes(), Game(), name),
                       ViewOf(kind, edited, Game(), name));
  }

  /// The game has the new number, 0.375, and all else as it was.
  void ExpectValueAlone(const std::string& bot, BotFile kind,
                        const LoadedFile& file, ParameterId id,
                        const std::string& edited) const {
    // 0.375, or 375 degrees.
    constexpr std::string_view kNumber = "375";
    const auto changes = ChangesFor(kind, file, edited);
    EXPECT_FALSE(changes.empty()) << bot << id.number();
    std::size_t levels = 0;
    // Factors are calculated with.
    const bool is_factor = id == kHealthWeight || id == kArmorWeight;
    for (const auto& [name, texts] : changes) {
      if (!is_factor) {
        EXPECT_THAT(texts.second, HasSubstr(kNumber)) << bot << name;
      }
      if (kind == BotFile::kCharacteristics) {
        const int number = file.readers().GameNumber(id.index()).value_or(-1);
        EXPECT_TRUE(name.ends_with(' ' + std::to_string(number))) << name;
        ++levels;
        continue;
      }
      const GameWeight weight = {name.substr(name.find(' ') + 1), {}};
      EXPECT_EQ(OwnerOf(weight, id), WeightOwner::kParameter) << bot << name;
    }
    if (kind != BotFile::kCharacteristics) return;
    EXPECT_EQ(levels, id.level() ? 1 : 3) << bot << id.number();
  }

  /// True for those that are edited today.
  bool IsDrawn() {
    static const bool wants_all = std::getenv("FRAGSMITH_ALL_EDITS") != nullptr;
    constexpr unsigned kOneOf = 60;
    return wants_all || random_() % kOneOf == 0;
  }

  static constexpr const char* kFolder = "/usr/share/games/openarena/baseoa";
  std::map<std::string, std::string> files_;
  std::vector<std::string> bots_;
  std::mt19937 random_{20};
};

std::size_t LineCount(const std::string& text, char mark) {
  std::size_t count = 0;
  for (std::size_t at = 0; at < text.size(); at = text.find('\n', at) + 1) {
    if (text[at] == mark) ++count;
    if (text.find('\n', at) == std::string::npos) break;
  }
  return count;
}

TEST_F(RealBots, StayAsTheyAreWithoutAnEdit) {
  for (const std::string& bot : bots_) {
    for (const BotFile kind : kKinds) {
      const LoadedFile file = File(bot, kind);
      EXPECT_EQ(file.Difference(file.Edited(file.before())), "") << bot;
    }
  }
}

TEST_F(RealBots, ChangeOneLineForAValue) {
  std::size_t edits = 0;
  std::size_t other_look = 0;
  for (const std::string& bot : bots_) {
    for (const BotFile kind : kKinds) {
      const LoadedFile file = File(bot, kind);
      Bot other = file.before();
      for (const IndexRange range : {kChatRange, IndexRange{44, 80}}) {
        for (const int index : range) other.Put(ParameterId(index), 0.375);
      }
      for (const Level level : kLevels) {
        for (const int index : kPerLevelRange) {
          other.Put({level, index}, 0.375);
        }
        // A fraction would give the other levels' whole numbers a point.
        other.Put({level, kViewMaxChangeIndex}, 375.0);
      }
      for (const FileChange& change : ChangesIn(kind, file.before(), other)) {
        const auto* const id = std::get_if<ParameterId>(&change);
        if (id == nullptr || !IsDrawn()) continue;
        // The weight code there has no use for these.
        constexpr IndexRange kOwnedWeights = {64, 71};
        const auto edited = file.Edited(*id, other.Parameter(*id));
        const bool has_no_weights =
            bot == "default" && kind == BotFile::kWeaponWeights;
        if (kOwnedWeights.Contains(*id) || has_no_weights) {
          EXPECT_FALSE(edited) << bot;
          continue;
        }
        ASSERT_TRUE(edited) << bot << ": " << edited.error().what;
        const std::string difference = file.Difference(edited);
        // What a bot has once stands in each block.
        const std::size_t lines = kChatRange.Contains(*id) ? 3 : 1;
        EXPECT_EQ(LineCount(difference, '+'), lines) << bot << difference;
        EXPECT_EQ(LineCount(difference, '-'), lines) << bot << difference;
        ExpectValueAlone(bot, kind, file, *id, *edited);
        const LoadedFile again = File(bot, kind, *edited);
        const auto back = again.Edited(*id, file.before().Parameter(*id));
        ASSERT_TRUE(back) << bot << ": " << back.error().what;
        if (*back != file.bytes()) ++other_look;
        ++edits;
      }
    }
  }
  EXPECT_GT(edits, 24);
  // What a bot has once may be another number in each level, and how many
  // zeros a number had is not always to be seen beside it.
  EXPECT_LT(other_look * 10, edits);
}

TEST_F(RealBots, ChangeOneLineForAChatLine) {
  std::size_t edits = 0;
  std::size_t of_others = 0;
  for (const std::string& bot : bots_) {
    const LoadedFile file = File(bot, BotFile::kChat);
    for (const ChatTypeId type : kAllChatTypes) {
      const std::string name = "chat " + std::string(ChatTypeAt(type).Key);
      const std::vector<std::string> lines = file.before().ChatLines(type);
      const auto expect = [&](const std::vector<std::string>& wanted,
                              std::size_t added, std::size_t removed) {
        const auto edited = file.Edited(type, wanted);
        ASSERT_TRUE(edited) << bot << ": " << edited.error().what;
        const std::string difference = file.Difference(edited);
        // Of a line with a comment behind it the comment stays.
        const bool has_comment = added == 0 && Contains(difference, "//");
        EXPECT_EQ(LineCount(difference, '+'), added + (has_comment ? 1 : 0))
            << bot << difference;
        EXPECT_EQ(LineCount(difference, '-'), removed) << bot << difference;
        EXPECT_THAT(ChangesFor(BotFile::kChat, file, *edited),
                    ElementsAre(Key(name)))
            << bot;
      };
      for (std::size_t at = 0; at < lines.size(); ++at) {
        if (!IsDrawn() || lines[at].empty()) continue;
        ++edits;
        std::vector<std::string> changed = lines;
        changed[at] = "a new line";
        const auto edited = file.Edited(type, changed);
        if (!edited) {
          // Of a type of other games, which a load takes for ours.
          ++of_others;
          EXPECT_THAT(edited.error().what,
                      HasSubstr("stands in the block of the type "
                                "\"enemy_suicide\""))
              << bot;
          changed = lines;
          changed.emplace_back("one more");
          expect(changed, 1, 0);
          continue;
        }
        expect(changed, 1, 1);
        changed.insert(changed.begin() + static_cast<std::ptrdiff_t>(at),
                       "one more");
        expect(changed, 2, 1);
        changed = lines;
        changed.erase(changed.begin() + static_cast<std::ptrdiff_t>(at));
        expect(changed, 0, 1);
      }
    }
  }
  EXPECT_GT(edits, 24);
  EXPECT_LT(of_others, edits / 10);
}

/// "#define SGW W_SHOTGUN": what the game's own list has for our macros.
std::multimap<std::string, std::string> Dictionary(const std::string& bytes) {
  std::multimap<std::string, std::string> ours;
  LineReader lines(bytes);
  while (const auto line = lines.Next()) {
    GameLexer lexer(*line);
    GameToken token;
    std::vector<std::string> words;
    while (lexer.Next(token) == GameLexer::Outcome::kToken) {
      words.push_back(token.text);
    }
    if (words.size() == 4 && words[1] == "define") {
      ours.emplace(words[3], words[2]);
    }
  }
  return ours;
}

TEST_F(RealBots, TakeTheChatsOfOneAnother) {
  const std::string key = "chat enemy_suicide";
  std::size_t kept = 0;
  for (std::size_t at = 0; at < bots_.size(); ++at) {
    const LoadedFile file = File(bots_[at], BotFile::kChat);
    const Bot other =
        File(bots_[(at + 1) % bots_.size()], BotFile::kChat).before();
    const FileReading reading = file.readers().Read(file.bytes());
    Bot after = file.before();
    for (const ChatTypeId type : kAllChatTypes) {
      CopyChatType(type, other, after);
      kept += AddLinesElsewhere(reading, type, after).size();
    }
    const auto edited = file.Edited(after);
    ASSERT_TRUE(edited) << bots_[at] << ": " << edited.error().what;
    EXPECT_THAT(ChangesFor(BotFile::kChat, file, *edited),
                Not(::testing::Contains(Key(key))))
        << bots_[at];
  }
  EXPECT_GT(kept, 0);
}

TEST_F(RealBots, HaveTheWeightsOfTheGamesOwnDictionary) {
  constexpr std::string_view kDefine = "#define ";
  std::size_t known = 0;
  for (const std::string& bot : bots_) {
    for (const auto& [kind, list, range] :
         {std::tuple(BotFile::kWeaponWeights, "botfiles/fw_weap.c",
                     kWeaponWeightRange),
          std::tuple(BotFile::kItemWeights, "botfiles/fw_items.c",
                     kItemWeightRange)}) {
      const auto dictionary = Dictionary(files_.at(list));
      const LoadedFile file = File(bot, kind);
      const FileReading reading = file.readers().Read(file.bytes());
      for (const int index : range) {
        const ParameterId id(index);
        const auto found = std::find_if(
            reading.found.begin(), reading.found.end(),
            [id](const FoundWeight& weight) { return weight.parameter == id; });
        // Several macros may stand for ours: the weapon's own one counts.
        const std::string ours(BareKey(index).substr(kDefine.size()));
        const auto [first, last] = dictionary.equal_range(ours);
        ASSERT_NE(first, last) << ours;
        bool is_known = false;
        bool is_defined = false;
        for (const OwnMacro& macro : reading.weights.macros) {
          const bool is_theirs = std::any_of(
              first, last,
              [&macro](const auto& pair) { return pair.second == macro.name; });
          // One has names alone, and the game refuses it.
          if (!is_theirs || macro.text.empty()) continue;
          is_defined = true;
          if (found != reading.found.end() &&
              macro.value.Holds(found->own.span)) {
            is_known = true;
            EXPECT_EQ(found->own.number, NumberFromText(macro.text)) << ours;
            EXPECT_EQ(ToNumber(file.before().Parameter(id)),
                      NumberFromText(macro.text))
                << bot << ours;
          }
        }
        // The weight code does not look at those of a bot that has the weapon.
        const bool is_asked_for = index < 64 || index > 71;
        EXPECT_EQ(is_known, is_defined && is_asked_for) << bot << ' ' << ours;
        known += is_known ? 1 : 0;
      }
    }
  }
  // All that the game has but for those of a bot that has the weapon.
  EXPECT_GT(known, 24 * 25);
}

}  // namespace
}  // namespace fragsmith
