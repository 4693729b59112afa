#include "editor/dialogs/match_window.h"

#include <QBuffer>
#include <QDialogButtonBox>
#include <QFileDialog>
#include <QFormLayout>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QMenu>
#include <QScreen>
#include <QSettings>
#include <QSplitter>
#include <QVBoxLayout>
#include <algorithm>
#include <initializer_list>
#include <set>
#include <utility>

#include "editor/state/window_state.h"
#include "editor/toolkit/game_text_conversion.h"
#include "editor/toolkit/wheel_guard.h"
#include "session/save_bot.h"
#include "support/files.h"
#include "trial/game_trial.h"

namespace fragsmith {
namespace {

constexpr int kFirstMinutes = 5;
constexpr int kMaxMinutes = 60;
constexpr int kFirstGames = 10;
constexpr int kMaxGames = 1000;
constexpr int kMaxJobs = 64;

// The choices stand in a group of their own in the file of the window; the
// engine is first taken from that of the trial.
constexpr const char* kGroup = "match";
constexpr const char* kTrialGroup = "try";
constexpr const char* kOpponent = "opponent";
constexpr const char* kMinutes = "minutes";
constexpr const char* kGames = "games";
constexpr const char* kUntilSure = "untilSure";
constexpr const char* kJobs = "jobs";

constexpr const char* kAsLoaded = "The bot as it was loaded";
constexpr const char* kAsSaved = "The bot as it was last saved";

enum RunColumn { kBot, kAgainst, kShare, kMatches, kSkillAndMap, kRunColumns };

QSpinBox* MakeNumber(const char* name, const QString& accessible_name, int most,
                     int value, QWidget* parent) {
  auto* const box = new QSpinBox(parent);
  box->setObjectName(QLatin1String(name));
  box->setAccessibleName(accessible_name);
  box->setRange(1, most);
  box->setValue(value);
  return box;
}

Error Trouble(std::string what, std::string advice) {
  return {.what = std::move(what),
          .file = {},
          .line = 0,
          .advice = std::move(advice)};
}

}  // namespace

frmMatch::frmMatch(CurrentBot& current, const BotChecker& checker,
                   ProgramState& state, std::function<bool()> store,
                   QWidget* parent)
    : QDialog(parent),
      current_(current),
      checker_(checker),
      state_(state),
      store_(std::move(store)),
      runner_(nullptr),
      opponent_(new QComboBox(this)),
      engine_(new EngineFields(EngineChoice::kServersAlone, state, *this)),
      skill_(new SkillBox(this)),
      minutes_(MakeNumber("spnMinutes", tr("Minutes of a match"), kMaxMinutes,
                          kFirstMinutes, this)),
      games_(
          MakeNumber("spnGames", tr("Matches"), kMaxGames, kFirstGames, this)),
      until_sure_(new QCheckBox(tr("Unti&l it is sure"), this)),
      jobs_(MakeNumber("spnJobs", tr("Matches side by side"), kMaxJobs,
                       std::min(DefaultJobs(), kMaxJobs), this)),
      runs_(new QTreeWidget(this)),
      results_(new MatchResults(this)),
      start_(new QPushButton(this)),
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
  left_column->addWidget(MakeChoices());
  left_column->addWidget(start_);
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
  FillOpponents();
  LoadChoices();
  SetRunning(false);
}

QWidget* frmMatch::MakeChoices() {
  auto* const box = new QWidget(this);
  auto* const fields = new QFormLayout(box);
  fields->setContentsMargins(0, 0, 0, 0);
  fields->setFieldGrowthPolicy(QFormLayout::ExpandingFieldsGrow);
  opponent_->setObjectName(QStringLiteral("cmbOpponent"));
  opponent_->setAccessibleName(tr("Against"));
  opponent_->setToolTip(
      tr("How this bot was, or the name of a bot of the installed game"));
  opponent_->setEditable(true);
  opponent_->setInsertPolicy(QComboBox::NoInsert);
  opponent_->setMinimumContentsLength(20);
  opponent_->setSizeAdjustPolicy(
      QComboBox::AdjustToMinimumContentsLengthWithIcon);
  IgnoreWheelWithoutFocus(*opponent_);
  fields->addRow(tr("Aga&inst:"), opponent_);
  fields->addRow(tr("S&kill:"), skill_);
  fields->addRow(tr("Min&utes:"), minutes_);
  minutes_->setToolTip(tr("Of game time: five pass in some seconds"));
  fields->addRow(tr("Matc&hes:"), games_);
  until_sure_->setObjectName(QStringLiteral("chkUntilSure"));
  until_sure_->setToolTip(
      tr("Plays until it is clear which of the two is better, or that they "
         "differ by less than 5 points in a hundred, %1 matches at most")
          .arg(kMaxUntilSure));
  connect(until_sure_, &QCheckBox::toggled, games_, &QWidget::setDisabled);
  fields->addRow(QString(), until_sure_);
  fields->addRow(tr("Side &by side:"), jobs_);
  engine_->AddTo(*fields);
  engine_->map().setToolTip(tr("Several with commas between them take turns"));
  start_->setObjectName(QStringLiteral("cmdStart"));
  // Enter in a list leads to its row, and begins nothing.
  start_->setAutoDefault(false);
  connect(start_, &QPushButton::clicked, this, &frmMatch::StartOrStop);
  return box;
}

QWidget* frmMatch::MakeRuns() {
  auto* const box = new QWidget(this);
  auto* const column = new QVBoxLayout(box);
  column->setContentsMargins(0, 0, 0, 0);
  auto* const heading = new QLabel(tr("&Runs of this session:"), box);
  heading->setBuddy(runs_);
  column->addWidget(heading);
  column->addWidget(runs_, 1);
  runs_->setObjectName(QStringLiteral("lstRuns"));
  runs_->setAccessibleName(tr("Runs of this session"));
  runs_->setHeaderLabels(
      {tr("Bot"), tr("Against"), tr("Share"), tr("Matches"), tr("Skill, map")});
  runs_->setRootIsDecorated(false);
  runs_->setAllColumnsShowFocus(true);
  runs_->setMinimumHeight(6 * fontMetrics().lineSpacing());
  runs_->header()->setStretchLastSection(false);
  runs_->header()->setSectionResizeMode(QHeaderView::ResizeToContents);
  connect(runs_, &QTreeWidget::currentItemChanged, this,
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
  auto* const close = new QPushButton(tr("&Close"), this);
  close->setObjectName(QStringLiteral("cmdClose"));
  close->setAutoDefault(false);
  buttons->addButton(close, QDialogButtonBox::RejectRole);
  connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
  return buttons;
}

void frmMatch::FillOpponents() {
  const QString chosen = opponent_->currentText();
  opponent_->clear();
  opponent_->addItem(QLatin1String(kAsLoaded));
  if (current_.origin().home->saved) {
    opponent_->addItem(QLatin1String(kAsSaved));
  }
  opponent_->insertSeparator(opponent_->count());
  std::set<std::string> names;
  if (checker_.game() != nullptr) {
    for (const auto& [name, bot] : checker_.game()->known_bots) {
      names.insert(name);
    }
  }
  for (const std::string& name : names) opponent_->addItem(ToQString(name));
  if (!chosen.isEmpty()) opponent_->setCurrentText(chosen);
}

void frmMatch::LoadChoices() {
  QSettings file(WindowStateFile(state_.folders.program), QSettings::IniFormat);
  file.beginGroup(QLatin1String(kGroup));
  if (!engine_->Load(file)) {
    file.endGroup();
    file.beginGroup(QLatin1String(kTrialGroup));
    if (!engine_->Load(file) || !IsDedicatedServer(engine_->Engine())) {
      engine_->Suggest();
    }
    return;
  }
  const auto number = [&file](const char* key, QSpinBox& box) {
    box.setValue(file.value(QLatin1String(key), box.value()).toInt());
  };
  opponent_->setCurrentText(
      file.value(QLatin1String(kOpponent), opponent_->currentText())
          .toString());
  skill_->Load(file);
  number(kMinutes, *minutes_);
  number(kGames, *games_);
  number(kJobs, *jobs_);
  until_sure_->setChecked(file.value(QLatin1String(kUntilSure)).toBool());
}

void frmMatch::SaveChoices() const {
  QSettings file(WindowStateFile(state_.folders.program), QSettings::IniFormat);
  file.beginGroup(QLatin1String(kGroup));
  engine_->Save(file);
  const auto save = [&file](const char* key, const QVariant& value) {
    file.setValue(QLatin1String(key), value);
  };
  save(kOpponent, opponent_->currentText());
  skill_->Save(file);
  save(kMinutes, minutes_->value());
  save(kGames, games_->value());
  save(kJobs, jobs_->value());
  save(kUntilSure, until_sure_->isChecked());
}

void frmMatch::Present() {
  if (!runner_.IsRunning()) FillOpponents();
  show();
  raise();
  activateWindow();
}

void frmMatch::done(int result) {
  SaveChoices();
  runner_.Stop();
  QDialog::done(result);
}

frmMatch::Opponent frmMatch::ChosenOpponent() const {
  const QString text = opponent_->currentText().trimmed();
  const auto as_it_was = [](const Bot& bot, const char* when) {
    return Opponent{Utf8FromGameText(bot.Name()) + when, &bot};
  };
  if (text == QLatin1String(kAsLoaded)) {
    return as_it_was(current_.loaded(), " as it was loaded");
  }
  const Bot* const saved = current_.origin().home->saved.get();
  if (text == QLatin1String(kAsSaved) && saved != nullptr) {
    return as_it_was(*saved, " as it was saved");
  }
  return {text.toStdString()};
}

void frmMatch::StartOrStop() {
  if (runner_.IsRunning()) return runner_.Stop();
  Start();
}

Result<std::unique_ptr<MatchSession>> frmMatch::MakeSession() {
  if (engine_->Engine().empty()) {
    return Failure(Trouble("There is no dedicated server to play on.",
                           "Install one, such as ioq3ded, and choose it as "
                           "the engine."));
  }
  if (engine_->Map().empty()) {
    engine_->map().setFocus();
    return Failure(Trouble("There is no map to play on.", "Enter its name."));
  }
  const Opponent opponent = ChosenOpponent();
  if (opponent.name.empty()) {
    opponent_->setFocus();
    return Failure(
        Trouble("There is nobody to play against.", "Choose an opponent."));
  }
  static const WordLists kNoWords;
  const GameData* const game = checker_.game();
  auto session = std::make_unique<MatchSession>(
      current_.bot(), game == nullptr ? kNoWords : game->words);
  session->names = {Utf8FromGameText(session->bot.Name()), opponent.name};
  if (opponent.bot != nullptr && *opponent.bot == session->bot) {
    session->remark = "Nothing is different: it plays against itself.";
  }
  session->games = until_sure_->isChecked() ? kMaxUntilSure : games_->value();
  MatchReport& report = session->report;
  report.sources = session->names;
  if (until_sure_->isChecked()) {
    report.tests.emplace_back(0, 1, SequentialTest::Question());
  }
  report.plan.minutes = minutes_->value();
  QString maps = QString::fromStdString(engine_->Map());
  report.plan.maps = MapsIn(maps.remove(u' ').toStdString());
  const Author author = AuthorOf(state_.settings);
  for (const Bot* const bot :
       {static_cast<const Bot*>(&session->bot), opponent.bot}) {
    Result<MatchBot> read =
        bot == nullptr ? MatchBot{.name = GameTextFromUtf8(opponent.name)
                                              .value_or(opponent.name)}
                       : MatchBotOf(*bot, author);
    if (!read) return Failure(read.error());
    read->skill = skill_->Skill();
    report.plan.bots.push_back(std::move(*read));
  }
  return session;
}

void frmMatch::Start() {
  if (!store_()) return;
  SaveChoices();
  Result<std::unique_ptr<MatchSession>> made = MakeSession();
  if (!made) {
    return progress_->Say(QString::fromStdString(Describe(made.error())));
  }
  sessions_.push_back(std::move(*made));
  MatchSession& session = *sessions_.back();
  auto* const row = new QTreeWidgetItem(runs_);
  ShowRun(*row, session);
  SetRunning(true);
  runner_.Start(session,
                {.engine = engine_->Engine(),
                 .data = engine_->Data(),
                 .game = engine_->Game()},
                jobs_->value());
  runs_->setCurrentItem(row);
  ShowProgress();
}

void frmMatch::SetRunning(bool is_running) {
  start_->setText(is_running ? tr("S&top") : tr("&Start"));
  for (QWidget* const field : std::initializer_list<QWidget*>{
           opponent_, skill_, minutes_, until_sure_, jobs_}) {
    field->setEnabled(!is_running);
  }
  games_->setEnabled(!is_running && !until_sure_->isChecked());
  engine_->SetEnabled(!is_running);
  export_->setEnabled(Selected() != nullptr &&
                      !Selected()->report.played.empty());
  if (!is_running) progress_->Say({});
}

void frmMatch::ShowProgress() {
  if (!runner_.IsRunning()) return;
  const MatchSession& session = *sessions_.back();
  progress_->Say(tr("%1 of %2%3 matches played, %4 running, minute %5")
                     .arg(session.report.played.size())
                     .arg(session.is_until_sure() ? tr("at most ") : QString())
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
  QString maps;
  for (const std::string& map : plan.maps) {
    maps += (maps.isEmpty() ? QString() : QStringLiteral(",")) +
            QString::fromStdString(map);
  }
  row.setText(kBot, QString::fromStdString(session.names.at(0)));
  row.setText(kAgainst, QString::fromStdString(session.names.at(1)));
  row.setText(kSkillAndMap,
              QStringLiteral("%1, %2").arg(plan.bots.front().skill).arg(maps));
  row.setText(kMatches, QString::number(session.report.played.size()));
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
  if (session != nullptr) results_->ShowSession(*session);
}

MatchSession* frmMatch::Selected() const {
  const int row = runs_->indexOfTopLevelItem(runs_->currentItem());
  return row < 0 ? nullptr : sessions_.at(static_cast<std::size_t>(row)).get();
}

void frmMatch::GoToLine(const ChatPlace& place, const std::string& text) {
  // The bot may have been edited since.
  const std::vector<std::string>& lines = current_.bot().ChatLines(place.type);
  const auto found = std::find(lines.begin(), lines.end(), text);
  ChatPlace now{.type = place.type, .line = {}};
  if (found != lines.end()) {
    now.line = static_cast<int>(found - lines.begin());
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
    state_.prompts.Show({.title = "Play it out",
                         .text = Describe(saved.error()),
                         .icon = MessageIcon::kExclamation});
  }
}

}  // namespace fragsmith
