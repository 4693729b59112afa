#ifdef _WIN32

#include <windows.h>

#include "support/files.h"
#include "support/system/installed_programs.h"

namespace fragsmith {
namespace {

constexpr const wchar_t* kList =
    L"Software\\Microsoft\\Windows\\CurrentVersion\\Uninstall";

constexpr REGSAM kViews[] = {KEY_WOW64_64KEY, KEY_WOW64_32KEY};

/// Where a program notes its folder itself.
struct NotedFolder {
  const char* program;
  HKEY top;
  const wchar_t* key;
  const wchar_t* name;
};
/// The user's note about the shop is in small letters, so it comes last.
const NotedFolder kNotedFolders[] = {
    {"Quake III Arena", HKEY_LOCAL_MACHINE, L"Software\\id\\Quake III Arena",
     L"INSTALLPATH"},
    {"Steam", HKEY_LOCAL_MACHINE, L"Software\\Valve\\Steam", L"InstallPath"},
    {"Steam", HKEY_CURRENT_USER, L"Software\\Valve\\Steam", L"SteamPath"}};

/// A text of a key; empty when it is not there.
std::wstring Text(HKEY key, const wchar_t* name) {
  constexpr DWORD kMaxBytes = 65536;
  DWORD bytes = kMaxBytes;
  std::wstring text(bytes / sizeof(wchar_t), L'\0');
  if (::RegGetValueW(key, nullptr, name, RRF_RT_REG_SZ, nullptr, text.data(),
                     &bytes) != ERROR_SUCCESS) {
    return {};
  }
  text.resize(text.find(L'\0'));
  return text;
}

/// Some write the folder in quotation marks.
std::wstring WithoutQuotes(std::wstring text) {
  std::erase(text, L'"');
  return text;
}

void Add(const std::string& name, const std::filesystem::path& folder,
         std::vector<InstalledProgram>& found) {
  if (folder.is_absolute()) found.push_back({name, folder});
}

void AddNoted(const NotedFolder& noted, std::vector<InstalledProgram>& found) {
  for (const REGSAM view : kViews) {
    HKEY key = nullptr;
    if (::RegOpenKeyExW(noted.top, noted.key, 0, KEY_READ | view, &key) ==
        ERROR_SUCCESS) {
      Add(noted.program, WithoutQuotes(Text(key, noted.name)), found);
      ::RegCloseKey(key);
    }
  }
}

void AddPrograms(HKEY top, REGSAM view, std::vector<InstalledProgram>& found) {
  HKEY list = nullptr;
  if (::RegOpenKeyExW(top, kList, 0, KEY_READ | view, &list) != ERROR_SUCCESS) {
    return;
  }
  constexpr DWORD kMaxLettersOfKey = 256;
  for (DWORD index = 0;; ++index) {
    wchar_t name[kMaxLettersOfKey];
    DWORD length = kMaxLettersOfKey;
    if (::RegEnumKeyExW(list, index, name, &length, nullptr, nullptr, nullptr,
                        nullptr) != ERROR_SUCCESS) {
      break;
    }
    HKEY key = nullptr;
    if (::RegOpenKeyExW(list, name, 0, KEY_READ | view, &key) !=
        ERROR_SUCCESS) {
      continue;
    }
    const std::filesystem::path shown = Text(key, L"DisplayName");
    Add(Utf8FromPath(shown), WithoutQuotes(Text(key, L"InstallLocation")),
        found);
    ::RegCloseKey(key);
  }
  ::RegCloseKey(list);
}

}  // namespace

std::vector<InstalledProgram> InstalledPrograms() {
  std::vector<InstalledProgram> found;
  for (const REGSAM view : kViews) {
    AddPrograms(HKEY_LOCAL_MACHINE, view, found);
    AddPrograms(HKEY_CURRENT_USER, view, found);
  }
  for (const NotedFolder& noted : kNotedFolders) AddNoted(noted, found);
  return found;
}

}  // namespace fragsmith

#endif  // _WIN32
