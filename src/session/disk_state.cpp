#include "session/disk_state.h"

#include <functional>
#include <string>

#include "session/load_bot.h"
#include "support/files.h"

namespace fragsmith {
namespace fs = std::filesystem;
namespace {

std::optional<std::size_t> ContentOf(const fs::path& file) {
  const Result<std::string> bytes = ReadFile(file, kMostBotFileBytes);
  if (!bytes) return std::nullopt;
  return std::hash<std::string>()(*bytes);
}

}  // namespace

void DiskState::Remember(const std::vector<fs::path>& files) {
  contents_.clear();
  for (const fs::path& file : files) contents_[file] = ContentOf(file);
}

std::optional<fs::path> DiskState::FirstChanged(
    const std::vector<fs::path>& files) const {
  for (const fs::path& file : files) {
    const auto known = contents_.find(file);
    if (known == contents_.end()) continue;
    const std::optional<std::size_t> content = ContentOf(file);
    if (content && content != known->second) return file;
  }
  return std::nullopt;
}

}  // namespace fragsmith
