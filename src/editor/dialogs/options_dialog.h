#ifndef FRAGSMITH_EDITOR_DIALOGS_OPTIONS_DIALOG_H_
#define FRAGSMITH_EDITOR_DIALOGS_OPTIONS_DIALOG_H_

#include <QDialog>
#include <QLabel>
#include <QLineEdit>
#include <QTabWidget>
#include <QVBoxLayout>
#include <array>
#include <filesystem>
#include <functional>
#include <string>
#include <string_view>

#include "editor/dialogs/dialog_parts.h"
#include "editor/toolkit/folder_places.h"
#include "install/program/settings_file.h"
#include "support/prompts.h"

namespace fragsmith {

/// Edits copies of the settings, which the caller hands in and takes back by
/// their index in ProgramSettings. Values are bytes, as the settings have
/// them; a field that was not touched gives back the very bytes it was given.
class frmOptions : public QDialog {
  Q_OBJECT

 public:
  /// Where the folder browser begins in place of a folder.
  using FirstFolder =
      std::function<std::filesystem::path(const std::filesystem::path&)>;

  explicit frmOptions(Prompts& prompts, QWidget* parent = nullptr,
                      FirstFolder first_folder = {}, FolderPlaces places = {});

  /// Index 6, the counter, is only shown; others than 0 to 6 are ignored.
  void SetOptionValue(int index, std::string_view value);
  std::string GetOptionValue(int index) const;

  /// The folder browser's answer. The mode tells the field, by the numbers
  /// of OpenKind; others are ignored.
  void SetFolderFromBrowser(const std::filesystem::path& path, int mode);

  /// Makes ready to type another game folder in the place of the one that is
  /// there.
  void BeginAtGameFolder();

 private:
  struct Field {
    QLineEdit* box = nullptr;
    std::string value;  ///< As it was given.
    QString shown;      ///< The box's text for that.
  };

  QWidget* MakeDirectoriesPage();
  QWidget* MakeUserDataPage();
  QLineEdit* MakeField(int index);
  void OpenBrowser(int index);
  /// What the settings file, or a bot's files, will not hold of the texts.
  void ShowHints();

  Prompts& prompts_;
  FirstFolder first_folder_;
  FolderPlaces places_;  ///< On offer in the browser.
  std::array<Field, kEditableOptionCount> fields_;
  QLabel* counter_;
  QTabWidget* pages_;
  HintLine* hint_;
  HintLine* no_name_;  ///< What becomes of the author's data without a name.
};

}  // namespace fragsmith

#endif  // FRAGSMITH_EDITOR_DIALOGS_OPTIONS_DIALOG_H_
