#ifndef _WIN32

#include "support/files.h"

namespace fragsmith {

std::filesystem::path PathFromBytes(std::string_view bytes) { return {bytes}; }

std::string BytesFromPath(const std::filesystem::path& path) {
  return path.string();
}

}  // namespace fragsmith

#endif  // _WIN32
