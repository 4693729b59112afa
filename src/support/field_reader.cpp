#include "support/field_reader.h"

#include <algorithm>
#include <iterator>

#include "support/text.h"

namespace fragsmith {

std::optional<std::string_view> FieldReader::Next() {
  if (AtEnd()) return std::nullopt;
  rest_.remove_prefix(std::min(rest_.find_first_not_of(" \t"), rest_.size()));
  const std::string_view field = TakeField();
  TakeSeparator();
  return field;
}

std::string_view FieldReader::TakeField() {
  const bool is_quoted = !rest_.empty() && rest_.front() == '"';
  if (is_quoted) rest_.remove_prefix(1);
  const std::size_t end = rest_.find_first_of(is_quoted ? "\"" : ",\r\n");
  const std::string_view field = rest_.substr(0, end);
  rest_.remove_prefix(field.size());
  is_cut_ = is_quoted && rest_.empty();
  if (is_quoted && !is_cut_) {
    rest_.remove_prefix(1);
    rest_.remove_prefix(std::min(rest_.find_first_not_of(" \t"), rest_.size()));
  }
  return field;
}

void FieldReader::TakeSeparator() {
  if (rest_.empty()) {
    separator_ = Separator::kFileEnd;
  } else if (rest_.front() == ',') {
    separator_ = Separator::kComma;
    rest_.remove_prefix(1);
  } else if (rest_.front() == '\r' || rest_.front() == '\n') {
    separator_ = Separator::kLineEnd;
    rest_.remove_prefix(rest_.starts_with(kLineEnd) ? kLineEnd.size() : 1);
  } else {
    separator_ = Separator::kNone;
  }
}

std::optional<std::vector<std::string_view>> FieldReader::NextRecord(
    std::size_t count) {
  std::vector<std::string_view> fields;
  while (fields.size() < count) {
    if (!fields.empty() && separator_ != Separator::kComma) {
      return std::nullopt;
    }
    const std::optional<std::string_view> field = Next();
    if (!field || is_cut_) return std::nullopt;
    fields.push_back(*field);
  }
  const bool is_whole =
      separator_ == Separator::kLineEnd || separator_ == Separator::kFileEnd;
  if (!is_whole) return std::nullopt;
  return fields;
}

void AppendQuotedField(std::string_view text, std::string& to) {
  to += '"';
  std::copy_if(text.begin(), text.end(), std::back_inserter(to),
               [](char letter) { return letter != '"'; });
  to += '"';
}

}  // namespace fragsmith
