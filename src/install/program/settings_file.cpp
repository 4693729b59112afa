#include "install/program/settings_file.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <optional>

#include "install/program/damaged_file.h"
#include "support/field_reader.h"
#include "support/files.h"
#include "support/numbers.h"
#include "support/text.h"

namespace fragsmith {
namespace {

struct TextItem {
  std::string_view key;
  std::string ProgramSettings::*field;
};

constexpr std::array<TextItem, kEditableOptionCount> kTextItems = {
    {{"Q3Baseq3 = ", &ProgramSettings::Q3Baseq3},
     {"WorkDir = ", &ProgramSettings::WorkDir},
     {"WinZipDir = ", &ProgramSettings::WinZipDir},
     {"UserName = ", &ProgramSettings::UserName},
     {"Email = ", &ProgramSettings::Email},
     {"Http = ", &ProgramSettings::Http}}};
constexpr std::size_t kFolderItems = 3;

constexpr std::string_view kHeader = "[Fragsmith settings]";
constexpr std::string_view kBotsKey = "Bots = ";
constexpr std::string_view kBaseCheckKey = "BaseQ3Check = ";

/// An item without as many characters as its key has, whatever they are.
std::optional<std::string_view> ReadBehindKey(FieldReader& reader,
                                              std::string_view key) {
  std::optional<std::string_view> item = reader.Next();
  if (!item || reader.is_cut()) return std::nullopt;
  item->remove_prefix(std::min(key.size(), item->size()));
  return item;
}

bool ReadTexts(FieldReader& reader, std::size_t first, std::size_t last,
               ProgramSettings& settings) {
  for (std::size_t index = first; index < last; ++index) {
    const TextItem& item = kTextItems.at(index);
    const std::optional<std::string_view> text =
        ReadBehindKey(reader, item.key);
    if (!text) return false;
    settings.*item.field = *text;
  }
  return true;
}

bool ReadBots(FieldReader& reader, std::int64_t& bots) {
  const std::optional<std::string_view> text = ReadBehindKey(reader, kBotsKey);
  if (!text) return false;
  if (TrimBlanksAndTabs(*text).empty()) {
    bots = 0;
    return true;
  }
  const std::optional<double> number = NumberFromText(*text);
  constexpr double kBeyond = 9.2e18;
  if (!number || std::abs(*number) > kBeyond) return false;
  bots = std::llrint(*number);
  return true;
}

bool ReadBaseCheck(FieldReader& reader, bool& check) {
  const std::optional<std::string_view> item =
      ReadBehindKey(reader, kBaseCheckKey);
  if (!item) return false;
  const std::string_view text = TrimBlanksAndTabs(*item);
  const std::optional<double> number = NumberFromText(text);
  if (number) {
    check = *number != 0;
  } else if (EqualIgnoringCase(text, "True")) {
    check = true;
  } else if (EqualIgnoringCase(text, "False")) {
    check = false;
  } else {
    return false;
  }
  return true;
}

bool Skip(FieldReader& reader) { return reader.Next() && !reader.is_cut(); }

bool ReadSettings(FieldReader reader, ProgramSettings& settings) {
  return Skip(reader) && ReadTexts(reader, 0, kFolderItems, settings) &&
         Skip(reader) &&
         ReadTexts(reader, kFolderItems, kTextItems.size(), settings) &&
         ReadBots(reader, settings.Bots) && Skip(reader) &&
         ReadBaseCheck(reader, settings.BaseQ3Check);
}

/// A line end within a value would move all that follows it.
void AppendLine(std::string_view key, std::string_view value,
                std::string& text) {
  text += key;
  std::copy_if(value.begin(), value.end(), std::back_inserter(text),
               [](char letter) { return letter != '\r' && letter != '\n'; });
  text += kLineEnd;
}

bool IsWhole(std::string_view bytes) { return !ParseSettings(bytes).has_error; }

}  // namespace

std::string GetOptionValue(const ProgramSettings& settings, int index) {
  if (index == kEditableOptionCount) return std::to_string(settings.Bots);
  return settings.*kTextItems.at(static_cast<std::size_t>(index)).field;
}

void SetOptionValue(ProgramSettings& settings, int index,
                    std::string_view value) {
  if (index == kEditableOptionCount) return;
  settings.*kTextItems.at(static_cast<std::size_t>(index)).field = value;
}

ParsedSettings ParseSettings(std::string_view bytes) {
  ParsedSettings parsed;
  parsed.has_error = !ReadSettings(FieldReader(bytes), parsed.settings);
  return parsed;
}

std::string FormatSettings(const ProgramSettings& settings) {
  std::string text;
  AppendLine(kHeader, {}, text);
  for (std::size_t index = 0; index < kTextItems.size(); ++index) {
    if (index == kFolderItems) text += kLineEnd;
    const TextItem& item = kTextItems.at(index);
    AppendLine(item.key, settings.*item.field, text);
  }
  AppendLine(kBotsKey, std::to_string(settings.Bots), text);
  text += kLineEnd;
  AppendLine(kBaseCheckKey, settings.BaseQ3Check ? "True" : "False", text);
  return text;
}

void UseOwnUnzipTool(const std::filesystem::path& own_folder,
                     ProgramSettings& settings) {
  if (!settings.WinZipDir.empty()) return;
  ProgramSettings with_own = settings;
  with_own.WinZipDir = BytesFromPath(own_folder);
  // A comma in the path would be read as the end of it.
  const ParsedSettings read = ParseSettings(FormatSettings(with_own));
  if (read.settings.WinZipDir == with_own.WinZipDir) settings = with_own;
}

FolderState LoadSettings(const std::filesystem::path& program_folder,
                         ProgramSettings& settings, Prompts& prompts,
                         const std::filesystem::path& own_unzip_folder) {
  if (const auto path = FindFile(program_folder, kSettingsFile)) {
    const Result<std::string> bytes = ReadFile(*path);
    const ParsedSettings parsed =
        bytes ? ParseSettings(*bytes) : ParsedSettings{{}, true};
    settings = parsed.settings;
    if (parsed.has_error) {
      prompts.Show({.title = "Load error",
                    .text = "Errors occured when trying to load ini file. "
                            "Please check your options from Program/Options.",
                    .icon = MessageIcon::kExclamation});
    }
  }
  UseOwnUnzipTool(own_unzip_folder, settings);
  return ValidateFolders(settings, program_folder, prompts);
}

Result<void> SaveSettings(const std::filesystem::path& program_folder,
                          const ProgramSettings& settings) {
  return SaveKeepingDamaged(program_folder / kSettingsFile,
                            FormatSettings(settings), IsWhole);
}

}  // namespace fragsmith
