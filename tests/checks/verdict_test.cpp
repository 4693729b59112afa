#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <string>
#include <string_view>
#include <vector>

#include "tests/checks/engine_cases.h"
#include "tests/support/test_folder.h"

namespace fragsmith {
namespace {

/// The bots of the game's own list as far as cases take their names.
constexpr const char* kBotsOfGame = "{\nname Sarge\naifile bots/sarge_c.c\n}\n";

/// What a real game has and a case asks for; otherwise its files are ours.
std::optional<std::string> OfGame(std::string_view path,
                                  const std::string& fallback) {
  // The free game's own default character has no chat that could be found.
  if (fallback == "game" && path == "bots/default_t.c") return "";
  const std::string owner = BotOfPath(path);
  if (owner != "sarge") return StandInGameFile(path);
  return ReplaceAll(GoodBot().at(std::string(1, path[path.size() - 3])), "botx",
                    owner);
}

const Finding* FirstError(const std::vector<Finding>& findings) {
  const auto found = std::find_if(
      findings.begin(), findings.end(),
      [](const Finding& one) { return one.severity == Severity::kError; });
  return found == findings.end() ? nullptr : &*found;
}

/// "c:6" of "c:6: expected integer ...", with 0 for no line; empty where the
/// game names no file of the bot.
std::string FileOfMessage(std::string_view message, int& line) {
  const std::size_t colon = message.find(':');
  if (colon == std::string_view::npos || colon == 0) return {};
  line = std::atoi(std::string(message.substr(colon + 1)).c_str());
  if (line == 0) return {};
  return std::string(message.substr(0, colon));
}

// The verdicts in the table are those of a real game, see
// tests/real/verdicts.sh. Here its own files are ours.
//
// Where the game names a line, our first finding is as good or better: it is in
// the same file at that line or above it (the fault comes before the game
// stumbles), or in the file that includes or names the one that the game
// stumbles in. A bot that the game takes has no error but of its weapons and of
// what is mixed, which the game does not look at.
TEST(Verdicts, AreThoseOfARealGame) {
  const std::vector<EngineCase> cases = ReadEngineCases(FRAGSMITH_ENGINE_CASES);
  ASSERT_GE(cases.size(), 600U);
  // Where each takes long, some of them do.
  const char* const sampled = std::getenv("FRAGSMITH_EVERY_NTH_CASE");
  const std::size_t step = sampled == nullptr ? 1 : std::stoul(sampled);
  ASSERT_GT(step, 0U);
  const TestFolder folder;
  for (std::size_t number = 0; number < cases.size(); number += step) {
    const EngineCase& one = cases[number];
    SCOPED_TRACE(one.part + ": " + one.title + " (" + one.fallback + ")");
#ifdef _WIN32
    // The server that was asked counts capitals in a folder, as the titles of
    // such cases say; Windows does not.
    if (Contains(one.title, "capital") && !one.Is("pk3")) continue;
#endif
    std::map<std::string, std::string> files;
    ASSERT_TRUE(MakeEngineCase(one, "botx", files));
    const std::filesystem::path home = folder / std::to_string(number);
    PutEngineCase(one, "botx", files, home);
    const CheckedCase checked = OpenEngineCase(
        one, "botx", home,
        [&](std::string_view path) { return OfGame(path, one.Fallback()); },
        kBotsOfGame);
    EXPECT_EQ(VerdictLetters(checked.set, checked.look_up), one.verdicts);

    const std::vector<Finding> findings =
        CheckFiles(checked.set, checked.look_up);
    const Finding* error = FirstError(findings);
    const bool is_bad = one.verdicts.find_first_of("DR") != std::string::npos;
    if (!is_bad) continue;
    EXPECT_NE(error, nullptr);
    if (error == nullptr) continue;
    int line = 0;
    const std::string part = FileOfMessage(one.message, line);
    const auto* place = std::get_if<FilePlace>(&error->place);
    ASSERT_NE(place, nullptr);
    // The game's first message may be a warning, and so may ours.
    for (const Finding& other : findings) {
      const auto* const at = std::get_if<FilePlace>(&other.place);
      if (other.severity == Severity::kWarning && at != nullptr &&
          at->file == place->file && at->line > 0 && at->line < place->line) {
        place = at;
      }
    }
    const std::string path = PathOfPart(part, "botx");
    if (part.empty() || !files.contains(part) || !place->file.ends_with(path)) {
      continue;
    }
    EXPECT_LE(place->line, line) << one.message << '\n' << error->text;
    EXPECT_GT(place->line, 0) << one.message << '\n' << error->text;
  }
}

}  // namespace
}  // namespace fragsmith
