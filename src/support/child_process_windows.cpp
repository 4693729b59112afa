#ifdef _WIN32

#include <windows.h>

#include "support/child_process_system.h"
#include "support/files.h"

namespace fragsmith::system {
namespace {

/// Adds the argument so that the program's own start-up code takes it apart
/// into just this text: a backslash is doubled only in front of a quote.
void AppendQuoted(const std::wstring& argument, std::wstring& line) {
  if (!line.empty()) line += L' ';
  line += L'"';
  std::size_t backslashes = 0;
  for (const wchar_t letter : argument) {
    if (letter == L'\\') {
      ++backslashes;
    } else {
      if (letter == L'"') line.append(backslashes + 1, L'\\');
      backslashes = 0;
    }
    line += letter;
  }
  line.append(backslashes, L'\\');
  line += L'"';
}

}  // namespace

std::error_code StartProcess(const std::filesystem::path& program,
                             const std::vector<std::string>& arguments,
                             std::intptr_t& handle) {
  std::wstring line;
  AppendQuoted(program.wstring(), line);
  for (const std::string& argument : arguments) {
    AppendQuoted(PathFromBytes(argument).wstring(), line);
  }
  STARTUPINFOW startup = {};
  startup.cb = sizeof startup;
  startup.dwFlags = STARTF_USESHOWWINDOW;
  startup.wShowWindow = SW_SHOWMINNOACTIVE;
  PROCESS_INFORMATION process = {};
  if (::CreateProcessW(program.c_str(), line.data(), nullptr, nullptr, FALSE,
                       CREATE_NEW_CONSOLE, nullptr, nullptr, &startup,
                       &process) == 0) {
    return {static_cast<int>(::GetLastError()), std::system_category()};
  }
  ::CloseHandle(process.hThread);
  handle = reinterpret_cast<std::intptr_t>(process.hProcess);
  return {};
}

bool IsProcessRunning(std::intptr_t handle) {
  const auto process = reinterpret_cast<HANDLE>(handle);
  if (::WaitForSingleObject(process, 0) == WAIT_TIMEOUT) return true;
  ::CloseHandle(process);
  return false;
}

void LeaveProcess(std::intptr_t handle) {
  ::CloseHandle(reinterpret_cast<HANDLE>(handle));
}

}  // namespace fragsmith::system

#endif  // _WIN32
