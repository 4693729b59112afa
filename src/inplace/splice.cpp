#include "inplace/splice.h"

#include <algorithm>

#include "botfiles/value_format.h"

namespace fragsmith {
namespace {

constexpr std::string_view kEnds = "\r\n";

bool IsBlank(std::string_view text) { return TrimBlanksAndTabs(text).empty(); }

}  // namespace

std::string_view TextAt(std::string_view bytes, TextSpan span) {
  return bytes.substr(span.begin, span.end - span.begin);
}

std::string Spliced(std::string_view bytes, std::vector<Splice> splices) {
  std::stable_sort(splices.begin(), splices.end(),
                   [](const Splice& left, const Splice& right) {
                     return left.span.begin < right.span.begin;
                   });
  std::string result;
  std::size_t offset = 0;
  for (const Splice& splice : splices) {
    const std::size_t begin = std::max(offset, splice.span.begin);
    result += bytes.substr(offset, begin - offset);
    result += splice.text;
    offset = std::max(begin, splice.span.end);
  }
  result += bytes.substr(offset);
  return result;
}

std::vector<TextSpan> CommentsIn(std::string_view bytes) {
  std::vector<TextSpan> comments;
  std::size_t at = 0;
  const auto end_of = [&](std::string_view sign, std::size_t from) {
    const std::size_t found = bytes.find(sign, from);
    return found == std::string_view::npos ? bytes.size() : found + sign.size();
  };
  while ((at = bytes.find_first_of("\"/", at)) != std::string_view::npos) {
    const std::string_view rest = bytes.substr(at);
    std::size_t end = at + 1;
    if (rest.starts_with('"')) {
      // A quotation mark that is never closed ends with its line.
      end = std::min(bytes.find_first_of("\"\r\n", end), bytes.size() - 1) + 1;
    } else if (rest.starts_with("//")) {
      end = std::min(bytes.find_first_of(kEnds, at), bytes.size());
      comments.push_back({at, end});
    } else if (rest.starts_with("/*")) {
      end = end_of("*/", at + 2);
      comments.push_back({at, end});
    }
    at = end;
  }
  return comments;
}

bool Overlap(TextSpan left, TextSpan right) {
  return left.begin < right.end && right.begin < left.end;
}

std::size_t LineNumberAt(std::string_view bytes, std::size_t offset) {
  LineReader lines(bytes);
  while (const std::optional<std::string_view> line = lines.Next()) {
    const auto start = static_cast<std::size_t>(line->data() - bytes.data());
    if (offset <= start + line->size()) break;
  }
  return lines.number();
}

LineOfFile LineAround(std::string_view bytes, std::size_t offset) {
  offset = std::min(offset, bytes.size());
  LineOfFile line;
  const std::size_t before = offset == 0
                                 ? std::string_view::npos
                                 : bytes.find_last_of(kEnds, offset - 1);
  line.text.begin = before == std::string_view::npos ? 0 : before + 1;
  line.text.end = std::min(bytes.find_first_of(kEnds, offset), bytes.size());
  line.whole = line.text;
  if (line.whole.end < bytes.size()) {
    const bool is_pair = bytes.substr(line.whole.end).starts_with(kLineEnd);
    line.whole.end += is_pair ? 2 : 1;
  }
  return line;
}

std::string_view IndentOf(std::string_view bytes, const LineOfFile& line) {
  const std::string_view text = TextAt(bytes, line.text);
  return text.substr(0, std::min(text.find_first_not_of(" \t"), text.size()));
}

std::string LineEndOf(std::string_view bytes, const LineOfFile& line) {
  const auto end_of = [bytes](const LineOfFile& one) {
    return bytes.substr(one.text.end, one.whole.end - one.text.end);
  };
  if (!end_of(line).empty()) return std::string(end_of(line));
  const std::string_view first = end_of(LineAround(bytes, 0));
  return std::string(first.empty() ? kLineEnd : first);
}

Splice LinesBehind(std::string_view bytes, const LineOfFile& line,
                   const std::vector<std::string>& lines) {
  const std::string end = LineEndOf(bytes, line);
  // At the end of the file the last line may lack its end, and keeps so.
  const bool is_open = line.whole.end == line.text.end;
  Splice splice = {{line.whole.end, line.whole.end}, {}};
  for (const std::string& text : lines) {
    splice.text += is_open ? end + text : text + end;
  }
  return splice;
}

Splice LinesBefore(std::string_view bytes, const LineOfFile& line,
                   const std::vector<std::string>& lines) {
  const std::string end = LineEndOf(bytes, line);
  Splice splice = {{line.text.begin, line.text.begin}, {}};
  for (const std::string& text : lines) splice.text += text + end;
  return splice;
}

Splice Removal(std::string_view bytes, TextSpan span) {
  const LineOfFile line = LineAround(bytes, span.begin);
  if (span.end > line.text.end) return {span, {}};
  const bool is_alone =
      IsBlank(bytes.substr(line.text.begin, span.begin - line.text.begin)) &&
      IsBlank(bytes.substr(span.end, line.text.end - span.end));
  return {is_alone ? line.whole : span, {}};
}

}  // namespace fragsmith
