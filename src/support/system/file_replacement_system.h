#ifndef FRAGSMITH_SUPPORT_SYSTEM_FILE_REPLACEMENT_SYSTEM_H_
#define FRAGSMITH_SUPPORT_SYSTEM_FILE_REPLACEMENT_SYSTEM_H_

#include <filesystem>
#include <string_view>
#include <system_error>

/// What replacing a file needs of the operating system beyond the standard
/// library; one source file per family of systems.
namespace fragsmith::system {

/// Makes an empty file that did not exist before (never through a link), with
/// the permissions of the model file where that exists.
std::error_code CreateNewFile(const std::filesystem::path& path,
                              const std::filesystem::path& model);

std::error_code WriteWholeFile(const std::filesystem::path& path,
                               std::string_view bytes);

std::error_code FlushToDisk(const std::filesystem::path& path);

std::error_code RenameOver(const std::filesystem::path& from,
                           const std::filesystem::path& to);

/// RenameOver() failed since a program holds the file open; only on Windows is
/// that a reason.
bool IsInUse(const std::error_code& reason);

}  // namespace fragsmith::system

#endif  // FRAGSMITH_SUPPORT_SYSTEM_FILE_REPLACEMENT_SYSTEM_H_
