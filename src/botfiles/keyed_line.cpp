#include "botfiles/keyed_line.h"

#include <utility>

#include "botfiles/value_format.h"
#include "model/characteristic_catalogue.h"
#include "support/code_page.h"
#include "support/text.h"

namespace fragsmith {
namespace {

bool IsIdentity(int key) { return key <= kGenderIndex; }

/// Names and genders lose their blanks and are always text.
Value WithoutBlanks(const Value& value) { return RemoveBlanks(ToText(value)); }

/// The key and its level as the user reads them in a note.
std::string Describe(int key, int parameter) {
  std::string text(BareKey(key));
  if (parameter != key) {
    text += " of level " + std::to_string(parameter / 100);
  }
  return text;
}

/// A value in a note.
std::string Shown(const Value& value) {
  if (std::holds_alternative<std::monostate>(value)) return "nothing";
  if (!std::holds_alternative<std::string>(value)) return ToText(value);
  return '"' + ShownText(ToText(value)) + '"';
}

}  // namespace

bool IsPassedOver(std::string_view line) {
  return line.starts_with("//") || line.starts_with("#i") ||
         line.starts_with('}') || line.starts_with('{');
}

std::string_view ValueTextOf(std::string_view line, int index) {
  const std::string_view padded = PaddedKey(index);
  const std::size_t place = line.find(padded);
  if (place != std::string_view::npos) {
    return line.substr(place + padded.size());
  }
  const std::string_view key = BareKey(index);
  const std::size_t key_end = line.find(key) + key.size();
  const std::size_t column = padded.size() - 1;
  if (column < line.size()) {
    const std::string_view text = TrimBlanksAndTabs(line.substr(column));
    const auto start = static_cast<std::size_t>(text.data() - line.data());
    if (!text.empty() && start >= key_end) return text;
  }
  return FirstToken(line.substr(key_end));
}

ValueReader::ValueReader(std::string file, Bot& bot, ReadReport& report)
    : file_(std::move(file)), bot_(bot), report_(report) {}

void ValueReader::AddNote(std::size_t line, std::string text) {
  report_.notes.Add({file_, line, std::move(text)});
}

void ValueReader::Take(const KeyedLine& line, int key, int parameter) {
  const std::string_view text = ValueTextOf(line.text, key);
  // A key with nothing behind it leaves the parameter empty.
  Value value;
  if (!TrimBlanksAndTabs(text).empty()) value = CleanValue(text);
  if (IsIdentity(key)) value = WithoutBlanks(value);

  const Value before = bot_.Parameter(parameter);
  // Neither an identity text nor a parameter refuses any value.
  (void)bot_.SetParameter(parameter, std::move(value));
  Compare(line, key, parameter, before);
}

void ValueReader::Compare(const KeyedLine& line, int key, int parameter,
                          const Value& before) {
  const Value& read = bot_.Parameter(parameter);
  const std::size_t place = line.code.find(BareKey(key));
  if (place == std::string_view::npos) {
    report_.plain_values.try_emplace(parameter, before);
    AddNote(line.number, Describe(key, parameter) + ": read as " + Shown(read) +
                             ", but the line is a comment for the game.");
    return;
  }
  Value plain =
      PlainValue(FirstToken(line.code.substr(place + BareKey(key).size())));
  if (IsIdentity(key)) plain = WithoutBlanks(plain);
  if (!IsSameValue(read, plain)) {
    AddNote(line.number, Describe(key, parameter) + ": read as " + Shown(read) +
                             ", but " + Shown(plain) +
                             " stands behind the key.");
    report_.plain_values.insert_or_assign(parameter, std::move(plain));
    return;
  }
  report_.plain_values.erase(parameter);
  if (IsIdentity(key)) return;
  if (std::holds_alternative<std::monostate>(read)) {
    AddNote(line.number,
            Describe(key, parameter) + ": no value, so it counts as 0.");
  } else if (std::holds_alternative<std::string>(read) && !ToNumber(read)) {
    AddNote(line.number, Describe(key, parameter) + ": " + Shown(read) +
                             " is not a number; it is kept as text.");
  }
}

}  // namespace fragsmith
