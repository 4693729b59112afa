#ifndef FRAGSMITH_EDITOR_PANELS_MODEL_SELECTOR_H_
#define FRAGSMITH_EDITOR_PANELS_MODEL_SELECTOR_H_

#include <QComboBox>
#include <QLabel>
#include <QWidget>
#include <array>
#include <optional>
#include <string>

#include "editor/controls/icon_box.h"
#include "editor/state/current_bot.h"
#include "editor/state/program_state.h"
#include "install/program/skin_icon.h"

namespace fragsmith {

/// The model and skin lists with their counts, and the icon of the skin.
class ModelSelector : public QWidget {
  Q_OBJECT

 public:
  ModelSelector(CurrentBot& current, ProgramState& state, QWidget* parent);

  /// Fills the model list anew and selects these places; the skin that is
  /// selected goes to the bot.
  void RefillModelSelector(std::size_t modelIndex, std::size_t skinIndex);

  /// Looks the bot's model and skin up in the lists and selects them. Asks
  /// for what is missing there whether it shall be added; a No gives the bot
  /// the first of the list.
  void ShowBot();

  /// The same after an edit that was made or taken back elsewhere: asks
  /// nothing, changes no list and loads no icon that is there already. What is
  /// in no list is shown as missing.
  void ShowStep();

  /// Fills the model list anew after it was changed; the bot stays as it is.
  void Refill();

  /// True while the bot's model or skin is in no list.
  bool IsMissing() const;

  /// The picture of the skin, for whoever gives it a place.
  QWidget* icon() { return icon_; }

  /// The places that are selected.
  CatalogueSelection Selection() const;

  /// Gives the bot the model and skin of these places, as one edit.
  void Choose(const CatalogueSelection& selection);

  /// After the check of the folders or a scan: shows the icon, or why there is
  /// none.
  void RefreshIcon();

 signals:
  /// By their faces.
  void ChooseWanted();

 private:
  /// The icon's file, its package, and the folders of game and unzip tool.
  using IconSource = std::array<std::string, 4>;

  void FillModelSelector();
  void FillSkinSelector(std::size_t modelIndex);
  /// Selects without handing anything to the bot.
  void Select(std::size_t modelIndex, std::size_t skinIndex);
  /// Shows a model or skin that is in no list.
  void ShowMissing();
  void ModelChosen(int index);
  void SkinChosen(int index);
  void StoreSelection();
  void ShowIcon(const IconResult& icon);
  const SkinEntry* SelectedSkin() const;
  /// Takes no icon out of its package that is shown already.
  void ShowSelectedIcon();
  void ShowChosenIcon();
  bool AskToAdd(const std::string& title, const std::string& text);

  CurrentBot& current_;
  ProgramState& state_;
  QLabel* model_caption_;
  QLabel* skin_caption_;
  QComboBox* models_;
  QComboBox* skins_;
  IconBox* icon_;
  QLabel* icon_text_;  ///< Why it is not the icon of the skin.
  std::optional<IconSource> shown_;
  bool has_icon_ = false;       ///< It was found there.
  bool is_not_in_use_ = false;  ///< The box says so.
};

}  // namespace fragsmith

#endif  // FRAGSMITH_EDITOR_PANELS_MODEL_SELECTOR_H_
