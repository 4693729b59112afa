#include "install/packages/targa.h"

#include <algorithm>
#include <cstddef>
#include <memory>
#include <string>
#include <utility>

#define STB_IMAGE_IMPLEMENTATION
#define STB_IMAGE_STATIC
#define STBI_ONLY_TGA
#define STBI_NO_STDIO
#define STBI_MAX_DIMENSIONS 1024
#include <stb_image.h>

#include "support/localization.h"

namespace fragsmith {
namespace {

static_assert(kMaxPictureSide == STBI_MAX_DIMENSIONS);

constexpr std::size_t kHeaderBytes = 18;

/// What the header of a Targa file says of the data behind it.
struct Header {
  std::size_t pixels_begin = 0;  ///< Behind the header, a text and a palette.
  std::size_t pixel_count = 0;
  std::size_t pixel_bytes = 0;
  bool is_run_length = false;
};

tl::unexpected<Error> Refusal(std::string what) {
  return Failure(
      {.what = std::move(what), .file = {}, .line = 0, .advice = {}});
}

std::size_t ByteAt(std::string_view bytes, std::size_t at) {
  return static_cast<unsigned char>(bytes[at]);
}

std::size_t NumberAt(std::string_view bytes, std::size_t at) {
  return ByteAt(bytes, at) | ByteAt(bytes, at + 1) << 8U;
}

std::size_t WholeBytes(std::size_t bits) { return (bits + 7) / 8; }

Result<Header> ReadHeader(std::string_view bytes) {
  if (bytes.size() < kHeaderBytes) {
    return Refusal(Localized("The picture is cut."));
  }
  const std::size_t width = NumberAt(bytes, 12);
  const std::size_t height = NumberAt(bytes, 14);
  constexpr std::size_t kMax = kMaxPictureSide;
  if (width == 0 || height == 0 || width > kMax || height > kMax) {
    return Refusal(Localized("The picture's size is %1 x %2.",
                             {std::to_string(width), std::to_string(height)}));
  }
  const std::size_t palette_bytes =
      ByteAt(bytes, 1) == 0 ? 0
                            : NumberAt(bytes, 5) * WholeBytes(ByteAt(bytes, 7));
  constexpr std::size_t kRunLengthBit = 8;
  return Header{.pixels_begin = kHeaderBytes + ByteAt(bytes, 0) + palette_bytes,
                .pixel_count = width * height,
                .pixel_bytes = WholeBytes(ByteAt(bytes, 16)),
                .is_run_length = (ByteAt(bytes, 2) & kRunLengthBit) != 0};
}

/// The decoder fills up a cut picture with what happens to be in the memory.
bool HasAllPixels(const Header& header, std::string_view bytes) {
  if (bytes.size() < header.pixels_begin) return false;
  std::string_view data = bytes.substr(header.pixels_begin);
  if (!header.is_run_length) {
    return data.size() >= header.pixel_count * header.pixel_bytes;
  }
  // Each packet says how many pixels it gives: one that is repeated, or all.
  std::size_t missing = header.pixel_count;
  while (missing > 0) {
    if (data.empty()) return false;
    const std::size_t packet = ByteAt(data, 0);
    const std::size_t count = std::min((packet & 0x7FU) + 1, missing);
    const bool is_repeated = (packet & 0x80U) != 0;
    const std::size_t size = 1 + (is_repeated ? 1 : count) * header.pixel_bytes;
    if (data.size() < size) return false;
    data.remove_prefix(size);
    missing -= count;
  }
  return true;
}

struct FreePixels {
  void operator()(stbi_uc* pixels) const { ::stbi_image_free(pixels); }
};

}  // namespace

Result<Picture> DecodeTarga(std::string_view bytes) {
  const Result<Header> header = ReadHeader(bytes);
  if (!header) return Failure(header.error());
  if (!HasAllPixels(*header, bytes)) {
    return Refusal(Localized("The picture is cut."));
  }
  // The decoder counts in int; no picture within the bounds is that long.
  constexpr std::size_t kMaxBytes = std::size_t{64} << 20U;
  if (bytes.size() > kMaxBytes) {
    return Refusal(Localized("The picture is too large."));
  }
  Picture picture;
  constexpr int kChannels = 4;
  int channels_in_file = 0;
  const std::unique_ptr<stbi_uc, FreePixels> pixels(
      ::stbi_load_from_memory(reinterpret_cast<const stbi_uc*>(bytes.data()),
                              static_cast<int>(bytes.size()), &picture.width,
                              &picture.height, &channels_in_file, kChannels));
  if (!pixels) {
    return Refusal(Localized("This is no Targa picture that can be decoded."));
  }
  const std::size_t count = header->pixel_count * kChannels;
  picture.pixels.assign(pixels.get(), pixels.get() + count);
  return picture;
}

}  // namespace fragsmith
