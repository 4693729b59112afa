#ifndef _WIN32

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstddef>
#include <utility>

#include "support/system/file_replacement_system.h"

namespace fragsmith::system {
namespace {

std::error_code LastError() { return {errno, std::generic_category()}; }

}  // namespace

NewFile::NewFile(NewFile&& other) noexcept
    : handle_(std::exchange(other.handle_, kNone)) {}

std::error_code NewFile::Make(const std::filesystem::path& path,
                              const std::filesystem::path& model) {
  const int file = ::open(
      path.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC | O_NOFOLLOW, 0666);
  if (file < 0) return LastError();
  handle_ = file;
  struct stat state = {};
  if (::lstat(model.c_str(), &state) == 0 && S_ISREG(state.st_mode)) {
    // A file system without permissions must not keep the user from saving.
    (void)::fchmod(file, state.st_mode & 0777U);
  }
  return {};
}

std::error_code NewFile::Append(std::string_view bytes) const {
  while (!bytes.empty()) {
    const ssize_t written =
        ::write(static_cast<int>(handle_), bytes.data(), bytes.size());
    if (written < 0) {
      if (errno == EINTR) continue;
      return LastError();
    }
    bytes.remove_prefix(static_cast<std::size_t>(written));
  }
  return {};
}

std::error_code NewFile::FlushToDisk() const {
  // EINVAL: a file system on which there is nothing to flush.
  if (::fsync(static_cast<int>(handle_)) != 0 && errno != EINVAL) {
    return LastError();
  }
  return {};
}

std::error_code NewFile::Close() {
  if (handle_ == kNone) return {};
  const auto file = static_cast<int>(std::exchange(handle_, kNone));
  if (::close(file) != 0) return LastError();
  return {};
}

std::error_code RenameOver(const std::filesystem::path& from,
                           const std::filesystem::path& to) {
  std::error_code reason;
  std::filesystem::rename(from, to, reason);
  return reason;
}

bool IsInUse(const std::error_code& /*reason*/) { return false; }

}  // namespace fragsmith::system

#endif  // _WIN32
