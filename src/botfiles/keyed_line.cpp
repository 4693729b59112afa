#include "botfiles/keyed_line.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <utility>

#include "botfiles/value_format.h"
#include "model/characteristic_catalogue.h"
#include "support/code_page.h"
#include "support/game_blank.h"
#include "support/localization.h"
#include "support/numbers.h"
#include "support/text.h"

namespace fragsmith {
namespace {

bool IsIdentity(ParameterId id) {
  return id == kNameField || id == kGenderField;
}

/// Names and genders lose their blanks and are always text.
Value WithoutBlanks(const Value& value) { return RemoveBlanks(ToText(value)); }

/// The key and its level as the user reads them in a note.
std::string Describe(ParameterId id) {
  const std::string_view key = BareKey(id.index());
  if (!id.level()) return std::string(key);
  return Localized("%1 of level %2",
                   {key, std::to_string(NumberOf(*id.level()))});
}

/// A value in a note.
std::string Shown(const Value& value) {
  if (std::holds_alternative<std::monostate>(value)) {
    return Localized("nothing");
  }
  if (!std::holds_alternative<std::string>(value)) return ToText(value);
  return '"' + ShownText(ToText(value)) + '"';
}

/// True for a whole number with more digits than a save gives back.
bool IsShortened(std::string_view text, const Value& read) {
  constexpr std::size_t kAlwaysKept = 15;
  text = TrimBlanksAndTabs(text);
  if (text.size() <= kAlwaysKept || Contains(text, ".") ||
      !std::holds_alternative<double>(read)) {
    return false;
  }
  const std::size_t first = text.find_first_not_of("+-0");
  return first != std::string_view::npos &&
         FormatValue(read) != text.substr(first);
}

/// The number that a save writes for one that was read.
std::optional<double> SavedNumber(const Value& read) {
  // What most values are needs no writing: a float keeps the decimal that is
  // written, and so does a small whole number.
  constexpr double kSmall = 1000;
  const double number = ToNumber(read).value_or(-1);
  const bool is_plain =
      number >= 0 && number < kSmall &&
      (std::holds_alternative<float>(read) || number == std::trunc(number));
  return is_plain ? number : NumberFromText(FormatValue(read));
}

}  // namespace

bool IsPassedOver(std::string_view line) {
  return line.starts_with("//") || line.starts_with("#i") ||
         line.starts_with('}') || line.starts_with('{');
}

std::string_view ValueTextOf(std::string_view line, int index) {
  const std::string_view padded = PaddedKey(index);
  const std::size_t offset = line.find(padded);
  if (offset != std::string_view::npos) {
    return line.substr(offset + padded.size());
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
    : file_(std::move(file)), bot_(bot), report_(report) {
  // A bot has as many in its largest file.
  constexpr std::size_t kUsual = 128;
  seen_.reserve(kUsual);
  report_.spans.reserve(kUsual);
}

void ValueReader::AddNote(std::size_t line, std::string text, NoteKind kind) {
  // More are not kept in any case.
  if (notes_.size() > Notes::kMax) return;
  notes_.push_back({file_, line, std::move(text), kind});
}

ValueReader::Seen& ValueReader::SeenOf(ParameterId id) {
  std::uint16_t& place = seen_at_.at(PlaceOf(id));
  if (place == 0) {
    Give(id);
    seen_.push_back({.id = id, .before = bot_.Parameter(id)});
    place = static_cast<std::uint16_t>(seen_.size());
  }
  return seen_[place - 1U];
}

void ValueReader::Take(const KeyedLine& line, ParameterId id, IsTold is_told) {
  std::string_view text = ValueTextOf(line.text, id.index());
  // Such as curly quotes around a number, which the game does not see.
  const std::string_view bare = TrimGameBlanks(text);
  const bool is_framed = bare.size() < text.size();
  if (is_framed && !IsNumericText(text) && IsNumericText(bare)) text = bare;
  const auto column = static_cast<std::size_t>(text.data() - line.text.data());
  report_.spans.push_back(
      {id, {line.start + column, line.start + column + text.size()}});
  // Most lines have no comment that could have been taken off.
  Store(line.number, id, text, is_told).is_comment =
      line.code.size() < line.text.size() &&
      !Contains(line.code, BareKey(id.index()));
}

void ValueReader::TakeText(std::size_t line, ParameterId id,
                           std::string_view text, IsTold is_told) {
  Store(line, id, text, is_told);
}

ValueReader::Seen& ValueReader::Store(std::size_t line, ParameterId id,
                                      std::string_view text, IsTold is_told) {
  // A key with nothing behind it leaves the id empty.
  Value value;
  if (!TrimBlanksAndTabs(text).empty()) value = CleanValue(text);
  if (IsIdentity(id)) {
    const std::string whole = ToText(value);
    value = WithoutBlanks(value);
    if (whole != ToText(value)) {
      AddNote(line,
              Localized("%1: %2 cannot have blanks here; it is read as %3.",
                        {Describe(id), Shown(whole), Shown(value)}));
    }
  }

  Seen& seen = SeenOf(id);
  const bool is_first = seen.line == 0;
  const Value old = is_first ? Value() : bot_.Parameter(id);
  bot_.Put(id, std::move(value));
  if (!is_first && !IsSameValue(bot_.Parameter(id), old)) {
    if (overwritten_.empty()) first_overwritten_ = seen.line;
    overwritten_[id] =
        Localized("%1: %2 gives way to %3",
                  {Describe(id), Shown(old), Shown(bot_.Parameter(id))});
  }
  seen.line = line;
  seen.is_shortened = IsShortened(text, bot_.Parameter(id));
  seen.is_comment = false;
  seen.is_told = seen.is_told || is_told == IsTold::kYes;
  return seen;
}

void ValueReader::TakeAsGame(std::size_t line, ParameterId id, Value value,
                             IsTold is_told) {
  Seen& seen = SeenOf(id);
  if (IsIdentity(id)) value = WithoutBlanks(value);
  if (seen.plain && *seen.plain != value) {
    if (overwritten_.empty()) first_overwritten_ = seen.plain_line;
    overwritten_.try_emplace(id, Describe(id));
  }
  seen.plain = std::move(value);
  seen.plain_line = line;
  seen.is_told = seen.is_told || is_told == IsTold::kYes;
}

void ValueReader::Finish() {
  // By number they are in order.
  const std::size_t count = given_.count();
  report_.given.reserve(count);
  for (std::size_t number = 0; report_.given.size() < count; ++number) {
    if (!given_[number]) continue;
    report_.given.push_back(ParameterId::OfNumber(static_cast<int>(number)));
    if (seen_at_[number] != 0) Compare(seen_[seen_at_[number] - 1U]);
  }
  TellOverwritten();
  for (const auto& [level, zeros] : zeros_) {
    AddNote(zeros.first,
            Localized("%1: 0 in the file. A save leaves out what is 0 here, "
                      "and the game then takes the value of its default "
                      "character.",
                      {zeros.second.Text()}));
  }
  std::stable_sort(notes_.begin(), notes_.end(),
                   [](const Note& left, const Note& right) {
                     return left.line < right.line;
                   });
  for (Note& note : notes_) report_.notes.Add(std::move(note));
  notes_.clear();
}

void ValueReader::Compare(const Seen& seen) {
  const ParameterId id = seen.id;
  const Value& read = bot_.Parameter(id);
  const Value& plain = seen.plain ? *seen.plain : seen.before;
  if (IsSameValue(read, plain)) return CompareWithSaved(seen);
  report_.plain_values.insert_or_assign(id, plain);
  if (seen.is_told) return;
  if (seen.line == 0) {
    AddNote(seen.plain_line,
            Localized("%1: not read from this line, where the game takes %2.",
                      {Describe(id), Shown(plain)}),
            NoteKind::kUnreadLine);
  } else if (!seen.plain) {
    AddNote(seen.line,
            Localized(seen.is_comment
                          ? Localizable("%1: read as %2, but the line is a "
                                        "comment for the game.")
                          : Localizable("%1: read as %2, but the line does not "
                                        "set it for the game."),
                      {Describe(id), Shown(read)}));
  } else {
    const bool is_behind = seen.line == seen.plain_line;
    AddNote(seen.line,
            Localized(is_behind
                          ? Localizable("%1: read as %2, but %3 stands behind "
                                        "the key.")
                          : Localizable("%1: read as %2, but the game takes %3 "
                                        "from line %4."),
                      {Describe(id), Shown(read), Shown(plain),
                       std::to_string(seen.plain_line)}));
  }
}

void ValueReader::CompareWithSaved(const Seen& seen) {
  const ParameterId id = seen.id;
  if (IsIdentity(id)) return;
  const Value& read = bot_.Parameter(id);
  const bool is_optional = id.level() && kOptionalRange.Contains(id.index());
  const std::optional<double> number = ToNumber(read);
  std::string oddity;
  if (std::holds_alternative<std::monostate>(read)) {
    oddity = Localized("%1: no value, so it counts as 0.", {Describe(id)});
  } else if (!number) {
    oddity = Localized(
        "%1: %2 is not a number; it is kept as text, and a save puts quotes "
        "around it.",
        {Describe(id), Shown(read)});
  } else if (is_optional && *number <= 0) {
    auto& [line, names] = zeros_[*id.level()];
    if (line == 0) line = seen.line;
    names.Add(Describe(id));
  } else if (std::holds_alternative<std::string>(read)) {
    oddity = Localized(
        "%1: %2 is no number for the game as it is written; a save makes the "
        "number of it.",
        {Describe(id), Shown(read)});
  } else if (seen.is_shortened) {
    oddity = Localized(
        "%1: of so long a number a save keeps the first digits, and writes "
        "%2.",
        {Describe(id), FormatValue(read)});
  } else if (const Value& given = seen.plain ? *seen.plain : read;
             SavedNumber(read) != ToNumber(given)) {
    const std::string saved = FormatValue(read);
    std::string shown = ToText(given);
    if (shown == saved) {
      shown = PlainDecimal(ToNumber(given).value_or(0),
                           std::numeric_limits<double>::max_digits10);
    }
    oddity =
        Localized("%1: a save writes %2 for %3.", {Describe(id), saved, shown});
  }
  if (!oddity.empty()) AddNote(seen.line, std::move(oddity));
}

void ValueReader::TellOverwritten() {
  if (overwritten_.empty()) return;
  NameList names;
  for (const auto& [id, text] : overwritten_) names.Add(text);
  AddNote(first_overwritten_,
          Localized("The file has several values where a bot has one. The "
                    "last one counts, and a save writes it everywhere: %1.",
                    {names.Text()}));
}

}  // namespace fragsmith
