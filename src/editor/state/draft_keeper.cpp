#include "editor/state/draft_keeper.h"

#include <QFileInfo>
#include <optional>
#include <string>
#include <system_error>
#include <utility>

#include "session/bot_document.h"
#include "support/files.h"
#include "support/localization.h"

namespace fragsmith {
namespace fs = std::filesystem;
namespace {

/// Long enough not to write at each step of a slider that is dragged.
constexpr int kPauseMilliseconds = 1000;

/// With so many editors and crashes one may go without a draft.
constexpr int kMaxDrafts = 9;

Result<Draft> ReadDraftFile(const fs::path& file, Notes& notes) {
  const Result<std::string> bytes = ReadFile(file, kMaxDocumentBytes);
  if (!bytes) return Failure(bytes.error());
  return ReadDraft(*bytes, Utf8FromPath(file), notes);
}

/// Renames the draft to NAME.bak, or with a number behind it: an older one is
/// somebody's work too. Gives the new name, or nothing when that failed.
std::optional<fs::path> SetAside(const fs::path& file) {
  fs::path kept = file;
  kept += ".bak";
  std::error_code reason;
  for (int number = 2; fs::exists(kept, reason); ++number) {
    kept = file;
    kept += ".bak" + std::to_string(number);
  }
  fs::rename(file, kept, reason);
  if (reason) return std::nullopt;
  return kept;
}

void Remove(const fs::path& file) {
  std::error_code ignored;
  fs::remove(file, ignored);
}

}  // namespace

DraftKeeper::DraftKeeper(const fs::path& program_folder, CurrentBot& current,
                         QObject* parent)
    : QObject(parent),
      current_(current),
      source_([&current] { return current.bot(); }) {
  for (int number = 1; number <= kMaxDrafts; ++number) {
    Slot slot;
    slot.file =
        program_folder / (number == 1 ? std::string("fgs.draft")
                                      : "fgs.draft" + std::to_string(number));
    std::error_code ignored;
    if (!own_.file.empty() && !fs::exists(slot.file, ignored)) continue;
    slot.lock = std::make_unique<QLockFile>(
        QString::fromStdString(BytesFromPath(slot.file)) +
        QStringLiteral(".lock"));
    // A lock is as old as its program runs; it is let go when that is gone.
    slot.lock->setStaleLockTime(0);
    if (slot.lock->tryLock(0)) LookInto(std::move(slot));
  }
  timer_.setSingleShot(true);
  timer_.setInterval(kPauseMilliseconds);
  connect(&timer_, &QTimer::timeout, this, &DraftKeeper::SaveNow);
  connect(&current, &CurrentBot::ParameterEdited, this, &DraftKeeper::Schedule);
  connect(&current, &CurrentBot::ChatsEdited, this, &DraftKeeper::Schedule);
  connect(&current, &CurrentBot::Replaced, this, &DraftKeeper::Schedule);
  connect(&current, &CurrentBot::Stepped, this, &DraftKeeper::Schedule);
  connect(&current, &CurrentBot::ChangedFlagSet, this, &DraftKeeper::Schedule);
}

void DraftKeeper::LookInto(Slot slot) {
  std::error_code ignored;
  if (fs::exists(slot.file, ignored)) {
    Result<Draft> draft = ReadDraftFile(slot.file, slot.found.notes);
    if (draft) {
      if (!slot.found.notes.empty()) {
        slot.found.notes.Add(
            {.file = Utf8FromPath(slot.file),
             .line = 0,
             .text = Localized("When it is restored, this file "
                               "is kept with .bak behind its "
                               "name.")});
      }
      slot.found.draft = std::move(*draft);
      slot.found.kept =
          QFileInfo(QString::fromStdString(BytesFromPath(slot.file)))
              .lastModified();
      left_behind_.push_back(std::move(slot));
      return;
    }
    const std::optional<fs::path> kept = SetAside(slot.file);
    Error& error = unreadable_.emplace_back(std::move(draft.error()));
    error.advice = kept
                       ? Localized("It is kept as '%1'.", {Utf8FromPath(*kept)})
                       : Localized("It was left there: it cannot be renamed.");
    if (!kept) return;
  }
  if (own_.file.empty()) own_ = std::move(slot);
}

const DraftKeeper::Found* DraftKeeper::LeftBehind() const {
  return left_behind_.empty() ? nullptr : &left_behind_.front().found;
}

void DraftKeeper::TookLeftBehind() {
  if (left_behind_.empty()) return;
  const Slot& slot = left_behind_.front();
  if (slot.found.notes.empty()) return DropLeftBehind();
  // One that cannot be renamed stays and is offered again.
  (void)SetAside(slot.file);
  left_behind_.pop_front();
}

void DraftKeeper::DropLeftBehind() {
  if (left_behind_.empty()) return;
  Remove(left_behind_.front().file);
  left_behind_.pop_front();
}

void DraftKeeper::Discard() {
  timer_.stop();
  if (!own_.file.empty()) Remove(own_.file);
}

void DraftKeeper::Schedule() { timer_.start(); }

void DraftKeeper::SaveNow() {
  timer_.stop();
  if (!current_.is_changed()) return Discard();
  if (own_.file.empty()) return;
  const Result<void> kept = SaveFile(
      own_.file, WriteDraft({.bot = source_(), .origin = current_.origin()}));
  // The user has the bot before him: one word is enough.
  if (!kept && !has_failed_) emit NotKept(kept.error());
  has_failed_ = !kept;
}

}  // namespace fragsmith
