#ifndef FRAGSMITH_EDITOR_DRAFT_KEEPER_H_
#define FRAGSMITH_EDITOR_DRAFT_KEEPER_H_

#include <QLockFile>
#include <QObject>
#include <QTimer>
#include <deque>
#include <filesystem>
#include <functional>
#include <memory>
#include <utility>

#include "editor/current_bot.h"

namespace fragsmith {

/// Keeps a copy of a bot with unsaved changes in the program folder, so that a
/// crash costs no work. The copy goes when there is nothing unsaved any more.
///
/// Each running editor holds a draft file of its own, fgs.draft or with a
/// number behind it, by a lock. A draft that nobody holds was left behind; it
/// stays until the user takes or discards it.
class DraftKeeper : public QObject {
  Q_OBJECT

 public:
  DraftKeeper(const std::filesystem::path& program_folder, CurrentBot& current,
              QObject* parent);

  /// What gives the bot to be kept, with what the current one does not hold
  /// yet.
  void SetSource(std::function<Bot()> source) { source_ = std::move(source); }

  /// Lets the bot be kept soon.
  void Schedule();

  /// The bot that an earlier run left behind and that the user has not
  /// decided on; null when there is none.
  const Bot* LeftBehind() const;

  /// Removes the draft of that bot. Another one may come forward.
  void DropLeftBehind();

  /// Removes the own copy: the user let the changes go.
  void Discard();

  /// Writes at once what the timer still waits with.
  void SaveNow();

 private:
  struct Draft {
    std::filesystem::path file;
    std::unique_ptr<QLockFile> lock;
    Bot bot;
  };

  std::deque<Draft> left_behind_;
  Draft own_;  ///< Without a file where none can be locked.
  CurrentBot& current_;
  std::function<Bot()> source_;
  QTimer timer_;
};

}  // namespace fragsmith

#endif  // FRAGSMITH_EDITOR_DRAFT_KEEPER_H_
