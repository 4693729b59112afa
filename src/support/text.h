#ifndef FRAGSMITH_SUPPORT_TEXT_H_
#define FRAGSMITH_SUPPORT_TEXT_H_

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

namespace fragsmith {

// Game text is a row of bytes in Windows-1252; these helpers keep to that.

/// How every line of every written file ends.
inline constexpr std::string_view kLineEnd = "\r\n";

/// The text without its TABs.
std::string RemoveTabs(std::string_view text);

/// The text without its blanks; TABs stay.
std::string RemoveBlanks(std::string_view text);

/// The text without the blanks, or blanks and TABs, at both of its ends.
std::string_view TrimBlanks(std::string_view text);
std::string_view TrimBlanksAndTabs(std::string_view text);

/// Case by the letter pairs of Windows-1252 (Ä and ä, Š and š, Ÿ and ÿ).
char ToLower(char letter);
char ToUpper(char letter);
std::string ToLower(std::string_view text);

bool EqualIgnoringCase(std::string_view left, std::string_view right);
bool EndsWithIgnoringCase(std::string_view text, std::string_view end);

bool Contains(std::string_view text, std::string_view part);

/// A stretch of a file's bytes; its end lies behind the last of them.
struct TextSpan {
  std::size_t begin = 0;
  std::size_t end = 0;

  bool empty() const { return begin >= end; }
  /// True when the other one, which is not empty, lies within.
  bool Holds(TextSpan other) const {
    return !other.empty() && begin <= other.begin && other.end <= end;
  }
  bool operator==(const TextSpan&) const = default;
};

/// Walks over the lines of a file. A line ends at CR LF, LF or CR; what
/// stands behind the last line end is a line when it is not empty.
class LineReader {
 public:
  explicit LineReader(std::string_view bytes)
      : bytes_(bytes), line_feed_(bytes.find('\n')) {}

  /// The next line without its end; nothing at the end of the file.
  std::optional<std::string_view> Next();

  /// Number of the line that Next() gave last, counted from 1.
  std::size_t number() const { return number_; }

 private:
  std::string_view bytes_;
  std::size_t offset_ = 0;
  /// The first LF that does not lie before the offset.
  std::size_t line_feed_;
  std::size_t number_ = 0;
};

}  // namespace fragsmith

#endif  // FRAGSMITH_SUPPORT_TEXT_H_
