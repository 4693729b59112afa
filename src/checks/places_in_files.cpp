#include "checks/places_in_files.h"

#include <algorithm>
#include <cstddef>
#include <utility>
#include <vector>

#include "chat/chat_catalogue.h"
#include "checks/bot_checks.h"
#include "checks/bot_on_disk.h"
#include "inplace/splice.h"
#include "support/code_page.h"
#include "support/text.h"

namespace fragsmith {
namespace {

/// Where the lines of a chat type stand: by our reading, or by the game's,
/// whichever has as many as the bot.
std::vector<TextSpan> LinesOf(ChatTypeId type, std::size_t count,
                              const FileReading& reading) {
  std::vector<TextSpan> spans;
  for (const ReadReport::ChatLineAt& line : reading.report.chat_lines) {
    if (line.type == type) spans.push_back(line.span);
  }
  if (spans.size() == count) return spans;
  for (const GameChatType& of_game : reading.chat.types) {
    if (!EqualIgnoringCase(of_game.name, ChatTypeAt(type).Key)) continue;
    spans.clear();
    for (const GameChatLine& line : of_game.lines) {
      if (!line.span.empty()) spans.push_back(line.span);
    }
  }
  return spans.size() == count ? spans : std::vector<TextSpan>();
}

}  // namespace

PlacesInFiles::PlacesInFiles(const BotFileSet& files, IncludeLookup game)
    : files_(files), game_(std::move(game)) {}

FilePlace PlacesInFiles::Of(const Bot& bot, const BotPlace& place) {
  if (const auto* const known = std::get_if<FilePlace>(&place)) return *known;
  const BotFile kind = KindOfPlace(place);
  const auto* const row =
      std::ranges::find(kBotFileMembers, kind, &BotFileMember::file);
  const std::optional<GameFile>& file = files_.*row->member;
  if (!file) return {.file = Utf8FromGameText(FileOfPlace(bot, place))};
  FilePlace found = {.file = file->name, .kind = kind};
  const TextSpan span = SpanOf(bot, place, Read(kind, *file));
  if (!span.empty()) {
    found.line = static_cast<int>(LineNumberAt(file->bytes, span.begin));
  }
  return found;
}

const FileReading& PlacesInFiles::Read(BotFile kind, const GameFile& file) {
  const auto [entry, is_new] = readings_.try_emplace(kind);
  if (is_new) {
    const std::string called =
        files_.character ? BotOfPath(files_.character->game_path) : "";
    entry->second =
        BothReaders({kind, file.name, called}, game_).Read(file.bytes);
  }
  return entry->second;
}

TextSpan PlacesInFiles::SpanOf(const Bot& bot, const BotPlace& place,
                               const FileReading& reading) const {
  if (const auto* const chat = std::get_if<ChatPlace>(&place)) {
    const std::vector<TextSpan> lines =
        LinesOf(chat->type, bot.ChatLines(chat->type).size(), reading);
    const std::size_t line = chat->line.value_or(ChatLineIndex()).index();
    return line < lines.size() ? lines[line] : TextSpan();
  }
  const auto* const parameter = std::get_if<ParameterId>(&place);
  if (parameter == nullptr) return {};
  return reading.report.SpanOf(*parameter).value_or(TextSpan());
}

}  // namespace fragsmith
