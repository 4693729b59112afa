#ifndef FRAGSMITH_EDITOR_FRM_MAIN_H_
#define FRAGSMITH_EDITOR_FRM_MAIN_H_

#include <QMainWindow>
#include <functional>
#include <map>
#include <memory>
#include <vector>

#include "editor/commands/bot_commands.h"
#include "editor/commands/edit_commands.h"
#include "editor/commands/game_commands.h"
#include "editor/commands/help_commands.h"
#include "editor/commands/library_commands.h"
#include "editor/commands/model_list_commands.h"
#include "editor/pages/chat_page.h"
#include "editor/pages/page_navigator.h"
#include "editor/pages/page_strip.h"
#include "editor/pages/parameter_page.h"
#include "editor/panels/draft_bar.h"
#include "editor/panels/findings_dock.h"
#include "editor/panels/identity_panel.h"
#include "editor/panels/model_selector.h"
#include "editor/panels/notes_bar.h"
#include "editor/panels/typed_text.h"
#include "editor/panels/welcome_page.h"
#include "editor/state/bot_checker.h"
#include "editor/state/current_bot.h"
#include "editor/state/draft_keeper.h"
#include "editor/state/program_state.h"

namespace fragsmith {

class WelcomeCommands;
class frmMatch;

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
  void OpenPath(const std::filesystem::path& path);

  /// Puts what is not saved where the next start finds it.
  void KeepDraft() { draft_->SaveNow(); }

  /// Shows the current bot in all controls; asks about a model or skin that
  /// is in no list.
  void FillBotDataToForm();

 protected:
  void closeEvent(QCloseEvent* event) override;
  void paintEvent(QPaintEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void dragEnterEvent(QDragEnterEvent* event) override;
  void dropEvent(QDropEvent* event) override;

 private:
  void BuildPages();
  /// What each item does.
  void NameActions();
  void BuildMenu();
  void Connect();
  void RestoreLook();
  /// The window with its frame stays within the screen's free area.
  void FitScreen();
  void OfferValuesAsGame();
  void ShowNotes();
  /// More of them, beside those of the load, which stay in sight.
  void AddNotes(const Notes& more);
  void Say(const QString& text);
  void ShowTitle();
  /// After an edit that was made or taken back elsewhere than at its control.
  void ShowStep(const BotPlace& place);
  void BuildFindings();
  void PlaceFindings();
  void ShowFindings();
  void ReadGame();
  void InstallIntoGame();
  void Compare(const Bot& other, const QString& title);
  void OfferDraft();
  void BuildWelcome();
  void ShowWelcome();

  void ShowOptions();
  void ShowMatches();
  void CheckBaseq3();
  void DropGoneAddOns();
  void KeepState();
  void SaveWindow();
  void MakeBotFiles();

  /// The callback of the dialog.
  void frmOption_SaveValues(const class frmOptions& dialog);
  /// What to do where no game is in the folder that was named. True when the
  /// user wants to name another one.
  bool WantsOtherGame(const std::string& before);

  ProgramState& state_;
  CurrentBot current_;
  IdentityPanel* identity_ = nullptr;
  ModelSelector* models_ = nullptr;
  DraftBar* draft_bar_ = nullptr;
  NotesBar* notes_ = nullptr;
  QMainWindow* work_ = nullptr;  ///< The pages and the findings beside them.
  PageStrip* tbsBotPara_ = nullptr;
  std::vector<ParameterPage*> pages_;
  ChatPage* chat_page_ = nullptr;
  std::unique_ptr<PageNavigator> navigator_;
  BotCommands* commands_ = nullptr;
  std::unique_ptr<ModelListCommands> model_list_;
  TypedText* typed_text_ = nullptr;  ///< Stored before any command.
  EditCommands* edits_ = nullptr;
  BotChecker* checker_ = nullptr;
  GameCommands* game_ = nullptr;
  FindingsDock* findings_ = nullptr;
  WelcomePage* welcome_ = nullptr;
  WelcomeCommands* welcoming_ = nullptr;
  bool has_started_ = false;
  bool has_told_state_ = false;
  DraftKeeper* draft_ = nullptr;
  HelpCommands* help_ = nullptr;
  LibraryCommands* library_ = nullptr;
  frmMatch* matches_ = nullptr;  ///< Made when it is first asked for.
  std::map<QString, std::function<void()>> menu_;
  QStringList kept_recent_;  ///< As fgs.window has them.
};

}  // namespace fragsmith

#endif  // FRAGSMITH_EDITOR_FRM_MAIN_H_
