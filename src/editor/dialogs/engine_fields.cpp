#include "editor/dialogs/engine_fields.h"

#include <QStandardPaths>
#include <utility>
#include <vector>

#include "editor/toolkit/wheel_guard.h"
#include "support/files.h"
#include "trial/game_trial.h"

namespace fragsmith {
namespace fs = std::filesystem;
namespace {

constexpr const char* kEngine = "engine";
constexpr const char* kData = "data";
constexpr const char* kGame = "game";
constexpr const char* kMap = "map";

/// Empty for none: what is missing is not the folder where we happen to be.
fs::path PathOf(const QString& text) {
  const std::string bytes = text.trimmed().toStdString();
  return bytes.empty() ? fs::path() : WholePath(PathFromBytes(bytes));
}

}  // namespace

EngineFields::EngineFields(EngineChoice choice, const ProgramState& state,
                           QWidget& parent)
    : QObject(&parent),
      state_(state),
      parent_(parent),
      engine_(new QComboBox(&parent)),
      data_(AddBox(tr("Data folder"), "txtData")),
      game_(AddBox(tr("Game folder"), "txtGame")),
      map_(AddBox(tr("Map"), "txtMap")) {
  IgnoreWheelWithoutFocus(*engine_);
  engine_->setObjectName(QStringLiteral("cmbEngine"));
  engine_->setAccessibleName(tr("Engine"));
  engine_->setToolTip(choice == EngineChoice::kAll
                          ? tr("The game's program. With a dedicated server "
                               "nothing is seen but its words.")
                          : tr("The game's dedicated server, such as ioq3ded"));
  engine_->setEditable(true);
  engine_->setInsertPolicy(QComboBox::NoInsert);
  engine_->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
  connect(engine_, &QComboBox::textActivated, this, &EngineFields::SuggestGame);
  data_->setPlaceholderText(tr("where the engine looks by itself"));
  data_->setToolTip(
      tr("The folder above the game folder; empty for the one "
         "that the engine knows"));
  game_->setToolTip(tr("baseq3, or baseoa for OpenArena"));
  FillEngines(choice);
}

void EngineFields::AddTo(QFormLayout& form) {
  form.addRow(tr("&Engine:"), engine_);
  form.addRow(tr("&Data folder:"), data_);
  form.addRow(tr("&Game folder:"), game_);
  form.addRow(tr("&Map:"), map_);
}

QLineEdit* EngineFields::AddBox(const QString& caption, const char* name) {
  auto* const box = new QLineEdit(&parent_);
  box->setObjectName(QLatin1String(name));
  box->setAccessibleName(caption);
  return box;
}

void EngineFields::FillEngines(EngineChoice choice) {
  std::vector<fs::path> folders;
  if (!state_.settings.Q3Baseq3.empty()) {
    folders.push_back(PathFromBytes(state_.settings.Q3Baseq3));
  }
  for (fs::path& folder : EngineFolders(qgetenv("PATH").toStdString())) {
    folders.push_back(std::move(folder));
  }
  for (const fs::path& engine : FindEngines(folders)) {
    if (choice == EngineChoice::kAll || IsDedicatedServer(engine)) {
      engine_->addItem(QString::fromStdString(BytesFromPath(engine)));
    }
  }
}

bool EngineFields::Load(const QSettings& file) {
  if (!file.contains(QLatin1String(kEngine))) return false;
  const auto text = [&file](const char* key) {
    return file.value(QLatin1String(key)).toString();
  };
  engine_->setCurrentText(text(kEngine));
  data_->setText(text(kData));
  game_->setText(text(kGame));
  map_->setText(text(kMap));
  return true;
}

void EngineFields::Save(QSettings& file) const {
  file.setValue(QLatin1String(kEngine), engine_->currentText());
  file.setValue(QLatin1String(kData), data_->text());
  file.setValue(QLatin1String(kGame), game_->text());
  file.setValue(QLatin1String(kMap), map_->text());
}

void EngineFields::Suggest() {
  engine_->setCurrentText(engine_->itemText(0));
  data_->setText(QString::fromStdString(BytesFromPath(
      DataFolder(Engine(), PathFromBytes(state_.settings.Q3Baseq3)))));
  SuggestGame();
}

void EngineFields::SuggestGame() {
  const std::string game =
      DefaultGame(PathOf(engine_->currentText()), PathOf(data_->text()));
  game_->setText(QString::fromStdString(game));
  map_->setText(QString::fromStdString(DefaultMap(game)));
}

// One without a folder is looked for as a shell does.
fs::path EngineFields::Engine() const {
  const QString text = engine_->currentText().trimmed();
  const QString found = QStandardPaths::findExecutable(text);
  return PathOf(found.isEmpty() ? text : found);
}

fs::path EngineFields::Data() const { return PathOf(data_->text()); }

std::string EngineFields::Game() const {
  return game_->text().trimmed().toStdString();
}

std::string EngineFields::Map() const {
  return map_->text().trimmed().toStdString();
}

void EngineFields::SetEnabled(bool is_enabled) {
  for (QWidget* const box : InTabOrder()) box->setEnabled(is_enabled);
}

}  // namespace fragsmith
