#ifdef _WIN32

#include <windows.h>

#include <algorithm>
#include <cstddef>
#include <utility>

#include "support/system/file_replacement_system.h"

namespace fragsmith::system {
namespace {

std::error_code LastError() {
  return {static_cast<int>(::GetLastError()), std::system_category()};
}

HANDLE AsHandle(std::intptr_t handle) {
  return reinterpret_cast<HANDLE>(handle);
}

}  // namespace

NewFile::NewFile(NewFile&& other) noexcept
    : handle_(std::exchange(other.handle_, kNone)) {}

std::error_code NewFile::Make(const std::filesystem::path& path,
                              const std::filesystem::path& /*model*/) {
  const HANDLE file = ::CreateFileW(path.c_str(), GENERIC_WRITE, 0, nullptr,
                                    CREATE_NEW, FILE_ATTRIBUTE_NORMAL, nullptr);
  if (file == INVALID_HANDLE_VALUE) return LastError();
  handle_ = reinterpret_cast<std::intptr_t>(file);
  return {};
}

std::error_code NewFile::Append(std::string_view bytes) const {
  while (!bytes.empty()) {
    const auto piece =
        static_cast<DWORD>(std::min(bytes.size(), std::size_t{1} << 30U));
    DWORD written = 0;
    if (::WriteFile(AsHandle(handle_), bytes.data(), piece, &written,
                    nullptr) == 0) {
      return LastError();
    }
    bytes.remove_prefix(written);
  }
  return {};
}

std::error_code NewFile::FlushToDisk() const {
  if (::FlushFileBuffers(AsHandle(handle_)) == 0) return LastError();
  return {};
}

std::error_code NewFile::Close() {
  if (handle_ == kNone) return {};
  if (::CloseHandle(AsHandle(std::exchange(handle_, kNone))) == 0) {
    return LastError();
  }
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
