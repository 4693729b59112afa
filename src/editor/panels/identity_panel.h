#ifndef FRAGSMITH_EDITOR_PANELS_IDENTITY_PANEL_H_
#define FRAGSMITH_EDITOR_PANELS_IDENTITY_PANEL_H_

#include <QButtonGroup>
#include <QCheckBox>
#include <QComboBox>
#include <QLineEdit>
#include <QToolButton>
#include <QWidget>
#include <map>
#include <optional>

#include "editor/controls/fun_name_preview.h"
#include "editor/state/current_bot.h"
#include "support/prompts.h"

namespace fragsmith {

/// Who the bot is: the text boxes with their checks and gender, and folded away
/// below them version, rail colour, arena lord and comment. Model and skin
/// stand in ModelSelector.
class IdentityPanel : public QWidget {
  Q_OBJECT

 public:
  IdentityPanel(CurrentBot& current, Prompts& prompts, QWidget* parent);

  /// Shows the bot; nothing of it counts as an edit.
  void ShowBot();

  /// Checks all boxes before a save and stores what the user typed. Gives
  /// the number of the box that was refused, which then has the focus.
  std::optional<ParameterId> CheckAllIn();

  /// Stores what stands in the boxes as if they were left, which comes before
  /// any command. False when a text is refused: the user was told, and the box
  /// has the focus.
  bool StoreTyping();

  /// True while a box has a text that is not stored yet.
  bool HasTyping() const;
  /// Takes back the last that was typed, or put, into such a box.
  void UndoTyping();

  /// What is typed next becomes the name.
  void SelectName();

  /// Whether the fields that are of little use are in sight, too.
  bool IsUnfolded() const { return more_->isChecked(); }
  void SetUnfolded(bool is_unfolded) { more_->setChecked(is_unfolded); }

  /// The bot with what stands in the boxes and will be stored when they are
  /// left; what they would refuse is left out.
  Bot WithTyping() const;

 signals:
  /// A letter was typed that is not stored yet.
  void Typed();
  void StatusText(const QString& text);

 protected:
  /// A box is checked when it is left.
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  QLineEdit* AddBox(ParameterId field);
  QWidget* NameField();
  QWidget* FunNameField();
  QWidget* PreviewField();
  QWidget* GenderField();
  QWidget* RailField();
  QWidget* VersionField();
  QWidget* CommentField();
  QWidget* ArenaLordField();
  QWidget* MoreField(QWidget* folded);
  void InsertColor(int color);
  void PutQuotesOn(const Value& fun_name);
  /// The bot's own spelling of what was typed.
  void ShowStored(ParameterId field);
  /// False when the box refuses its text; it then gets the focus back.
  bool LeaveBox(ParameterId field);

  CurrentBot& current_;
  Prompts& prompts_;
  std::map<ParameterId, QLineEdit*> boxes_;
  FunNamePreview* preview_ = nullptr;
  QButtonGroup* genders_ = nullptr;
  QComboBox* rail_ = nullptr;
  QCheckBox* arena_lord_ = nullptr;
  QToolButton* more_ = nullptr;
  bool is_checking_ = false;
};

}  // namespace fragsmith

#endif  // FRAGSMITH_EDITOR_PANELS_IDENTITY_PANEL_H_
