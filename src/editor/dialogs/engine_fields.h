#ifndef FRAGSMITH_EDITOR_DIALOGS_ENGINE_FIELDS_H_
#define FRAGSMITH_EDITOR_DIALOGS_ENGINE_FIELDS_H_

#include <QComboBox>
#include <QFormLayout>
#include <QLineEdit>
#include <QObject>
#include <QSettings>
#include <filesystem>
#include <string>

#include "editor/state/program_state.h"

namespace fragsmith {

/// Which engines are offered.
enum class EngineChoice { kAll, kServersAlone };

/// The rows of a form that say which engine plays, with what data, in which
/// game folder and on which map.
class EngineFields : public QObject {
  Q_OBJECT

 public:
  /// The state outlives it.
  EngineFields(EngineChoice choice, const ProgramState& state, QWidget& parent);

  void AddTo(QFormLayout& form);
  QWidgetList InTabOrder() const { return {engine_, data_, game_, map_}; }

  /// Takes what Save kept in the group where the file stands now; false when
  /// nothing is there.
  bool Load(const QSettings& file);
  void Save(QSettings& file) const;
  /// Puts what is likely: the first engine that was found, and its game.
  void Suggest();

  /// Whole paths; empty where nothing was entered.
  std::filesystem::path Engine() const;
  std::filesystem::path Data() const;
  std::string Game() const;
  std::string Map() const;

  QLineEdit& map() { return *map_; }
  void SetEnabled(bool is_enabled);

 private:
  QLineEdit* AddBox(const QString& caption, const char* name);
  void FillEngines(EngineChoice choice);
  /// Puts a game and a map that go with the engine.
  void SuggestGame();

  const ProgramState& state_;
  QWidget& parent_;
  QComboBox* engine_;
  QLineEdit* data_;
  QLineEdit* game_;
  QLineEdit* map_;
};

}  // namespace fragsmith

#endif  // FRAGSMITH_EDITOR_DIALOGS_ENGINE_FIELDS_H_
