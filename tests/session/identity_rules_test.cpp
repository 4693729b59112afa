#include "session/identity_rules.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "support/files.h"
#include "tests/support/ids.h"
#include "tests/support/scripted_prompts.h"
#include "tests/support/set_parameter.h"

namespace fragsmith {
namespace {

using ::testing::ElementsAre;

TEST(IdentityChecks, StoreOnlyWhatPasses) {
  const std::string empty = "Selfawareness error!: Bot must have a name!";
  const std::string space =
      "Space error!: Bot name can't have any spaces. Use funname if you want "
      "to use spaces.";
  std::string file =
      "Name error!: Bot name can't have any of these characters:";
  for (const char letter : kForbiddenInFileNames) {
    file += std::string(" ") + letter;
  }
  const std::string number = "Error!: Value must be a number!";
  // clang-format off
  const struct {
    int field;
    std::string text;
    std::string stored;
    std::string message;  ///< Empty: the text passes.
  } cases[] = {
      {0, "Nix\xC4", "Nix\xC4", ""}, {0, "", "old", empty},
      {0, "my bot", "old", space}, {0, " /", "old", space},
      {0, "../x", "old", file}, {0, "a\\b", "old", file},
      {0, "..", "old", file}, {0, "a\tb", "old", file}, {2, "^1N", "^1N", ""},
      {2, "Big Nix", "\"Big Nix\"", ""}, {2, "\"A B\"", "\"A B\"", ""},
      {2, "\" x", "\"\" x\"", ""}, {2, "", "", ""}, {7, "1.5", "1.5", ""},
      {7, ".5", "0.5", ""}, {8, "1.", "1", ""}, {7, "1a", "3", number},
      {8, "", "3", number}, {9, "a \"b\"", "a \"b\"", ""}};
  // clang-format on
  for (const auto& row : cases) {
    Bot bot;
    Set(bot, Id(0), "old");
    Set(bot, Id(7), 3.0);
    Set(bot, Id(8), 3.0);
    ScriptedPrompts prompts;
    EXPECT_EQ(CheckBox(Id(row.field), row.text, bot, prompts),
              row.message.empty());
    EXPECT_EQ(bot.Text(Id(row.field)), row.stored);
    if (row.message.empty()) {
      EXPECT_TRUE(prompts.log.empty()) << row.text;
    } else {
      EXPECT_THAT(prompts.log, ElementsAre(row.message));
      EXPECT_EQ(prompts.messages.front().icon, MessageIcon::kExclamation);
    }
  }
}

TEST(IdentityChecks, StopAtTheFirstRefusal) {
  Bot bot;
  ScriptedPrompts prompts;
  const IdentityTexts texts = {{kNameField, "Nix"},
                               {kVersionMajorField, "x"},
                               {kVersionMinorField, "y"},
                               {kCommentField, "new"}};
  EXPECT_EQ(CheckAllIn(texts, bot, prompts), kVersionMajorField);
  EXPECT_THAT(prompts.log,
              ElementsAre("Error!: Value must be a number!",
                          "Error-or-or!: Errors in bot! Correct before "
                          "saving!"));
  EXPECT_EQ(bot.Name(), "Nix");
  EXPECT_EQ(bot.Text(Id(9)), "");
}

TEST(IdentityChecks, TakeBackWhatTheBoxesShow) {
  Bot bot;
  Set(bot, Id(2), "\"Big Nix\"");
  Set(bot, Id(8), 1.5);
  EXPECT_EQ(BoxTextsOf(bot).at(kFunNameField), "Big Nix");
  const Bot before = bot;
  ScriptedPrompts prompts;
  EXPECT_EQ(CheckAllIn(BoxTextsOf(bot), bot, prompts), std::nullopt);
  EXPECT_EQ(bot, before);
}

}  // namespace
}  // namespace fragsmith
