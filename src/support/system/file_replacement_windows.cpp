#ifdef _WIN32

#include <windows.h>

#include <algorithm>
#include <cstddef>

#include "support/system/file_replacement_system.h"

namespace fragsmith::system {
namespace {

std::error_code LastError() {
  return {static_cast<int>(::GetLastError()), std::system_category()};
}

/// An open file that is closed at the end of its scope.
class Handle {
 public:
  Handle(const std::filesystem::path& path, DWORD access, DWORD disposition)
      : handle_(::CreateFileW(path.c_str(), access, 0, nullptr, disposition,
                              FILE_ATTRIBUTE_NORMAL, nullptr)) {}
  Handle(const Handle&) = delete;
  Handle& operator=(const Handle&) = delete;
  ~Handle() {
    if (is_open()) ::CloseHandle(handle_);
  }

  bool is_open() const { return handle_ != INVALID_HANDLE_VALUE; }
  HANDLE get() const { return handle_; }

 private:
  HANDLE handle_;
};

}  // namespace

std::error_code CreateNewFile(const std::filesystem::path& path,
                              const std::filesystem::path& /*model*/) {
  const Handle file(path, GENERIC_WRITE, CREATE_NEW);
  if (!file.is_open()) return LastError();
  return {};
}

std::error_code WriteWholeFile(const std::filesystem::path& path,
                               std::string_view bytes) {
  const Handle file(path, GENERIC_WRITE, TRUNCATE_EXISTING);
  if (!file.is_open()) return LastError();
  while (!bytes.empty()) {
    const auto piece =
        static_cast<DWORD>(std::min(bytes.size(), std::size_t{1} << 30U));
    DWORD written = 0;
    if (::WriteFile(file.get(), bytes.data(), piece, &written, nullptr) == 0) {
      return LastError();
    }
    bytes.remove_prefix(written);
  }
  return {};
}

std::error_code FlushToDisk(const std::filesystem::path& path) {
  const Handle file(path, GENERIC_WRITE, OPEN_EXISTING);
  if (!file.is_open()) return LastError();
  if (::FlushFileBuffers(file.get()) == 0) return LastError();
  return {};
}

std::error_code RenameOver(const std::filesystem::path& from,
                           const std::filesystem::path& to) {
  // What looks for viruses holds a new file open for a moment.
  constexpr int kTries = 6;
  constexpr DWORD kMillisecondsBetween = 50;
  std::error_code reason;
  for (int attempt = 0; attempt < kTries; ++attempt) {
    if (attempt > 0) ::Sleep(kMillisecondsBetween);
    if (::MoveFileExW(from.c_str(), to.c_str(),
                      MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH) !=
        0) {
      return {};
    }
    reason = LastError();
    if (!IsInUse(reason)) break;
  }
  return reason;
}

// To replace a file that is open is called a matter of access there.
bool IsInUse(const std::error_code& reason) {
  return reason.value() == ERROR_SHARING_VIOLATION ||
         reason.value() == ERROR_LOCK_VIOLATION ||
         reason.value() == ERROR_ACCESS_DENIED;
}

}  // namespace fragsmith::system

#endif  // _WIN32
