#ifndef _WIN32

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdlib>
#include <string>

#include "support/system/temporary_folder_system.h"

namespace fragsmith::system {

std::error_code MakePrivateFolder(const std::filesystem::path& beginning,
                                  std::filesystem::path& made) {
  std::string name = beginning.string() + "XXXXXX";
  if (::mkdtemp(name.data()) == nullptr) {
    return {errno, std::generic_category()};
  }
  made = name;
  return {};
}

std::intptr_t HoldFolder(const std::filesystem::path& folder) {
  const int descriptor =
      ::open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC);
  if (descriptor >= 0) ::flock(descriptor, LOCK_EX | LOCK_NB);
  return descriptor;
}

void LetFolderGo(std::intptr_t handle) {
  if (handle >= 0) ::close(static_cast<int>(handle));
}

bool IsAbandonedFolder(const std::filesystem::path& folder) {
  const int descriptor =
      ::open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC);
  if (descriptor < 0) return false;
  struct stat facts = {};
  constexpr mode_t kAccess = 0777;
  const bool is_abandoned = ::fstat(descriptor, &facts) == 0 &&
                            facts.st_uid == ::geteuid() &&
                            (facts.st_mode & kAccess) == S_IRWXU &&
                            ::flock(descriptor, LOCK_EX | LOCK_NB) == 0;
  ::close(descriptor);
  return is_abandoned;
}

}  // namespace fragsmith::system

#endif  // _WIN32
