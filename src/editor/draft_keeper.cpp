#include "editor/draft_keeper.h"

#include <system_error>
#include <utility>

#include "session/bot_document.h"
#include "support/files.h"

namespace fragsmith {
namespace {

/// Long enough not to write at each step of a slider that is dragged.
constexpr int kPauseMilliseconds = 1000;

}  // namespace

DraftKeeper::DraftKeeper(std::filesystem::path program_folder,
                         CurrentBot& current, QObject* parent)
    : QObject(parent),
      file_(std::move(program_folder) / "fgs.draft"),
      current_(current) {
  timer_.setSingleShot(true);
  timer_.setInterval(kPauseMilliseconds);
  connect(&timer_, &QTimer::timeout, this, &DraftKeeper::SaveNow);
  connect(&current, &CurrentBot::ParameterEdited, this, &DraftKeeper::Schedule);
  connect(&current, &CurrentBot::ChatsEdited, this, &DraftKeeper::Schedule);
  connect(&current, &CurrentBot::Replaced, this, &DraftKeeper::Schedule);
  connect(&current, &CurrentBot::ChangedFlagSet, this, &DraftKeeper::Schedule);
}

std::optional<Bot> DraftKeeper::LeftBehind() const {
  const Result<std::string> bytes = ReadFile(file_, kMostDocumentBytes);
  if (!bytes) return std::nullopt;
  Result<BotDocument> document = ReadBotDocument(*bytes);
  if (!document) return std::nullopt;
  // The texts were in the bot already, and no check keeps a draft away.
  for (const auto& [field, text] : document->texts) {
    (void)document->bot.SetParameter(field, text);
  }
  return std::move(document->bot);
}

void DraftKeeper::Discard() {
  timer_.stop();
  std::error_code ignored;
  std::filesystem::remove(file_, ignored);
}

void DraftKeeper::Schedule() { timer_.start(); }

void DraftKeeper::SaveNow() {
  timer_.stop();
  if (!current_.is_changed()) return Discard();
  // A draft that cannot be written is no reason to disturb the user, who has
  // the bot before him.
  (void)SaveFile(file_, WriteBotDocument(current_.bot()));
}

}  // namespace fragsmith
