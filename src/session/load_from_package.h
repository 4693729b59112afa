#ifndef FRAGSMITH_SESSION_LOAD_FROM_PACKAGE_H_
#define FRAGSMITH_SESSION_LOAD_FROM_PACKAGE_H_

#include <filesystem>
#include <optional>
#include <string>

#include "install/program/extraction.h"
#include "model/bot.h"
#include "session/load_bot.h"
#include "support/temporary_folder.h"

namespace fragsmith {

/// A bot in a package and what is to be read of it.
struct PackagedBot {
  std::filesystem::path package;
  std::string name;   ///< As the bot list has it; 8-bit text.
  LoadedPart LoType;  ///< All of it, when nothing is said.
  /// The description is loaded and the package has one. Without one the
  /// identity is that of a standard bot, or of none.
  bool withScript = false;
  /// False leaves the identity of a new bot.
  bool loads_description = true;
};

/// Takes the files of the bot out of its package one by one, reads and
/// deletes each. A whole bot is read into a new record, one file into a copy
/// of `current`. Nothing when a file could not be had; the user was told.
std::optional<LoadedBot> LoadBotFromPackage(const PackagedBot& wanted,
                                            const Bot& current,
                                            const UnzipTool& tool,
                                            TemporaryFolder& temporary,
                                            const LoadEnvironment& environment);

}  // namespace fragsmith

#endif  // FRAGSMITH_SESSION_LOAD_FROM_PACKAGE_H_
