#ifdef _WIN32

#include <windows.h>

#include <string>

#include "support/system/program_location_system.h"

namespace fragsmith::system {
namespace {

/// The folder that a variable of the environment names; empty without one.
std::filesystem::path VariablePath(const wchar_t* name) {
  constexpr DWORD kMaxLetters = 32768;
  std::wstring path(kMaxLetters, L'\0');
  const DWORD length =
      ::GetEnvironmentVariableW(name, path.data(), kMaxLetters);
  if (length == 0 || length >= kMaxLetters) return {};
  path.resize(length);
  return path;
}

}  // namespace

std::filesystem::path ExecutablePath() {
  constexpr DWORD kMaxLetters = 32768;
  std::wstring path(kMaxLetters, L'\0');
  const DWORD length = ::GetModuleFileNameW(nullptr, path.data(), kMaxLetters);
  if (length == 0 || length == kMaxLetters) return {};
  path.resize(length);
  return path;
}

std::filesystem::path ConfigurationFolder() { return VariablePath(L"APPDATA"); }

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

// The last is where programs go that are installed for one user alone.
bool IsSystemFolder(const std::filesystem::path& path) {
  const std::wstring inside = path.native() + L'\\';
  const std::filesystem::path own = VariablePath(L"LOCALAPPDATA");
  for (const std::filesystem::path& folder :
       {VariablePath(L"ProgramFiles"), VariablePath(L"ProgramFiles(x86)"),
        own.empty() ? own : own / L"Programs"}) {
    const std::wstring start = folder.native() + L'\\';
    if (!folder.empty() && ::lstrcmpiW(inside.substr(0, start.size()).c_str(),
                                       start.c_str()) == 0) {
      return true;
    }
  }
  return false;
}

// The system asks there before a program may write everywhere.
bool IsSuperUser() { return false; }

}  // namespace fragsmith::system

#endif  // _WIN32
