#ifndef FRAGSMITH_EDITOR_CURRENT_BOT_H_
#define FRAGSMITH_EDITOR_CURRENT_BOT_H_

#include <QObject>
#include <functional>

#include "model/bot.h"

namespace fragsmith {

/// The one bot that the window edits. Every edit goes through here, so that
/// there is one place that knows whether unsaved work could be lost.
class CurrentBot : public QObject {
  Q_OBJECT

 public:
  explicit CurrentBot(QObject* parent = nullptr) : QObject(parent) {}

  const Bot& bot() const { return bot_; }

  /// Raised by the first edit, down after New, Load and a whole save.
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
  /// then.
  bool SetParameter(int index, const Value& value);

  /// Does something to the chats of the bot and raises the changed flag.
  void EditChats(const std::function<void(Bot&)>& edit);

  /// Puts another bot in the place of this one. The window shows it anew.
  void Replace(Bot bot, bool is_changed);

 signals:
  void ChangedFlagSet(bool is_changed);
  void ParameterEdited(int index);
  void ChatsEdited();
  void Replaced();

 private:
  Bot bot_;
  bool is_changed_ = false;
  int filling_depth_ = 0;
};

}  // namespace fragsmith

#endif  // FRAGSMITH_EDITOR_CURRENT_BOT_H_
