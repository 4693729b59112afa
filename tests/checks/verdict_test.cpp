#include <gtest/gtest.h>

#include "tests/checks/engine_cases.h"

namespace fragsmith {
namespace {

// The verdicts in the table are those of a real game, see
// tests/real/verdicts.sh. Here its own files are ours.
TEST(Verdicts, AreThoseOfARealGame) {
  const std::vector<EngineCase> cases = ReadEngineCases(FRAGSMITH_ENGINE_CASES);
  ASSERT_GE(cases.size(), 120U);
  const IncludeLookup game =
      [](std::string_view path) -> std::optional<std::string> {
    return StandInGameFile(path);
  };
  for (const EngineCase& one : cases) {
    SCOPED_TRACE(one.part + ": " + one.title);
    std::map<std::string, std::string> files;
    ASSERT_TRUE(MakeEngineCase(one, "botx", files));
    const BotFileSet set = FileSetOf(files, "botx");
    // The free game's own default character has no chat that could be found.
    const std::string fallback = one.fallback;
    const IncludeLookup lookup =
        [&](std::string_view path) -> std::optional<std::string> {
      if (fallback == "game" && path == "bots/default_t.c") return "";
      return game(path);
    };
    EXPECT_EQ(VerdictLetters(set, fallback, lookup), one.verdicts);
  }
}

}  // namespace
}  // namespace fragsmith
