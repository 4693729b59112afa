#ifndef FRAGSMITH_EDITOR_FRM_MAIN_H_
#define FRAGSMITH_EDITOR_FRM_MAIN_H_

#include <QMainWindow>
#include <functional>
#include <map>
#include <memory>
#include <vector>

#include "editor/bot_commands.h"
#include "editor/current_bot.h"
#include "editor/draft_keeper.h"
#include "editor/identity_panel.h"
#include "editor/model_selector.h"
#include "editor/notes_bar.h"
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

  /// Loads the bot of a characteristic file, with its description.
  void OpenFile(const std::filesystem::path& path) {
    commands_->OpenFile(path);
  }

  /// Shows the current bot in all controls; asks about a model or skin that
  /// is in no list.
  void FillBotDataToForm();

 protected:
  void closeEvent(QCloseEvent* event) override;

 private:
  void BuildPages();
  void BuildMenu();
  void Connect();
  void RestoreLook();
  void ShowTitle();

  void ShowOptions();
  void CheckBaseq3();
  void AddModel();
  void AddSkin();
  void RemoveModel();
  void RemoveSkin();
  void MakeBotFiles();

  /// The callbacks of the dialogs.
  void frmOption_SaveValues(const class frmOptions& dialog);
  void frmModel_GiveName(const class frmModelDialog& dialog);

  ProgramState& state_;
  CurrentBot current_;
  IdentityPanel* identity_ = nullptr;
  ModelSelector* models_ = nullptr;
  NotesBar* notes_ = nullptr;
  PageStrip* tbsBotPara_ = nullptr;
  std::vector<ParameterPage*> pages_;
  ChatPage* chat_page_ = nullptr;
  BotCommands* commands_ = nullptr;
  DraftKeeper* draft_ = nullptr;
  std::map<QString, std::function<void()>> menu_;
};

}  // namespace fragsmith

#endif  // FRAGSMITH_EDITOR_FRM_MAIN_H_
