#include "editor/frm_main.h"

#include <QCloseEvent>
#include <QDragEnterEvent>
#include <QDropEvent>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QMimeData>
#include <QScreen>
#include <QStatusBar>
#include <QTimer>
#include <QUrl>
#include <QVBoxLayout>
#include <utility>

#include "editor/dialogs/about_dialog.h"
#include "editor/dialogs/compare_dialog.h"
#include "editor/dialogs/options_dialog.h"
#include "editor/dialogs/search_progress.h"
#include "editor/dialogs/try_dialog.h"
#include "editor/finding_marks.h"
#include "editor/game_text_conversion.h"
#include "editor/main_menu.h"
#include "editor/pages/page_table.h"
#include "editor/window_state.h"
#include "install/model_commands.h"
#include "session/presets.h"
#include "support/files.h"

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
  panel->addWidget(identity_, 8);
  panel->addWidget(models_, 5);
  column->addLayout(panel);
  column->addWidget(notes_);
  column->addWidget(tbsBotPara_, 1);
  setCentralWidget(content);
  statusBar();

  navigator_ =
      std::make_unique<PageNavigator>(*this, *tbsBotPara_, *chat_page_);
  commands_ = new BotCommands(current_, state_, *this);
  edits_ = new EditCommands(current_, *identity_, *navigator_, *this);
  edits_->Attach(*menuBar());
  draft_ = new DraftKeeper(state_.folders.program, current_, this);
  draft_->SetSource([this] { return identity_->WithTyping(); });
  connect(identity_, &IdentityPanel::Typed, draft_, &DraftKeeper::Schedule);
  model_list_ = std::make_unique<ModelListCommands>(state_, *models_, *this);
  Connect();
  // Behind the connections: it checks a bot once the window has shown it, and
  // perhaps asked about its model.
  checker_ = new BotChecker(current_, this);
  RestoreLook();
  models_->RefreshIcon();
  commands_->CreateZeroBot();
  current_.ForgetSteps();
  setAcceptDrops(true);
  OfferDraft();
}

void frmMain::OfferDraft() {
  if (const Bot* const left = draft_->LeftBehind()) {
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
      {QStringLiteral("mnuTry"), [this] { TryInGame(); }},
      {QStringLiteral("mnuCompareAverage"),
       [this] {
         Compare(CreateAverageBot(state_.random), QStringLiteral("Average"));
       }},
      {QStringLiteral("mnuCompareZero"),
       [this] { Compare(CreateZeroBot(), QStringLiteral("All zeros")); }},
      {QStringLiteral("mnuCompareOther"),
       [this] {
         const auto other = commands_->LoadToCompare();
         if (other) Compare(other->first, other->second);
       }},
      {QStringLiteral("mnuFindings"), [this] { findings_->Toggle(); }},
      {QStringLiteral("mnuUndo"), [this] { edits_->Undo(); }},
      {QStringLiteral("mnuRedo"), [this] { edits_->Redo(); }},
      {QStringLiteral("mnuFind"), [this] { edits_->Find(); }},
      {QStringLiteral("mnuReset"), [this] { edits_->ResetFocused(); }},
      {QStringLiteral("mnuSaveAgain"),
       [this] {
         if (!identity_->CheckAllIn()) commands_->SaveAgain();
       }},
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
      {QStringLiteral("mnuModelAdd"), [this] { model_list_->AddModel(); }},
      {QStringLiteral("mnuSkinAdd"), [this] { model_list_->AddSkin(); }},
      {QStringLiteral("mnuModelRemove"),
       [this] { model_list_->RemoveModel(); }},
      {QStringLiteral("mnuSkinRemove"), [this] { model_list_->RemoveSkin(); }},
      {QStringLiteral("mnuExtraChat"),
       [this] { chat_page_->AddExtraChatsToBot(); }},
      {QStringLiteral("mnuDeleteChats"),
       [this] { chat_page_->DeleteAllChats(); }},
      {QStringLiteral("mnuSyn"),
       [this] { AskForSynonym(state_.synonyms, state_.prompts); }},
  };
  for (const int from : kSkillLevels) {
    for (const int to : kSkillLevels) {
      menu_[QStringLiteral("mnuCopyLevel_%1_%2").arg(from).arg(to)] =
          [this, from, to] { edits_->CopyLevel(from, to); };
    }
  }
  FillMainMenu(*menuBar(), [this](const QString& name) {
    FinishStart();
    menu_.at(name)();
  });
  connect(menuBar()->findChild<QMenu*>(QStringLiteral("mnuRecent")),
          &QMenu::aboutToShow, this, &frmMain::FillRecentBots);
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
  connect(notes_, &NotesBar::TakeDraft, this, [this] {
    const Bot* const left = draft_->LeftBehind();
    if (left != nullptr && commands_->TakeDraft(*left)) {
      draft_->SaveNow();
      draft_->DropLeftBehind();
    }
    OfferDraft();
  });
  connect(notes_, &NotesBar::DiscardDraft, this, [this] {
    draft_->DropLeftBehind();
    OfferDraft();
  });
  connect(&current_, &CurrentBot::Replaced, this, &frmMain::FillBotDataToForm);
  connect(&current_, &CurrentBot::Stepped, this, &frmMain::ShowStep);
  for (ParameterPage* const page : pages_) {
    connect(page, &ParameterPage::ParameterMenuWanted, edits_,
            &EditCommands::ShowParameterMenu);
  }
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
  commands_->recent() = RecentBots(look.recent);
  tbsBotPara_->setCurrentIndex(qBound(0, look.page, tbsBotPara_->count() - 1));
}

void frmMain::FillBotDataToForm() {
  const CurrentBot::Filling filling(current_);
  models_->ShowBot();
  identity_->ShowBot();
  for (ParameterPage* const page : pages_) page->ShowBot();
  chat_page_->ShowBot();
}

void frmMain::ShowStep(const FindingPlace& place) {
  const CurrentBot::Filling filling(current_);
  models_->ShowBot();
  identity_->ShowBot();
  for (ParameterPage* const page : pages_) page->ShowBot();
  chat_page_->ShowAgain();
  navigator_->Show(place);
}

void frmMain::BuildFindings() {
  findings_ = new FindingsDock(this);
  picture_ = new GamePicture(current_, findings_);
  findings_->SetPicture(picture_);
  addDockWidget(Qt::BottomDockWidgetArea, findings_);
  statusBar()->addPermanentWidget(findings_->counter());
  connect(checker_, &BotChecker::Checked, this, &frmMain::ShowFindings);
  connect(findings_, &QDockWidget::visibilityChanged, picture_,
          &GamePicture::ShowBot);
  connect(findings_, &FindingsDock::GoTo, this,
          [this](const FindingPlace& place) { navigator_->GoTo(place); });
  connect(findings_, &FindingsDock::MendWanted, this,
          [this](const FindingPlace& place, const Mend& mend) {
            current_.Edit({.text = QString::fromStdString(mend.title),
                           .place = place,
                           .merges = false},
                          mend.apply);
          });
}

void frmMain::paintEvent(QPaintEvent* event) {
  QMainWindow::paintEvent(event);
  if (!has_started_) QTimer::singleShot(0, this, &frmMain::FinishStart);
}

void frmMain::FinishStart() {
  if (std::exchange(has_started_, true)) return;
  navigator_->CompletePages();
  // Behind the pages, for the Tab key too.
  BuildFindings();
  ReadGame();
}

void frmMain::ReadGame() {
  chat_page_->SetGame(nullptr);
  checker_->ReadGame(PathFromBytes(state_.settings.Q3Baseq3));
  chat_page_->SetGame(checker_->game());
}

void frmMain::ShowFindings() {
  findings_->ShowFindings(checker_->findings());
  MarkControls(*this, checker_->findings());
  chat_page_->ShowMarks(checker_->findings());
  picture_->ShowBot();
}

void frmMain::TryInGame() {
  if (identity_->CheckAllIn()) return;
  checker_->CheckNow();  // What has just been stored counts too.
  frmTry(current_.bot(), checker_->findings(), state_, this).exec();
}

void frmMain::Compare(const Bot& other, const QString& title) {
  frmCompare(current_, other, title, this).exec();
}

void frmMain::FillRecentBots() {
  auto* const menu = menuBar()->findChild<QMenu*>(QStringLiteral("mnuRecent"));
  menu->clear();
  for (const RecentBot& bot : commands_->recent().Present()) {
    connect(menu->addAction(MenuText(bot)), &QAction::triggered, this,
            [this, bot] { commands_->OpenRecent(bot); });
  }
  if (menu->isEmpty()) {
    menu->addAction(QStringLiteral("(none)"))->setEnabled(false);
  }
}

void frmMain::dragEnterEvent(QDragEnterEvent* event) {
  const QList<QUrl> urls = event->mimeData()->urls();
  if (urls.size() == 1 && urls.front().isLocalFile()) {
    event->acceptProposedAction();
  }
}

void frmMain::dropEvent(QDropEvent* event) {
  event->acceptProposedAction();
  const std::filesystem::path path = PathFromBytes(
      event->mimeData()->urls().front().toLocalFile().toStdString());
  // Its questions are not to keep the other program waiting.
  QTimer::singleShot(0, this, [this, path] { commands_->OpenPath(path); });
}

void frmMain::closeEvent(QCloseEvent* event) {
  if (current_.is_changed() &&
      !state_.prompts.Confirm(std::string(kProgramTitle),
                              "The current bot has changed. Do you still want "
                              "to exit without saving?")) {
    event->ignore();
    return;
  }
  SaveWindowState(state_.folders.program,
                  {.geometry = saveGeometry(),
                   .page = tbsBotPara_->currentIndex(),
                   .recent = commands_->recent().ToStrings()});
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
  ReadGame();
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
  ReadGame();
}

}  // namespace fragsmith
