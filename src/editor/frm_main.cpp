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
#include <algorithm>
#include <set>
#include <string>
#include <utility>

#include "editor/commands/install_commands.h"
#include "editor/commands/mend_commands.h"
#include "editor/commands/welcome_commands.h"
#include "editor/dialogs/compare_dialog.h"
#include "editor/dialogs/match_window.h"
#include "editor/panels/finding_marks.h"
#include "editor/state/window_state.h"
#include "editor/toolkit/game_text_conversion.h"
#include "editor/toolkit/menu_key.h"
#include "editor/toolkit/page_table.h"
#include "support/files.h"
#include "support/localization.h"
#include "support/program_version.h"

namespace fragsmith {

frmMain::frmMain(ProgramState& state) : state_(state) {
  const CurrentBot::Filling filling(current_);
  setObjectName(QStringLiteral("frmMain"));
  state_.LoadIniFile();
  state_.LoadLists();

  help_ = new HelpCommands(*this);
  identity_ = new IdentityPanel(current_, state_.prompts, this);
  models_ = new ModelSelector(current_, state_, this);
  draft_bar_ = new DraftBar(this);
  notes_ = new NotesBar(this);
  BuildPages();
  BuildMenu();

  auto* const content = new QWidget(this);
  auto* const column = new QVBoxLayout(content);
  auto* const panel = new QHBoxLayout;
  panel->setSpacing(16);
  panel->addWidget(models_->icon(), 0, Qt::AlignTop);
  panel->addWidget(identity_, 8);
  panel->addWidget(models_, 3);
  column->addLayout(panel);
  column->addWidget(draft_bar_);
  column->addWidget(notes_);
  work_ = new QMainWindow(content);
  work_->setWindowFlags(Qt::Widget);
  work_->setCentralWidget(tbsBotPara_);
  column->addWidget(work_, 1);
  setCentralWidget(content);
  statusBar();
  welcome_ = new WelcomePage(*content);

  navigator_ =
      std::make_unique<PageNavigator>(*this, *tbsBotPara_, *chat_page_);
  commands_ = new BotCommands(current_, state_, *this);
  typed_text_ =
      new TypedText(current_, *identity_, *chat_page_, *tbsBotPara_, this);
  edits_ = new EditCommands(current_, *typed_text_, *navigator_, *this);
  edits_->Attach(*menuBar());
  draft_ = new DraftKeeper(state_.folders.program, current_, this);
  draft_->SetSource([this] { return typed_text_->WithIt(); });
  connect(typed_text_, &TypedText::Typed, draft_, &DraftKeeper::Schedule);
  model_list_ = std::make_unique<ModelListCommands>(state_, *models_, *this);
  library_ = new LibraryCommands(*commands_, current_, state_,
                                 model_list_->faces(), *this);
  connect(library_, &LibraryCommands::CompareWanted, this, &frmMain::Compare);
  connect(library_, &LibraryCommands::PackagesRemoved, this,
          [this](const QString& text) {
            DropGoneAddOns();
            ReadGame();
            Say(text);
          });
  Connect();
  OpenMenusByShiftF10(this);
  // Behind the connections: it checks a bot once the window has shown it, and
  // perhaps asked about its model.
  checker_ = new BotChecker(current_, this);
  game_ = new GameCommands(current_, *checker_, state_, *this);
  connect(commands_, &BotCommands::Saved, checker_,
          &BotChecker::CheckFilesSoon);
  RestoreLook();
  models_->RefreshIcon();
  commands_->CreateZeroBot();
  current_.ForgetSteps();
  connect(commands_, &BotCommands::Made, identity_, &IdentityPanel::SelectName);
  setAcceptDrops(true);
  for (const Error& error : draft_->unreadable()) {
    state_.prompts.Show(
        {.title = "Load error",
         .text = Localized("A bot that was not saved cannot be read.") + "\n" +
                 Describe(error),
         .icon = MessageIcon::kExclamation});
  }
  OfferDraft();
  BuildWelcome();
}

void frmMain::BuildWelcome() {
  welcoming_ = new WelcomeCommands(
      *welcome_, *commands_, state_, [this](const QString& item) {
        menuBar()->findChild<QAction*>(item)->trigger();
      });
  connect(welcoming_, &WelcomeCommands::GameSet, this, [this] {
    models_->RefreshIcon();
    ReadGame();
  });
  connect(&current_, &CurrentBot::Replaced, welcome_, &WelcomePage::Close);
  connect(&current_, &CurrentBot::ChangedFlagSet, welcome_,
          [this](bool is_changed) {
            if (is_changed) welcome_->Close();
          });
  connect(tbsBotPara_, &QTabWidget::currentChanged, welcome_,
          &WelcomePage::Close);
  // The offer of a draft comes first.
  if (draft_->LeftBehind() == nullptr) ShowWelcome();
}

void frmMain::ShowWelcome() {
  welcoming_->Fill(checker_->game());
  welcome_->Open();
}

void frmMain::OfferDraft() {
  if (const DraftKeeper::Found* const left = draft_->LeftBehind()) {
    draft_bar_->Offer(*left);
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
    tbsBotPara_->addTab(page, QString::fromUtf8(row.tab_caption));
  }
}

void frmMain::Connect() {
  connect(identity_, &IdentityPanel::StatusText, this, &frmMain::Say);
  connect(typed_text_, &TypedText::StatusText, this, &frmMain::Say);
  connect(models_, &ModelSelector::ChooseWanted, this, [this] {
    if (typed_text_->Store()) model_list_->ChooseFace();
  });
  connect(chat_page_, &ChatPage::StatusText, this, &frmMain::Say);
  connect(commands_, &BotCommands::StatusText, this, &frmMain::Say);
  connect(help_, &HelpCommands::StatusText, this, &frmMain::Say);
  connect(&current_, &CurrentBot::OriginChanged, this, &frmMain::ShowNotes);
  // What it says is of the bot before.
  connect(&current_, &CurrentBot::OriginChanged, statusBar(),
          &QStatusBar::clearMessage);
  connect(draft_, &DraftKeeper::NotKept, this, [this](const Error& reason) {
    Say(tr("No draft of this bot can be kept: save it. ") +
        QString::fromStdString(Describe(reason)));
  });
  connect(&current_.steps(), &QUndoStack::indexChanged, this,
          &frmMain::OfferValuesAsGame);
  connect(commands_, &BotCommands::Saved, this, &frmMain::AddNotes);
  connect(commands_, &BotCommands::PackageMissing, this,
          &frmMain::DropGoneAddOns);
  connect(commands_, &BotCommands::Loaded, this, &frmMain::KeepState);
  connect(notes_, &NotesBar::TakeAsGame, this, [this] {
    if (typed_text_->Store()) commands_->TakeValuesAsGame();
  });
  connect(draft_bar_, &DraftBar::TakeDraft, this, [this] {
    if (!typed_text_->Store()) return OfferDraft();
    const DraftKeeper::Found* const left = draft_->LeftBehind();
    if (left != nullptr && commands_->TakeDraft(left->draft)) {
      draft_->SaveNow();
      draft_->TookLeftBehind();
    }
    OfferDraft();
  });
  connect(draft_bar_, &DraftBar::DiscardDraft, this, [this] {
    draft_->DropLeftBehind();
    OfferDraft();
  });
  connect(&current_, &CurrentBot::Replaced, this, &frmMain::FillBotDataToForm);
  connect(&current_, &CurrentBot::Stepped, this, &frmMain::ShowStep);
  for (ParameterPage* const page : pages_) {
    connect(page, &ParameterPage::ParameterMenuWanted, edits_,
            &EditCommands::ShowParameterMenu);
    connect(page, &ParameterPage::ResetWanted, edits_, &EditCommands::Reset);
  }
  connect(&current_, &CurrentBot::ChangedFlagSet, this, &frmMain::ShowTitle);
  ShowTitle();
}

void frmMain::Say(const QString& text) {
  constexpr int kMilliseconds = 8000;
  statusBar()->showMessage(text, kMilliseconds);
}

void frmMain::ShowNotes() {
  notes_->ShowNotes(current_.origin().report->notes);
  OfferValuesAsGame();
}

void frmMain::AddNotes(const Notes& more) {
  if (more.empty()) return;
  Notes notes = current_.origin().report->notes;
  notes.Append(more);
  notes_->ShowNotes(notes);
}

void frmMain::OfferValuesAsGame() {
  notes_->OfferValuesAsGame(
      HasOddValues(current_.bot(), *current_.origin().report));
}

void frmMain::OpenPath(const std::filesystem::path& path) {
  if (typed_text_->Store()) commands_->OpenPath(path);
}

void frmMain::ShowTitle() {
  QString title =
      QStringLiteral("Fragsmith ") + QString::fromUtf8(kProgramVersion);
  const QString name = ToQString(current_.bot().Name());
  if (!name.isEmpty()) title += QStringLiteral(" - ") + name;
  // Elsewhere it is what stands in the name of a bot.
  const QString mark = QStringLiteral("[*]");
  title.replace(mark, mark + mark);
  setWindowTitle(title + mark);
  setWindowModified(current_.is_changed());
}

void frmMain::RestoreLook() {
  const WindowState look = LoadWindowState(state_.folders.program);
  constexpr QSize kFirstSize(1240, 840);
  if (look.geometry.isEmpty() || !restoreGeometry(look.geometry)) {
    const QRect screen = QGuiApplication::primaryScreen()->availableGeometry();
    const int title = style()->pixelMetric(QStyle::PM_TitleBarHeight);
    resize(kFirstSize.boundedTo(screen.size() - QSize(0, title)));
    move(screen.center() - rect().center());
  }
  commands_->recent() = RecentBots(look.recent);
  kept_recent_ = commands_->recent().ToStrings();
  identity_->SetUnfolded(look.is_unfolded);
  tbsBotPara_->setCurrentIndex(qBound(0, look.page, tbsBotPara_->count() - 1));
}

void frmMain::FitScreen() {
  if (isMaximized() || isFullScreen()) return;
  const QRect screen = this->screen()->availableGeometry();
  const QSize frame = frameGeometry().size() - size();
  resize(size().boundedTo(screen.size() - frame));
  const QPoint last = screen.bottomRight() -
                      QPoint(frameGeometry().width(), frameGeometry().height());
  move(qBound(screen.left(), pos().x(), std::max(screen.left(), last.x() + 1)),
       qBound(screen.top(), pos().y(), std::max(screen.top(), last.y() + 1)));
}

void frmMain::FillBotDataToForm() {
  const CurrentBot::Filling filling(current_);
  models_->ShowBot();
  identity_->ShowBot();
  for (ParameterPage* const page : pages_) page->ShowBot();
  chat_page_->ShowBot();
}

void frmMain::ShowStep(const BotPlace& place) {
  const CurrentBot::Filling filling(current_);
  models_->ShowStep();
  identity_->ShowBot();
  for (ParameterPage* const page : pages_) page->ShowAgain();
  chat_page_->ShowAgain();
  navigator_->Show(place);
}

void frmMain::BuildFindings() {
  findings_ = new FindingsDock(this);
  PlaceFindings();
  statusBar()->addPermanentWidget(findings_->counter());
  // Of a bot that nobody has made there is nothing to tell yet.
  findings_->counter()->setHidden(welcome_->isVisible());
  connect(welcome_, &WelcomePage::Opened, findings_->counter(),
          &QWidget::setHidden);
  connect(checker_, &BotChecker::Checked, this, &frmMain::ShowFindings);
  connect(findings_, &FindingsDock::GoTo, this,
          [this](const BotPlace& place) { navigator_->GoTo(place); });
  connect(tbsBotPara_, &QTabWidget::currentChanged, findings_,
          &FindingsDock::ShowPage);
  findings_->ShowPage(tbsBotPara_->currentIndex());
  auto* const mends = new MendCommands(current_, *checker_, this);
  mends->Attach(*findings_, [this] { return typed_text_->Store(); });
  connect(mends, &MendCommands::StatusText, this, &frmMain::Say);
}

void frmMain::PlaceFindings() {
  // A wide window has room beside the pages, a narrow one below them.
  constexpr int kMinWidth = 1180;
  constexpr int kMinLetters = 169;
  const int needed =
      std::max(kMinWidth, fontMetrics().averageCharWidth() * kMinLetters);
  const Qt::DockWidgetArea area =
      width() < needed ? Qt::BottomDockWidgetArea : Qt::RightDockWidgetArea;
  if (findings_ == nullptr || work_->dockWidgetArea(findings_) == area) return;
  const bool is_shown = findings_->isVisible();
  work_->addDockWidget(area, findings_);
  findings_->setVisible(is_shown);
}

void frmMain::resizeEvent(QResizeEvent* event) {
  QMainWindow::resizeEvent(event);
  PlaceFindings();
}

void frmMain::paintEvent(QPaintEvent* event) {
  QMainWindow::paintEvent(event);
  if (!has_started_) QTimer::singleShot(0, this, &frmMain::FinishStart);
}

void frmMain::FinishStart() {
  if (std::exchange(has_started_, true)) return;
  // Only now it has its frame.
  FitScreen();
  navigator_->CompletePages();
  // Behind the pages, for the Tab key too.
  BuildFindings();
  ReadGame();
}

void frmMain::ReadGame() {
  chat_page_->SetGame(nullptr);
  checker_->ReadGame(PathFromBytes(state_.settings.Q3Baseq3));
  chat_page_->SetGame(checker_->game());
  welcoming_->Fill(checker_->game());
}

void frmMain::ShowFindings() {
  findings_->ShowFindings(checker_->findings(),
                          current_.origin().home->files.empty());
  tbsBotPara_->ShowFindings(checker_->findings());
  ShowTitle();
  MarkControls(*this, checker_->findings());
  chat_page_->ShowMarks(checker_->findings());
  for (ParameterPage* const page : pages_) page->ShowPicture();
}

void frmMain::InstallIntoGame() {
  if (!typed_text_->StoreAll()) return;
  checker_->CheckNow();
  InstallCommands install(current_, *checker_, state_, this);
  connect(&install, &InstallCommands::StatusText, this, &frmMain::Say);
  connect(&install, &InstallCommands::TryWanted, game_,
          &GameCommands::TryInGame);
  install.Install();
}

void frmMain::Compare(const Bot& other, const QString& title) {
  frmCompare(current_, other, title, this).exec();
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
  QTimer::singleShot(0, this, [this, path] { OpenPath(path); });
}

// A crash or a kill would lose what is written at the end alone.
void frmMain::KeepState() {
  const QStringList recent = commands_->recent().ToStrings();
  if (recent != kept_recent_) {
    kept_recent_ = recent;
    SaveWindow();
  }
  // A box comes at the end; until then one word is enough.
  const Result<void> saved = state_.SaveChanges();
  if (!saved && !has_told_state_) {
    Say(tr("Options and lists cannot be written. ") +
        QString::fromStdString(Describe(saved.error())));
  }
  has_told_state_ = !saved;
}

void frmMain::SaveWindow() {
  // Neither a bot nor a setting: no reason for a box at the end.
  static_cast<void>(SaveWindowState(
      state_.folders.program, {.geometry = saveGeometry(),
                               .page = tbsBotPara_->currentIndex(),
                               .is_unfolded = identity_->IsUnfolded(),
                               .recent = commands_->recent().ToStrings()}));
}

void frmMain::closeEvent(QCloseEvent* event) {
  if (current_.is_changed() &&
      !state_.prompts.Confirm(std::string(kProgramTitle),
                              "The current bot has changed. Do you still want "
                              "to exit without saving?")) {
    event->ignore();
    return;
  }
  SaveWindow();
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
  if (typed_text_->StoreAll()) commands_->ShowOpenSaveForm(OpenKind::kSave);
}

void frmMain::ShowMatches() {
  if (matches_ == nullptr) {
    matches_ = new frmMatch(
        current_, *checker_, state_, [this] { return typed_text_->StoreAll(); },
        this);
    connect(matches_, &frmMatch::GoTo, this, [this](const BotPlace& place) {
      activateWindow();
      navigator_->GoTo(place);
    });
  }
  matches_->Present();
}

}  // namespace fragsmith
