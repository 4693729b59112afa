#include "session/bot_file.h"

#include "model/file_names.h"
#include "support/files.h"

namespace fragsmith {
namespace fs = std::filesystem;

std::string_view FileSuffix(BotFile file) {
  switch (file) {
    case BotFile::kDescription:
      return kDescriptionEnd;
    case BotFile::kCharacteristics:
      return kCharacterEnd;
    case BotFile::kChat:
      return kChatEnd;
    case BotFile::kItemWeights:
      return kItemWeightEnd;
    case BotFile::kWeaponWeights:
      return kWeaponWeightEnd;
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
