#include "cli/terminal.h"

namespace fragsmith {

std::string Printable(std::string_view utf8) {
  constexpr std::string_view kReplacement = "\xEF\xBF\xBD";
  std::string text;
  text.reserve(utf8.size());
  for (std::size_t at = 0; at < utf8.size(); ++at) {
    const auto byte = static_cast<unsigned char>(utf8[at]);
    // U+0080 to U+009F, which some terminals obey, are two bytes.
    const bool is_upper_control =
        byte == 0xC2 && at + 1 < utf8.size() &&
        (static_cast<unsigned char>(utf8[at + 1]) & 0xE0U) == 0x80U;
    if (is_upper_control) ++at;
    if (is_upper_control || (byte < 0x20 && byte != '\t') || byte == 0x7F) {
      text += kReplacement;
    } else {
      text += utf8[at];
    }
  }
  return text;
}

}  // namespace fragsmith
