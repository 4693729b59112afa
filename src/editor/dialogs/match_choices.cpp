#include "editor/dialogs/match_choices.h"

#include <QCoreApplication>
#include <QFormLayout>
#include <QSettings>
#include <algorithm>
#include <initializer_list>
#include <set>

#include "editor/state/window_state.h"
#include "editor/toolkit/game_text_conversion.h"
#include "editor/toolkit/wheel_guard.h"
#include "trial/game_trial.h"
#include "trial/match_run.h"
#include "trial/tune.h"

namespace fragsmith {
namespace {

constexpr int kFirstMinutes = 5;
constexpr int kMaxMinutes = 60;
constexpr int kFirstGames = 10;
constexpr int kMaxGames = 1000;
constexpr int kMaxJobs = 64;
constexpr int kPercent = 100;

// The choices stand in a group of their own in the file of the window; the
// engine is first taken from that of the trial.
constexpr const char* kGroup = "match";
constexpr const char* kTrialGroup = "try";
constexpr const char* kOpponent = "opponent";
constexpr const char* kMinutes = "minutes";
constexpr const char* kGames = "games";
constexpr const char* kUntilSure = "untilSure";
constexpr const char* kShare = "share";
constexpr const char* kJobs = "jobs";

// In this language they stand in the file, whichever is shown.
constexpr const char* kAsLoaded =
    QT_TRANSLATE_NOOP("MatchChoices", "The bot as it was loaded");
constexpr const char* kAsSaved =
    QT_TRANSLATE_NOOP("MatchChoices", "The bot as it was last saved");

QString Shown(const char* opponent) {
  return QCoreApplication::translate("MatchChoices", opponent);
}

QSpinBox* MakeNumber(const char* name, const QString& accessible_name,
                     int least, int most, int value, QWidget* parent) {
  auto* const box = new QSpinBox(parent);
  box->setObjectName(QLatin1String(name));
  box->setAccessibleName(accessible_name);
  box->setRange(least, most);
  box->setValue(value);
  return box;
}

}  // namespace

MatchChoices::MatchChoices(const ProgramState& state, QWidget* parent)
    : QWidget(parent),
      state_(state),
      opponent_(new QComboBox(this)),
      engine_(new EngineFields(EngineChoice::kServersAlone, state, *this)),
      skill_(new SkillBox(this)),
      minutes_(MakeNumber("spnMinutes", tr("Minutes of a match"), 1,
                          kMaxMinutes, kFirstMinutes, this)),
      games_(MakeNumber("spnGames", tr("Matches"), 1, kMaxGames, kFirstGames,
                        this)),
      until_sure_(new QCheckBox(tr("Unti&l it is sure"), this)),
      share_(MakeNumber("spnShare", tr("Wished share in a hundred"),
                        kMinWishedShare, kMaxWishedShare, kPercent / 2, this)),
      jobs_(MakeNumber("spnJobs", tr("Matches side by side"), 1, kMaxJobs,
                       std::min(DefaultJobs(), kMaxJobs), this)) {
  auto* const fields = new QFormLayout(this);
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
  share_->setSuffix(QStringLiteral(" %"));
  share_->setToolTip(
      tr("Of the points of the two, for \"Make it as strong\": 50 is an equal "
         "of the opponent"));
  fields->addRow(tr("&Wished share:"), share_);
  fields->addRow(tr("Side &by side:"), jobs_);
  engine_->AddTo(*fields);
  engine_->map().setToolTip(tr("Several with commas between them take turns"));
}

void MatchChoices::FillOpponents(bool was_saved, const GameData* game) {
  const QString chosen = opponent_->currentText();
  opponent_->clear();
  opponent_->addItem(Shown(kAsLoaded));
  if (was_saved) opponent_->addItem(Shown(kAsSaved));
  opponent_->insertSeparator(opponent_->count());
  std::set<std::string> names;
  if (game != nullptr) {
    for (const auto& [name, bot] : game->known_bots) names.insert(name);
  }
  for (const std::string& name : names) opponent_->addItem(ToQString(name));
  if (!chosen.isEmpty()) opponent_->setCurrentText(chosen);
}

MatchChoices::OpponentKind MatchChoices::Opponent() const {
  const QString text = opponent_->currentText().trimmed();
  if (text == Shown(kAsLoaded)) return OpponentKind::kAsLoaded;
  if (text == Shown(kAsSaved)) return OpponentKind::kAsSaved;
  return OpponentKind::kNamed;
}

QString MatchChoices::SavedOpponent() const {
  switch (Opponent()) {
    case OpponentKind::kAsLoaded:
      return QLatin1String(kAsLoaded);
    case OpponentKind::kAsSaved:
      return QLatin1String(kAsSaved);
    case OpponentKind::kNamed:
      break;
  }
  return opponent_->currentText();
}

std::string MatchChoices::OpponentName() const {
  return opponent_->currentText().trimmed().toStdString();
}

double MatchChoices::WishedShare() const {
  return share_->value() / static_cast<double>(kPercent);
}

std::vector<std::string> MatchChoices::Maps() const {
  QString maps = QString::fromStdString(engine_->Map());
  maps.remove(u' ');
  if (maps.isEmpty()) return {};
  return MapsIn(maps.toStdString());
}

MatchServer MatchChoices::Server() const {
  return {.engine = engine_->Engine(),
          .data = engine_->Data(),
          .game = engine_->Game()};
}

void MatchChoices::Load() {
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
  QString opponent =
      file.value(QLatin1String(kOpponent), SavedOpponent()).toString();
  for (const char* const one : {kAsLoaded, kAsSaved}) {
    if (opponent == QLatin1String(one)) opponent = Shown(one);
  }
  opponent_->setCurrentText(opponent);
  skill_->Load(file);
  number(kMinutes, *minutes_);
  number(kGames, *games_);
  number(kShare, *share_);
  number(kJobs, *jobs_);
  until_sure_->setChecked(file.value(QLatin1String(kUntilSure)).toBool());
}

void MatchChoices::Save() const {
  QSettings file(WindowStateFile(state_.folders.program), QSettings::IniFormat);
  file.beginGroup(QLatin1String(kGroup));
  engine_->Save(file);
  const auto save = [&file](const char* key, const QVariant& value) {
    file.setValue(QLatin1String(key), value);
  };
  save(kOpponent, SavedOpponent());
  skill_->Save(file);
  save(kMinutes, minutes_->value());
  save(kGames, games_->value());
  save(kShare, share_->value());
  save(kJobs, jobs_->value());
  save(kUntilSure, until_sure_->isChecked());
}

void MatchChoices::SetRunning(bool is_running) {
  for (QWidget* const field : std::initializer_list<QWidget*>{
           opponent_, skill_, minutes_, until_sure_, share_, jobs_}) {
    field->setEnabled(!is_running);
  }
  games_->setEnabled(!is_running && !until_sure_->isChecked());
  engine_->SetEnabled(!is_running);
}

}  // namespace fragsmith
