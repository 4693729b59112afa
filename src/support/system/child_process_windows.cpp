#ifdef _WIN32

#include <windows.h>

#include "support/files.h"
#include "support/system/child_process_system.h"

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

std::error_code LastError() {
  return {static_cast<int>(::GetLastError()), std::system_category()};
}

}  // namespace

std::error_code StartProcess(const std::filesystem::path& program,
                             const std::vector<std::string>& arguments,
                             const std::filesystem::path& output,
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
  HANDLE file = INVALID_HANDLE_VALUE;
  if (!output.empty()) {
    SECURITY_ATTRIBUTES inherited = {};
    inherited.nLength = sizeof inherited;
    inherited.bInheritHandle = TRUE;
    file = ::CreateFileW(output.c_str(), FILE_APPEND_DATA,
                         FILE_SHARE_READ | FILE_SHARE_WRITE, &inherited,
                         CREATE_ALWAYS, FILE_ATTRIBUTE_NORMAL, nullptr);
    if (file == INVALID_HANDLE_VALUE) return LastError();
    startup.dwFlags |= STARTF_USESTDHANDLES;
    startup.hStdOutput = file;
    startup.hStdError = file;
  }
  PROCESS_INFORMATION process = {};
  const BOOL is_started = ::CreateProcessW(
      program.c_str(), line.data(), nullptr, nullptr, output.empty() ? 0 : 1,
      output.empty() ? CREATE_NEW_CONSOLE : CREATE_NO_WINDOW, nullptr, nullptr,
      &startup, &process);
  const std::error_code reason = LastError();
  if (file != INVALID_HANDLE_VALUE) ::CloseHandle(file);
  if (is_started == 0) return reason;
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

void WaitForProcess(std::intptr_t handle, std::chrono::milliseconds longest) {
  ::WaitForSingleObject(reinterpret_cast<HANDLE>(handle),
                        static_cast<DWORD>(longest.count()));
}

bool AskProcessToEnd(std::intptr_t /*handle*/) { return false; }

void EndProcess(std::intptr_t handle) {
  const auto process = reinterpret_cast<HANDLE>(handle);
  ::TerminateProcess(process, 1);
  ::WaitForSingleObject(process, INFINITE);
  ::CloseHandle(process);
}

void LeaveProcess(std::intptr_t handle) {
  ::CloseHandle(reinterpret_cast<HANDLE>(handle));
}

}  // namespace fragsmith::system

#endif  // _WIN32
