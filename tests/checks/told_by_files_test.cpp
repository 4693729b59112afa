#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <optional>
#include <set>
#include <string>
#include <string_view>
#include <vector>

#include "checks/bot_checks.h"
#include "checks/bot_on_disk.h"
#include "checks/file_checks.h"
#include "game/stand_ins.h"
#include "install/program/bot_list.h"
#include "session/identity_rules.h"
#include "session/save_bot.h"
#include "support/files.h"
#include "support/text.h"
#include "tests/checks/bot_check_cases.h"

namespace fragsmith {
namespace {

/// What the checks of the files call what those of a bot in memory leave to
/// them.
const std::map<std::string_view, std::set<std::string_view>>& IdsInFiles() {
  static const std::map<std::string_view, std::set<std::string_view>> ids = {
      {"name-numeric", {"number-for-text"}},
      {"name-too-long", {"path-too-long"}},
      {"name-forbidden-character", {"description-sign"}},
      {"name-accent", {"path-accent"}},
      {"name-taken", {"name-taken"}},
      {"fun-name-hides-bot",
       {"description-quote", "no-aifile", "fun-name-hides-character",
        "description-sign", "open-comment"}},
      {"fun-name-forbidden-character",
       {"description-sign", "description-more-words"}},
      {"description-too-large", {"description-too-large"}},
      {"text-breaks-file",
       {"not-one-value", "unknown-escape", "line-end-in-text"}},
      {"level-mix-gap", {"no-mix"}},
      {"weight-not-a-number", {"macro-not-a-number"}},
      {"no-weapon-at-start", {"no-weapon-at-start"}},
      {"chat-quote", {"chat-text-ends-early"}},
      {"chat-backslash",
       {"unknown-escape", "line-end-in-text", "chat-text-ends-early"}},
      {"chat-control-character", {"line-end-in-text"}},
      {"chat-too-long", {"chat-line-too-long", "chat-line-crash"}},
      {"fun-name-empty", {"description-no-value"}},
      {"fun-name-unquoted", {"description-more-words"}},
      {"value-not-a-number", {"value-not-a-number"}},
      {"value-negative", {"leading-zero"}},
      {"chat-variable-unknown", {"chat-braces"}},
  };
  return ids;
}

bool IsToldByFiles(std::string_view id) {
  const Check* const check = FindCheck(id);
  return check != nullptr && check->is_told_by_files;
}

/// The files of a new package of the bot in a game.
BotFileSet AsWritten(const Bot& bot, const GameData& game) {
  BotFileSet set;
  for (const BotFileMember& row : kBotFileMembers) {
    const std::string name =
        GameTextFromPath(FileNameOf(row.file, bot)).value_or("");
    set.*row.member =
        GameFile{name, "bots/" + name, BytesOf(row.file, bot, {})};
  }
  for (const auto& [name, known] : game.known_bots) {
    set.names_taken.emplace(name, WinningDescription{ShownPlace(known), ""});
  }
  if (game.known_bots.empty()) {
    const BotList standard = BotList::Standard();
    for (const BotListEntry& known : standard.entries()) {
      set.names_taken.emplace(ToLower(known.Name), WinningDescription{});
    }
  }
  return set;
}

/// How grave the gravest of those is that meet the condition: "error"; empty
/// where there are none.
template <typename Condition>
std::string Gravest(const std::vector<Finding>& findings, Condition condition) {
  std::optional<Severity> gravest;
  for (const Finding& one : findings) {
    if (condition(one) && (!gravest || one.severity < *gravest)) {
      gravest = one.severity;
    }
  }
  return gravest ? std::string(SeverityWord(*gravest)) : std::string();
}

std::string Listed(const std::vector<Finding>& findings) {
  std::string list;
  for (const Finding& one : findings) {
    list += "\n  " + std::string(SeverityWord(one.severity)) + " " +
            std::string(one.id) + ": " + one.text;
  }
  return list;
}

// A bot in memory and the files that are written of it are the same bot to the
// game: what is told of the one in place of the other must be as grave. Also
// where a case is about something else, neither side may tell what the other
// one does not.
TEST(ToldByFiles, IsAsGraveInMemory) {
  std::set<std::string> seen;
  for (const BotCheckCase& row : BotCheckCases()) {
    for (const Edit* const edit : {&row.brings, &row.nearly}) {
      Bot bot = CleanBot();
      GameData game = SomeGame();
      (*edit)(bot, game);
      if (NameRefusal(bot.Name())) continue;  // There will be no files.
      const std::vector<Finding> in_memory = CheckBot(bot, &game);
      bot.Put(kFunNameField, FunNameForFile(bot.FunName()));
      BotFileSet set = AsWritten(bot, game);
      for (const bool is_game_known : {true, false}) {
        set.is_game_known = is_game_known;
        const std::vector<Finding> in_files = CheckFiles(set, StandInGameFile);
        SCOPED_TRACE(row.id + (edit == &row.nearly ? ", nearly" : "") +
                     (is_game_known ? "" : ", without a game") +
                     "\nin memory:" + Listed(in_memory) +
                     "\nin files:" + Listed(in_files));
        const bool is_tried = edit == &row.brings && IsToldByFiles(row.id);
        // The files have the value without its sign, and a fraction keeps it.
        const bool is_lost_in_them =
            row.id == "value-negative" && in_files.empty();
        if (is_tried && !is_lost_in_them) {
          const auto& ids = IdsInFiles().at(row.id);
          seen.insert(row.id);
          EXPECT_EQ(
              Gravest(in_memory,
                      [&](const Finding& one) { return one.id == row.id; }),
              Gravest(in_files, [&](const Finding& one) {
                return ids.contains(one.id);
              }));
        }
        if (is_lost_in_them) continue;
        EXPECT_EQ(Gravest(in_memory,
                          [](const Finding& one) {
                            return one.severity != Severity::kHint &&
                                   (IsToldByFiles(one.id) ||
                                    one.id == "model-unreadable");
                          }),
                  Gravest(in_files, [](const Finding& one) {
                    return one.severity != Severity::kHint;
                  }));
      }
    }
  }
  for (const Check& check : BotChecks()) {
    EXPECT_EQ(seen.contains(std::string(check.id)), check.is_told_by_files)
        << check.id << " is not held against the files";
  }
}

}  // namespace
}  // namespace fragsmith
