#ifndef FRAGSMITH_EDITOR_DIALOGS_CHECK_DIALOG_H_
#define FRAGSMITH_EDITOR_DIALOGS_CHECK_DIALOG_H_

#include <QComboBox>
#include <QDialog>
#include <QTimer>
#include <filesystem>
#include <vector>

#include "checks/bot_location.h"
#include "checks/location_checks.h"
#include "editor/controls/dir_view.h"
#include "editor/controls/findings_view.h"
#include "editor/dialogs/dialog_parts.h"
#include "support/prompts.h"

namespace fragsmith {

/// Tells what the game will make of the bot of any file, folder or package,
/// as soon as that is chosen. Nothing is loaded.
class frmCheck : public QDialog {
  Q_OBJECT

 public:
  /// Begins in the folder. The game outlives the dialog; null where none is
  /// known.
  frmCheck(const std::filesystem::path& folder, const FolderPlaces& places,
           const InstalledGame* game, Prompts& prompts,
           QWidget* parent = nullptr);

  const std::filesystem::path& Folder() const { return browser_->Folder(); }

 private:
  QLayout* MakeResult();
  /// The bots of the chosen file, or else of the folder.
  void FindBots();
  void CheckSoon();
  void Check();

  const InstalledGame* game_;
  std::vector<BotLocation> bots_;
  QTimer timer_;
  DirView* browser_;
  QComboBox* bot_;
  FindingsView* found_;
  HintLine* verdict_;
};

}  // namespace fragsmith

#endif  // FRAGSMITH_EDITOR_DIALOGS_CHECK_DIALOG_H_
