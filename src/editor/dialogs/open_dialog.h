#ifndef FRAGSMITH_EDITOR_DIALOGS_OPEN_DIALOG_H_
#define FRAGSMITH_EDITOR_DIALOGS_OPEN_DIALOG_H_

#include <QCheckBox>
#include <QDialog>
#include <QLayout>
#include <QPushButton>
#include <QString>
#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <optional>

#include "editor/controls/dir_view.h"
#include "editor/dialogs/bot_list_box.h"
#include "editor/toolkit/folder_places.h"
#include "install/program/bot_list.h"
#include "support/prompts.h"

namespace fragsmith {

/// What the dialog is opened for. The numbers are those of the load and save
/// commands, then those of the folders in the options.
enum class OpenKind : std::uint8_t {
  kLoadBot = 0,
  kCharacteristics = 1,
  kChat = 2,
  kItemWeights = 3,
  kWeaponWeights = 4,
  kSave = 5,
  kGameFolder = 6,
  kUnzipFolder = 7,
  kWorkFolder = 8,
};

/// The options of loading and saving; kept by the caller for the next time.
struct OpenOptions {
  /// The description is looked for in the scripts folder of the game's layout.
  bool loads_with_layout = false;
  bool loads_description = true;
  bool saves_with_layout = false;
  bool makes_package = false;
  bool keeps_files = true;
  bool writes_game_macros = false;

  bool operator==(const OpenOptions&) const = default;
};

struct OpenRequest {
  OpenKind kind = OpenKind::kLoadBot;
  std::filesystem::path folder;  ///< Where the browser begins.
  OpenOptions options;
  FolderPlaces places;
  /// Not owned, read while the dialog is made; not needed for a folder.
  const BotList* bots = nullptr;
  QString bot_name;  ///< For the title of kSave.
  /// Options of kSave that only some bots have: what their authors wrote is
  /// kept, and the game's own macros are written.
  bool offers_files = false;
  bool offers_macros = false;
};

/// What was chosen: to load, a file or a bot of the list; else the folder.
struct OpenChoice {
  std::filesystem::path folder;
  std::optional<std::filesystem::path> file;
  std::optional<std::size_t> bot_of_list;
  OpenOptions options;
};

/// Chooses what to load, where to save, or a folder. However it is closed,
/// `finished` is emitted once: the owner lets go of it there.
class frmOpen : public QDialog {
  Q_OBJECT

 public:
  frmOpen(const OpenRequest& request, Prompts& prompts,
          QWidget* parent = nullptr);

  OpenChoice Choice() const;

  void accept() override;

 private:
  QWidget* MakeBotList(const BotList* bots);
  QLayout* MakeOptions(const OpenRequest& request);
  QPushButton* MakeNewFolderButton();
  void FocusFirst();
  /// A path that was typed and not entered yet is meant as well. False, told,
  /// when there is no such folder.
  bool EnterTypedPath();

  bool IsLoad() const { return kind_ < OpenKind::kSave; }
  bool IsFolderOnly() const { return kind_ > OpenKind::kSave; }

  Prompts& prompts_;
  const OpenKind kind_;
  const OpenOptions options_;
  DirView* browser_;
  BotListBox* bots_ = nullptr;
  QCheckBox* loads_with_layout_ = nullptr;
  QCheckBox* loads_description_ = nullptr;
  QCheckBox* saves_with_layout_ = nullptr;
  QCheckBox* makes_package_ = nullptr;
  QCheckBox* keeps_files_ = nullptr;  ///< Null when not on offer.
  QCheckBox* game_macros_ = nullptr;  ///< The same.
};

}  // namespace fragsmith

#endif  // FRAGSMITH_EDITOR_DIALOGS_OPEN_DIALOG_H_
