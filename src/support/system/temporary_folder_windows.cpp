#ifdef _WIN32

#include <windows.h>

#include <random>
#include <string>

#include "support/system/temporary_folder_system.h"

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

namespace {

/// Lies in a folder as long as the process runs that holds it.
constexpr const wchar_t* kHeldFile = L".held";

}  // namespace

std::intptr_t HoldFolder(const std::filesystem::path& folder) {
  return reinterpret_cast<std::intptr_t>(::CreateFileW(
      (folder / kHeldFile).c_str(), GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS,
      FILE_ATTRIBUTE_HIDDEN | FILE_FLAG_DELETE_ON_CLOSE, nullptr));
}

void LetFolderGo(std::intptr_t handle) {
  const auto file = reinterpret_cast<HANDLE>(handle);
  if (file != INVALID_HANDLE_VALUE) ::CloseHandle(file);
}

bool IsAbandonedFolder(const std::filesystem::path& folder) {
  const DWORD facts = ::GetFileAttributesW(folder.c_str());
  constexpr DWORD kLink = FILE_ATTRIBUTE_REPARSE_POINT;
  return facts != INVALID_FILE_ATTRIBUTES &&
         (facts & FILE_ATTRIBUTE_DIRECTORY) != 0 && (facts & kLink) == 0 &&
         ::GetFileAttributesW((folder / kHeldFile).c_str()) ==
             INVALID_FILE_ATTRIBUTES;
}

}  // namespace fragsmith::system

#endif  // _WIN32
