#include "editor/frm_main.h"

#include <QCloseEvent>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QScreen>
#include <QStatusBar>
#include <QVBoxLayout>

#include "editor/dialogs/about_dialog.h"
#include "editor/dialogs/model_dialog.h"
#include "editor/dialogs/options_dialog.h"
#include "editor/dialogs/search_progress.h"
#include "editor/game_text_conversion.h"
#include "editor/main_menu.h"
#include "editor/pages/page_table.h"
#include "editor/window_state.h"
#include "install/model_commands.h"
#include "session/presets.h"

namespace fragsmith {
namespace {

constexpr int kStatusMilliseconds = 8000;

}  // namespace

frmMain::frmMain(ProgramState& state) : state_(state) {
  const CurrentBot::Filling filling(current_);
  setObjectName(QStringLiteral("frmMain"));
  state_.LoadIniFile();
  state_.LoadLists();

  identity_ = new IdentityPanel(current_, state_.prompts, this);
  models_ = new ModelSelector(current_, state_, this);
  notes_ = new NotesBar(this);
  BuildPages();
  BuildMenu();

  auto* const content = new QWidget(this);
  auto* const column = new QVBoxLayout(content);
  auto* const panel = new QHBoxLayout;
  panel->setSpacing(18);
  panel->addWidget(identity_, 3);
  panel->addWidget(models_, 2);
  column->addLayout(panel);
  column->addWidget(notes_);
  column->addWidget(tbsBotPara_, 1);
  setCentralWidget(content);
  statusBar();

  commands_ = new BotCommands(current_, state_, *this);
  draft_ = new DraftKeeper(state_.folders.program, current_, this);
  Connect();
  RestoreLook();
  models_->RefreshIcon();
  commands_->CreateZeroBot();
  if (const std::optional<Bot> left = draft_->LeftBehind()) {
    notes_->OfferDraft(ToQString(left->Name()));
  }
}

void frmMain::BuildPages() {
  tbsBotPara_ = new PageStrip(this);
  for (const PageRow& row : kPages) {
    QWidget* page = nullptr;
    if (&row == &kPages.at(kChatPage)) {
      page = chat_page_ = new ChatPage(current_, state_.synonyms, state_.random,
                                       state_.prompts, tbsBotPara_);
    } else {
      pages_.push_back(new ParameterPage(row, current_, tbsBotPara_));
      page = pages_.back();
    }
    tbsBotPara_->addTab(page, TableText(row.tab_caption));
  }
}

void frmMain::BuildMenu() {
  menu_ = {
      {QStringLiteral("mnuOptions"), [this] { ShowOptions(); }},
      {QStringLiteral("mnuAbout"), [this] { frmAbout(this).exec(); }},
      {QStringLiteral("mnuExit"), [this] { close(); }},
      {QStringLiteral("mnuNewZero"), [this] { commands_->CreateZeroBot(); }},
      {QStringLiteral("mnuNewAverage"),
       [this] { commands_->CreateAverageBot(); }},
      {QStringLiteral("mnuNewRandom"),
       [this] { commands_->CreateRandomBot(); }},
      {QStringLiteral("mnuLoad"), [this] { commands_->ShowOpenSaveForm(0); }},
      {QStringLiteral("mnuMake"), [this] { MakeBotFiles(); }},
      {QStringLiteral("mnuCharFile"),
       [this] { commands_->ShowOpenSaveForm(1); }},
      {QStringLiteral("mnuWeaponFile"),
       [this] { commands_->ShowOpenSaveForm(4); }},
      {QStringLiteral("mnuitemFile"),
       [this] { commands_->ShowOpenSaveForm(3); }},
      {QStringLiteral("mnuChatFile"),
       [this] { commands_->ShowOpenSaveForm(2); }},
      {QStringLiteral("mnuCheck"), [this] { CheckBaseq3(); }},
      {QStringLiteral("mnuModelAdd"), [this] { AddModel(); }},
      {QStringLiteral("mnuSkinAdd"), [this] { AddSkin(); }},
      {QStringLiteral("mnuModelRemove"), [this] { RemoveModel(); }},
      {QStringLiteral("mnuSkinRemove"), [this] { RemoveSkin(); }},
      {QStringLiteral("mnuExtraChat"),
       [this] { chat_page_->AddExtraChatsToBot(); }},
      {QStringLiteral("mnuDeleteChats"),
       [this] { chat_page_->DeleteAllChats(); }},
      {QStringLiteral("mnuSyn"),
       [this] { AskForSynonym(state_.synonyms, state_.prompts); }},
  };
  FillMainMenu(*menuBar(), [this](const QString& name) { menu_.at(name)(); });
}

void frmMain::Connect() {
  const auto say = [this](const QString& text) {
    statusBar()->showMessage(text, kStatusMilliseconds);
  };
  connect(identity_, &IdentityPanel::StatusText, this, say);
  connect(chat_page_, &ChatPage::StatusText, this, say);
  connect(commands_, &BotCommands::StatusText, this, say);
  connect(commands_, &BotCommands::Loaded, notes_, &NotesBar::ShowNotes);
  connect(notes_, &NotesBar::TakeAsGame, commands_,
          &BotCommands::TakeValuesAsGame);
  connect(notes_, &NotesBar::DiscardDraft, draft_, &DraftKeeper::Discard);
  connect(notes_, &NotesBar::TakeDraft, this, [this] {
    if (std::optional<Bot> left = draft_->LeftBehind()) {
      current_.Replace(std::move(*left), true);
    }
  });
  connect(&current_, &CurrentBot::Replaced, this, &frmMain::FillBotDataToForm);
  connect(&current_, &CurrentBot::ChangedFlagSet, this, &frmMain::ShowTitle);
  ShowTitle();
}

void frmMain::ShowTitle() {
  setWindowTitle(QStringLiteral("Fragsmith 0.97b BETA[*]"));
  setWindowModified(current_.is_changed());
}

void frmMain::RestoreLook() {
  const WindowState look = LoadWindowState(state_.folders.program);
  constexpr QSize kFirstSize(1024, 740);
  if (look.geometry.isEmpty() || !restoreGeometry(look.geometry)) {
    const QRect screen = QGuiApplication::primaryScreen()->availableGeometry();
    resize(kFirstSize.boundedTo(screen.size()));
    move(screen.center() - rect().center());
  }
  tbsBotPara_->setCurrentIndex(qBound(0, look.page, tbsBotPara_->count() - 1));
}

void frmMain::FillBotDataToForm() {
  const CurrentBot::Filling filling(current_);
  models_->ShowBot();
  identity_->ShowBot();
  for (ParameterPage* const page : pages_) page->ShowBot();
  chat_page_->ShowBot();
}

void frmMain::closeEvent(QCloseEvent* event) {
  if (current_.is_changed() &&
      !state_.prompts.Confirm(std::string(kProgramTitle),
                              "The current bot has changed. Do you still want "
                              "to exit without saving?")) {
    event->ignore();
    return;
  }
  SaveWindowState(
      state_.folders.program,
      {.geometry = saveGeometry(), .page = tbsBotPara_->currentIndex()});
  const Result<void> saved = state_.Save();
  if (!saved) {
    state_.prompts.Show({.title = std::string(kProgramTitle),
                         .text = Describe(saved.error()),
                         .icon = MessageIcon::kExclamation});
  }
  current_.SetChanged(false);
  draft_->Discard();
  event->accept();
}

void frmMain::MakeBotFiles() {
  if (!identity_->CheckAllIn()) commands_->ShowOpenSaveForm(5);
}

void frmMain::ShowOptions() {
  frmOptions dialog(state_.prompts, this);
  for (int index = 0; index < kOptionCount; ++index) {
    dialog.SetOptionValue(index, GetOptionValue(state_.settings, index));
  }
  if (dialog.exec() == QDialog::Accepted) frmOption_SaveValues(dialog);
}

void frmMain::frmOption_SaveValues(const frmOptions& dialog) {
  for (int index = 0; index < kEditableOptionCount; ++index) {
    SetOptionValue(state_.settings, index, dialog.GetOptionValue(index));
  }
  state_.InitByValues();
  models_->RefreshIcon();
}

void frmMain::CheckBaseq3() {
  frmSearchBaseQ3 progress(this);
  setEnabled(false);
  CatalogueSelection selection = models_->Selection();
  Notes notes;
  const bool is_done = fragsmith::CheckBaseq3(
      state_.settings, state_.lists, selection, state_.prompts,
      [&progress](std::size_t done, std::size_t total) {
        progress.show();
        progress.ShowProgress(done, total);
        return !progress.WasCancelled();
      },
      notes);
  progress.hide();
  setEnabled(true);
  if (!is_done) return;
  models_->RefillModelSelector(selection.modelIndex, selection.skinIndex);
  notes_->ShowNotes(notes, false);
}

void frmMain::AddModel() {
  frmModelDialog dialog(state_.prompts, this);
  if (dialog.exec() == QDialog::Accepted) frmModel_GiveName(dialog);
}

void frmMain::frmModel_GiveName(const frmModelDialog& dialog) {
  const CatalogueSelection place = models_->Selection();
  if (fragsmith::AddModel(state_.lists.models, dialog.Name(),
                          dialog.CreatesRedAndBlue(), state_.prompts)) {
    models_->RefillModelSelector(place.modelIndex, place.skinIndex);
  }
}

void frmMain::AddSkin() {
  const CatalogueSelection place = models_->Selection();
  if (fragsmith::AddSkin(state_.lists.models, place.modelIndex,
                         state_.prompts)) {
    models_->RefillModelSelector(place.modelIndex, place.skinIndex);
  }
}

void frmMain::RemoveModel() {
  const CatalogueSelection place = models_->Selection();
  if (fragsmith::RemoveModel(state_.lists.models, place.modelIndex,
                             state_.prompts)) {
    models_->RefillModelSelector(0, 0);
  }
}

void frmMain::RemoveSkin() {
  const CatalogueSelection place = models_->Selection();
  if (fragsmith::RemoveSkin(state_.lists.models, place.modelIndex,
                            place.skinIndex, state_.prompts)) {
    models_->RefillModelSelector(place.modelIndex, 0);
  }
}

}  // namespace fragsmith
