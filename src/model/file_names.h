#ifndef FRAGSMITH_MODEL_FILE_NAMES_H_
#define FRAGSMITH_MODEL_FILE_NAMES_H_

#include <string>
#include <string_view>

namespace fragsmith {

// How the names of a bot's files go on behind the bot's name.
inline constexpr std::string_view kCharacterEnd = "_c.c";
inline constexpr std::string_view kChatEnd = "_t.c";
inline constexpr std::string_view kItemWeightEnd = "_i.c";
inline constexpr std::string_view kWeaponWeightEnd = "_w.c";
inline constexpr std::string_view kDescriptionEnd = ".bot";
inline constexpr std::string_view kPackageEnd = ".pk3";

// Where they lie in the game, and below its folder botfiles.
inline constexpr std::string_view kBotFilesPath = "botfiles/";
inline constexpr std::string_view kScriptsPath = "scripts/";
inline constexpr std::string_view kBotsPath = "bots/";

/// The name behind which a path of the game's layout begins; compared with
/// its case, on every system with "/".
inline constexpr std::string_view kBotFilesFolder = "botfiles/bots";
inline constexpr std::string_view kScriptsFolder = "scripts";
/// The list of bots, in that folder.
inline constexpr std::string_view kBotList = "bots.txt";

/// The character that the game takes where it cannot have the bot's own.
inline constexpr std::string_view kDefaultCharacter = "bots/default_c.c";

/// The path in the game of what a bot's file names.
inline std::string InBotFiles(std::string_view path) {
  return std::string(kBotFilesPath) + std::string(path);
}

/// The path below botfiles of a bot's file.
inline std::string InBots(std::string_view file) {
  return std::string(kBotsPath) + std::string(file);
}

/// The character file of the bot whose files are called so, as a description
/// names it.
inline std::string CharacterPath(std::string_view called) {
  return InBots(called) + std::string(kCharacterEnd);
}

/// The five files of a bot.
enum class BotFile {
  kDescription = 0,
  kCharacteristics = 1,
  kChat = 2,
  kItemWeights = 3,
  kWeaponWeights = 4,
};

/// How the name of a bot's file goes on behind the bot's name.
constexpr std::string_view FileSuffix(BotFile file) {
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

}  // namespace fragsmith

#endif  // FRAGSMITH_MODEL_FILE_NAMES_H_
