#ifndef FRAGSMITH_INSTALL_PROGRAM_FOLDER_H_
#define FRAGSMITH_INSTALL_PROGRAM_FOLDER_H_

#include <filesystem>
#include <optional>

#include "support/result.h"

namespace fragsmith {

/// Where the system put this program and where it wants the user's settings.
struct ProgramPlace {
  std::filesystem::path executable_folder;
  /// The user's settings of this program; empty when the system does not say.
  std::filesystem::path user_folder;
};

ProgramPlace FindProgramPlace();

struct ProgramFolders {
  /// Holds the settings and the three lists.
  std::filesystem::path program;
  /// Came with the program: the fixed pictures and the starter settings.
  std::filesystem::path data;
};

/// The program folder is the given one, which has to exist; else that of the
/// executable when it can be written to; else the user's, which is made with
/// the starter settings in it when it is not there yet.
Result<ProgramFolders> FindProgramFolders(
    const std::optional<std::filesystem::path>& given,
    const ProgramPlace& place);

/// The folder of the unzip tool that came with the program; nothing when it
/// is not where it belongs.
std::optional<std::filesystem::path> FindOwnUnzipFolder(
    const ProgramPlace& place);

}  // namespace fragsmith

#endif  // FRAGSMITH_INSTALL_PROGRAM_FOLDER_H_
