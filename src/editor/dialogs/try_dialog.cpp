#include "editor/dialogs/try_dialog.h"

#include <QDialogButtonBox>
#include <QLabel>
#include <QRegularExpression>
#include <QSettings>
#include <QSplitter>
#include <QStyle>
#include <QVBoxLayout>
#include <filesystem>
#include <string>
#include <vector>

#include "editor/game_text_conversion.h"
#include "editor/severity_icon.h"
#include "session/save_bot.h"
#include "support/files.h"

namespace fragsmith {
namespace fs = std::filesystem;
namespace {

/// As the game's own menu has them, from 1.
constexpr const char* kSkillNames[] = {"1 - I Can Win", "2 - Bring It On",
                                       "3 - Hurt Me Plenty", "4 - Hardcore",
                                       "5 - Nightmare!"};
constexpr int kFirstSkill = 4;

constexpr int kPatienceMilliseconds = 2000;
/// A server that nobody stopped, as after a crash of ours, goes by itself.
constexpr int kServerSeconds = 1800;

// The choices stand in a group of their own in the file of the window.
constexpr const char* kGroup = "try";
constexpr const char* kEngine = "engine";
constexpr const char* kData = "data";
constexpr const char* kGame = "game";
constexpr const char* kMap = "map";
constexpr const char* kSkill = "skill";
constexpr const char* kOpponents = "opponents";

QString FileIn(const fs::path& program_folder) {
  return QString::fromStdString(BytesFromPath(program_folder / "fgs.window"));
}

QString Shown(const std::string& utf8) { return QString::fromStdString(utf8); }

QString TextOf(const QLineEdit& box) { return box.text().trimmed(); }

fs::path PathOf(const QString& text) {
  return PathFromBytes(text.trimmed().toStdString());
}

}  // namespace

frmTry::frmTry(const Bot& bot, const std::vector<Finding>& findings,
               ProgramState& state, QWidget* parent)
    : QDialog(parent),
      bot_(bot),
      state_(state),
      engine_(new QComboBox(this)),
      skill_(new QComboBox(this)),
      start_(new QPushButton(this)),
      lines_(new QListWidget(this)),
      verdict_(new HintLine(2, this)) {
  setObjectName(QStringLiteral("frmTry"));
  setWindowTitle(QStringLiteral("Try %1 in game").arg(ToQString(bot.Name())));
  auto* const column = new QVBoxLayout(this);
  column->addLayout(MakeFields());
  column->addWidget(MakeLists(findings), 1);
  column->addWidget(verdict_);
  column->addWidget(MakeButtonRow());
  const QWidgetList in_tab_order = {engine_,    data_,  game_,  map_,   skill_,
                                    opponents_, lines_, found_, start_, close_};
  for (qsizetype place = 1; place < in_tab_order.size(); ++place) {
    setTabOrder(in_tab_order[place - 1], in_tab_order[place]);
  }
  const int line = fontMetrics().lineSpacing();
  resize(50 * line, 32 * line);

  patience_.setSingleShot(true);
  patience_.setInterval(kPatienceMilliseconds);
  connect(&patience_, &QTimer::timeout, &process_, &QProcess::kill);
  process_.setProcessChannelMode(QProcess::MergedChannels);
  process_.setStandardInputFile(QProcess::nullDevice());
  connect(&process_, &QProcess::readyRead, this, &frmTry::ShowOutput);
  connect(&process_, &QProcess::finished, this, &frmTry::ShowEnd);
  connect(&process_, &QProcess::errorOccurred, this,
          [this](QProcess::ProcessError error) {
            if (error != QProcess::FailedToStart) return;
            ShowFault(QStringLiteral("The engine cannot be started: %1.")
                          .arg(process_.errorString()));
          });
  FillEngines();
  LoadChoices();
  SetRunning(false);
  start_->setFocus();
}

frmTry::~frmTry() {
  process_.disconnect(this);
  EndNow();
}

QLayout* frmTry::MakeFields() {
  auto* const fields = new QFormLayout;
  fields->setFieldGrowthPolicy(QFormLayout::ExpandingFieldsGrow);
  engine_->setObjectName(QStringLiteral("cmbEngine"));
  engine_->setAccessibleName(QStringLiteral("Engine"));
  engine_->setToolTip(
      QStringLiteral("The game's program. With a dedicated server nothing is "
                     "seen but its words."));
  engine_->setEditable(true);
  engine_->setInsertPolicy(QComboBox::NoInsert);
  engine_->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
  connect(engine_, &QComboBox::textActivated, this, &frmTry::SuggestGame);
  fields->addRow(QStringLiteral("&Engine:"), engine_);
  data_ = AddField("&Data folder:", "txtData", fields);
  data_->setPlaceholderText(QStringLiteral("where the engine looks by itself"));
  data_->setToolTip(
      QStringLiteral("The folder above the game folder; empty for the one "
                     "that the engine knows"));
  game_ = AddField("&Game folder:", "txtGame", fields);
  game_->setToolTip(QStringLiteral("baseq3, or baseoa for OpenArena"));
  map_ = AddField("&Map:", "txtMap", fields);
  skill_->setObjectName(QStringLiteral("cmbSkill"));
  skill_->setAccessibleName(QStringLiteral("Skill"));
  for (const char* const name : kSkillNames) {
    skill_->addItem(QString::fromUtf8(name));
  }
  fields->addRow(QStringLiteral("S&kill:"), skill_);
  opponents_ = AddField("&Opponents:", "txtOpponents", fields);
  opponents_->setPlaceholderText(
      QStringLiteral("names of bots, with blanks between"));
  return fields;
}

QWidget* frmTry::MakeLists(const std::vector<Finding>& findings) {
  found_ = new FindingsView(this);
  found_->setObjectName(QStringLiteral("lstFound"));
  found_->ShowFindings(findings);
  lines_->setObjectName(QStringLiteral("lstLines"));
  lines_->setWordWrap(true);
  lines_->setIconSize(found_->iconSize());
  auto* const sides = new QSplitter(this);
  sides->setChildrenCollapsible(false);
  const auto add = [sides](const QString& caption, QListWidget* list) {
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
  add(QStringLiteral("&What the game says:"), lines_);
  add(QStringLiteral("What our c&hecks say:"), found_);
  return sides;
}

QWidget* frmTry::MakeButtonRow() {
  auto* const buttons = new QDialogButtonBox(this);
  start_->setObjectName(QStringLiteral("cmdStart"));
  start_->setDefault(true);
  connect(start_, &QPushButton::clicked, this, &frmTry::StartOrStop);
  buttons->addButton(start_, QDialogButtonBox::ActionRole);
  close_ = new QPushButton(QStringLiteral("&Close"), this);
  close_->setObjectName(QStringLiteral("cmdClose"));
  close_->setAutoDefault(false);
  buttons->addButton(close_, QDialogButtonBox::RejectRole);
  connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
  return buttons;
}

QLineEdit* frmTry::AddField(const char* caption, const char* name,
                            QFormLayout* fields) {
  auto* const box = new QLineEdit(this);
  box->setObjectName(QString::fromUtf8(name));
  const QString text = QString::fromUtf8(caption);
  box->setAccessibleName(QString(text).remove(u'&').remove(u':'));
  fields->addRow(text, box);
  return box;
}

void frmTry::FillEngines() {
  std::vector<fs::path> folders;
  if (!state_.settings.Q3Baseq3.empty()) {
    folders.push_back(PathFromBytes(state_.settings.Q3Baseq3));
  }
  for (fs::path& folder : EngineFolders(qgetenv("PATH").toStdString())) {
    folders.push_back(std::move(folder));
  }
  for (const fs::path& engine : FindEngines(folders)) {
    engine_->addItem(Shown(BytesFromPath(engine)));
  }
}

void frmTry::LoadChoices() {
  QSettings file(FileIn(state_.folders.program), QSettings::IniFormat);
  file.beginGroup(QLatin1String(kGroup));
  if (!file.contains(QLatin1String(kEngine))) {
    data_->setText(Shown(state_.settings.Q3Baseq3));
    skill_->setCurrentIndex(kFirstSkill - 1);
    SuggestGame();
    return;
  }
  const auto text = [&file](const char* key) {
    return file.value(QLatin1String(key)).toString();
  };
  engine_->setCurrentText(text(kEngine));
  data_->setText(text(kData));
  game_->setText(text(kGame));
  map_->setText(text(kMap));
  skill_->setCurrentIndex(
      qBound(1, file.value(QLatin1String(kSkill), kFirstSkill).toInt(),
             skill_->count()) -
      1);
  opponents_->setText(text(kOpponents));
}

void frmTry::SaveChoices() const {
  QSettings file(FileIn(state_.folders.program), QSettings::IniFormat);
  file.beginGroup(QLatin1String(kGroup));
  const auto save = [&file](const char* key, const QVariant& value) {
    file.setValue(QLatin1String(key), value);
  };
  save(kEngine, engine_->currentText());
  save(kData, data_->text());
  save(kGame, game_->text());
  save(kMap, map_->text());
  save(kSkill, skill_->currentIndex() + 1);
  save(kOpponents, opponents_->text());
}

void frmTry::SuggestGame() {
  const std::string game =
      DefaultGame(PathOf(engine_->currentText()), PathOf(data_->text()));
  game_->setText(Shown(game));
  map_->setText(Shown(DefaultMap(game)));
}

TrialSetup frmTry::Setup() const {
  TrialSetup setup;
  setup.engine = PathOf(engine_->currentText());
  setup.data = PathOf(data_->text());
  setup.game = TextOf(*game_).toStdString();
  setup.map = TextOf(*map_).toStdString();
  setup.skill = skill_->currentIndex() + 1;
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
  if (process_.state() == QProcess::NotRunning) {
    Start();
    return;
  }
  is_stopped_ = true;
  start_->setEnabled(false);
  patience_.start();
  process_.terminate();
}

void frmTry::Start() {
  SaveChoices();
  lines_->clear();
  verdict_->Say({});
  TrialSetup setup = Setup();
  if (setup.map.empty()) {
    ShowFault(QStringLiteral("There is no map to play on. Enter its name."));
    map_->setFocus();
    return;
  }
  scratch_.emplace();
  const Result<fs::path> home = scratch_->GetTempFolder();
  const Result<void> written =
      home ? WriteTrialPackage(bot_, *home, AuthorOf(state_.settings))
           : Result<void>(Failure(home.error()));
  if (!written) {
    ShowFault(Shown(Describe(written.error())));
    return;
  }
  setup.home = *home;
  reader_.emplace(setup, bot_.Name());
  is_stopped_ = false;
  QStringList arguments;
  for (const std::string& argument : TrialArguments(setup, bot_.Name())) {
    arguments << Shown(argument);
  }
  SetRunning(true);
  process_.start(engine_->currentText().trimmed(), arguments);
}

void frmTry::ShowOutput() {
  const QByteArray bytes = process_.readAll();
  if (!reader_) return;
  const bool was_over = reader_->is_over();
  for (const TrialLine& line : reader_->Read(
           {bytes.constData(), static_cast<std::size_t>(bytes.size())})) {
    QString text = Shown(line.text);
    if (!line.sentence.empty()) text += u'\n' + Shown(line.sentence);
    auto* const item = new QListWidgetItem(text, lines_);
    item->setIcon(SeverityIcon(line.severity, *style()));
  }
  lines_->scrollToBottom();
  if (reader_->is_over() && !was_over) {
    verdict_->Say(Shown(VerdictText(reader_->verdict(), bot_.Name())));
  }
}

void frmTry::ShowEnd() {
  ShowOutput();
  patience_.stop();
  if (reader_ && !reader_->is_over()) {
    QString text = Shown(VerdictText(reader_->verdict(), bot_.Name()));
    if (!is_stopped_) {
      text = QStringLiteral(
                 "The engine ended before the bot was added. %1 "
                 "Look at the data folder and the game folder.")
                 .arg(text);
      const std::vector<std::string> last = reader_->LastLines();
      if (!last.empty()) {
        lines_->addItem(QStringLiteral("What it printed last:"));
      }
      for (const std::string& line : last) lines_->addItem(Shown(line));
      lines_->scrollToBottom();
    }
    verdict_->Say(text);
  }
  scratch_.reset();
  SetRunning(false);
}

void frmTry::ShowFault(const QString& text) {
  verdict_->Say(text);
  reader_.reset();
  scratch_.reset();
  SetRunning(false);
}

void frmTry::SetRunning(bool is_running) {
  start_->setText(is_running ? QStringLiteral("S&top")
                             : QStringLiteral("&Start"));
  start_->setEnabled(true);
  for (QWidget* const field :
       {static_cast<QWidget*>(engine_), static_cast<QWidget*>(data_),
        static_cast<QWidget*>(game_), static_cast<QWidget*>(map_),
        static_cast<QWidget*>(skill_), static_cast<QWidget*>(opponents_)}) {
    field->setEnabled(!is_running);
  }
}

void frmTry::EndNow() {
  is_stopped_ = true;
  patience_.stop();
  if (process_.state() != QProcess::NotRunning) {
    process_.terminate();
    if (!process_.waitForFinished(kPatienceMilliseconds)) {
      process_.kill();
      process_.waitForFinished();
    }
  }
  scratch_.reset();
}

void frmTry::done(int result) {
  SaveChoices();
  EndNow();
  QDialog::done(result);
}

}  // namespace fragsmith
