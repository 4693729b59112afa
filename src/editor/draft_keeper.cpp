#include "editor/draft_keeper.h"

#include <optional>
#include <string>
#include <system_error>
#include <utility>

#include "session/bot_document.h"
#include "support/files.h"

namespace fragsmith {
namespace fs = std::filesystem;
namespace {

/// Long enough not to write at each step of a slider that is dragged.
constexpr int kPauseMilliseconds = 1000;

/// With so many editors and crashes one may go without a draft.
constexpr int kMostDrafts = 9;

std::optional<Bot> ReadDraft(const fs::path& file) {
  const Result<std::string> bytes = ReadFile(file, kMostDocumentBytes);
  if (!bytes) return std::nullopt;
  Result<BotDocument> document = ReadBotDocument(*bytes);
  if (!document) return std::nullopt;
  // The texts were in the bot already, and no check keeps a draft away.
  for (const auto& [field, text] : document->texts) {
    (void)document->bot.SetParameter(field, text);
  }
  return std::move(document->bot);
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
  for (int number = 1; number <= kMostDrafts; ++number) {
    Draft draft;
    draft.file =
        program_folder / (number == 1 ? std::string("fgs.draft")
                                      : "fgs.draft" + std::to_string(number));
    if (!own_.file.empty() && !IsFile(draft.file)) continue;
    draft.lock = std::make_unique<QLockFile>(
        QString::fromStdString(BytesFromPath(draft.file)) +
        QStringLiteral(".lock"));
    // A lock is as old as its program runs; it is let go when that is gone.
    draft.lock->setStaleLockTime(0);
    if (!draft.lock->tryLock(0)) continue;
    if (std::optional<Bot> bot = ReadDraft(draft.file)) {
      draft.bot = std::move(*bot);
      left_behind_.push_back(std::move(draft));
    } else if (own_.file.empty()) {
      own_ = std::move(draft);
    }
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

const Bot* DraftKeeper::LeftBehind() const {
  return left_behind_.empty() ? nullptr : &left_behind_.front().bot;
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
  // A draft that cannot be written is no reason to disturb the user, who has
  // the bot before him.
  if (!own_.file.empty()) {
    (void)SaveFile(own_.file, WriteBotDocument(source_()));
  }
}

}  // namespace fragsmith
