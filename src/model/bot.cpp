#include "model/bot.h"

#include <cmath>
#include <limits>
#include <optional>
#include <stdexcept>
#include <utility>

#include "model/characteristic_catalogue.h"
#include "support/code_page.h"
#include "support/numbers.h"
#include "support/text.h"

namespace fragsmith {
namespace {

std::string SkillKey(int level) { return std::to_string(level) + "S"; }

[[noreturn]] void BadIndex(int index) {
  throw std::out_of_range("no bot parameter " + std::to_string(index));
}

bool IsIdentityField(int index) {
  return (index >= 0 && index <= kArenaLordField && index != 4);
}

bool IsSingleParameter(int index) {
  return index >= kChatRange.first && index <= kItemWeightRange.last;
}

bool IsDerivedName(int index) {
  return index >= kChatFileIndex && index <= kDescriptionFileField;
}

Error NotANumber(const Value& value) {
  return {.what = "\"" + ShownText(ToText(value)) + "\" is not a number.",
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
  if (whole < std::numeric_limits<std::int16_t>::min() ||
      whole > std::numeric_limits<std::int16_t>::max()) {
    return Failure(
        {.what = ShownText(ToText(value)) + " is not between -32768 and 32767.",
         .file = {},
         .line = 0,
         .advice = {}});
  }
  return whole;
}

}  // namespace

Bot::Bot() {
  for (const int level : kSkillLevels) {
    skills_.emplace(SkillKey(level), Skill(static_cast<std::int16_t>(level)));
  }
  SetName("Bot");
  fields_[kRailColorField] = std::string(kNoRailColor);
  fields_[kGenderIndex] = "male";
  fields_[kModelField] = "Sarge";
  fields_[kSkinField] = "Default";
  fields_[kFunNameField] = std::string();
  fields_[kCommentField] = std::string();
  fields_[kVersionMajorField] = 0.0;
  fields_[kVersionMinorField] = 0.0;
  fields_[kArenaLordField] = 0.0;
  ClearChats();
}

const Skill& Bot::SkillOf(int level) const {
  // Without making the key: every reader and writer comes by here.
  for (const auto& [key, skill] : skills_) {
    if (skill.level() == level) return skill;
  }
  BadIndex(LevelIndex(level, 0));
}

Skill& Bot::SkillOf(int level) {
  return const_cast<Skill&>(std::as_const(*this).SkillOf(level));
}

const Value& Bot::Parameter(int index) const {
  if (index > 100) {
    const int level = index / 100;
    return SkillOf(level).SkillPara.at(
        static_cast<std::size_t>(index - level * 100));
  }
  if (!IsIdentityField(index) && !IsSingleParameter(index) &&
      !IsDerivedName(index)) {
    BadIndex(index);
  }
  return fields_.at(static_cast<std::size_t>(index));
}

Result<void> Bot::SetParameter(int index, Value value) {
  if (index > 100) {
    const int level = index / 100;
    SkillOf(level).SkillPara.at(static_cast<std::size_t>(index - level * 100)) =
        WithoutEmptyText(std::move(value));
    return {};
  }
  if (!IsIdentityField(index) && !IsSingleParameter(index)) BadIndex(index);
  Value& field = fields_.at(static_cast<std::size_t>(index));
  switch (index) {
    case kNameIndex:
      SetName(ToText(value));
      break;
    case kGenderIndex:
    case kFunNameField:
    case kModelField:
    case kSkinField:
    case kCommentField:
      field = ToText(value);
      break;
    case kVersionMajorField:
    case kVersionMinorField:
    case kArenaLordField: {
      const Result<double> number =
          index == kArenaLordField ? ShortInteger(value) : Number(value);
      if (!number) return Failure(number.error());
      field = *number;
      break;
    }
    case kRailColorField: {
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

void Bot::SetName(std::string name) {
  const std::string chat_name = ToLower(name);
  fields_[kNameIndex] = std::move(name);
  fields_[kChatFileIndex] = chat_name + "_t.c";
  fields_[kWeaponWeightsIndex] = chat_name + "_w.c";
  fields_[kItemWeightsIndex] = chat_name + "_i.c";
  fields_[kCharacteristicFileField] = chat_name + "_c.c";
  fields_[kChatNameIndex] = chat_name;
  fields_[kDescriptionFileField] = chat_name + ".bot";
}

const std::vector<std::string>& Bot::ChatLines(int type) const {
  return chats_.at(static_cast<std::size_t>(type));
}

const std::string& Bot::ChatLine(int type, int line) const {
  return ChatLines(type).at(static_cast<std::size_t>(line));
}

void Bot::SetChatLine(int type, int line, std::string text) {
  std::vector<std::string>& lines = chats_.at(static_cast<std::size_t>(type));
  if (line < 0) BadIndex(line);
  const auto place = static_cast<std::size_t>(line);
  if (place >= lines.size()) lines.resize(place + 1);
  lines[place] = std::move(text);
}

void Bot::RemoveChatLine(int type, int line) {
  std::vector<std::string>& lines = chats_.at(static_cast<std::size_t>(type));
  if (line < 0 || line > HighestChatLine(type)) BadIndex(line);
  lines.erase(lines.begin() + line);
}

int Bot::HighestChatLine(int type) const {
  return static_cast<int>(ChatLines(type).size()) - 1;
}

void Bot::ClearChats() { chats_.fill({std::string()}); }

bool Bot::operator==(const Bot& other) const {
  for (const int level : kSkillLevels) {
    if (SkillOf(level).SkillPara != other.SkillOf(level).SkillPara) {
      return false;
    }
  }
  return fields_ == other.fields_ && chats_ == other.chats_;
}

}  // namespace fragsmith
