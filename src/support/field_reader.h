#ifndef FRAGSMITH_SUPPORT_FIELD_READER_H_
#define FRAGSMITH_SUPPORT_FIELD_READER_H_

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace fragsmith {

/// Walks over the fields of the program's own files. Blanks and TABs before a
/// field are skipped. An unquoted field ends at a comma or line end (CR LF, LF
/// or CR) and keeps the blanks at its end; one that begins with a double quote
/// runs to the next double quote, over line ends too, and loses both. What
/// stands between a closing quote and the comma is the next field. An empty
/// line is one empty field, and so is what follows a comma at a line's end.
class FieldReader {
 public:
  /// What stood behind a field and was taken with it.
  enum class Separator { kNone, kComma, kLineEnd, kFileEnd };

  explicit FieldReader(std::string_view bytes) : rest_(bytes) {}

  bool AtEnd() const { return rest_.empty(); }

  /// The next field, a part of the bytes; nothing at the end of the file.
  std::optional<std::string_view> Next();

  /// True when that field began with a quote and the file ended before the
  /// closing one: something is missing.
  bool is_cut() const { return is_cut_; }

  /// The fields of one record: so many, with commas between them and the line
  /// end or the end of the file behind the last. Nothing when the record is
  /// another; the reader then stands somewhere in it.
  std::optional<std::vector<std::string_view>> NextRecord(std::size_t count);

 private:
  std::string_view TakeField();
  void TakeSeparator();

  std::string_view rest_;
  Separator separator_ = Separator::kNone;
  bool is_cut_ = false;
};

/// Adds the text as a field in double quotes. The form has no way to hold a
/// double quote: one in the text is left out, or it would spoil what follows.
void AppendQuotedField(std::string_view text, std::string& to);

}  // namespace fragsmith

#endif  // FRAGSMITH_SUPPORT_FIELD_READER_H_
