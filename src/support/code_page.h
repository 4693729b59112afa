#ifndef FRAGSMITH_SUPPORT_CODE_PAGE_H_
#define FRAGSMITH_SUPPORT_CODE_PAGE_H_

#include <optional>
#include <string>
#include <string_view>

namespace fragsmith {

/// Game text as UTF-8. Every byte has a character: the five that Windows-1252
/// leaves open (0x81, 0x8D, 0x8F, 0x90, 0x9D) stand for themselves, so that
/// no text is lost on the way there and back.
std::string Utf8FromGameText(std::string_view text);

/// The reverse; nothing when the text is no valid UTF-8 or holds a character
/// that the code page lacks.
std::optional<std::string> GameTextFromUtf8(std::string_view utf8);

/// Game text for a note or an error, as UTF-8; of a long one only the
/// beginning, for a line of a bad file may have megabytes.
std::string ShownText(std::string_view text);

}  // namespace fragsmith

#endif  // FRAGSMITH_SUPPORT_CODE_PAGE_H_
