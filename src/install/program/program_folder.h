#ifndef FRAGSMITH_INSTALL_PROGRAM_PROGRAM_FOLDER_H_
#define FRAGSMITH_INSTALL_PROGRAM_PROGRAM_FOLDER_H_

#include <filesystem>
#include <optional>
#include <string_view>

#include "support/result.h"

namespace fragsmith {

/// Where the system put this program and where it wants the user's settings.
struct ProgramLocation {
  std::filesystem::path executable_folder;
  /// The user's settings of this program; empty when the system does not say.
  std::filesystem::path user_folder;
};

ProgramLocation FindProgramLocation();

struct ProgramFolders {
  /// Holds the settings and the three lists.
  std::filesystem::path program;
  /// Came with the program: the fixed pictures and the starter settings.
  std::filesystem::path data;
  /// That of the unzip tool that came with the program; empty when it is not
  /// where it belongs.
  std::filesystem::path unzip_tool;
  /// The program folder is the one for the user's settings, which browsers of
  /// files do not show.
  bool is_hidden = false;
};

/// The program folder is the given one, which has to exist; else that of the
/// executable when it can be written to and is none of the system's; else the
/// user's, which is made with the starter settings in it when it is not there
/// yet.
Result<ProgramFolders> FindProgramFolders(
    const std::optional<std::filesystem::path>& given,
    const ProgramLocation& location);

/// What is to be told to the super-user, whose settings and bots no one else
/// can change, for Localized(); empty for anyone else.
std::string_view SuperUserWarning();

}  // namespace fragsmith

#endif  // FRAGSMITH_INSTALL_PROGRAM_PROGRAM_FOLDER_H_
