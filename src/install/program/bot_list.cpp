#include "install/program/bot_list.h"

#include <algorithm>
#include <array>

#include "install/program/game_folder.h"
#include "install/program/model_catalogue.h"
#include "support/text.h"

namespace fragsmith {
namespace {

constexpr std::array<std::string_view, 32> kStandardBots = {
    "Anarki", "Angel", "Biker", "Bitterman", "Bones",  "Cadavre", "Crash",
    "Daemia", "Doom",  "Gorre", "Grunt",     "Hunter", "Hossman", "Keel",
    "Klesk",  "Lucy",  "Major", "Mynx",      "Orbb",   "Patriot", "Phobos",
    "Ranger", "Razor", "Sarge", "Slash",     "Sorlag", "Stripe",  "TankJr",
    "Uriel",  "Visor", "Wrack", "Xaero"};

/// The text cut or padded so that at least one blank is left at its end.
std::string Column(std::string_view text, std::size_t width) {
  std::string column(text.substr(0, width - 1));
  column.resize(width, ' ');
  return column;
}

}  // namespace

BotList BotList::Standard() {
  BotList list;
  for (const std::string_view name : kStandardBots) {
    list.entries_.push_back({.Name = std::string(name),
                             .PK3File = std::string(kGamePackage),
                             .IsStandard = true,
                             .HasBotScript = false});
  }
  list.SortBotList();
  return list;
}

std::optional<std::size_t> BotList::Find(std::string_view name) const {
  const auto found = indices_.find(ToLower(name));
  if (found == indices_.end()) return std::nullopt;
  return found->second;
}

void BotList::AddBot(std::string_view name, std::string_view pk3File,
                     bool has_bot_script) {
  BotListEntry entry = {.Name = NameCase(name),
                        .PK3File = std::string(pk3File),
                        .IsStandard = false,
                        .HasBotScript = has_bot_script};
  const auto [index, is_new] =
      indices_.try_emplace(ToLower(name), entries_.size());
  if (is_new) {
    entries_.push_back(std::move(entry));
  } else {
    entries_[index->second] = std::move(entry);
  }
}

void BotList::ResetBotList() {
  std::erase_if(entries_,
                [](const BotListEntry& entry) { return !entry.IsStandard; });
  IndexEntries();
}

void BotList::RemoveBotsOf(const std::set<std::string>& packages) {
  std::erase_if(entries_, [&packages](const BotListEntry& entry) {
    return !entry.IsStandard && packages.contains(entry.PK3File);
  });
  IndexEntries();
}

void BotList::SortBotList() {
  std::stable_sort(entries_.begin(), entries_.end(),
                   [](const BotListEntry& left, const BotListEntry& right) {
                     return left.Name < right.Name;
                   });
  IndexEntries();
}

void BotList::IndexEntries() {
  indices_.clear();
  for (std::size_t index = 0; index < entries_.size(); ++index) {
    indices_.try_emplace(ToLower(entries_[index].Name), index);
  }
}

std::string_view BotStatus(const BotListEntry& entry) {
  if (entry.HasBotScript) return "Yes";
  return entry.IsStandard ? "-D-" : "No";
}

std::string BotListLine(const BotListEntry& entry) {
  constexpr std::size_t kNameWidth = 15;
  constexpr std::size_t kPackageWidth = 20;
  return Column(entry.Name, kNameWidth) + Column(entry.PK3File, kPackageWidth) +
         std::string(BotStatus(entry));
}

}  // namespace fragsmith
