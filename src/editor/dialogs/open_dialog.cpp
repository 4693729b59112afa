#include "editor/dialogs/open_dialog.h"

#include <QDir>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QListWidget>
#include <QVBoxLayout>
#include <array>
#include <string>
#include <string_view>

#include "editor/dialogs/dialog_parts.h"
#include "editor/dialogs/new_folder.h"
#include "model/file_names.h"
#include "support/files.h"

namespace fragsmith {
namespace {

struct KindRow {
  const char* title;
  std::string_view suffix;  ///< Of the files that are listed.
};

/// In the order of OpenKind.
constexpr std::array<KindRow, 9> kKinds = {{
    {"Load bot", kCharacterEnd},
    {"Load bot characteristic files", kCharacterEnd},
    {"Load bot chat files", kChatEnd},
    {"Load bot weapon and item weights files", kItemWeightEnd},
    {"Load bot weapon usage files", kWeaponWeightEnd},
    {"Make botfiles for ", kCharacterEnd},
    {"Set Q3 folder", ""},
    {"Set WinZip folder", ""},
    {"Set working folder", ""},
}};

QCheckBox* MakeOption(const QString& text, const QString& name, bool is_on,
                      bool is_enabled, QWidget* parent) {
  auto* const option = new QCheckBox(text, parent);
  option->setObjectName(name);
  option->setChecked(is_on);
  option->setEnabled(is_enabled);
  return option;
}

}  // namespace

frmOpen::frmOpen(const OpenRequest& request, Prompts& prompts, QWidget* parent)
    : QDialog(parent),
      prompts_(prompts),
      kind_(request.kind),
      options_(request.options),
      browser_(new DirView(prompts, this)) {
  const KindRow& row = kKinds.at(static_cast<std::size_t>(kind_));
  setObjectName(QStringLiteral("frmOpen"));
  QString title = QString::fromUtf8(row.title);
  if (kind_ == OpenKind::kSave) title += request.bot_name;
  setWindowTitle(title);
  setSizeGripEnabled(true);

  auto* const layout = new QVBoxLayout(this);
  auto* const lists = new QHBoxLayout;
  lists->setSpacing(fontMetrics().lineSpacing());
  layout->addLayout(lists, 1);
  lists->addWidget(browser_, 3);
  if (IsFolderOnly()) {
    browser_->SetFilesVisible(false);
  } else {
    browser_->SetFilter(QString::fromUtf8(
        row.suffix.data(), static_cast<qsizetype>(row.suffix.size())));
    lists->addWidget(MakeBotList(request.bots), 2);
    layout->addLayout(MakeOptions(request));
  }
  browser_->SetPlaces(request.places);
  browser_->SetFolder(request.folder);
  if (IsLoad()) {
    // When saving, a file is no answer, and a double click on one does nothing.
    connect(browser_, &DirView::FileActivated, this, &frmOpen::accept);
    // Whoever gives the folder of one bot means that.
    connect(browser_, &DirView::FolderTyped, browser_,
            &DirView::ChooseOnlyFile);
  }

  auto* const buttons = new QHBoxLayout;
  layout->addLayout(buttons);
  if (!IsLoad()) buttons->addWidget(MakeNewFolderButton());
  buttons->addStretch();
  buttons->addWidget(
      MakeButtons(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this));
  if (IsFolderOnly()) {
    const int line = fontMetrics().lineSpacing();
    resize(sizeHint().expandedTo({28 * line, 26 * line}));
  }
  FocusFirst();
}

QWidget* frmOpen::MakeBotList(const BotList* bots) {
  bots_ = new BotListBox(bots != nullptr ? *bots : BotList(), this);
  if (!IsLoad()) {
    bots_->SetReadOnly();
    return bots_;
  }
  // There is one answer: a file or a bot of the list.
  connect(browser_, &DirView::FileChosen, bots_, &BotListBox::ClearChoice);
  connect(bots_, &BotListBox::BotChosen, browser_, &DirView::ClearChoice);
  connect(bots_, &BotListBox::BotActivated, this, &frmOpen::accept);
  return bots_;
}

QLayout* frmOpen::MakeOptions(const OpenRequest& request) {
  const bool loads = kind_ == OpenKind::kLoadBot;
  const bool saves = kind_ == OpenKind::kSave;
  loads_with_layout_ = MakeOption(
      QStringLiteral("&Use directory structure for *.bot -file loading"),
      QStringLiteral("chkLoadStructure"), options_.loads_with_layout, loads,
      this);
  loads_description_ = MakeOption(QStringLiteral("&Load *.bot-file"),
                                  QStringLiteral("chkLoadBotFile"),
                                  options_.loads_description, loads, this);
  saves_with_layout_ =
      MakeOption(QStringLiteral("&Save using the correct directory structure"),
                 QStringLiteral("chkSaveStructure"), options_.saves_with_layout,
                 saves, this);
  makes_package_ = MakeOption(QStringLiteral("&Make *.pk3-file"),
                              QStringLiteral("chkMakePk3"),
                              options_.makes_package, saves, this);
  auto* const grid = new QGridLayout;
  grid->setHorizontalSpacing(2 * fontMetrics().lineSpacing());
  grid->addWidget(loads_with_layout_, 0, 0);
  grid->addWidget(loads_description_, 1, 0);
  grid->addWidget(saves_with_layout_, 0, 1);
  grid->addWidget(makes_package_, 1, 1);
  if (request.offers_files) {
    keeps_files_ = MakeOption(tr("&Keep the files as their author wrote them"),
                              QStringLiteral("chkKeepFiles"),
                              options_.keeps_files, saves, this);
    grid->addWidget(keeps_files_, grid->rowCount(), 1);
  }
  if (request.offers_macros) {
    game_macros_ = MakeOption(tr("&Write the game's own macros as well"),
                              QStringLiteral("chkGameMacros"),
                              options_.writes_game_macros, saves, this);
    grid->addWidget(game_macros_, grid->rowCount(), 1);
  }
  grid->setColumnStretch(2, 1);
  return grid;
}

QPushButton* frmOpen::MakeNewFolderButton() {
  auto* const button = new QPushButton(tr("&New folder"), this);
  button->setObjectName(QStringLiteral("cmdNewFolder"));
  button->setAutoDefault(false);
  connect(button, &QPushButton::clicked, this, [this] {
    const auto folder = MakeNewFolder(browser_->Folder(), prompts_);
    if (folder) browser_->SetFolder(*folder);
  });
  return button;
}

void frmOpen::FocusFirst() {
  // To save, Enter is enough; otherwise what there is to choose from.
  const char* name = "cmdOK";
  if (IsLoad()) {
    const auto* const files =
        browser_->findChild<QListWidget*>(QStringLiteral("filFile"));
    name = files->count() > 0 ? "filFile" : "dirFolder";
  } else if (IsFolderOnly()) {
    name = "dirFolder";
  }
  findChild<QWidget*>(QString::fromUtf8(name))->setFocus();
}

bool frmOpen::EnterTypedPath() {
  auto* const box =
      browser_->findChild<QLineEdit*>(QStringLiteral("txtFolder"));
  if (!box->isModified()) return true;
  const std::string text =
      QDir::fromNativeSeparators(box->text()).toStdString();
  const std::filesystem::path typed = browser_->Folder() / PathFromBytes(text);
  if (IsFolder(typed)) {
    browser_->SetFolder(typed);
    return true;
  }
  prompts_.Show({.title = std::string(kProgramTitle),
                 .text = tr("There is no folder '%1'.")
                             .arg(QString::fromStdString(text))
                             .toStdString(),
                 .icon = MessageIcon::kExclamation});
  box->setFocus();
  box->selectAll();
  return false;
}

OpenChoice frmOpen::Choice() const {
  OpenChoice choice = {.folder = browser_->Folder(),
                       .file = {},
                       .bot_of_list = {},
                       .options = options_};
  if (IsLoad()) {
    choice.file = browser_->ChosenFile();
    choice.bot_of_list = bots_->Chosen();
  }
  if (!IsFolderOnly()) {
    choice.options = {.loads_with_layout = loads_with_layout_->isChecked(),
                      .loads_description = loads_description_->isChecked(),
                      .saves_with_layout = saves_with_layout_->isChecked(),
                      .makes_package = makes_package_->isChecked(),
                      .keeps_files = keeps_files_ != nullptr
                                         ? keeps_files_->isChecked()
                                         : options_.keeps_files,
                      .writes_game_macros = game_macros_ != nullptr
                                                ? game_macros_->isChecked()
                                                : options_.writes_game_macros};
  }
  return choice;
}

void frmOpen::accept() {
  if (IsLoad() && !bots_->Chosen()) browser_->TakeTypedPath();
  const OpenChoice choice = Choice();
  if (IsLoad() && !choice.file && !choice.bot_of_list) {
    prompts_.Show({.title = "Error!!",
                   .text = "You haven't chosen anything. Press 'Cancel' if you "
                           "want to exit, dummy!",
                   .icon = MessageIcon::kInformation});
    return;
  }
  if (IsLoad() || EnterTypedPath()) QDialog::accept();
}

}  // namespace fragsmith
