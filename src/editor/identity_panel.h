#ifndef FRAGSMITH_EDITOR_IDENTITY_PANEL_H_
#define FRAGSMITH_EDITOR_IDENTITY_PANEL_H_

#include <QButtonGroup>
#include <QCheckBox>
#include <QComboBox>
#include <QLineEdit>
#include <QWidget>
#include <map>
#include <optional>

#include "editor/controls/fun_name_preview.h"
#include "editor/current_bot.h"
#include "support/prompts.h"

namespace fragsmith {

/// Who the bot is: the text boxes with their checks, gender, rail colour and
/// arena lord. Model and skin stand in ModelSelector.
class IdentityPanel : public QWidget {
  Q_OBJECT

 public:
  IdentityPanel(CurrentBot& current, Prompts& prompts, QWidget* parent);

  /// Shows the bot; nothing of it counts as an edit.
  void ShowBot();

  /// Checks all boxes before a save and stores what the user typed. Gives
  /// the number of the box that was refused, which then has the focus.
  std::optional<int> CheckAllIn();

  /// Puts the bot's texts back into boxes whose text was not stored yet; false
  /// when there are none.
  bool RevertTyping();

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
  QLineEdit* AddBox(int field, const QString& accessible_name);
  QWidget* NameField();
  QWidget* FunNameField();
  QWidget* PreviewField();
  QWidget* GenderField();
  QWidget* RailField();
  QWidget* VersionField();
  QWidget* CommentField();
  void InsertColor(int color);
  void PutQuotesOn(const Value& fun_name);
  /// False when the box refuses its text; it then gets the focus back.
  bool LeaveBox(int field);

  CurrentBot& current_;
  Prompts& prompts_;
  std::map<int, QLineEdit*> boxes_;
  FunNamePreview* preview_ = nullptr;
  QButtonGroup* genders_ = nullptr;
  QComboBox* rail_ = nullptr;
  QCheckBox* arena_lord_ = nullptr;
  bool is_checking_ = false;
};

}  // namespace fragsmith

#endif  // FRAGSMITH_EDITOR_IDENTITY_PANEL_H_
