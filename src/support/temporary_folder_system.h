#ifndef FRAGSMITH_SUPPORT_TEMPORARY_FOLDER_SYSTEM_H_
#define FRAGSMITH_SUPPORT_TEMPORARY_FOLDER_SYSTEM_H_

#include <filesystem>
#include <system_error>

/// One source file per family of systems.
namespace fragsmith::system {

/// Makes a folder that did not exist before and that only its owner may
/// enter; its name is the beginning with letters added.
std::error_code MakePrivateFolder(const std::filesystem::path& beginning,
                                  std::filesystem::path& made);

}  // namespace fragsmith::system

#endif  // FRAGSMITH_SUPPORT_TEMPORARY_FOLDER_SYSTEM_H_
