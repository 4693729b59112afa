#ifndef FRAGSMITH_SUPPORT_SYSTEM_TEMPORARY_FOLDER_SYSTEM_H_
#define FRAGSMITH_SUPPORT_SYSTEM_TEMPORARY_FOLDER_SYSTEM_H_

#include <cstdint>
#include <filesystem>
#include <system_error>

/// One source file per family of systems.
namespace fragsmith::system {

/// Makes a folder that did not exist before and that only its owner may
/// enter; its name is the beginning with letters added.
std::error_code MakePrivateFolder(const std::filesystem::path& beginning,
                                  std::filesystem::path& made);

/// Marks such a folder as in use until it is let go or our process ends,
/// however it does.
std::intptr_t HoldFolder(const std::filesystem::path& folder);
void LetFolderGo(std::intptr_t handle);

/// True for a private folder of this user, and no link to one, that nobody
/// holds. One that is not held yet looks like that too.
bool IsAbandonedFolder(const std::filesystem::path& folder);

}  // namespace fragsmith::system

#endif  // FRAGSMITH_SUPPORT_SYSTEM_TEMPORARY_FOLDER_SYSTEM_H_
