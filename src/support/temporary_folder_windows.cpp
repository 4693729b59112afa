#ifdef _WIN32

#include <windows.h>

#include <random>
#include <string>

#include "support/temporary_folder_system.h"

namespace fragsmith::system {

// The system's temporary folder is the user's own there, and what is made in
// it inherits that.
std::error_code MakePrivateFolder(const std::filesystem::path& beginning,
                                  std::filesystem::path& made) {
  std::random_device random;
  constexpr int kTries = 8;
  for (int attempt = 0; attempt < kTries; ++attempt) {
    made = beginning;
    made += std::to_wstring(random());
    if (::CreateDirectoryW(made.c_str(), nullptr) != 0) return {};
    if (::GetLastError() != ERROR_ALREADY_EXISTS) break;
  }
  return {static_cast<int>(::GetLastError()), std::system_category()};
}

}  // namespace fragsmith::system

#endif  // _WIN32
