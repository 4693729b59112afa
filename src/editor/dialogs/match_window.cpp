#include "editor/dialogs/match_window.h"

#include <QBuffer>
#include <QCoreApplication>
#include <QDialogButtonBox>
#include <QFileDialog>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QLabel>
#include <QMenu>
#include <QScreen>
#include <QSplitter>
#include <QVBoxLayout>
#include <algorithm>
#include <utility>

#include "chat/vocabulary.h"
#include "editor/toolkit/game_text_conversion.h"
#include "session/save_bot.h"
#include "support/files.h"

namespace fragsmith {
namespace {

enum RunColumn { kBot, kAgainst, kShare, kMatches, kSkillAndMap, kRunColumns };

Error Trouble(const QString& what, const QString& advice) {
  return {.what = what.toStdString(),
          .file = {},
          .line = 0,
          .advice = advice.toStdString()};
}

QString TextAboutKept(const std::vector<ParameterId>& kept) {
  return kept.size() == 1
             ? frmMatch::tr("What you changed since the run began stays: %1.")
                   .arg(QString::fromStdString(QuotedName(kept.front())))
             : frmMatch::tr(
                   "What you changed since the run began stays: %1 "
                   "values.")
                   .arg(kept.size());
}

}  // namespace

frmMatch::frmMatch(CurrentBot& current, BotChecker& checker,
                   ProgramState& state, std::function<bool()> store,
                   QWidget* parent)
    : QDialog(parent),
      current_(current),
      checker_(checker),
      state_(state),
      store_(std::move(store)),
      runner_(nullptr),
      choices_(new MatchChoices(state, this)),
      runs_(new QTreeWidget(this)),
      results_(new MatchResults(this)),
      start_(new QPushButton(this)),
      tune_(new QPushButton(tr("&Make it as strong"), this)),
      take_(new QPushButton(tr("Take the stren&gth"), this)),
      export_(new QPushButton(tr("E&xport"), this)),
      progress_(new HintLine(2, this)) {
  setObjectName(QStringLiteral("frmMatch"));
  setWindowTitle(tr("Play it out"));
  setWindowFlag(Qt::WindowMaximizeButtonHint);
  auto* const sides = new QSplitter(this);
  sides->setChildrenCollapsible(false);
  auto* const left = new QWidget(sides);
  auto* const left_column = new QVBoxLayout(left);
  left_column->setContentsMargins(0, 0, 0, 0);
  left_column->addWidget(choices_);
  left_column->addLayout(MakeStartRow());
  left_column->addSpacing(8);
  left_column->addWidget(MakeRuns(), 1);
  sides->addWidget(left);
  auto* const nothing = new QLabel(
      tr("Change a value and press Start: the bot as it stands plays against "
         "how it was, at some fifty times the speed of the game. You can go on "
         "editing meanwhile."),
      sides);
  nothing->setWordWrap(true);
  nothing->setAlignment(Qt::AlignCenter);
  nothing->setMargin(32);
  shown_ = new QStackedWidget(sides);
  shown_->addWidget(nothing);
  shown_->addWidget(results_);
  sides->addWidget(shown_);
  sides->setStretchFactor(1, 1);
  auto* const column = new QVBoxLayout(this);
  column->addWidget(sides, 1);
  column->addWidget(progress_);
  column->addWidget(MakeButtonRow());
  const int line = fontMetrics().lineSpacing();
  const QSize room = QGuiApplication::primaryScreen()->availableSize();
  resize(QSize(80 * line, 44 * line).boundedTo(room * 9 / 10));

  connect(&runner_, &MatchRunner::Played, this, &frmMatch::ShowNews);
  connect(&runner_, &MatchRunner::Moved, this, &frmMatch::ShowProgress);
  connect(&runner_, &MatchRunner::Ended, this, [this] {
    SetRunning(false);
    ShowNews();
  });
  connect(results_, &MatchResults::LineWanted, this, &frmMatch::GoToLine);
  connect(results_, &MatchResults::PlaceWanted, this, &frmMatch::GoTo);
  FillOpponents();
  choices_->Load();
  SetRunning(false);
}

QLayout* frmMatch::MakeStartRow() {
  auto* const row = new QHBoxLayout;
  start_->setObjectName(QStringLiteral("cmdStart"));
  connect(start_, &QPushButton::clicked, this, &frmMatch::StartOrStop);
  tune_->setObjectName(QStringLiteral("cmdTune"));
  tune_->setToolTip(
      tr("Moves the levels between a weak and a strong end until the bot takes "
         "the wished share. Nothing changes before you take the result."));
  connect(tune_, &QPushButton::clicked, this, [this] { Start(true); });
  take_->setObjectName(QStringLiteral("cmdTakeStrength"));
  take_->setToolTip(
      tr("Gives the bot the values of the list \"Strength\", as one step that "
         "can be undone"));
  connect(take_, &QPushButton::clicked, this, &frmMatch::TakeStrength);
  for (QPushButton* const button : {start_, tune_}) {
    // Enter in a list leads to its row, and begins nothing.
    button->setAutoDefault(false);
    row->addWidget(button, 1);
  }
  return row;
}

QWidget* frmMatch::MakeRuns() {
  auto* const box = new QWidget(this);
  auto* const column = new QVBoxLayout(box);
  column->setContentsMargins(0, 0, 0, 0);
  auto* const heading = new QLabel(tr("&Runs of this session:"), box);
  heading->setBuddy(runs_);
  column->addWidget(heading);
  column->addWidget(runs_, 1);
  SetUpRows(
      *runs_, "lstRuns", tr("Runs of this session"),
      {tr("Bot"), tr("Against"), tr("Share"), tr("Matches"), tr("Skill, map")});
  runs_->setSelectionMode(QAbstractItemView::ExtendedSelection);
  runs_->setToolTip(tr("Those that are selected stand in one picture"));
  runs_->setMinimumHeight(6 * fontMetrics().lineSpacing());
  connect(runs_, &QTreeWidget::currentItemChanged, this,
          &frmMatch::ShowSelected);
  connect(runs_, &QTreeWidget::itemSelectionChanged, this,
          &frmMatch::ShowSelected);
  return box;
}

QWidget* frmMatch::MakeButtonRow() {
  auto* const buttons = new QDialogButtonBox(this);
  export_->setObjectName(QStringLiteral("cmdExport"));
  export_->setAutoDefault(false);
  auto* const menu = new QMenu(export_);
  const auto add = [&](const char* name, const QString& text,
                       const QString& ending,
                       const std::function<std::string()>& bytes) {
    QAction* const action = menu->addAction(text);
    action->setObjectName(QLatin1String(name));
    connect(action, &QAction::triggered, this,
            [this, text, ending, bytes] { Export(text, ending, bytes); });
  };
  add("mnuCsv", tr("&Table of the matches (CSV)"), QStringLiteral("csv"),
      [this] { return WriteMatchCsv(Selected()->report); });
  add("mnuJson", tr("&All that happened (JSON)"), QStringLiteral("json"),
      [this] { return WriteMatchJson(Selected()->report, true); });
  add("mnuPng", tr("&Picture of the results (PNG)"), QStringLiteral("png"),
      [this] {
        QByteArray bytes;
        QBuffer buffer(&bytes);
        results_->grab().save(&buffer, "PNG");
        return bytes.toStdString();
      });
  export_->setMenu(menu);
  buttons->addButton(export_, QDialogButtonBox::ActionRole);
  take_->setAutoDefault(false);
  buttons->addButton(take_, QDialogButtonBox::ActionRole);
  auto* const close = new QPushButton(tr("&Close"), this);
  close->setObjectName(QStringLiteral("cmdClose"));
  close->setAutoDefault(false);
  buttons->addButton(close, QDialogButtonBox::RejectRole);
  connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
  return buttons;
}

void frmMatch::FillOpponents() {
  choices_->FillOpponents(current_.origin().home->saved != nullptr,
                          checker_.game());
}

void frmMatch::Present() {
  if (!runner_.IsRunning()) FillOpponents();
  show();
  raise();
  activateWindow();
}

void frmMatch::done(int result) {
  choices_->Save();
  runner_.Stop();
  QDialog::done(result);
}

frmMatch::Opponent frmMatch::ChosenOpponent() const {
  using Kind = MatchChoices::OpponentKind;
  const auto as_it_was = [](const Bot& bot, const char* text) {
    const QString name = ToQString(bot.Name());
    const QString shown = QCoreApplication::translate("frmMatch", text);
    return Opponent{shown.arg(name).toStdString(),
                    QString::fromUtf8(text).arg(name).toStdString(), &bot};
  };
  const Kind kind = choices_->Opponent();
  const Bot* const saved = current_.origin().home->saved.get();
  if (kind == Kind::kAsLoaded) {
    return as_it_was(current_.loaded(),
                     QT_TRANSLATE_NOOP("frmMatch", "%1 as it was loaded"));
  }
  if (kind == Kind::kAsSaved && saved != nullptr) {
    return as_it_was(*saved,
                     QT_TRANSLATE_NOOP("frmMatch", "%1 as it was saved"));
  }
  return {choices_->OpponentName(), choices_->OpponentName()};
}

void frmMatch::StartOrStop() {
  if (runner_.IsRunning()) return runner_.Stop();
  Start(false);
}

Result<std::unique_ptr<MatchSession>> frmMatch::MakeSession(bool search) {
  if (choices_->Server().engine.empty()) {
    return Failure(Trouble(tr("There is no dedicated server to play on."),
                           tr("Install one, such as ioq3ded, and choose it as "
                              "the engine.")));
  }
  std::vector<std::string> maps = choices_->Maps();
  if (maps.empty()) {
    choices_->FocusMap();
    return Failure(
        Trouble(tr("There is no map to play on."), tr("Enter its name.")));
  }
  const Opponent opponent = ChosenOpponent();
  if (opponent.name.empty()) {
    choices_->FocusOpponent();
    return Failure(Trouble(tr("There is nobody to play against."),
                           tr("Choose an opponent.")));
  }
  static const WordLists kNoWords;
  const GameData* const game = checker_.game();
  auto session = std::make_unique<MatchSession>(
      current_.bot(), game == nullptr ? kNoWords : game->words);
  checker_.CheckNow();
  session->findings = checker_.findings();
  session->home = current_.origin().home;
  session->names = {Utf8FromGameText(session->bot.Name()), opponent.name};
  if (!search && opponent.bot != nullptr && *opponent.bot == session->bot) {
    session->remark =
        tr("Nothing is different: it plays against itself.").toStdString();
  }
  const Author author = AuthorOf(state_.settings);
  const int skill = choices_->Skill();
  const auto of_bot = [author, skill](const Bot& bot) {
    Result<MatchBot> read = MatchBotOf(bot, author);
    if (read) read->skill = skill;
    return read;
  };
  MatchReport& report = session->report;
  report.sources = {session->names.front(), opponent.source};
  report.plan.minutes = choices_->Minutes();
  report.plan.maps = std::move(maps);
  Result<MatchBot> own = of_bot(session->bot);
  if (!own) return Failure(own.error());
  Result<MatchBot> other =
      opponent.bot != nullptr
          ? of_bot(*opponent.bot)
          : MatchBot{
                .name = GameTextFromUtf8(opponent.name).value_or(opponent.name),
                .skill = static_cast<double>(skill)};
  if (!other) return Failure(other.error());
  report.plan.bots = {std::move(*own), std::move(*other)};
  if (search) {
    constexpr double kPercent = 100;
    const double share = choices_->WishedShare();
    session->games = kMaxTuneMatches;
    session->search = {.wished_share = share,
                       .bot_at =
                           [of_bot, bot = session->bot](double strength) {
                             return of_bot(WithStrength(bot, strength));
                           },
                       .tuner = Tuner(share, kTuneMargin / kPercent)};
  } else if (choices_->IsUntilSure()) {
    session->games = kMaxUntilSure;
    report.tests.emplace_back(0, 1, SequentialTest::Question());
  } else {
    session->games = choices_->Games();
  }
  return session;
}

void frmMatch::Start(bool search) {
  if (!store_()) return;
  choices_->Save();
  Result<std::unique_ptr<MatchSession>> made = MakeSession(search);
  if (!made) {
    return progress_->Say(QString::fromStdString(Describe(made.error())));
  }
  sessions_.push_back(std::move(*made));
  MatchSession& session = *sessions_.back();
  auto* const row = new QTreeWidgetItem(runs_);
  ShowRun(*row, session);
  SetRunning(true);
  runner_.Start(session, choices_->Server(), choices_->Jobs());
  runs_->setCurrentItem(row);
  ShowProgress();
}

void frmMatch::SetRunning(bool is_running) {
  start_->setText(is_running ? tr("S&top") : tr("&Start"));
  tune_->setEnabled(!is_running);
  choices_->SetRunning(is_running);
  ShowSelected();
  if (!is_running) progress_->Say({});
}

void frmMatch::ShowProgress() {
  if (!runner_.IsRunning()) return;
  const MatchSession& session = *sessions_.back();
  const bool is_open_end = session.is_until_sure() || session.search;
  const QString text =
      is_open_end ? tr("%1 of at most %2 matches played, %3 running, minute %4")
                  : tr("%1 of %2 matches played, %3 running, minute %4");
  progress_->Say(text.arg(session.Matches())
                     .arg(session.games)
                     .arg(runner_.in_play())
                     .arg(runner_.minute()));
}

void frmMatch::ShowNews() {
  ShowRun(*runs_->topLevelItem(runs_->topLevelItemCount() - 1),
          *sessions_.back());
  ShowProgress();
  if (Selected() == sessions_.back().get()) ShowSelected();
}

void frmMatch::ShowRun(QTreeWidgetItem& row, const MatchSession& session) {
  const MatchPlan& plan = session.report.plan;
  QStringList maps;
  for (const std::string& map : plan.maps) maps << QString::fromStdString(map);
  row.setText(kBot, QString::fromStdString(session.names.at(0)));
  row.setText(kAgainst, QString::fromStdString(session.names.at(1)));
  row.setText(kSkillAndMap, QStringLiteral("%1, %2")
                                .arg(plan.bots.front().skill)
                                .arg(maps.join(u',')));
  row.setText(kMatches, QString::number(session.Matches()));
  if (!session.shares.empty()) {
    row.setText(kShare,
                QString::fromStdString(ShownShare(session.shares.back())));
  }
  for (int cell = 0; cell < kRunColumns; ++cell) {
    row.setToolTip(cell,
                   QString::fromStdString(VerdictOf(session)).toHtmlEscaped());
  }
}

void frmMatch::ShowSelected() {
  MatchSession* const session = Selected();
  shown_->setCurrentIndex(session == nullptr ? 0 : 1);
  export_->setEnabled(session != nullptr && !session->report.played.empty());
  take_->setVisible(session != nullptr && session->search);
  take_->setEnabled(session != nullptr && session->end.has_value() &&
                    session->search && session->search->tuner.strength() != 0);
  if (session == nullptr) return;
  std::vector<const MatchSession*> others;
  for (QTreeWidgetItem* const item : runs_->selectedItems()) {
    const MatchSession& other = SessionOf(*item);
    if (&other != session) others.push_back(&other);
  }
  results_->ShowSession(*session, others);
}

const MatchSession& frmMatch::SessionOf(QTreeWidgetItem& row) const {
  const int number = runs_->indexOfTopLevelItem(&row);
  return *sessions_.at(static_cast<std::size_t>(number));
}

void frmMatch::TakeStrength() {
  const MatchSession& session = *Selected();
  if (!IsHere(session) || !store_()) return;
  const double strength = session.search->tuner.strength();
  std::vector<ParameterId> kept;
  current_.Edit(
      {.text = tr("Strength"), .place = WholeBot{}, .merges = false},
      [&](Bot& bot) { kept = TakeStrengthOf(session.bot, strength, bot); });
  const QString text = tr("The bot has that strength now; Undo takes it back.");
  progress_->Say(kept.empty() ? text : text + u' ' + TextAboutKept(kept));
}

bool frmMatch::IsHere(const MatchSession& session) {
  if (session.IsOf(current_.origin().home)) return true;
  progress_->Say(tr("Another bot is in the window now. Load %1 again first.")
                     .arg(QString::fromStdString(session.names.front())));
  return false;
}

MatchSession* frmMatch::Selected() const {
  const int row = runs_->indexOfTopLevelItem(runs_->currentItem());
  return row < 0 ? nullptr : sessions_.at(static_cast<std::size_t>(row)).get();
}

void frmMatch::GoToLine(const ChatPlace& place, const std::string& text) {
  if (!IsHere(*Selected())) return;
  // The bot may have been edited since.
  const std::vector<std::string>& lines = current_.bot().ChatLines(place.type);
  const auto found = std::find(lines.begin(), lines.end(), text);
  ChatPlace now{.type = place.type, .line = {}};
  if (found != lines.end()) {
    now.line = ChatLineIndex(static_cast<std::size_t>(found - lines.begin()));
  }
  emit GoTo(now);
}

void frmMatch::Export(const QString& title, const QString& ending,
                      const std::function<std::string()>& bytes) {
  QFileDialog dialog(this, QString(title).remove(u'&'));
  dialog.setAcceptMode(QFileDialog::AcceptSave);
  dialog.setDefaultSuffix(ending);
  dialog.setNameFilter(QStringLiteral("*.%1").arg(ending));
  if (dialog.exec() != QDialog::Accepted) return;
  const std::filesystem::path path =
      PathFromBytes(dialog.selectedFiles().value(0).toStdString());
  const Result<void> saved = SaveFile(path, bytes());
  if (!saved) {
    state_.prompts.Show({.title = tr("Play it out").toStdString(),
                         .text = Describe(saved.error()),
                         .icon = MessageIcon::kExclamation});
  }
}

}  // namespace fragsmith
