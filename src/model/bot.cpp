#include "model/bot.h"

#include <cmath>
#include <limits>
#include <optional>
#include <stdexcept>
#include <utility>

#include "model/characteristic_catalogue.h"
#include "model/file_names.h"
#include "support/code_page.h"
#include "support/localization.h"
#include "support/numbers.h"
#include "support/text.h"

namespace fragsmith {
namespace {

[[noreturn]] void BadId(ParameterId id) {
  std::string text = "no bot parameter " + std::to_string(id.index());
  if (id.level()) text += " of a level";
  throw std::out_of_range(text);
}

bool IsIdentityField(int index) {
  return index >= 0 && index <= kArenaLordField.index() && index != 4;
}

bool IsSingleParameter(int index) {
  return index >= kChatRange.first && index <= kItemWeightRange.last;
}

bool IsDerivedName(int index) {
  return index >= kChatFileField.index() &&
         index <= kDescriptionFileField.index();
}

Error NotANumber(const Value& value) {
  return {
      .what = Localized("\"%1\" is not a number.", {ShownText(ToText(value))}),
      .file = {},
      .line = 0,
      .advice = {}};
}

Result<double> Number(const Value& value) {
  const std::optional<double> number = ToNumber(value);
  if (!number) return Failure(NotANumber(value));
  return *number;
}

/// What a parameter holds of a value: an empty text is no value.
Value WithoutEmptyText(Value value) {
  const auto* text = std::get_if<std::string>(&value);
  if (text != nullptr && text->empty()) return {};
  return value;
}

/// Halves go to the even neighbour, as the game's own tools round them.
Result<double> ShortInteger(const Value& value) {
  Result<double> number = Number(value);
  if (!number) return number;
  const double whole = std::nearbyint(*number);
  constexpr int kLowest = std::numeric_limits<std::int16_t>::min();
  constexpr int kHighest = std::numeric_limits<std::int16_t>::max();
  if (whole < kLowest || whole > kHighest) {
    return Failure(
        {.what = Localized("%1 is not between %2 and %3.",
                           {ShownText(ToText(value)), std::to_string(kLowest),
                            std::to_string(kHighest)}),
         .file = {},
         .line = 0,
         .advice = {}});
  }
  return whole;
}

}  // namespace

Bot::Bot() {
  SetName("Bot");
  Put(kRailColorField, std::string(kNoRailColor));
  Put(kGenderField, "male");
  Put(kModelField, "Sarge");
  Put(kSkinField, "Default");
  Put(kFunNameField, std::string());
  Put(kCommentField, std::string());
  Put(kVersionMajorField, 0.0);
  Put(kVersionMinorField, 0.0);
  Put(kArenaLordField, 0.0);
  ClearChats();
}

const Value& Bot::Parameter(ParameterId id) const {
  const auto index = static_cast<std::size_t>(id.index());
  if (id.level()) {
    if (!kPerLevelRange.Contains(id.index())) BadId(id);
    return skills_.at(IndexOf(*id.level())).SkillPara.at(index);
  }
  if (!IsIdentityField(id.index()) && !IsSingleParameter(id.index()) &&
      !IsDerivedName(id.index())) {
    BadId(id);
  }
  return fields_.at(index);
}

Result<void> Bot::SetParameter(ParameterId id, Value value) {
  const auto index = static_cast<std::size_t>(id.index());
  if (id.level()) {
    if (!kPerLevelRange.Contains(id.index())) BadId(id);
    skills_.at(IndexOf(*id.level())).SkillPara.at(index) =
        WithoutEmptyText(std::move(value));
    return {};
  }
  if (!IsIdentityField(id.index()) && !IsSingleParameter(id.index())) BadId(id);
  Value& field = fields_.at(index);
  switch (id.index()) {
    case kNameField.index():
      SetName(ToText(value));
      break;
    case kGenderField.index():
    case kFunNameField.index():
    case kModelField.index():
    case kSkinField.index():
    case kCommentField.index():
      field = ToText(value);
      break;
    case kVersionMajorField.index():
    case kVersionMinorField.index():
    case kArenaLordField.index(): {
      const Result<double> number =
          id == kArenaLordField ? ShortInteger(value) : Number(value);
      if (!number) return Failure(number.error());
      field = *number;
      break;
    }
    case kRailColorField.index(): {
      // A colour read as text is a number where it reads as one.
      const std::optional<double> number = NumberFromText(ToText(value));
      field = number ? Value(*number) : ToText(value);
      break;
    }
    default:
      field = WithoutEmptyText(std::move(value));
  }
  return {};
}

void Bot::Put(ParameterId id, Value value) {
  const Result<void> done = SetParameter(id, std::move(value));
  if (!done) throw std::invalid_argument(done.error().what);
}

void Bot::SetName(std::string name) {
  const std::string chat_name = ToLower(name);
  const auto field = [this](ParameterId id) -> Value& {
    return fields_.at(static_cast<std::size_t>(id.index()));
  };
  field(kNameField) = std::move(name);
  field(kChatNameField) = chat_name;
  const auto name_file = [&](ParameterId id, std::string_view end) {
    field(id) = chat_name + std::string(end);
  };
  name_file(kChatFileField, kChatEnd);
  name_file(kWeaponFileField, kWeaponWeightEnd);
  name_file(kItemFileField, kItemWeightEnd);
  name_file(kCharacteristicFileField, kCharacterEnd);
  name_file(kDescriptionFileField, kDescriptionEnd);
}

const std::vector<std::string>& Bot::ChatLines(ChatTypeId type) const {
  return chats_.at(IndexOf(type));
}

void Bot::SetChatLines(ChatTypeId type, std::vector<std::string> lines) {
  chats_.at(IndexOf(type)) = std::move(lines);
}

const std::string& Bot::ChatLine(ChatTypeId type, ChatLineIndex line) const {
  return ChatLines(type).at(line.index());
}

void Bot::SetChatLine(ChatTypeId type, ChatLineIndex line, std::string text) {
  std::vector<std::string>& lines = chats_.at(IndexOf(type));
  if (line.index() >= lines.size()) lines.resize(line.number());
  lines[line.index()] = std::move(text);
}

void Bot::InsertChatLine(ChatTypeId type, ChatLineIndex line,
                         std::string text) {
  std::vector<std::string>& lines = chats_.at(IndexOf(type));
  if (line.index() > lines.size()) {
    throw std::out_of_range("no chat line " + std::to_string(line.number()));
  }
  lines.insert(lines.begin() + static_cast<std::ptrdiff_t>(line.index()),
               std::move(text));
}

void Bot::RemoveChatLine(ChatTypeId type, ChatLineIndex line) {
  std::vector<std::string>& lines = chats_.at(IndexOf(type));
  if (line.index() >= lines.size()) {
    throw std::out_of_range("no chat line " + std::to_string(line.number()));
  }
  lines.erase(lines.begin() + static_cast<std::ptrdiff_t>(line.index()));
}

ChatLineIndex Bot::EndOfChatLines(ChatTypeId type) const {
  return ChatLineIndex(ChatLines(type).size());
}

void Bot::ClearChats() { chats_.fill({std::string()}); }

}  // namespace fragsmith
