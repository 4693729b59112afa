#include "support/code_page.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>

namespace fragsmith {
namespace {

/// Characters of the bytes 0x80 to 0x9F; all others stand for themselves.
constexpr std::array<std::uint16_t, 32> kMiddle = {
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021,
    0x02C6, 0x2030, 0x0160, 0x2039, 0x0152, 0x008D, 0x017D, 0x008F,
    0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014,
    0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

void AppendUtf8(std::uint32_t code, std::string& utf8) {
  if (code < 0x80) {
    utf8 += static_cast<char>(code);
  } else if (code < 0x800) {
    utf8 += static_cast<char>(0xC0U | (code >> 6U));
    utf8 += static_cast<char>(0x80U | (code & 0x3FU));
  } else {
    utf8 += static_cast<char>(0xE0U | (code >> 12U));
    utf8 += static_cast<char>(0x80U | ((code >> 6U) & 0x3FU));
    utf8 += static_cast<char>(0x80U | (code & 0x3FU));
  }
}

/// Takes one character of at most three bytes off the front: the code page
/// has none that needs four.
std::optional<std::uint32_t> TakeCharacter(std::string_view& utf8) {
  const auto byte = [&utf8](std::size_t at) -> std::uint32_t {
    return at < utf8.size() ? static_cast<unsigned char>(utf8[at]) : 0U;
  };
  const auto continues = [&byte](std::size_t at) {
    return (byte(at) & 0xC0U) == 0x80U;
  };
  const std::uint32_t first = byte(0);
  if (first < 0x80) {
    utf8.remove_prefix(1);
    return first;
  }
  if ((first & 0xE0U) == 0xC0U && continues(1)) {
    const std::uint32_t code = ((first & 0x1FU) << 6U) | (byte(1) & 0x3FU);
    utf8.remove_prefix(2);
    if (code < 0x80) return std::nullopt;
    return code;
  }
  if ((first & 0xF0U) == 0xE0U && continues(1) && continues(2)) {
    const std::uint32_t code = ((first & 0x0FU) << 12U) |
                               ((byte(1) & 0x3FU) << 6U) | (byte(2) & 0x3FU);
    utf8.remove_prefix(3);
    if (code < 0x800) return std::nullopt;
    return code;
  }
  return std::nullopt;
}

std::optional<char> ByteOf(std::uint32_t code) {
  if (code < 0x80 || (code >= 0xA0 && code <= 0xFF)) {
    return static_cast<char>(code);
  }
  const auto* const found = std::find(kMiddle.begin(), kMiddle.end(), code);
  if (found == kMiddle.end()) return std::nullopt;
  return static_cast<char>(0x80 + (found - kMiddle.begin()));
}

}  // namespace

std::string Utf8FromGameText(std::string_view text) {
  std::string utf8;
  utf8.reserve(text.size());
  for (const char letter : text) {
    const auto byte = static_cast<unsigned char>(letter);
    const bool is_middle = byte >= 0x80 && byte < 0xA0;
    AppendUtf8(is_middle ? kMiddle.at(byte - 0x80U) : byte, utf8);
  }
  return utf8;
}

std::optional<std::string> GameTextFromUtf8(std::string_view utf8) {
  std::string text;
  text.reserve(utf8.size());
  while (!utf8.empty()) {
    const std::optional<std::uint32_t> code = TakeCharacter(utf8);
    if (!code) return std::nullopt;
    const std::optional<char> byte = ByteOf(*code);
    if (!byte) return std::nullopt;
    text += *byte;
  }
  return text;
}

std::string ShownText(std::string_view text) {
  constexpr std::size_t kMax = 60;
  std::string shown = Utf8FromGameText(text.substr(0, kMax));
  if (text.size() > kMax) shown += "...";
  return shown;
}

}  // namespace fragsmith
