#ifndef FRAGSMITH_EDITOR_MODEL_SELECTOR_H_
#define FRAGSMITH_EDITOR_MODEL_SELECTOR_H_

#include <QComboBox>
#include <QLabel>
#include <QWidget>

#include "editor/controls/icon_box.h"
#include "editor/current_bot.h"
#include "editor/program_state.h"
#include "install/skin_icon.h"

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

  /// The places that are selected.
  CatalogueSelection Selection() const;

  /// After the check of the folders: shows the icon again, or why there is
  /// none.
  void RefreshIcon();

 private:
  void FillSkinSelector(std::size_t modelIndex);
  /// Selects without handing anything to the bot.
  void Select(std::size_t modelIndex, std::size_t skinIndex);
  void ModelChosen(int place);
  void SkinChosen(int place);
  void StoreSelection();
  void ShowIcon(const IconResult& icon);
  void ShowSelectedIcon();
  bool AskToAdd(const std::string& title, const std::string& text);

  CurrentBot& current_;
  ProgramState& state_;
  QLabel* model_caption_;
  QLabel* skin_caption_;
  QComboBox* models_;
  QComboBox* skins_;
  IconBox* icon_;
  QLabel* icon_text_;  ///< Why it is not the icon of the skin.
};

}  // namespace fragsmith

#endif  // FRAGSMITH_EDITOR_MODEL_SELECTOR_H_
