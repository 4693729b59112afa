#ifndef _WIN32

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>

#include "support/system/file_replacement_system.h"

namespace fragsmith::system {
namespace {

std::error_code LastError() { return {errno, std::generic_category()}; }

/// An open file that is closed at the end of its scope.
class Descriptor {
 public:
  Descriptor(const std::filesystem::path& path, int flags)
      : number_(::open(path.c_str(), flags | O_CLOEXEC | O_NOFOLLOW, 0666)) {}
  Descriptor(const Descriptor&) = delete;
  Descriptor& operator=(const Descriptor&) = delete;
  ~Descriptor() {
    if (number_ >= 0) ::close(number_);
  }

  bool is_open() const { return number_ >= 0; }
  int number() const { return number_; }

  /// Closes at once: some file systems report a write that failed only here.
  std::error_code Close() {
    const int number = number_;
    number_ = -1;
    if (::close(number) != 0) return LastError();
    return {};
  }

 private:
  int number_;
};

}  // namespace

std::error_code CreateNewFile(const std::filesystem::path& path,
                              const std::filesystem::path& model) {
  Descriptor file(path, O_WRONLY | O_CREAT | O_EXCL);
  if (!file.is_open()) return LastError();
  struct stat state = {};
  if (::lstat(model.c_str(), &state) == 0 && S_ISREG(state.st_mode)) {
    // A file system without permissions must not keep the user from saving.
    (void)::fchmod(file.number(), state.st_mode & 0777U);
  }
  return file.Close();
}

std::error_code WriteWholeFile(const std::filesystem::path& path,
                               std::string_view bytes) {
  Descriptor file(path, O_WRONLY | O_TRUNC);
  if (!file.is_open()) return LastError();
  while (!bytes.empty()) {
    const ssize_t written = ::write(file.number(), bytes.data(), bytes.size());
    if (written < 0) {
      if (errno == EINTR) continue;
      return LastError();
    }
    bytes.remove_prefix(static_cast<std::size_t>(written));
  }
  return file.Close();
}

std::error_code FlushToDisk(const std::filesystem::path& path) {
  Descriptor file(path, O_RDONLY);
  if (!file.is_open()) return LastError();
  // EINVAL: a file system on which there is nothing to flush.
  if (::fsync(file.number()) != 0 && errno != EINVAL) return LastError();
  return file.Close();
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
