#ifndef _WIN32

#include <cerrno>
#include <cstdlib>
#include <string>

#include "support/temporary_folder_system.h"

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

}  // namespace fragsmith::system

#endif  // _WIN32
