#ifndef FRAGSMITH_EDITOR_CONTROLS_DIR_VIEW_H_
#define FRAGSMITH_EDITOR_CONTROLS_DIR_VIEW_H_

#include <QString>
#include <QStringList>
#include <QWidget>
#include <filesystem>
#include <optional>
#include <string>
#include <vector>

#include "editor/controls/places_bar.h"
#include "editor/toolkit/folder_places.h"
#include "support/prompts.h"

class QComboBox;
class QLabel;
class QLineEdit;
class QListWidget;

namespace fragsmith {

/// The folder browser of the dialogs: places to go to, the drives (`drvDrive`,
/// where there are several), the path
/// (`txtFolder`, where another one or a file can be typed), the folders in it
/// (`dirFolder`) and those of its files that a filter lets through
/// (`filFile`). A folder is entered by double click or Enter; Backspace and
/// Alt+Up lead back to the one above.
class DirView : public QWidget {
  Q_OBJECT

 public:
  explicit DirView(Prompts& prompts, QWidget* parent = nullptr);

  /// Files whose names end in the suffix, case ignored ("_c.c"), are listed.
  void SetFilter(const QString& suffix);
  /// The same for any of the suffixes, which the caption calls by the words.
  void SetFilters(const QStringList& suffixes, const QString& words);

  /// Shows a folder, or the nearest one above it that exists; an empty path is
  /// the current folder. The files and folders are read anew. Before the first
  /// call nothing is shown.
  void SetFolder(const std::filesystem::path& folder);
  const std::filesystem::path& Folder() const { return folder_; }

  /// The file that is marked in the list.
  std::optional<std::filesystem::path> ChosenFile() const;
  /// Takes the mark away.
  void ClearChoice();
  /// Marks the file that is listed alone.
  void ChooseOnlyFile();
  /// Goes where a path leads that was typed and not entered yet.
  void TakeTypedPath();

  /// Without files the view is there to choose a folder.
  void SetFilesVisible(bool are_visible);

  void SetPlaces(const FolderPlaces& places) { places_->SetPlaces(places); }

  /// The drives to choose from: the mounted volumes unless others are given.
  void SetDrives(std::vector<std::filesystem::path> drives);

 signals:
  /// Another folder is shown, or the same anew.
  void FolderShown();
  /// It is shown since its path was typed.
  void FolderTyped();
  /// A file has been marked.
  void FileChosen();
  /// A file has been double-clicked, or Enter pressed on it: it is chosen and
  /// meant.
  void FileActivated();

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void BuildLayout();
  void ChooseDrive(int index);
  void EnterFolderAt(int row);
  void EnterTypedPath();
  /// False where the file is none that is listed.
  bool ChooseTypedFile(const std::filesystem::path& file);
  void GoUp();
  void ActivateFile();
  void ListFolders();
  void ListFiles();
  void ShowDrive();

  Prompts& prompts_;
  PlacesBar* places_;
  QLabel* drives_caption_;
  QComboBox* drives_box_;
  QLineEdit* path_box_;
  QLabel* folders_caption_;
  QListWidget* folders_list_;
  QWidget* files_side_;
  QLabel* files_caption_;
  QListWidget* files_list_;

  std::vector<std::string> suffixes_ = {std::string()};
  QString files_words_ = QStringLiteral("*");
  std::filesystem::path folder_;
  // What stands in the rows: names that are not Unicode cannot be had back
  // from the texts.
  std::vector<std::filesystem::path> drives_;
  std::vector<std::filesystem::path> folders_;
  std::vector<std::filesystem::path> files_;
};

}  // namespace fragsmith

#endif  // FRAGSMITH_EDITOR_CONTROLS_DIR_VIEW_H_
