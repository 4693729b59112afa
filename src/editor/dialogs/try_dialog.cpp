#include "editor/dialogs/try_dialog.h"

#include <QApplication>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QLabel>
#include <QRegularExpression>
#include <QSettings>
#include <QSplitter>
#include <QStyle>
#include <QVBoxLayout>
#include <algorithm>
#include <filesystem>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "checks/bot_on_disk.h"
#include "checks/file_checks.h"
#include "editor/state/window_state.h"
#include "editor/toolkit/game_text_conversion.h"
#include "editor/toolkit/severity_icon.h"
#include "editor/toolkit/wheel_guard.h"
#include "session/save_bot.h"
#include "support/files.h"

namespace fragsmith {
namespace fs = std::filesystem;
namespace {

constexpr int kWatchMilliseconds = 50;
/// A server that nobody stopped, as after a crash of ours, goes by itself.
constexpr int kServerSeconds = 1800;

// The choices stand in a group of their own in the file of the window.
constexpr const char* kGroup = "try";
constexpr const char* kOpponents = "opponents";

}  // namespace

frmTry::frmTry(const Bot& bot, const std::vector<Finding>& findings,
               std::optional<BotLocation> on_disk, const InstalledGame* game,
               ProgramState& state, QWidget* parent)
    : QDialog(parent),
      bot_(bot),
      findings_(findings),
      on_disk_(std::move(on_disk)),
      game_data_(game),
      state_(state),
      what_(new QComboBox(this)),
      engine_(new EngineFields(EngineChoice::kAll, state, *this)),
      skill_(new SkillBox(this)),
      opponents_(new QLineEdit(this)),
      start_(new QPushButton(this)),
      lines_(new QListWidget(this)),
      verdict_(new HintLine(2, this)) {
  setObjectName(QStringLiteral("frmTry"));
  setWindowTitle(tr("Try %1 in game").arg(ToQString(bot.Name())));
  auto* const column = new QVBoxLayout(this);
  column->addLayout(MakeFields());
  column->addWidget(MakeLists(), 1);
  column->addWidget(verdict_);
  column->addWidget(MakeButtonRow());
  const QWidgetList in_tab_order =
      QWidgetList{what_} + engine_->InTabOrder() +
      QWidgetList{skill_, opponents_, lines_, found_, start_, close_};
  for (qsizetype index = 1; index < in_tab_order.size(); ++index) {
    setTabOrder(in_tab_order[index - 1], in_tab_order[index]);
  }
  const int line = fontMetrics().lineSpacing();
  resize(50 * line, 32 * line);

  watch_.setInterval(kWatchMilliseconds);
  connect(&watch_, &QTimer::timeout, this, &frmTry::Watch);
  connect(qApp, &QGuiApplication::commitDataRequest, this, [this] {
    EndNow();
    SetRunning(false);
  });
  LoadChoices();
  SetRunning(false);
  start_->setFocus();
}

frmTry::~frmTry() { EndNow(); }

QLayout* frmTry::MakeFields() {
  auto* const fields = new QFormLayout;
  fields->setFieldGrowthPolicy(QFormLayout::ExpandingFieldsGrow);
  what_->setObjectName(QStringLiteral("cmbWhat"));
  what_->setAccessibleName(tr("Try"));
  what_->addItem(tr("The bot as it is in the window"));
  what_->addItem(tr("Its files as they are on disk"));
  IgnoreWheelWithoutFocus(*what_);
  connect(what_, &QComboBox::currentIndexChanged, this, &frmTry::ShowFindings);
  if (DiffersOnDisk()) {
    fields->addRow(tr("T&ry:"), what_);
  } else {
    what_->hide();
  }
  engine_->AddTo(*fields);
  fields->addRow(tr("S&kill:"), skill_);
  opponents_->setObjectName(QStringLiteral("txtOpponents"));
  opponents_->setAccessibleName(tr("Opponents"));
  fields->addRow(tr("&Opponents:"), opponents_);
  opponents_->setPlaceholderText(tr("names of bots, with blanks between"));
  return fields;
}

bool frmTry::DiffersOnDisk() const {
  if (!on_disk_) return false;
  const BotFileSet files = ReadBot(FilesOf(*on_disk_), on_disk_->name).files;
  return std::any_of(kBotFileMembers.begin(), kBotFileMembers.end(),
                     [&](const BotFileMember& row) {
                       const std::optional<GameFile>& file = files.*row.member;
                       return !file ||
                              file->bytes != BytesOf(row.file, bot_,
                                                     AuthorOf(state_.settings));
                     });
}

bool frmTry::IsAsOnDisk() const { return what_->currentIndex() > 0; }

void frmTry::ShowFindings() {
  std::vector<Finding> findings = findings_;
  if (IsAsOnDisk()) {
    const LocationCheck check(*on_disk_, false, game_data_);
    findings = check.OfAll(check.Read());
    for (Finding& finding : findings) finding.mends.clear();
  } else {
    std::erase_if(findings, [](const Finding& finding) {
      return std::holds_alternative<FilePlace>(finding.place);
    });
  }
  found_->ShowFindings(findings);
}

QWidget* frmTry::MakeLists() {
  found_ = new FindingsView(this);
  found_->setObjectName(QStringLiteral("lstFound"));
  found_->HideButtons();
  ShowFindings();
  lines_->setObjectName(QStringLiteral("lstLines"));
  lines_->setWordWrap(true);
  lines_->setIconSize(found_->iconSize());
  auto* const sides = new QSplitter(this);
  sides->setChildrenCollapsible(false);
  const auto add = [sides](const QString& caption, QListView* list) {
    auto* const side = new QWidget(sides);
    auto* const column = new QVBoxLayout(side);
    column->setContentsMargins(0, 0, 0, 0);
    auto* const heading = new QLabel(caption, side);
    heading->setBuddy(list);
    list->setAccessibleName(QString(caption).remove(u'&').remove(u':'));
    column->addWidget(heading);
    column->addWidget(list, 1);
    sides->addWidget(side);
  };
  add(tr("&What the game says:"), lines_);
  add(tr("What our c&hecks say:"), found_);
  return sides;
}

QWidget* frmTry::MakeButtonRow() {
  auto* const buttons = new QDialogButtonBox(this);
  start_->setObjectName(QStringLiteral("cmdStart"));
  start_->setDefault(true);
  connect(start_, &QPushButton::clicked, this, &frmTry::StartOrStop);
  buttons->addButton(start_, QDialogButtonBox::ActionRole);
  close_ = new QPushButton(tr("&Close"), this);
  close_->setObjectName(QStringLiteral("cmdClose"));
  close_->setAutoDefault(false);
  buttons->addButton(close_, QDialogButtonBox::RejectRole);
  connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
  return buttons;
}

void frmTry::LoadChoices() {
  QSettings file(WindowStateFile(state_.folders.program), QSettings::IniFormat);
  file.beginGroup(QLatin1String(kGroup));
  if (!engine_->Load(file)) return engine_->Suggest();
  skill_->Load(file);
  opponents_->setText(file.value(QLatin1String(kOpponents)).toString());
}

void frmTry::SaveChoices() const {
  QSettings file(WindowStateFile(state_.folders.program), QSettings::IniFormat);
  file.beginGroup(QLatin1String(kGroup));
  engine_->Save(file);
  skill_->Save(file);
  file.setValue(QLatin1String(kOpponents), opponents_->text());
}

TrialSetup frmTry::Setup() const {
  TrialSetup setup;
  setup.engine = engine_->Engine();
  setup.data = engine_->Data();
  setup.game = engine_->Game();
  setup.map = engine_->Map();
  setup.skill = skill_->Skill();
  static const QRegularExpression kBlanks(QStringLiteral("\\s+"));
  for (const QString& name :
       opponents_->text().split(kBlanks, Qt::SkipEmptyParts)) {
    setup.opponents.push_back(ToGameText(name).value_or(name.toStdString()));
  }
  setup.is_dedicated = IsDedicatedServer(setup.engine);
  setup.seconds = kServerSeconds;
  return setup;
}

void frmTry::StartOrStop() {
  if (!run_) return Start();
  run_->End();
  ShowEnd(true);
}

Result<void> frmTry::PutBot(const fs::path& home) {
  added_name_ = bot_.Name();
  if (!IsAsOnDisk()) {
    return WriteTrialPackage(bot_, home, AuthorOf(state_.settings));
  }
  const GivenFiles given = FilesOf(*on_disk_);
  const std::string name = NameToAdd(ReadBot(given, on_disk_->name).files);
  added_name_ = name.empty() ? on_disk_->name : name;
  return PutTrialFiles(given, home);
}

Result<void> frmTry::StartEngine(TrialSetup setup) {
  const Result<fs::path> home = scratch_.emplace().GetTempFolder();
  if (!home) return Failure(home.error());
  setup.home = *home;
  Result<void> done = MakePathsPlain(setup);
  if (done) done = PutBot(*home);
  if (!done) return done;
  Result<TrialRun> run = TrialRun::Start(setup, added_name_);
  if (!run) return Failure(run.error());
  reader_.emplace(setup, added_name_,
                  IsAsOnDisk() ? on_disk_->name : bot_.Name());
  run_.emplace(std::move(*run));
  return {};
}

void frmTry::Start() {
  SaveChoices();
  lines_->clear();
  verdict_->Say({});
  const TrialSetup setup = Setup();
  if (setup.map.empty()) {
    ShowFault(tr("There is no map to play on. Enter its name."));
    engine_->map().setFocus();
    return;
  }
  const Result<void> started = StartEngine(setup);
  if (!started) {
    return ShowFault(QString::fromStdString(Describe(started.error())));
  }
  SetRunning(true);
  watch_.start();
}

void frmTry::Watch() {
  // What it printed before it went is read all the same.
  const bool is_running = run_->IsRunning();
  ShowOutput();
  if (run_->IsEndless()) {
    run_->End();
    ShowEnd(true);
    verdict_->Say(verdict_->text() + u'\n' +
                  tr("The engine prints without end. It was ended."));
  } else if (!is_running) {
    ShowEnd(false);
  }
}

void frmTry::ShowOutput() {
  const bool was_over = reader_->is_over();
  for (std::string_view more = run_->ReadMore(); !more.empty();
       more = run_->ReadMore()) {
    for (const TrialLine& line : reader_->Read(more)) {
      QString text = QString::fromStdString(line.text);
      if (!line.sentence.empty()) {
        text += u'\n' + QString::fromStdString(line.sentence);
      }
      auto* const item = new QListWidgetItem(text, lines_);
      item->setIcon(SeverityIcon(line.severity, *style()));
      lines_->scrollToBottom();
    }
    if (run_->IsEndless()) break;
  }
  if (reader_->is_over() && !was_over) {
    verdict_->Say(
        QString::fromStdString(VerdictText(reader_->verdict(), added_name_)));
  }
}

void frmTry::ShowEnd(bool is_stopped) {
  ShowOutput();
  if (!reader_->is_over()) {
    QString text =
        QString::fromStdString(VerdictText(reader_->verdict(), added_name_));
    if (!is_stopped) {
      text = tr("The engine ended before the bot was added. %1 "
                "Look at the data folder and the game folder.")
                 .arg(text);
      const std::vector<std::string> last = reader_->LastLines();
      if (!last.empty()) {
        lines_->addItem(tr("What it printed last:"));
      }
      for (const std::string& line : last) {
        lines_->addItem(QString::fromStdString(line));
      }
      lines_->scrollToBottom();
    }
    verdict_->Say(text);
  }
  EndNow();
  SetRunning(false);
}

void frmTry::ShowFault(const QString& text) {
  verdict_->Say(text);
  EndNow();
  SetRunning(false);
}

void frmTry::SetRunning(bool is_running) {
  start_->setText(is_running ? tr("S&top") : tr("&Start"));
  start_->setEnabled(true);
  engine_->SetEnabled(!is_running);
  what_->setEnabled(!is_running);
  skill_->setEnabled(!is_running);
  opponents_->setEnabled(!is_running);
}

void frmTry::EndNow() {
  run_.reset();
  reader_.reset();
  scratch_.reset();
  watch_.stop();
}

void frmTry::done(int result) {
  SaveChoices();
  EndNow();
  QDialog::done(result);
}

}  // namespace fragsmith
