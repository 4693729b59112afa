#include "session/bot_file.h"

#include "support/files.h"

namespace fragsmith {
namespace fs = std::filesystem;

std::string_view FileSuffix(BotFile file) {
  switch (file) {
    case BotFile::kDescription:
      return ".bot";
    case BotFile::kCharacteristics:
      return "_c.c";
    case BotFile::kChat:
      return "_t.c";
    case BotFile::kItemWeights:
      return "_i.c";
    case BotFile::kWeaponWeights:
      return "_w.c";
  }
  return {};
}

std::string BotPackageName(std::string_view bot_name) {
  return "bot-" + std::string(bot_name) + ".pk3";
}

std::optional<fs::path> LayoutRootOf(const fs::path& folder) {
  const std::string text = BytesFromPath(folder.generic_u8string());
  const std::size_t offset = text.find(kBotFilesFolder);
  if (offset == std::string::npos) return std::nullopt;
  return PathFromBytes(text.substr(0, offset));
}

}  // namespace fragsmith
