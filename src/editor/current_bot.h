#ifndef FRAGSMITH_EDITOR_CURRENT_BOT_H_
#define FRAGSMITH_EDITOR_CURRENT_BOT_H_

#include <QElapsedTimer>
#include <QObject>
#include <QString>
#include <QUndoStack>
#include <functional>
#include <memory>

#include "checks/finding.h"
#include "model/bot.h"

namespace fragsmith {

/// What an edit is called and where it shows.
struct EditName {
  QString text;  ///< "Attack skill, level 4", as it stands behind "Undo".
  FindingPlace place;
  /// Edits of one name in a row, such as those of a slider that is dragged,
  /// are taken back as one.
  bool merges = false;
};

/// The one bot that the window edits. Every edit goes through here: so there
/// is one place that knows whether unsaved work could be lost, and that can
/// take an edit back.
class CurrentBot : public QObject {
  Q_OBJECT

 public:
  explicit CurrentBot(QObject* parent = nullptr);
  ~CurrentBot() override;

  /// Good until the next edit.
  const Bot& bot() const { return *bot_; }

  /// The bot as it was last made or loaded.
  const Bot& loaded() const { return *loaded_; }

  /// Raised by the first edit; down after New, Load and a whole save, and when
  /// the edits since then were taken back.
  bool is_changed() const { return is_changed_; }
  void SetChanged(bool is_changed);

  /// True while the program itself fills the window's controls: their
  /// handlers then store nothing.
  bool is_filling() const { return filling_depth_ > 0; }

  /// Sets the filling flag for the time of its life.
  class Filling {
   public:
    explicit Filling(CurrentBot& current) : current_(current) {
      ++current_.filling_depth_;
    }
    Filling(const Filling&) = delete;
    Filling& operator=(const Filling&) = delete;
    ~Filling() { --current_.filling_depth_; }

   private:
    CurrentBot& current_;
  };

  /// Stores a parameter or field, as Bot::SetParameter does, and raises the
  /// changed flag. False when the bot refuses the value; nothing has changed
  /// then. What the program stores while it fills the window is no edit.
  bool SetParameter(int index, const Value& value);

  /// The same for a parameter that follows another one: both are one edit,
  /// which has the name of the other.
  bool SetParameter(int index, const Value& value, int leader);

  /// Does something to the chats of the bot and raises the changed flag.
  void EditChats(const EditName& name, const std::function<void(Bot&)>& edit);

  /// Does anything to the bot; the window shows it anew.
  void Edit(const EditName& name, const std::function<void(Bot&)>& edit);

  /// Puts another bot in the place of this one. The window shows it anew.
  void Replace(Bot bot, bool is_changed, const QString& name);

  /// What is edited next is an edit of its own.
  void EndStep() { ++step_; }

  /// Nothing that was done so far can be taken back any more.
  void ForgetSteps();

  QUndoStack& steps() { return steps_; }

 signals:
  void ChangedFlagSet(bool is_changed);
  void ParameterEdited(int index);
  void ChatsEdited();
  /// Another bot is here.
  void Replaced();
  /// An edit was made or taken back that does not come from its control.
  void Stepped(const FindingPlace& place);

 private:
  class Step;

  void Push(const EditName& name, std::shared_ptr<const Bot> before);
  void ShowStep(const std::shared_ptr<const Bot>& bot,
                const FindingPlace& place);
  void ShowFlag();

  std::shared_ptr<const Bot> bot_;
  std::shared_ptr<const Bot> loaded_;
  QUndoStack steps_;
  QElapsedTimer since_edit_;
  int step_ = 0;
  /// Edited in a way that made no step, such as text that is being typed.
  bool is_touched_ = false;
  bool is_changed_ = false;
  int filling_depth_ = 0;
};

}  // namespace fragsmith

#endif  // FRAGSMITH_EDITOR_CURRENT_BOT_H_
