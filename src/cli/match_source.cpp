#include "cli/match_source.h"

#include <filesystem>
#include <system_error>
#include <utility>

#include "checks/bot_location.h"
#include "game/given_files.h"
#include "session/save_bot.h"
#include "support/code_page.h"
#include "support/files.h"
#include "support/text.h"

namespace fragsmith {
namespace fs = std::filesystem;

std::optional<BotSource> MatchSourceOf(const std::string& text) {
  BotSource source;
  source.is_for_game = true;
  source.source = text;
  std::error_code reason;
  if (!IsOfFiles(source) || fs::exists(PathFromBytes(text), reason)) {
    return source;
  }
  if (const std::size_t at = text.find('@'); at != std::string::npos) {
    source.name = text.substr(0, at);
    source.source = text.substr(at + 1);
    return source;
  }
  const bool is_path = text.find_first_of("/\\.") != std::string::npos;
  return is_path ? std::optional(source) : std::nullopt;
}

MatchBotOutcome MatchBotOfModel(const Bot& bot, CommandContext& context) {
  Result<MatchBot> read = MatchBotOf(bot, AuthorOf(LoadSettingsFor(context)));
  if (!read) return {.bot = {}, .refusal = Fail(context, read.error())};
  return {.bot = std::move(*read)};
}

MatchBotOutcome ReadMatchBot(const std::string& text, CommandContext& context) {
  const std::optional<BotSource> source = MatchSourceOf(text);
  if (!source) {
    const std::optional<std::string> name = GameTextFromUtf8(text);
    return {.bot = MatchBot{.name = name.value_or(text)}};
  }
  if (!IsOfFiles(*source)) {
    const BotSourceOutcome outcome = ReadBotOrDocument(*source, context);
    if (!outcome.bot) return {.bot = {}, .refusal = outcome.refusal};
    return MatchBotOfModel(outcome.bot->loaded.bot, context);
  }
  const BotLocationOutcome outcome = FindBot(*source, context);
  if (!outcome.found) return {.bot = {}, .refusal = outcome.refusal};
  Result<MatchBot> read =
      MatchBotOf(FilesOf(*outcome.found), outcome.found->name);
  if (!read) return {.bot = {}, .refusal = Fail(context, read.error())};
  return {.bot = std::move(*read)};
}

std::vector<std::string> MatchSourcesIn(const std::string& folder) {
  const fs::path path = PathFromBytes(folder);
  std::vector<std::string> sources;
  const std::vector<fs::path> documents = ListFiles(path, ".json");
  sources.reserve(documents.size());
  for (const fs::path& file : documents) {
    sources.push_back(BytesFromPath(path / file));
  }
  std::vector<fs::path> paths = ListFiles(path, kPackageEnd);
  for (fs::path& one : paths) one = path / one;
  paths.push_back(path);
  for (const fs::path& one : paths) {
    const Result<std::vector<BotLocation>> bots = BotsAt(one);
    if (!bots) continue;
    for (const BotLocation& bot : *bots) {
      sources.push_back(Utf8FromGameText(bot.name) + "@" + BytesFromPath(one));
    }
  }
  return sources;
}

}  // namespace fragsmith
