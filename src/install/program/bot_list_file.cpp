#include "install/program/bot_list_file.h"

#include <optional>

#include "install/program/damaged_file.h"
#include "support/field_reader.h"
#include "support/files.h"
#include "support/text.h"

namespace fragsmith {
namespace {

constexpr std::string_view kHeader = "[Fragsmith additional bots list]";
constexpr std::string_view kTrue = "#TRUE#";
constexpr std::string_view kFalse = "#FALSE#";

bool IsWhole(std::string_view bytes) { return !ParseBotList(bytes).has_error; }

std::optional<BotListEntry> ReadBot(FieldReader& reader) {
  const auto fields = reader.NextRecord(3);
  if (!fields) return std::nullopt;
  const std::string_view flag = TrimBlanksAndTabs((*fields)[2]);
  if (flag != kTrue && flag != kFalse) return std::nullopt;
  return BotListEntry{.Name = std::string((*fields)[0]),
                      .PK3File = std::string((*fields)[1]),
                      .IsStandard = false,
                      .HasBotScript = flag == kTrue};
}

}  // namespace

ParsedBotList ParseBotList(std::string_view bytes) {
  ParsedBotList parsed;
  FieldReader reader(bytes);
  parsed.has_error = !reader.Next() || reader.is_cut();
  while (!parsed.has_error && !reader.AtEnd()) {
    std::optional<BotListEntry> bot = ReadBot(reader);
    if (bot && parsed.bots.size() < kMaxListRecords) {
      parsed.bots.push_back(std::move(*bot));
    } else {
      parsed.has_error = true;
    }
  }
  return parsed;
}

std::string FormatBotList(const BotList& bots) {
  std::string records;
  for (const BotListEntry& bot : bots.entries()) {
    if (bot.IsStandard) continue;
    AppendQuotedField(bot.Name, records);
    records += ',';
    AppendQuotedField(bot.PK3File, records);
    records += ',';
    records += bot.HasBotScript ? kTrue : kFalse;
    records += kLineEnd;
  }
  if (records.empty()) return records;
  return std::string(kHeader) + std::string(kLineEnd) + records;
}

void LoadUserBots(const std::filesystem::path& program_folder, BotList& bots,
                  Prompts& prompts) {
  const auto path = FindFile(program_folder, kBotListFile);
  if (!path) return;
  const Result<std::string> bytes = ReadFile(*path);
  const ParsedBotList parsed =
      bytes ? ParseBotList(*bytes) : ParsedBotList{{}, true};
  for (const BotListEntry& bot : parsed.bots) {
    bots.AddBot(bot.Name, bot.PK3File, bot.HasBotScript);
  }
  bots.SortBotList();
  if (parsed.has_error) {
    prompts.Show({.title = "Load error",
                  .text = "Errors occured when trying to load botlist file. "
                          "Please use Tools/CheckBaseq3 to correct the bot "
                          "list.",
                  .icon = MessageIcon::kExclamation});
  }
}

Result<void> SaveUserBots(const std::filesystem::path& program_folder,
                          const BotList& bots, EmptyList empty) {
  std::string bytes = FormatBotList(bots);
  if (bytes.empty()) {
    const bool is_kept = empty == EmptyList::kKeepsOldFile ||
                         !FindFile(program_folder, kBotListFile);
    if (is_kept) return {};
    bytes = std::string(kHeader) + std::string(kLineEnd);
  }
  return SaveKeepingDamaged(program_folder / kBotListFile, bytes, IsWhole);
}

BotList BuildStandardBotList(const std::filesystem::path& program_folder,
                             Prompts& prompts) {
  BotList bots = BotList::Standard();
  LoadUserBots(program_folder, bots, prompts);
  return bots;
}

}  // namespace fragsmith
