#ifndef FRAGSMITH_INSTALL_PACKAGES_TARGA_H_
#define FRAGSMITH_INSTALL_PACKAGES_TARGA_H_

#include <cstdint>
#include <string_view>
#include <vector>

#include "support/result.h"

namespace fragsmith {

struct Picture {
  int width = 0;
  int height = 0;
  /// Red, green, blue and alpha for each pixel, row by row from the top.
  std::vector<std::uint8_t> pixels;
};

/// The largest width and height of a picture.
inline constexpr int kMaxPictureSide = 1024;

/// Decodes an uncompressed or run-length Targa picture. One that is cut is
/// refused.
Result<Picture> DecodeTarga(std::string_view bytes);

}  // namespace fragsmith

#endif  // FRAGSMITH_INSTALL_PACKAGES_TARGA_H_
