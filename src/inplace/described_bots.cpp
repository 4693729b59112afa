#include "inplace/described_bots.h"

#include <algorithm>
#include <system_error>
#include <vector>

#include "botfiles/description_blocks.h"
#include "botfiles/game_text.h"
#include "botfiles/left_out.h"
#include "game/description_reader.h"
#include "inplace/bot_edits.h"
#include "model/characteristic_catalogue.h"
#include "model/file_names.h"
#include "session/save_again.h"
#include "support/code_page.h"
#include "support/files.h"
#include "support/text.h"

namespace fragsmith {
namespace fs = std::filesystem;

bool IsList(const OriginFile& file) {
  const std::string name =
      file.is_on_disk() ? BytesFromPath(file.path.filename()) : file.entry;
  return EndsWithIgnoringCase(name, kBotList);
}

bool IsDescribed(std::string_view description, std::string_view called) {
  const std::string character = CharacterPath(called);
  Complaints untold;
  return std::ranges::any_of(
      ReadGameDescription({std::string(kBotListPath), std::string(kBotList),
                           std::string(description)},
                          untold),
      [&character](const DescriptionSet& set) {
        return EqualIgnoringCase(set.Text("aifile"), character);
      });
}

bool IsListOf(const OriginFile& file, const BotHome& home) {
  if (!IsList(file)) return false;
  const Result<std::string> bytes = BytesAt(file);
  if (!bytes) return !file.is_on_disk() || IsFile(file.path);
  return IsDescribed(*bytes, CalledBy(home.files));
}

std::optional<fs::path> ListWithoutBot(const SavePlan& plan,
                                       const BotHome& home) {
  const auto known = home.files.find(BotFile::kDescription);
  const auto target = plan.files.find(BotFile::kDescription);
  if (known == home.files.end() || !known->second.is_on_disk() ||
      !IsList(known->second) || target == plan.files.end() ||
      IsFile(target->second) || HasNewName(plan, home) ||
      IsListOf(known->second, home)) {
    return std::nullopt;
  }
  return known->second.path;
}

std::string BotsThatGo(const SavePlan& plan, const Bot& bot) {
  const auto target = plan.files.find(BotFile::kDescription);
  if (target == plan.files.end()) return {};
  const Result<std::string> old = ReadFile(target->second, kMaxBotFileBytes);
  if (!old) return {};
  std::vector<DescriptionBlock> kept;
  if (const auto content = plan.contents.find(BotFile::kDescription);
      content != plan.contents.end()) {
    kept = ReadDescriptionBlocks(content->second).blocks;
  }
  const std::string character = "bots/" + bot.Text(kCharacteristicFileField);
  NameList names;
  for (const DescriptionBlock& block : ReadDescriptionBlocks(*old).blocks) {
    const std::string name = block.Text("name");
    const bool is_own = name.empty() || EqualIgnoringCase(name, bot.Name()) ||
                        EqualIgnoringCase(block.Text("aifile"), character);
    const bool is_kept =
        is_own || std::ranges::any_of(kept, [&](const DescriptionBlock& one) {
          return EqualIgnoringCase(one.Text("name"), name);
        });
    if (!is_kept) names.Add("\"" + ShownText(name) + "\"");
  }
  return names.empty() ? std::string() : names.Text();
}

std::string NameDescribedTwice(const SavePlan& plan, const Bot& bot) {
  const auto target = plan.files.find(BotFile::kDescription);
  if (target == plan.files.end()) return {};
  fs::path other;
  bool is_list = false;
  std::error_code ignored;
  for (fs::directory_iterator entry(target->second.parent_path(), ignored), end;
       !ignored && !is_list && entry != end; entry.increment(ignored)) {
    const fs::path& path = entry->path();
    const std::string name = BytesFromPath(path.filename());
    const bool is_read =
        EqualIgnoringCase(name, kBotList) ||
        EndsWithIgnoringCase(name, FileSuffix(BotFile::kDescription));
    if (!is_read || path == target->second) continue;
    const Result<std::string> bytes = ReadFile(path, kMaxBotFileBytes);
    Complaints untold;
    if (!bytes || !std::ranges::any_of(
                      ReadGameDescription({name, name, *bytes}, untold),
                      [&bot](const DescriptionSet& set) {
                        return EqualIgnoringCase(set.Text("name"), bot.Name());
                      })) {
      continue;
    }
    other = path;
    is_list = EqualIgnoringCase(name, kBotList);
  }
  if (other.empty()) return {};
  const std::string own = "'" + Utf8FromPath(target->second.filename()) + "'";
  return "'" + Utf8FromPath(other) + "' describes a bot \"" +
         ShownText(bot.Name()) + "\" too. " +
         (is_list ? "The game takes that one, as it reads the list first, and "
                    "never the one of " +
                        own + "."
                  : "Of that one and the one of " + own +
                        " the game takes the one that it reads first, which "
                        "may be either.");
}

}  // namespace fragsmith
