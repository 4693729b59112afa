#include <array>
#include <cstddef>
#include <string>

#include "fuzz/oracle.h"
#include "install/packages/targa.h"

namespace fragsmith {
namespace {

/// The picture as an uncompressed file of 32 bits, its first row at the top.
std::string Encode(const Picture& picture) {
  constexpr std::size_t kHeaderBytes = 18;
  std::string bytes(kHeaderBytes, '\0');
  const auto low = [](int number) { return static_cast<char>(number & 0xFF); };
  bytes[2] = 2;
  bytes[12] = low(picture.width);
  bytes[13] = low(picture.width >> 8);
  bytes[14] = low(picture.height);
  bytes[15] = low(picture.height >> 8);
  bytes[16] = 32;
  bytes[17] = 0x28;
  for (std::size_t at = 0; at < picture.pixels.size(); at += 4) {
    for (const std::size_t channel : {2U, 1U, 0U, 3U}) {
      bytes += static_cast<char>(picture.pixels[at + channel]);
    }
  }
  return bytes;
}

}  // namespace

void FuzzOne(std::string_view bytes) {
  const Result<Picture> picture = DecodeTarga(bytes);
  if (!picture) return;
  const bool is_bounded =
      picture->width > 0 && picture->width <= kMaxPictureSide &&
      picture->height > 0 && picture->height <= kMaxPictureSide;
  Expect(is_bounded, "the size is within its bounds");
  Expect(picture->pixels.size() ==
             static_cast<std::size_t>(picture->width) *
                 static_cast<std::size_t>(picture->height) * 4,
         "there are as many pixels as the size says");
  const Result<Picture> again = DecodeTarga(Encode(*picture));
  Expect(again.has_value(), "our own picture is a good one");
  Expect(again->width == picture->width && again->height == picture->height &&
             again->pixels == picture->pixels,
         "all pixels are kept");
}

}  // namespace fragsmith
