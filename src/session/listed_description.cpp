#include "session/listed_description.h"

#include <algorithm>
#include <vector>

#include "botfiles/description_blocks.h"
#include "model/file_names.h"
#include "session/bot_file.h"
#include "support/files.h"
#include "support/text.h"

namespace fragsmith {
namespace fs = std::filesystem;

bool IsDescribed(std::string_view description, std::string_view called,
                 std::string_view name) {
  const std::string character = CharacterPath(called);
  const std::vector<DescriptionBlock> blocks =
      ReadDescriptionBlocks(description).blocks;
  if (called.empty() && name.empty()) return false;
  return std::ranges::any_of(blocks, [&](const DescriptionBlock& block) {
    return (called.empty() ||
            EqualIgnoringCase(block.Text("aifile"), character)) &&
           (name.empty() || EqualIgnoringCase(block.Text("name"), name));
  });
}

std::optional<fs::path> FindListed(const fs::path& folder,
                                   std::string_view called,
                                   std::string_view name) {
  std::vector<fs::path> paths;
  if (auto list = FindFile(folder, kBotList)) paths.push_back(*std::move(list));
  // A description of its own is read with the bot's files, or left alone.
  const std::string_view suffix = FileSuffix(BotFile::kDescription);
  const std::string own = std::string(called) + std::string(suffix);
  for (const fs::path& file : ListFiles(folder, suffix)) {
    const bool is_own =
        EqualIgnoringCase(GameTextFromPath(file).value_or(std::string()), own);
    if (!is_own) paths.push_back(folder / file);
  }
  for (const fs::path& path : paths) {
    const Result<std::string> bytes = ReadFile(path, kMaxBotFileBytes);
    if (bytes && IsDescribed(*bytes, called, name)) return path;
  }
  return std::nullopt;
}

std::optional<fs::path> FindListedBeside(const fs::path& character,
                                         std::string_view called,
                                         std::string_view name) {
  const fs::path folder = character.parent_path();
  const std::optional<fs::path> root = LayoutRootOf(folder);
  return FindListed(root ? *root / kScriptsFolder : folder, called, name);
}

}  // namespace fragsmith
