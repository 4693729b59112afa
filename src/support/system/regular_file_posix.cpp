#ifndef _WIN32

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>

#include "support/system/regular_file.h"

namespace fragsmith::system {

std::optional<std::string> ReadRegularFile(const std::filesystem::path& path,
                                           std::size_t limit) {
  struct stat state = {};
  if (::stat(path.c_str(), &state) != 0 || !S_ISREG(state.st_mode)) {
    return std::nullopt;
  }
  const auto size = static_cast<std::size_t>(state.st_size);
  if (size > limit) return std::nullopt;
  const int file = ::open(path.c_str(), O_RDONLY | O_CLOEXEC);
  if (file < 0) return std::nullopt;
  std::string bytes;
  // The size is no promise: the file may grow while it is read.
  constexpr std::size_t kPiece = 65536;
  std::size_t filled = 0;
  ssize_t read = 0;
  do {
    bytes.resize(filled == 0 ? size + 1 : filled + kPiece);
    read = ::read(file, &bytes[filled], bytes.size() - filled);
    filled += static_cast<std::size_t>(std::max<ssize_t>(read, 0));
    // Less than was asked for, and all that there is to be.
  } while (read > 0 && filled != size && filled <= limit);
  ::close(file);
  if (read < 0 || filled > limit) return std::nullopt;
  bytes.resize(filled);
  return bytes;
}

}  // namespace fragsmith::system

#endif
