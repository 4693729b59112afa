#include "trial/match_bots.h"

#include <algorithm>
#include <optional>
#include <string_view>
#include <system_error>
#include <utility>

#include "checks/bot_on_disk.h"
#include "checks/bot_reader.h"
#include "model/file_names.h"
#include "support/files.h"
#include "support/localization.h"
#include "support/temporary_folder.h"
#include "support/text.h"
#include "trial/game_trial.h"

namespace fragsmith {
namespace fs = std::filesystem;
namespace {

/// Where a file of a bot lies in the match, by its path below botfiles. No path
/// that may be long gets longer: those into botfiles/bots have a limit.
std::string PathInMatch(std::string_view path, std::size_t index) {
  std::string folder = MatchFolder(index) + "/";
  if (path.starts_with(kBotsPath))
    return folder += path.substr(kBotsPath.size());
  return folder += "up/" + std::string(path);
}

/// The text with each quoted path of a file of the bot's own led to where that
/// file lies in the match.
std::string WithPathsLed(const std::string& text, const MatchBot& bot,
                         std::size_t index) {
  std::string led;
  std::size_t at = 0;
  for (std::size_t quote = text.find('"'); quote != std::string::npos;
       quote = text.find('"', quote + 1)) {
    const std::size_t end = text.find('"', quote + 1);
    if (end == std::string::npos) break;
    std::string path = ToLower(text.substr(quote + 1, end - quote - 1));
    std::replace(path.begin(), path.end(), '\\', '/');
    if (!bot.files.contains(path)) continue;
    led.append(text, at, quote + 1 - at);
    led += PathInMatch(path, index);
    at = end;
    quote = end;
  }
  return led.append(text, at);
}

std::string PlainName(std::string_view name) {
  constexpr std::size_t kMaxLength = 24;
  constexpr std::string_view kPlain =
      "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789-_.";
  std::string plain;
  for (std::size_t at = 0; at < name.size(); ++at) {
    if (name[at] == '^') {
      ++at;  // A colour.
    } else if (plain.size() < kMaxLength &&
               Contains(kPlain, name.substr(at, 1))) {
      plain += name[at];
    }
  }
  return plain.empty() ? "bot" : plain;
}

}  // namespace

Result<MatchBot> MatchBotOf(const GivenFiles& given,
                            const std::string& file_name) {
  MatchBot bot;
  for (const std::string_view end : {".c", ".h"}) {
    for (const std::string& path : given.PathsLike(kBotFilesPath, end)) {
      std::optional<GameFile> file = given.OpenInAnyCase(path);
      if (!file) continue;
      bot.files.emplace(path.substr(kBotFilesPath.size()),
                        std::move(file->bytes));
    }
  }
  const BotOnDisk found = ReadBot(given, file_name);
  const IncludeLookup nothing = [](std::string_view) { return std::nullopt; };
  const BotReader reader(found.files, nothing);
  bot.name = file_name;
  bot.ai_file = CharacterPath(ToLower(file_name));
  if (reader.description()) {
    const std::string_view name = reader.description()->Text("name");
    if (!name.empty()) bot.name = name;
    bot.ai_file = reader.description()->Text("aifile");
  }
  if (bot.files.contains(ToLower(bot.ai_file))) return bot;
  return Failure(
      {.what = Localized("The bot %1 has no character file of its own.",
                         {PlainName(file_name)}),
       .file = {},
       .line = 0,
       .advice = Localized("fragsmith-cli check tells what it lacks.")});
}

Result<MatchBot> MatchBotOf(const Bot& bot, const Author& author) {
  TemporaryFolder temporary;
  const Result<fs::path> folder = temporary.GetTempFolder();
  if (!folder) return Failure(folder.error());
  const Result<void> done = WriteTrialPackage(bot, *folder, author);
  if (!done) return Failure(done.error());
  const std::vector<fs::path> packages =
      ListFiles(*folder / kTrialFolder, kPackageEnd);
  const Result<GivenFiles> given =
      GivenFiles::OfPackage(*folder / kTrialFolder / packages.at(0));
  if (!given) return Failure(given.error());
  return MatchBotOf(*given, bot.Name());
}

std::vector<std::string> ShownNames(const std::vector<MatchBot>& bots) {
  std::vector<std::string> names;
  for (const MatchBot& bot : bots) {
    const std::string plain = PlainName(bot.name);
    std::string name = plain;
    const auto is_taken = [&] {
      return std::any_of(names.begin(), names.end(),
                         [&name](const std::string& other) {
                           return EqualIgnoringCase(name, other);
                         });
    };
    for (int number = 2; is_taken(); ++number) {
      name = plain + "-" + std::to_string(number);
    }
    names.push_back(std::move(name));
  }
  return names;
}

std::string MatchFolder(std::size_t index) {
  return "m" + std::to_string(index + 1);
}

std::string NameToAdd(const MatchBot& bot, std::size_t index) {
  return bot.files.empty() ? bot.name : "fragsmith" + std::to_string(index + 1);
}

Result<void> PutMatchBots(const std::vector<MatchBot>& bots,
                          const fs::path& game_folder) {
  const auto put = [&game_folder](const std::string& path,
                                  const std::string& bytes) {
    const fs::path file = game_folder / PathFromGameText(path);
    std::error_code reason;
    fs::create_directories(file.parent_path(), reason);
    return SaveFile(file, bytes);
  };
  std::string descriptions;
  for (std::size_t index = 0; index < bots.size(); ++index) {
    const MatchBot& bot = bots[index];
    if (bot.files.empty()) continue;
    for (const auto& [path, bytes] : bot.files) {
      Result<void> done = put(InBotFiles(PathInMatch(path, index)),
                              WithPathsLed(bytes, bot, index));
      if (!done) return done;
    }
    descriptions += "{\nname " + NameToAdd(bot, index) + "\naifile \"" +
                    PathInMatch(ToLower(bot.ai_file), index) + "\"\n}\n";
  }
  if (descriptions.empty()) return {};
  return put("scripts/fragsmith.bot", descriptions);
}

}  // namespace fragsmith
