#ifndef FRAGSMITH_EDITOR_STATE_CURRENT_BOT_H_
#define FRAGSMITH_EDITOR_STATE_CURRENT_BOT_H_

#include <QElapsedTimer>
#include <QObject>
#include <QString>
#include <QUndoStack>
#include <functional>
#include <map>
#include <memory>

#include "model/bot.h"
#include "model/bot_place.h"
#include "session/bot_origin.h"

namespace fragsmith {

/// What an edit is called and where it shows.
struct EditName {
  QString text;  ///< "Attack skill, level 4", as it stands behind "Undo".
  BotPlace place;
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
  const Bot& bot() const { return *state_.bot; }

  /// The bot as it was made or loaded.
  const Bot& loaded() const { return *state_.origin.home->loaded; }

  /// Where the bot came from, before any step of undo as it was then.
  const BotOrigin& origin() const { return state_.origin; }

  /// What the load of this bot noticed, where the window has shown it.
  void SetReport(LoadReport report);

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
  bool SetParameter(ParameterId id, const Value& value);

  /// The same for a parameter that follows another one: both are one edit,
  /// which has the name of the other.
  bool SetParameter(ParameterId id, const Value& value, ParameterId leader);

  /// Does something to the chats of the bot and raises the changed flag.
  void EditChats(const EditName& name, const std::function<void(Bot&)>& edit);

  /// Does anything to the bot; the window shows it anew.
  void Edit(const EditName& name, const std::function<void(Bot&)>& edit);

  /// Puts another bot in the place of this one, by default one that comes from
  /// nowhere. The window shows it anew.
  void Replace(Bot bot, bool is_changed, const QString& name,
               BotOrigin origin = {});

  /// Of bots that were read out of packages which are not there any more: their
  /// files are in none now, and what is in none is not saved.
  void ForgetGonePackages();

  /// What is edited next is an edit of its own.
  void EndStep() { ++step_; }

  /// Nothing that was done so far can be taken back any more.
  void ForgetSteps();

  QUndoStack& steps() { return steps_; }

 signals:
  void ChangedFlagSet(bool is_changed);
  void ParameterEdited(fragsmith::ParameterId id);
  void ChatsEdited();
  /// Another bot is here.
  void Replaced();
  /// The bot has another origin than before, or more is known of it.
  void OriginChanged();
  /// An edit was made or taken back that does not come from its control.
  void Stepped(const fragsmith::BotPlace& place);

 private:
  class Step;

  /// A bot between two edits.
  struct State {
    std::shared_ptr<const Bot> bot;
    BotOrigin origin;

    bool operator==(const State& other) const {
      return *bot == *other.bot && origin == other.origin;
    }
  };

  void Push(const EditName& name, State before);
  void ShowStep(const State& state, const BotPlace& place);
  void ShowFlag();
  /// Puts a bot of the same origin in place. Gives what was there.
  State Exchange(Bot bot);

  State state_;
  QUndoStack steps_;
  /// The bots without unsaved work, by their homes.
  std::map<std::shared_ptr<BotHome>, std::shared_ptr<const Bot>> unchanged_;
  QElapsedTimer since_edit_;
  int step_ = 0;
  /// Edited in a way that made no step, such as text that is being typed.
  bool is_touched_ = false;
  bool is_changed_ = false;
  int filling_depth_ = 0;
};

}  // namespace fragsmith

#endif  // FRAGSMITH_EDITOR_STATE_CURRENT_BOT_H_
