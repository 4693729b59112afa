#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QAction>
#include <QCheckBox>
#include <QDragEnterEvent>
#include <QDropEvent>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMenu>
#include <QMimeData>
#include <QPushButton>
#include <QSlider>
#include <QTabWidget>
#include <QTest>
#include <QUrl>
#include <fstream>

#include "chat/chat_catalogue.h"
#include "editor/dialogs/find_dialog.h"
#include "editor/dialogs/open_dialog.h"
#include "editor/state/draft_keeper.h"
#include "editor/state/recent_bots.h"
#include "model/characteristic_catalogue.h"
#include "session/bot_document.h"
#include "session/presets.h"
#include "session/save_bot.h"
#include "support/files.h"
#include "tests/editor/window_fixture.h"
#include "tests/support/ids.h"
#include "tests/support/set_parameter.h"

namespace fragsmith {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::SizeIs;

/// What makes daily work with the window bearable.
class Habits : public WindowFixture {
 protected:
  void Press(const char* control, const char* slider, Qt::Key key,
             int times = 1) {
    auto* const found =
        Find<QWidget>(control)->findChild<QWidget*>(QLatin1String(slider));
    ASSERT_NE(found, nullptr);
    found->setFocus();
    for (int time = 0; time < times; ++time) QTest::keyClick(found, key);
  }

  QString TextOf(const char* action) {
    return Find<QAction>(action)->text().remove(u'&');
  }

  /// The names in the list of recent bots.
  QString Recent() {
    auto* const menu = Find<QMenu>("mnuRecent");
    emit menu->aboutToShow();
    QStringList names;
    for (const QAction* const action : menu->actions()) {
      names << action->text().section(u' ', 0, 0);
    }
    return names.join(u' ');
  }

  /// Saves a bot of that name into a folder of its own, and gives the
  /// characteristic file.
  std::filesystem::path SaveAs(const std::string& name, SaveOptions options) {
    Bot made = CreateZeroBot();
    made.Put(kNameField, name);
    std::filesystem::create_directory(folder_ / name);
    return SaveBot(made, folder_ / name, options, {}, prompts_).written.at(0);
  }
};

TEST_F(Habits, TakesBackEveryKindOfEditByItsName) {
  const std::string zeros = WriteBotDocument(bot());
  Press("tsBotPara_2", "sliValue_1", Qt::Key_Right, 3);
  EXPECT_EQ(TextOf("mnuUndo"), "Undo Attack skill, level 1");
  window_->current().EndStep();
  Press("tsBotPara_2", "sliValue_4", Qt::Key_Right);
  Press("osBotPara_44", "sliValue", Qt::Key_End);
  Find<QCheckBox>("chkArenalord")->click();
  Type("txtBotPara_0", "Other");
  Choose("mnuExtraChat");
  auto* const line = Find<QLineEdit>("txtChatLine");
  QTest::keyClicks(line, QStringLiteral("abc"));
  Choose("mnuCopyLevel_4_5");
  Choose("mnuNewAverage");
  EXPECT_THAT(prompts_.log, SizeIs(1));
  prompts_.confirmations = {true};
  Choose("mnuNewAverage");
  EXPECT_FALSE(is_changed());
  const std::string average = WriteBotDocument(bot());

  QStringList names;
  while (window_->current().steps().canUndo()) {
    names << TextOf("mnuUndo");
    Choose("mnuUndo");
    // The bot before New comes back with its unsaved work.
    EXPECT_TRUE(names.size() > 1 || is_changed());
  }
  // The linked levels went with the one that was moved, and three letters are
  // one edit. A level that is copied onto its like is none.
  EXPECT_EQ(
      names.join(u'/'),
      "Undo New bot, average/Undo Chat line/Undo Add extra chats/Undo Name/"
      "Undo Arenalord/Undo Gauntlet usage/Undo Attack skill, level 4/"
      "Undo Attack skill, level 1");
  EXPECT_EQ(WriteBotDocument(bot()), zeros);
  EXPECT_EQ(Find<QLineEdit>("txtBotPara_0")->text(), "Bot");
  // Nobody has worked on the bot that was there at the start.
  EXPECT_FALSE(is_changed());
  while (window_->current().steps().canRedo()) Choose("mnuRedo");
  EXPECT_EQ(WriteBotDocument(bot()), average);
  EXPECT_FALSE(is_changed());
}

TEST_F(Habits, IsUnchangedWhenUndoneBackToTheSavedBot) {
  EXPECT_FALSE(Find<QAction>("mnuUndo")->isEnabled());
  Press("osBotPara_54", "sliValue", Qt::Key_Right);
  EXPECT_TRUE(is_changed());
  Choose("mnuUndo");
  EXPECT_FALSE(is_changed());
  EXPECT_EQ(Find<QWidget>("osBotPara_54")
                ->findChild<QSlider*>(QStringLiteral("sliValue"))
                ->value(),
            0);

  // Text that is being typed goes first, and not into the bot.
  auto* const name = Find<QLineEdit>("txtBotPara_0");
  name->setFocus();
  QTest::keyClicks(name, QStringLiteral("xyz"));
  EXPECT_TRUE(is_changed());
  Choose("mnuUndo");
  EXPECT_EQ(name->text(), "Bot");
  EXPECT_FALSE(is_changed());
  EXPECT_TRUE(Find<QAction>("mnuRedo")->isEnabled());
}

TEST_F(Habits, MakesOneStepOfWhatIsDoneToOneThingAtATime) {
  Press("tsBotPara_2", "sliValue_1", Qt::Key_Right);
  Press("tsBotPara_3", "sliValue_1", Qt::Key_Right, 2);
  Press("tsBotPara_3", "sliValue_4", Qt::Key_Right, 2);
  Choose("mnuUndo");
  Choose("mnuRedo");
  Press("tsBotPara_3", "sliValue_4", Qt::Key_Right);
  auto* const line = Find<QLineEdit>("txtChatLine");
  QTest::keyClicks(line, QStringLiteral("ab"));
  Find<QListWidget>("lstChatGroups")->setCurrentRow(1);
  QTest::keyClicks(line, QStringLiteral("ab"));

  QStringList names;
  while (window_->current().steps().canUndo()) {
    names << TextOf("mnuUndo");
    Choose("mnuUndo");
  }
  EXPECT_EQ(names.join(u'/'),
            "Undo Chat line/Undo Chat line/Undo Aim skill, level 4/"
            "Undo Aim skill, level 4/Undo Aim skill, level 1/"
            "Undo Attack skill, level 1");
}

TEST_F(Habits, MakesNoStepOfWhatComesToNothing) {
  Press("tsBotPara_2", "sliValue_5", Qt::Key_Right, 2);
  EXPECT_TRUE(is_changed());
  Press("tsBotPara_2", "sliValue_5", Qt::Key_Left, 2);
  EXPECT_FALSE(is_changed());
  EXPECT_FALSE(Find<QAction>("mnuUndo")->isEnabled());
  EXPECT_FALSE(Find<QAction>("mnuRedo")->isEnabled());

  Press("osBotPara_44", "sliValue", Qt::Key_End);
  auto* const line = Find<QLineEdit>("txtChatLine");
  QTest::keyClicks(line, QStringLiteral("ab"));
  QTest::keyClick(line, Qt::Key_Backspace);
  QTest::keyClick(line, Qt::Key_Backspace);
  EXPECT_EQ(TextOf("mnuUndo"), "Undo Gauntlet usage");
}

TEST_F(Habits, LeavesTheUndoKeyToTheWindowInTheLineBox) {
  auto* const line = Find<QLineEdit>("txtChatLine");
  Find<QTabWidget>("tbsBotPara")->setCurrentIndex(7);
  line->setFocus();
  QTest::keyClicks(line, QStringLiteral("abc"));
  EXPECT_EQ(bot().ChatLine(TypeAt(0), ChatLineIndex(0)), "abc");
  QTest::keyClick(line, Qt::Key_Z, Qt::ControlModifier);
  EXPECT_EQ(line->text(), "");
  EXPECT_EQ(bot().ChatLine(TypeAt(0), ChatLineIndex(0)), "");
  QTest::keyClick(line, Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
  EXPECT_EQ(line->text(), "abc");
}

TEST_F(Habits, CopiesALevelAndPutsAValueBack) {
  Bot average = CreateAverageBot(SeededRandom(1));
  Set(average, Id(102), 0.25);
  Set(average, Id(130), std::string("fast"));
  window_->current().Replace(average, false, QStringLiteral("Load"));
  Choose("mnuCopyLevel_1_5");
  EXPECT_EQ(bot().Parameter(Id(502)), Value(0.25));
  EXPECT_EQ(bot().Parameter(Id(530)), Value(std::string("fast")));
  EXPECT_EQ(bot().Parameter(Id(402)), average.Parameter(Id(402)));
  Press("tsBotPara_2", "sliValue_5", Qt::Key_End);
  EXPECT_EQ(bot().Parameter(Id(502)), Value(1.0));
  Choose("mnuReset");
  EXPECT_EQ(bot().Parameter(Id(502)), average.Parameter(Id(502)));
}

TEST_F(Habits, SavesAgainToWhereTheBotIsAndNoticesOthersThere) {
  Type("txtBotPara_0", "Rookie");
  OnDialog<frmOpen>([](frmOpen& dialog) {
    dialog.findChild<QCheckBox*>(QStringLiteral("chkSaveStructure"))->click();
    dialog.accept();
  });
  Choose("mnuSaveAgain");
  const auto file = folder_ / "botfiles/bots/rookie_w.c";
  ASSERT_TRUE(IsFile(file));
  Press("osBotPara_44", "sliValue", Qt::Key_End);
  Choose("mnuSaveAgain");
  EXPECT_FALSE(is_changed());
  EXPECT_THAT(*ReadFile(file), HasSubstr("400"));
  EXPECT_THAT(prompts_.log, IsEmpty());

  std::ofstream(file, std::ios::app) << "// by hand\n";
  Press("osBotPara_44", "sliValue", Qt::Key_Home);
  Choose("mnuSaveAgain");
  EXPECT_THAT(prompts_.log.back(), HasSubstr("rookie_w.c' was changed since"));
  EXPECT_TRUE(is_changed());
  EXPECT_THAT(*ReadFile(file), HasSubstr("by hand"));
  prompts_.confirmations = {true};
  Choose("mnuSaveAgain");
  EXPECT_FALSE(is_changed());
  // Only what was edited here is written over.
  EXPECT_THAT(*ReadFile(file), testing::AllOf(HasSubstr("by hand"),
                                              testing::Not(HasSubstr("400"))));

  // A bot that was loaded from a folder goes back there.
  window_->OpenPath(folder_ / "botfiles/bots/rookie_c.c");
  std::filesystem::remove(file);
  prompts_.confirmations = {true};
  Choose("mnuSaveAgain");
  EXPECT_TRUE(IsFile(file));
}

TEST_F(Habits, CallsABotSavedWhenAllItsFilesAre) {
  Type("txtBotPara_0", "Rookie");
  const auto in_the_way = folder_.Write("rookie_t.c/in the way", "");
  const auto save = [this] {
    ChooseAndAnswer<frmOpen>("mnuSaveAgain",
                             [](frmOpen& dialog) { dialog.accept(); });
  };
  save();
  EXPECT_TRUE(IsFile(folder_ / "rookie_i.c"));
  EXPECT_FALSE(IsFile(folder_ / "rookie.bot"));
  EXPECT_THAT(prompts_.log, ElementsAre(HasSubstr("rookie_t.c")));
  EXPECT_TRUE(is_changed());
  EXPECT_EQ(Recent(), "(none)");
  // Nor is it a place to save to without a question.
  std::filesystem::remove_all(in_the_way.parent_path());
  save();
  EXPECT_TRUE(IsFile(folder_ / "rookie.bot"));
  EXPECT_THAT(prompts_.log, SizeIs(1));
  EXPECT_FALSE(is_changed());
  EXPECT_EQ(Recent(), "rookie");
}

TEST_F(Habits, LeavesWhatOthersChangedInAFileThatWasNotEditedHere) {
  const auto file = SaveAs("Rookie", {});
  window_->OpenPath(file);
  const std::string key = "CHARACTERISTIC_ATTACK_SKILL";
  std::string by_hand = *ReadFile(file);
  by_hand.replace(by_hand.find(key), key.size(), key + " 0.5 //");
  ASSERT_TRUE(SaveFile(file, by_hand));
  Type("txtBotPara_2", "Rookster");
  prompts_.log.clear();
  Choose("mnuSaveAgain");
  EXPECT_THAT(prompts_.log, ElementsAre(HasSubstr("nothing that it holds")));
  EXPECT_TRUE(is_changed());
  constexpr std::size_t kSaveTheRest = 1;
  prompts_.choices = {kSaveTheRest};
  Choose("mnuSaveAgain");
  EXPECT_EQ(*ReadFile(file), by_hand);
  EXPECT_THAT(*ReadFile(file.parent_path() / "rookie.bot"),
              HasSubstr("Rookster"));
}

TEST_F(Habits, NoticesWhatOthersChangeAfterALoad) {
  for (const bool uses_layout : {false, true}) {
    const auto file =
        SaveAs(uses_layout ? "Layout" : "Flat", {.uses_layout = uses_layout});
    auto weights = file;
    weights.replace_filename(uses_layout ? "layout_w.c" : "flat_w.c");
    window_->OpenPath(file);
    std::ofstream(weights, std::ios::app) << "// by hand\n";
    Press("osBotPara_44", "sliValue", Qt::Key_End);
    prompts_.log.clear();
    Choose("mnuSaveAgain");
    EXPECT_THAT(prompts_.log,
                ElementsAre(HasSubstr(
                    BytesFromPath(weights) +
                    "' was changed since the bot was read or saved")));
    EXPECT_TRUE(is_changed());
    EXPECT_THAT(*ReadFile(weights), HasSubstr("by hand"));

    // What is read anew is known, and so is what was written since.
    prompts_.confirmations = {true};
    window_->OpenPath(file);
    prompts_.log.clear();
    for (const Qt::Key key : {Qt::Key_End, Qt::Key_Home, Qt::Key_End}) {
      Press("osBotPara_44", "sliValue", key);
      Choose("mnuSaveAgain");
      EXPECT_THAT(prompts_.log, IsEmpty());
      EXPECT_FALSE(is_changed());
    }
  }
}

TEST_F(Habits, KnowsNoPlaceToSaveADraftTo) {
  Type("txtBotPara_0", "Lost");
  window_->findChild<DraftKeeper*>()->SaveNow();
  Open();
  const auto file = SaveAs("Rookie", {});
  window_->OpenPath(file);
  const std::string bytes = *ReadFile(file);
  Find<QPushButton>("cmdTakeDraft")->click();
  EXPECT_EQ(bot().Name(), "Lost");
  ChooseAndAnswer<frmOpen>("mnuSaveAgain", [](frmOpen& dialog) {
    EXPECT_EQ(dialog.windowTitle(), "Make botfiles for Lost");
    dialog.reject();
  });
  EXPECT_FALSE(IsFile(folder_ / "Rookie/lost_c.c"));
  EXPECT_EQ(*ReadFile(file), bytes);
  EXPECT_TRUE(is_changed());
}

TEST(RecentBots, AreFewWhateverTheFileHas) {
  QStringList texts(2, QStringLiteral("no bot"));
  for (int bot = 0; bot < 900; ++bot) {
    texts << QStringLiteral("/%1_c.c|").arg(bot);
  }
  const QStringList kept = RecentBots(texts).ToStrings();
  EXPECT_EQ(kept, texts.mid(2, 9));
  EXPECT_EQ(
      RecentBots({QStringLiteral("/a/x_c.c|"), QStringLiteral("/b/y.pk3|Y"),
                  QStringLiteral("/a/z_c.c|")})
          .Folders(),
      (std::vector<std::filesystem::path>{"/a", "/b"}));
}

TEST_F(Habits, OpensWhatIsDroppedAndRemembersIt) {
  SaveAs("Alpha", {.uses_layout = true});
  SaveAs("Beta", {.uses_layout = true});
  const auto drop = [this](const std::filesystem::path& path) {
    QMimeData data;
    data.setUrls(
        {QUrl::fromLocalFile(QString::fromStdString(BytesFromPath(path)))});
    QDragEnterEvent enter({}, Qt::CopyAction, &data, Qt::LeftButton,
                          Qt::NoModifier);
    QCoreApplication::sendEvent(window_.get(), &enter);
    EXPECT_TRUE(enter.isAccepted());
    QDropEvent dropped({}, Qt::CopyAction, &data, Qt::LeftButton,
                       Qt::NoModifier);
    QCoreApplication::sendEvent(window_.get(), &dropped);
    QCoreApplication::processEvents();
  };
  drop(folder_ / "Alpha");
  EXPECT_EQ(bot().Name(), "Alpha");
  drop(folder_ / "Beta/botfiles/bots/beta_c.c");
  EXPECT_EQ(bot().Name(), "Beta");
  drop(folder_ / "nothing");
  EXPECT_EQ(bot().Name(), "Beta");

  EXPECT_EQ(Recent(), "beta alpha");
  // A program that is killed has lost nothing.
  EXPECT_THAT(folder_.Read("fgs.window"),
              testing::AllOf(testing::HasSubstr("alpha_c.c"),
                             testing::HasSubstr("beta_c.c")));
  EXPECT_TRUE(window_->close());
  std::filesystem::remove_all(folder_ / "Beta");
  Open();
  EXPECT_EQ(Recent(), "alpha");
  Find<QMenu>("mnuRecent")->actions().front()->trigger();
  EXPECT_EQ(bot().Name(), "Alpha");
}

TEST_F(Habits, RemembersNineBots) {
  for (int number = 10; number <= 20; ++number) {
    window_->OpenPath(SaveAs("b" + std::to_string(number), {}));
  }
  constexpr const char* kLatest = "b20 b19 b18 b17 b16 b15 b14 b13 b12";
  EXPECT_EQ(Recent(), kLatest);
  EXPECT_TRUE(window_->close());
  Open();
  EXPECT_EQ(Recent(), kLatest);
}

TEST_F(Habits, FindsAParameterOrALineAndGoesThere) {
  window_->current().EditChats({}, [](Bot& bot) {
    bot.SetChatLine(TypeAt(27), ChatLineIndex(1),
                    "Where is my rocket launcher?");
  });
  const auto find = [this](const char* words) {
    OnDialog<frmFind>([words](frmFind& dialog) {
      auto* const box = dialog.findChild<QLineEdit*>(QStringLiteral("txtFind"));
      QTest::keyClicks(box, QLatin1String(words));
      QTest::keyClick(box, Qt::Key_Return);
      const auto* const hint =
          dialog.findChild<QLabel*>(QStringLiteral("lblHint"));
      EXPECT_EQ(hint->text().isEmpty(), !dialog.isVisible());
      if (dialog.isVisible()) dialog.reject();
    });
    Choose("mnuFind");
  };
  auto* const strip = Find<QTabWidget>("tbsBotPara");
  find("where rocket");
  EXPECT_EQ(strip->currentIndex(), 7);
  EXPECT_EQ(Find<QListWidget>("lstChatGroups")->currentRow(), 27);
  EXPECT_EQ(Find<QLineEdit>("txtChatLine")->text(),
            "Where is my rocket launcher?");
  find("firethrottle level 4");
  EXPECT_EQ(strip->currentIndex(), 0);
  ASSERT_NE(window_->focusWidget(), nullptr);
  EXPECT_EQ(window_->focusWidget()->accessibleName(), "Firing speed, level 4");
  find("no such thing at all");
  EXPECT_EQ(window_->focusWidget()->accessibleName(), "Firing speed, level 4");
}

}  // namespace
}  // namespace fragsmith
