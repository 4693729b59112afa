#include "session/bot_file.h"

#include "support/files.h"

namespace fragsmith {
namespace fs = std::filesystem;

std::string BotPackageName(std::string_view bot_name) {
  return "bot-" + std::string(bot_name) + std::string(kPackageEnd);
}

std::optional<fs::path> LayoutRootOf(const fs::path& folder) {
  const std::string text = BytesFromPath(folder.generic_u8string());
  const std::size_t offset = text.find(kBotFilesFolder);
  if (offset == std::string::npos) return std::nullopt;
  return PathFromBytes(text.substr(0, offset));
}

}  // namespace fragsmith
