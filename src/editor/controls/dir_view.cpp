#include "editor/controls/dir_view.h"

#include <QComboBox>
#include <QDir>
#include <QGridLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QStorageInfo>
#include <QStyle>
#include <QVBoxLayout>
#include <algorithm>
#include <array>
#include <iterator>
#include <system_error>
#include <utility>

#include "editor/toolkit/shown_path.h"
#include "editor/toolkit/wheel_guard.h"
#include "support/files.h"
#include "support/text.h"

namespace fragsmith {
namespace fs = std::filesystem;
namespace {

bool IsWithin(const fs::path& folder, const fs::path& drive) {
  const fs::path rest = folder.lexically_relative(drive);
  return !rest.empty() && *rest.begin() != "..";
}

/// Where drives have no letters, most volumes are parts of the one tree; the
/// others are mounted in these folders, some of them in one for the user.
bool IsDrive([[maybe_unused]] const fs::path& root) {
#ifdef Q_OS_WIN
  return true;
#else
  constexpr std::ptrdiff_t kMaxParts = 2;
  constexpr std::array kFolders = {"/media", "/mnt", "/run/media", "/Volumes"};
  const auto holds = [&root](const char* folder) {
    const fs::path rest = root.lexically_relative(folder);
    return IsWithin(root, folder) &&
           std::distance(rest.begin(), rest.end()) <= kMaxParts;
  };
  return !root.has_relative_path() ||
         std::any_of(kFolders.begin(), kFolders.end(), holds);
#endif
}

std::vector<fs::path> MountedVolumes() {
  std::vector<fs::path> volumes;
  for (const QStorageInfo& volume : QStorageInfo::mountedVolumes()) {
    const fs::path root = PathFromBytes(volume.rootPath().toStdString());
    // A single file can be a mount point too. A drive without a disk in it
    // is listed: choosing it tells.
    if (!IsFile(root) && IsDrive(root)) volumes.push_back(root);
  }
  std::sort(volumes.begin(), volumes.end());
  volumes.erase(std::unique(volumes.begin(), volumes.end()), volumes.end());
  return volumes;
}

bool CanRead(const fs::path& folder) {
  std::error_code reason;
  const fs::directory_iterator entry(folder, reason);
  return !reason;
}

/// The folders in a folder, sorted ignoring case.
std::vector<fs::path> FoldersIn(const fs::path& folder) {
  std::vector<std::pair<QString, fs::path>> sorted;
  std::error_code reason;
  for (fs::directory_iterator entry(folder, reason), end;
       !reason && entry != end; entry.increment(reason)) {
    std::error_code ignored;
    if (!entry->is_directory(ignored)) continue;
    sorted.emplace_back(ShownPath(entry->path().filename()).toCaseFolded(),
                        entry->path());
  }
  std::sort(sorted.begin(), sorted.end());
  std::vector<fs::path> folders;
  folders.reserve(sorted.size());
  for (auto& [key, path] : sorted) folders.push_back(std::move(path));
  return folders;
}

/// The folder itself, or the nearest one above it that exists.
fs::path NearestFolder(const fs::path& wanted) {
  fs::path folder = WholePath(wanted);
  if (!folder.has_filename() && folder.has_relative_path()) {
    folder = folder.parent_path();  // "a/b/" is "a/b".
  }
  while (!IsFolder(folder) && folder.has_relative_path()) {
    folder = folder.parent_path();
  }
  return folder;
}

}  // namespace

DirView::DirView(Prompts& prompts, QWidget* parent)
    : QWidget(parent),
      prompts_(prompts),
      places_(new PlacesBar(this)),
      drives_caption_(new QLabel(tr("&Drive:"), this)),
      drives_box_(new QComboBox(this)),
      path_box_(new QLineEdit(this)),
      folders_caption_(new QLabel(this)),
      folders_list_(new QListWidget(this)),
      files_side_(new QWidget(this)),
      files_caption_(new QLabel(files_side_)),
      files_list_(new QListWidget(files_side_)) {
  IgnoreWheelWithoutFocus(*drives_box_);
  drives_box_->setObjectName(QStringLiteral("drvDrive"));
  drives_box_->setAccessibleName(tr("Drive"));
  path_box_->setObjectName(QStringLiteral("txtFolder"));
  path_box_->setAccessibleName(tr("Path"));
  folders_list_->setObjectName(QStringLiteral("dirFolder"));
  folders_list_->setAccessibleName(tr("Folders"));
  files_list_->setObjectName(QStringLiteral("filFile"));
  files_list_->setAccessibleName(tr("Files"));
  BuildLayout();

  connect(places_, &PlacesBar::Chosen, this, &DirView::SetFolder);
  connect(drives_box_, &QComboBox::activated, this, &DirView::ChooseDrive);
  connect(path_box_, &QLineEdit::editingFinished, this,
          &DirView::TakeTypedPath);
  connect(folders_list_, &QListWidget::activated, this,
          [this](const QModelIndex& index) { EnterFolderAt(index.row()); });
  connect(files_list_, &QListWidget::activated, this, &DirView::ActivateFile);
  connect(files_list_, &QListWidget::itemSelectionChanged, this, [this] {
    if (ChosenFile()) emit FileChosen();
  });
  for (QWidget* child :
       {static_cast<QWidget*>(path_box_), static_cast<QWidget*>(folders_list_),
        static_cast<QWidget*>(files_list_)}) {
    child->installEventFilter(this);
  }
  SetDrives(MountedVolumes());
}

void DirView::BuildLayout() {
  drives_box_->setSizeAdjustPolicy(
      QComboBox::AdjustToMinimumContentsLengthWithIcon);
  drives_box_->setMinimumContentsLength(12);
  drives_caption_->setBuddy(drives_box_);
  auto* const path_caption = new QLabel(tr("&Path:"), this);
  path_caption->setBuddy(path_box_);
  folders_caption_->setBuddy(folders_list_);
  files_caption_->setBuddy(files_list_);
  folders_list_->setUniformItemSizes(true);
  files_list_->setUniformItemSizes(true);

  auto* const files = new QVBoxLayout(files_side_);
  files->setContentsMargins(0, 0, 0, 0);
  files->addWidget(files_caption_);
  files->addWidget(files_list_);
  auto* const folders = new QVBoxLayout;
  folders->addWidget(folders_caption_);
  folders->addWidget(folders_list_);
  auto* const lists = new QHBoxLayout;
  lists->addLayout(folders, 1);
  lists->addWidget(files_side_, 1);

  auto* const grid = new QGridLayout(this);
  grid->setContentsMargins(0, 0, 0, 0);
  grid->addWidget(places_, 0, 0, 1, 2);
  grid->addWidget(drives_caption_, 1, 0);
  grid->addWidget(drives_box_, 1, 1);
  grid->addWidget(path_caption, 2, 0);
  grid->addWidget(path_box_, 2, 1);
  grid->addLayout(lists, 3, 0, 1, 2);
  grid->setColumnStretch(1, 1);
  grid->setRowStretch(3, 1);
}

void DirView::SetFilter(const QString& suffix) {
  SetFilters({suffix}, u'*' + suffix);
}

void DirView::SetFilters(const QStringList& suffixes, const QString& words) {
  suffixes_.clear();
  for (const QString& suffix : suffixes) {
    suffixes_.push_back(suffix.toStdString());
  }
  files_words_ = words;
  // Before the first folder there is nothing to list.
  if (!folder_.empty()) ListFiles();
}

void DirView::SetFolder(const fs::path& folder) {
  const fs::path left = std::exchange(folder_, NearestFolder(folder));
  path_box_->setText(ShownPath(folder_));
  ListFolders();
  // Back up again, the folder that was left is the place to go on from.
  const auto known = std::find(folders_.begin(), folders_.end(), left);
  folders_list_->setCurrentRow(
      known == folders_.end()
          ? 0
          : static_cast<int>(std::distance(folders_.begin(), known)));
  ListFiles();
  ShowDrive();
  emit FolderShown();
}

std::optional<fs::path> DirView::ChosenFile() const {
  const int row = files_list_->currentRow();
  if (row < 0 || !files_list_->item(row)->isSelected()) return std::nullopt;
  return folder_ / files_[static_cast<std::size_t>(row)];
}

void DirView::ClearChoice() { files_list_->clearSelection(); }

void DirView::ChooseOnlyFile() {
  if (files_.size() == 1) files_list_->setCurrentRow(0);
}

void DirView::TakeTypedPath() {
  if (path_box_->isModified()) EnterTypedPath();
}

void DirView::SetFilesVisible(bool are_visible) {
  files_side_->setVisible(are_visible);
}

void DirView::SetDrives(std::vector<fs::path> drives) {
  drives_ = std::move(drives);
  drives_box_->clear();
  for (const fs::path& drive : drives_) {
    drives_box_->addItem(style()->standardIcon(QStyle::SP_DriveHDIcon),
                         ShownPath(drive));
  }
  const bool is_choice = drives_.size() > 1;
  drives_caption_->setVisible(is_choice);
  drives_box_->setVisible(is_choice);
  ShowDrive();
}

bool DirView::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() != QEvent::KeyPress) {
    return QWidget::eventFilter(watched, event);
  }
  const auto* const key = static_cast<QKeyEvent*>(event);
  // Taken here, Enter does not go on to the dialog's OK button.
  const bool is_enter =
      key->key() == Qt::Key_Return || key->key() == Qt::Key_Enter;
  const bool leads_up =
      key->key() == Qt::Key_Backspace ||
      (key->key() == Qt::Key_Up && key->modifiers() == Qt::AltModifier);
  if (is_enter && watched == path_box_) {
    EnterTypedPath();
  } else if (is_enter && watched == folders_list_) {
    EnterFolderAt(folders_list_->currentRow());
  } else if (is_enter && files_list_->currentRow() >= 0 &&
             watched == files_list_) {
    ActivateFile();
  } else if (leads_up && watched != path_box_) {
    GoUp();
  } else {
    return QWidget::eventFilter(watched, event);
  }
  return true;
}

void DirView::ChooseDrive(int index) {
  const fs::path drive = drives_[static_cast<std::size_t>(index)];
  if (CanRead(drive)) {
    SetFolder(drive);
    return;
  }
  prompts_.Show({.title = "Disk error",
                 .text = "Can't access drive " + ShownPath(drive).toStdString(),
                 .icon = MessageIcon::kInformation});
  ShowDrive();
}

void DirView::EnterFolderAt(int row) {
  if (row < 0) return;
  // A copy: the list is made anew on the way.
  SetFolder(fs::path(folders_[static_cast<std::size_t>(row)]));
}

void DirView::EnterTypedPath() {
  const QString text = path_box_->text();
  // The text may be less than the path is: one that was not touched means
  // this folder, to be read anew.
  const fs::path typed =
      text == ShownPath(folder_)
          ? folder_
          : folder_ /
                PathFromBytes(QDir::fromNativeSeparators(text).toStdString());
  if (IsFolder(typed)) {
    SetFolder(typed);
    emit FolderTyped();
    return;
  }
  if (ChooseTypedFile(typed)) return;
  folders_caption_->setText(tr("&Folders (there is no such path)"));
  if (path_box_->hasFocus()) path_box_->selectAll();
}

bool DirView::ChooseTypedFile(const fs::path& file) {
  const bool is_listed = std::any_of(
      suffixes_.begin(), suffixes_.end(), [&file](const std::string& suffix) {
        return EndsWithIgnoringCase(BytesFromPath(file.filename()), suffix);
      });
  if (!is_listed || !IsFile(file)) return false;
  SetFolder(file.parent_path());
  const auto found = std::find(files_.begin(), files_.end(), file.filename());
  if (found == files_.end()) return false;
  files_list_->setCurrentRow(
      static_cast<int>(std::distance(files_.begin(), found)));
  return true;
}

void DirView::GoUp() {
  if (folder_.has_relative_path()) SetFolder(folder_.parent_path());
}

void DirView::ActivateFile() {
  files_list_->currentItem()->setSelected(true);
  emit FileActivated();
}

void DirView::ListFolders() {
  folders_ = FoldersIn(folder_);
  folders_list_->clear();
  const QIcon icon = style()->standardIcon(QStyle::SP_DirIcon);
  if (folder_.has_relative_path()) {
    folders_.insert(folders_.begin(), folder_.parent_path());
    folders_list_->addItem(new QListWidgetItem(
        style()->standardIcon(QStyle::SP_FileDialogToParent),
        QStringLiteral("..")));
  }
  for (auto row = static_cast<std::size_t>(folders_list_->count());
       row < folders_.size(); ++row) {
    folders_list_->addItem(
        new QListWidgetItem(icon, ShownPath(folders_[row].filename())));
  }
  folders_caption_->setText(CanRead(folder_)
                                ? tr("&Folders")
                                : tr("&Folders (this one cannot be read)"));
}

void DirView::ListFiles() {
  files_.clear();
  for (const std::string& suffix : suffixes_) {
    for (fs::path& name : fragsmith::ListFiles(folder_, suffix)) {
      files_.push_back(std::move(name));
    }
  }
  if (suffixes_.size() > 1) std::sort(files_.begin(), files_.end());
  files_list_->clear();
  const QIcon icon = style()->standardIcon(QStyle::SP_FileIcon);
  for (const fs::path& name : files_) {
    files_list_->addItem(new QListWidgetItem(icon, ShownPath(name)));
  }
  files_caption_->setText(
      (files_.empty() ? tr("No f&iles %1") : tr("F&iles %1"))
          .arg(files_words_));
}

void DirView::ShowDrive() {
  int nearest = -1;
  std::size_t length = 0;
  for (std::size_t index = 0; index < drives_.size(); ++index) {
    const std::size_t drive_length = drives_[index].native().size();
    if (IsWithin(folder_, drives_[index]) && drive_length >= length) {
      nearest = static_cast<int>(index);
      length = drive_length;
    }
  }
  drives_box_->setCurrentIndex(nearest);
}

}  // namespace fragsmith
