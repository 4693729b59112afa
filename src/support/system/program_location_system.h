#ifndef FRAGSMITH_SUPPORT_SYSTEM_PROGRAM_LOCATION_SYSTEM_H_
#define FRAGSMITH_SUPPORT_SYSTEM_PROGRAM_LOCATION_SYSTEM_H_

#include <filesystem>

/// What only the operating system knows; one source file per family of
/// systems. Empty paths stand for no answer.
namespace fragsmith::system {

std::filesystem::path ExecutablePath();

/// The user's settings of all programs.
std::filesystem::path ConfigurationFolder();

bool IsWritableFolder(const std::filesystem::path& path);

/// A folder in which the system keeps programs; nothing of a user's belongs
/// there, even if that user could write to it.
bool IsSystemFolder(const std::filesystem::path& path);

/// The one who may write everywhere.
bool IsSuperUser();

}  // namespace fragsmith::system

#endif  // FRAGSMITH_SUPPORT_SYSTEM_PROGRAM_LOCATION_SYSTEM_H_
