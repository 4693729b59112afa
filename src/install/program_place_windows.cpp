#ifdef _WIN32

#include <windows.h>

#include <string>

#include "install/program_place_system.h"

namespace fragsmith::system {

std::filesystem::path ExecutablePath() {
  constexpr DWORD kMostLetters = 32768;
  std::wstring path(kMostLetters, L'\0');
  const DWORD length = ::GetModuleFileNameW(nullptr, path.data(), kMostLetters);
  if (length == 0 || length == kMostLetters) return {};
  path.resize(length);
  return path;
}

std::filesystem::path ConfigurationFolder() {
  constexpr DWORD kMostLetters = 32768;
  std::wstring path(kMostLetters, L'\0');
  const DWORD length =
      ::GetEnvironmentVariableW(L"APPDATA", path.data(), kMostLetters);
  if (length == 0 || length >= kMostLetters) return {};
  path.resize(length);
  return path;
}

// Permissions alone do not tell there: only making a file does.
bool IsWritableFolder(const std::filesystem::path& path) {
  const std::filesystem::path probe = path / L"fragsmith-probe.tmp";
  const HANDLE file = ::CreateFileW(
      probe.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_NEW,
      FILE_ATTRIBUTE_TEMPORARY | FILE_FLAG_DELETE_ON_CLOSE, nullptr);
  if (file == INVALID_HANDLE_VALUE) return false;
  ::CloseHandle(file);
  return true;
}

}  // namespace fragsmith::system

#endif  // _WIN32
