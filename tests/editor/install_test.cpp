#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QClipboard>
#include <QDialog>
#include <QGuiApplication>
#include <QStatusBar>

#include "editor/dialogs/try_dialog.h"
#include "install/packages/package.h"
#include "install/program/game_folder.h"
#include "session/save_bot.h"
#include "support/files.h"
#include "tests/editor/window_fixture.h"
#include "tests/support/ids.h"
#include "tests/support/package_maker.h"

namespace fragsmith {
namespace {

using ::testing::ContainsRegex;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;

class Install : public WindowFixture {
 protected:
  Install() {
    Choose("mnuNew_sniper");
    Type("txtBotPara_0", "Vixen");
    prompts_.log.clear();
  }

  void SetGame(const char* folder) {
    state_->settings.Q3Baseq3 = BytesFromPath(folder_ / folder);
  }

  std::string Status() {
    return window_->statusBar()->currentMessage().toStdString();
  }
};

TEST_F(Install, PutsThePackageIntoTheGamesOwnFolder) {
  folder_.Write("oa/baseoa/pak0.pk3", MakeZip({{"a", "b"}}));
  folder_.Write("oa/missionpack/notes.txt", "");
  SetGame("oa");
  prompts_.choices = {1};
  Choose("mnuInstall");
  Notes notes;
  const Result<std::vector<std::string>> entries =
      ListPackageEntries(folder_ / "oa/baseoa/bot-Vixen.pk3", notes);
  ASSERT_TRUE(entries);
  EXPECT_EQ(entries->size(), 5U);
  EXPECT_THAT(prompts_.log, ElementsAre(HasSubstr("/addbot Vixen 3")));
  EXPECT_EQ(QGuiApplication::clipboard()->text(), "/addbot Vixen 3");
  // It stands in the game, and in no file of its author's.
  EXPECT_TRUE(is_changed());
  EXPECT_THAT(ListFiles(folder_ / "oa/baseoa", ""),
              ElementsAre("bot-Vixen.pk3", "pak0.pk3"));
}

TEST_F(Install, AsksBeforeItReplacesAndThenSaysSo) {
  folder_.Write("game/baseq3/bot-Vixen.pk3", "old");
  SetGame("game");
  prompts_.confirmations = {false};
  Choose("mnuInstall");
  EXPECT_EQ(*ReadFile(folder_ / "game/baseq3/bot-Vixen.pk3"), "old");
  EXPECT_THAT(prompts_.log, ElementsAre(HasSubstr("want to replace it?")));
  EXPECT_EQ(Status(), "Nothing was installed.");

  prompts_.confirmations = {true};
  prompts_.choices = {2};
  bool is_tried = false;
  ChooseAndAnswer<frmTry>("mnuInstall", [&is_tried](frmTry& dialog) {
    is_tried = true;
    dialog.reject();
  });
  EXPECT_TRUE(is_tried);
  EXPECT_NE(*ReadFile(folder_ / "game/baseq3/bot-Vixen.pk3"), "old");
  EXPECT_THAT(prompts_.log.back(), HasSubstr("in the place of the one before"));
}

TEST_F(Install, SaysWhatIsMissing) {
  Choose("mnuInstall");
  EXPECT_THAT(prompts_.log, ElementsAre(HasSubstr("where the game is")));
  folder_.Write("nothing/readme.txt", "");
  SetGame("nothing");
  Choose("mnuInstall");
  EXPECT_THAT(prompts_.log.back(), HasSubstr("such as baseq3"));
  // A bot that the game refuses is written when that is wanted.
  folder_.Write("game/baseq3/pak0.pk3", MakeZip({{"a", "b"}}));
  SetGame("game");
  window_->current().EditChats({}, [](Bot& bot) {
    bot.SetChatLine(ChatTypeId{0}, ChatLineIndex(0), "a \"b\"");
  });
  Choose("mnuInstall");
  EXPECT_FALSE(IsFile(folder_ / "game/baseq3/bot-Vixen.pk3"));
  EXPECT_THAT(prompts_.log.back(), HasSubstr("will not take the bot as it is"));
  prompts_.confirmations = {true};
  Choose("mnuInstall");
  EXPECT_TRUE(IsFile(folder_ / "game/baseq3/bot-Vixen.pk3"));
}

TEST_F(Install, WritesTheMacrosThatTheGameAsksFor) {
  folder_.Write(
      "game/baseq3/pak0.pk3",
      MakeZip({{"botfiles/inv.h", "#define INVENTORY_SHOTGUN 5\n"},
               {"botfiles/fw_weap.c", "weight \"Shotgun\" { return SGW; }"}}));
  SetGame("game");
  window_->current().SetParameter(Id(45), Value(77.0));
  Choose("mnuInstall");
  const Result<std::string> packed = ReadPackageEntry(
      folder_ / "game/baseq3/bot-Vixen.pk3", "botfiles/bots/vixen_w.c");
  ASSERT_TRUE(packed);
  EXPECT_THAT(*packed, ContainsRegex("#define SGW\t+77"));
  EXPECT_THAT(prompts_.log.back(), HasSubstr("weight code of its own"));
}

TEST_F(Install, KeepsTheFilesOfAnotherAuthor) {
  folder_.Write("game/baseq3/pak0.pk3", MakeZip({{"a", "b"}}));
  SetGame("game");
  const std::string weights =
      "#include \"inv.h\"\n// by hand\n#define W_RAILGUN\t\t\t\t7\n";
  Bot made = bot();
  made.Put(kNameField, "Hand");
  ASSERT_FALSE(
      SaveBot(made, folder_.path(), {.uses_layout = true}, {}, prompts_).error);
  folder_.Write("botfiles/bots/hand_w.c", weights);
  window_->current().SetChanged(false);
  window_->OpenPath(folder_ / "botfiles/bots/hand_c.c");
  prompts_.confirmations = {true};
  Choose("mnuInstall");
  const Result<std::string> packed = ReadPackageEntry(
      folder_ / "game/baseq3/bot-Hand.pk3", "botfiles/bots/hand_w.c");
  ASSERT_TRUE(packed);
  EXPECT_EQ(*packed, weights);
}

}  // namespace
}  // namespace fragsmith
