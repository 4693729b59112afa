#ifndef FRAGSMITH_EDITOR_STATE_DRAFT_KEEPER_H_
#define FRAGSMITH_EDITOR_STATE_DRAFT_KEEPER_H_

#include <QDateTime>
#include <QLockFile>
#include <QObject>
#include <QTimer>
#include <deque>
#include <filesystem>
#include <functional>
#include <memory>
#include <utility>
#include <vector>

#include "editor/state/current_bot.h"
#include "session/draft.h"
#include "support/notes.h"
#include "support/result.h"

namespace fragsmith {

/// Keeps a copy of a bot with unsaved changes in the program folder, so that a
/// crash costs no work. The copy goes when there is nothing unsaved any more.
///
/// Each running editor holds a draft file of its own, fgs.draft or with a
/// number behind it, by a lock. A draft that nobody holds was left behind; it
/// stays until the user takes or discards it. One that cannot be read is set
/// aside as NAME.bak.
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

  /// A draft of an earlier run, with what was noticed in it.
  struct Found {
    Draft draft;
    QDateTime kept;  ///< When it was written last.
    Notes notes;
  };

  /// What an earlier run left behind and the user has not decided on; null
  /// when there is none.
  const Found* LeftBehind() const;

  /// Removes that draft, since the user took its bot: but one that holds more
  /// than could be taken is set aside. Another one may come forward.
  void TookLeftBehind();

  /// Removes that draft: the user does not want it. Another one may come
  /// forward.
  void DropLeftBehind();

  /// What became of each draft that could not be read.
  const std::vector<Error>& unreadable() const { return unreadable_; }

  /// Removes the own copy: the user let the changes go.
  void Discard();

  /// Writes at once what the timer still waits with.
  void SaveNow();

 signals:
  /// The draft cannot be written; once until it can be again.
  void NotKept(const Error& reason);

 private:
  /// A draft's file, held by its lock.
  struct Slot {
    std::filesystem::path file;
    std::unique_ptr<QLockFile> lock;
    Found found;
  };

  void LookInto(Slot slot);

  std::deque<Slot> left_behind_;
  std::vector<Error> unreadable_;
  Slot own_;  ///< Without a file where none can be locked.
  bool has_failed_ = false;
  CurrentBot& current_;
  std::function<Bot()> source_;
  QTimer timer_;
};

}  // namespace fragsmith

#endif  // FRAGSMITH_EDITOR_STATE_DRAFT_KEEPER_H_
