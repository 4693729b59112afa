#ifdef _WIN32

#include "support/system/regular_file.h"

namespace fragsmith::system {

std::optional<std::string> ReadRegularFile(
    const std::filesystem::path& /*path*/, std::size_t /*limit*/) {
  return std::nullopt;
}

}  // namespace fragsmith::system

#endif
