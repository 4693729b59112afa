#ifndef FRAGSMITH_EDITOR_FRM_MAIN_H_
#define FRAGSMITH_EDITOR_FRM_MAIN_H_

#include <QMainWindow>
#include <functional>
#include <map>
#include <memory>
#include <vector>

#include "editor/bot_checker.h"
#include "editor/bot_commands.h"
#include "editor/current_bot.h"
#include "editor/draft_keeper.h"
#include "editor/edit_commands.h"
#include "editor/findings_dock.h"
#include "editor/game_picture.h"
#include "editor/identity_panel.h"
#include "editor/model_list_commands.h"
#include "editor/model_selector.h"
#include "editor/notes_bar.h"
#include "editor/page_navigator.h"
#include "editor/page_strip.h"
#include "editor/pages/chat_page.h"
#include "editor/pages/parameter_page.h"
#include "editor/program_state.h"

namespace fragsmith {

/// The window that holds it all. It puts the pieces together and passes their
/// signals on; the work is done in them.
class frmMain : public QMainWindow {
  Q_OBJECT

 public:
  /// Reads settings and lists, fills the window and shows a bot of zeros. The
  /// state belongs to the caller and outlives the window.
  explicit frmMain(ProgramState& state);

  CurrentBot& current() { return current_; }

  /// Makes the pages out of sight and the list of findings and reads the game's
  /// lists, which takes some tenths of a second: done behind the first painting
  /// of the window, or earlier by this call.
  void FinishStart();

  /// Loads the bot that a path leads to: a characteristic file, a folder or a
  /// package.
  void OpenPath(const std::filesystem::path& path) {
    commands_->OpenPath(path);
  }

  /// Shows the current bot in all controls; asks about a model or skin that
  /// is in no list.
  void FillBotDataToForm();

 protected:
  void closeEvent(QCloseEvent* event) override;
  void paintEvent(QPaintEvent* event) override;
  void dragEnterEvent(QDragEnterEvent* event) override;
  void dropEvent(QDropEvent* event) override;

 private:
  void BuildPages();
  void BuildMenu();
  void Connect();
  void RestoreLook();
  void ShowTitle();
  /// After an edit that was made or taken back elsewhere than at its control.
  void ShowStep(const FindingPlace& place);
  void FillRecentBots();
  void BuildFindings();
  void ShowFindings();
  void ReadGame();
  void TryInGame();
  void Compare(const Bot& other, const QString& title);
  void OfferDraft();

  void ShowOptions();
  void CheckBaseq3();
  void MakeBotFiles();

  /// The callback of the dialog.
  void frmOption_SaveValues(const class frmOptions& dialog);

  ProgramState& state_;
  CurrentBot current_;
  IdentityPanel* identity_ = nullptr;
  ModelSelector* models_ = nullptr;
  NotesBar* notes_ = nullptr;
  PageStrip* tbsBotPara_ = nullptr;
  std::vector<ParameterPage*> pages_;
  ChatPage* chat_page_ = nullptr;
  std::unique_ptr<PageNavigator> navigator_;
  BotCommands* commands_ = nullptr;
  std::unique_ptr<ModelListCommands> model_list_;
  EditCommands* edits_ = nullptr;
  BotChecker* checker_ = nullptr;
  FindingsDock* findings_ = nullptr;
  GamePicture* picture_ = nullptr;
  bool has_started_ = false;
  DraftKeeper* draft_ = nullptr;
  std::map<QString, std::function<void()>> menu_;
};

}  // namespace fragsmith

#endif  // FRAGSMITH_EDITOR_FRM_MAIN_H_
