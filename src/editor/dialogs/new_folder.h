#ifndef FRAGSMITH_EDITOR_DIALOGS_NEW_FOLDER_H_
#define FRAGSMITH_EDITOR_DIALOGS_NEW_FOLDER_H_

#include <filesystem>
#include <optional>

#include "support/prompts.h"

namespace fragsmith {

/// Asks for a name and makes a folder of it in the given one; a folder that
/// is there already serves as well. Nothing when the user cancels or it
/// cannot be made, which is told.
std::optional<std::filesystem::path> MakeNewFolder(
    const std::filesystem::path& parent, Prompts& prompts);

}  // namespace fragsmith

#endif  // FRAGSMITH_EDITOR_DIALOGS_NEW_FOLDER_H_
