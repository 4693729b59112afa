#include "editor/dialogs/options_dialog.h"

#include <QDir>
#include <QFormLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QPushButton>
#include <QStringList>
#include <optional>
#include <utility>

#include "editor/dialogs/open_dialog.h"
#include "editor/toolkit/game_text_conversion.h"
#include "support/files.h"

namespace fragsmith {
namespace {

constexpr int kFolderCount = 3;
constexpr int kNameIndex = kFolderCount;  ///< Email and web page follow.

struct FieldRow {
  const char* label;      ///< With its mnemonic.
  const char* shown;      ///< The same without, and without the colon.
  const char* search;     ///< Text of the "Search" button, where it has one.
  OpenKind browser_kind;  ///< What the button opens.
};

/// By index; the fields behind the folders have no button.
constexpr std::array<FieldRow, kEditableOptionCount> kFields = {{
    {"&Quake III Arena directory", "Quake III Arena directory", "&Search",
     OpenKind::kGameFolder},
    {"&Default working directory", "Default working directory", "S&earch",
     OpenKind::kWorkFolder},
    {"&WinZip directory", "WinZip directory", "Se&arch",
     OpenKind::kUnzipFolder},
    {"&Name:", "Name", nullptr, {}},
    {"E&mail:", "Email", nullptr, {}},
    {"Web &page:", "Web page", nullptr, {}},
}};

const FieldRow& RowOf(int index) {
  return kFields.at(static_cast<std::size_t>(index));
}

/// Folders are the path's own bytes, the author's data game text.
QString ShownText(int index, const std::string& value) {
  return index < kFolderCount ? QString::fromStdString(value)
                              : ToQString(value);
}

std::string StoredText(int index, const QString& text) {
  if (index < kFolderCount) return text.toStdString();
  return ToGameText(text).value_or(std::string());
}

bool IsEditable(int index) {
  return index >= 0 && index < kEditableOptionCount;
}

}  // namespace

frmOptions::frmOptions(Prompts& prompts, QWidget* parent,
                       FirstFolder first_folder, FolderPlaces places)
    : QDialog(parent),
      prompts_(prompts),
      first_folder_(std::move(first_folder)),
      places_(std::move(places)),
      counter_(new QLabel(QStringLiteral("000"), this)),
      pages_(new QTabWidget(this)),
      hint_(new HintLine(3, this)),
      no_name_(new HintLine(2, this)) {
  setObjectName(QStringLiteral("frmOptions"));
  setWindowTitle(QStringLiteral("Fragsmith options"));
  pages_->setObjectName(QStringLiteral("tabOptions"));
  pages_->addTab(MakeDirectoriesPage(), QStringLiteral("D&irectories"));
  pages_->addTab(MakeUserDataPage(), QStringLiteral("&User data"));

  auto* const layout = new QVBoxLayout(this);
  layout->addWidget(pages_, 1);
  layout->addWidget(hint_);
  layout->addWidget(
      MakeButtons(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this));
  fields_.front().box->setFocus();
}

QLineEdit* frmOptions::MakeField(int index) {
  auto* const box = new QLineEdit(this);
  box->setObjectName(QStringLiteral("txtOption_%1").arg(index));
  box->setAccessibleName(QString::fromUtf8(RowOf(index).shown));
  box->setMinimumWidth(48 * fontMetrics().averageCharWidth());
  if (index >= kFolderCount) RefuseForeignCharacters(box, hint_);
  connect(box, &QLineEdit::textChanged, this, &frmOptions::ShowHints);
  fields_.at(static_cast<std::size_t>(index)).box = box;
  return box;
}

QWidget* frmOptions::MakeDirectoriesPage() {
  auto* const page = new QWidget(pages_);
  auto* const layout = new QVBoxLayout(page);
  for (int index = 0; index < kFolderCount; ++index) {
    if (index > 0) layout->addSpacing(fontMetrics().lineSpacing() / 2);
    QLineEdit* const box = MakeField(index);
    auto* const label = new QLabel(QString::fromUtf8(RowOf(index).label), page);
    label->setBuddy(box);
    auto* const search =
        new QPushButton(QString::fromUtf8(RowOf(index).search), page);
    search->setObjectName(QStringLiteral("cmdSearch_%1").arg(index));
    search->setAccessibleName(
        tr("Search %1").arg(QString::fromUtf8(RowOf(index).shown)));
    search->setAutoDefault(false);
    connect(search, &QPushButton::clicked, this,
            [this, index] { OpenBrowser(index); });
    layout->addWidget(label);
    auto* const row = new QHBoxLayout;
    row->addWidget(box, 1);
    row->addWidget(search);
    layout->addLayout(row);
  }
  layout->addStretch();
  return page;
}

QWidget* frmOptions::MakeUserDataPage() {
  auto* const page = new QWidget(pages_);
  auto* const layout = new QVBoxLayout(page);
  auto* const author = new QGroupBox(
      QStringLiteral("Programmer info to the botfile headers"), page);
  auto* const form = new QFormLayout(author);
  form->setFieldGrowthPolicy(QFormLayout::ExpandingFieldsGrow);
  for (int index = kFolderCount; index < kEditableOptionCount; ++index) {
    form->addRow(QString::fromUtf8(RowOf(index).label), MakeField(index));
  }
  no_name_->setObjectName(QStringLiteral("lblNoName"));
  form->addRow(no_name_);
  layout->addWidget(author);
  auto* const other = new QGroupBox(QStringLiteral("Other info"), page);
  auto* const counts = new QFormLayout(other);
  counter_->setObjectName(QStringLiteral("lblOption_6"));
  counter_->setTextFormat(Qt::PlainText);
  counts->addRow(QStringLiteral("Bots created:"), counter_);
  layout->addWidget(other);
  layout->addStretch();
  return page;
}

void frmOptions::SetOptionValue(int index, std::string_view value) {
  if (index == kEditableOptionCount) {
    counter_->setText(ToQString(std::string(value)));
  }
  if (!IsEditable(index)) return;
  Field& field = fields_.at(static_cast<std::size_t>(index));
  field.value = value;
  field.box->setText(ShownText(index, field.value));
  field.shown = field.box->text();
}

std::string frmOptions::GetOptionValue(int index) const {
  if (index == kEditableOptionCount) return counter_->text().toStdString();
  if (!IsEditable(index)) return {};
  const Field& field = fields_.at(static_cast<std::size_t>(index));
  const QString text = field.box->text();
  return text == field.shown ? field.value : StoredText(index, text);
}

void frmOptions::SetFolderFromBrowser(const std::filesystem::path& path,
                                      int mode) {
  for (int index = 0; index < kFolderCount; ++index) {
    if (static_cast<int>(RowOf(index).browser_kind) == mode) {
      SetOptionValue(index, BytesFromPath(path));
    }
  }
}

void frmOptions::BeginAtGameFolder() {
  pages_->setCurrentIndex(0);
  fields_.front().box->setFocus();
  fields_.front().box->selectAll();
}

void frmOptions::OpenBrowser(int index) {
  const OpenKind kind = RowOf(index).browser_kind;
  std::filesystem::path folder = PathFromBytes(GetOptionValue(index));
  if (!IsFolder(folder)) folder = QDir::rootPath().toStdU16String();
  if (first_folder_) folder = first_folder_(folder);
  auto* const browser = new frmOpen(
      {.kind = kind, .folder = folder, .places = places_}, prompts_, this);
  browser->setAttribute(Qt::WA_DeleteOnClose);
  connect(browser, &QDialog::accepted, this, [this, browser, kind] {
    SetFolderFromBrowser(browser->Choice().folder, static_cast<int>(kind));
  });
  browser->open();
}

void frmOptions::ShowHints() {
  const auto text = [this](int index) {
    const QLineEdit* const box =
        fields_.at(static_cast<std::size_t>(index)).box;
    return box == nullptr ? QString() : box->text();
  };
  const bool is_lost = text(kNameIndex).isEmpty() &&
                       !(text(kNameIndex + 1) + text(kNameIndex + 2)).isEmpty();
  no_name_->Say(is_lost ? tr("Without a name neither email nor web "
                             "page is written to the bot files.")
                        : QString());
  QStringList cut;
  for (int index = 0; index < kEditableOptionCount; ++index) {
    if (!text(index).contains(u',')) continue;
    cut << QString::fromUtf8(RowOf(index).shown);
  }
  hint_->Say(cut.isEmpty() ? QString()
                           : tr("%1: the settings file cuts a value at its "
                                "first comma, and the settings behind it "
                                "move out of place at the next start.")
                                 .arg(cut.join(QStringLiteral(", "))));
}

}  // namespace fragsmith
