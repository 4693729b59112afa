#include "checks/parameter_words.h"

#include <array>
#include <cstddef>
#include <stdexcept>

#include "chat/chat_catalogue.h"
#include "model/bot.h"
#include "model/characteristic_catalogue.h"
#include "support/code_page.h"
#include "support/numbers.h"

namespace fragsmith {
namespace {

/// By catalogue index from 2 on, as the window captions them; what stands
/// there only by its page has the page's word with it.
constexpr std::array<std::string_view, 79> kNames = {
    "Attack skill",
    "Aim skill",
    "Aim accuracy",
    "View factor",
    "Max view change angle",
    "Reaction time",
    "Croucher",
    "Jumper",
    "Weapon jumper",
    "Grapple user",
    "Aggression",
    "Selfpreservation",
    "Vengefulness",
    "Camper",
    "Frags easy targets",
    "Alertness",
    "Machinegun aim accuracy",
    "Shotgun aim accuracy",
    "Rocket launcher aim accuracy",
    "Grenade launcher aim accuracy",
    "Lightning gun aim accuracy",
    "Plasma gun aim accuracy",
    "Railgun aim accuracy",
    "BFG10K aim accuracy",
    "Rocket launcher aim skill",
    "Grenade launcher aim skill",
    "Plasma gun aim skill",
    "BFG10K aim skill",
    "Firing speed",
    "Typing speed",
    "Insult",
    "Misc",
    "Start and end of level",
    "Enters or exits level",
    "Kills",
    "Dies",
    "Enemy suicide",
    "Hit while talking",
    "Hit, not dead",
    "Hit, no kill",
    "Random",
    "Reply",
    "Gauntlet usage",
    "Shotgun usage",
    "Machinegun usage",
    "Grenade launcher usage",
    "Rocket launcher usage",
    "Railgun usage",
    "BFG10K usage",
    "Lightning gun usage",
    "Plasma gun usage",
    "Grapple usage",
    "Health pickup",
    "Armor pickup",
    "Shotgun pickup without it",
    "Machinegun pickup without it",
    "Grenade launcher pickup without it",
    "Rocket launcher pickup without it",
    "Railgun pickup without it",
    "BFG10K pickup without it",
    "Lightning gun pickup without it",
    "Plasma gun pickup without it",
    "Shotgun pickup with it",
    "Machinegun pickup with it",
    "Grenade launcher pickup with it",
    "Rocket launcher pickup with it",
    "Railgun pickup with it",
    "BFG10K pickup with it",
    "Lightning gun pickup with it",
    "Plasma gun pickup with it",
    "Teleporter pickup",
    "Medkit pickup",
    "Quad damage pickup",
    "Battle suit pickup",
    "Haste pickup",
    "Invisibility pickup",
    "Regeneration pickup",
    "Flight pickup",
    "CTF Flag pickup",
};

std::string_view FieldName(int field) {
  switch (field) {
    case kNameIndex:
      return "Name";
    case kGenderIndex:
      return "Gender";
    case kFunNameField:
      return "Fun name";
    case kRailColorField:
      return "Rail colour";
    case kModelField:
      return "Model";
    case kSkinField:
      return "Skin";
    case kVersionMajorField:
      return "Version";
    case kVersionMinorField:
      return "Version (minor)";
    case kCommentField:
      return "Comment";
    case kArenaLordField:
      return "Arena lord";
    default:
      throw std::out_of_range("no name for parameter " + std::to_string(field));
  }
}

bool HasLevel(int index) { return index > 100; }

}  // namespace

std::string_view CharacteristicName(int index) {
  return kNames.at(static_cast<std::size_t>(index - kPerLevelRange.first));
}

std::string_view ParameterName(int index) {
  if (HasLevel(index)) return CharacteristicName(index % 100);
  const bool is_single =
      index >= kChatRange.first && index <= kItemWeightRange.last;
  return is_single ? CharacteristicName(index) : FieldName(index);
}

std::string QuotedName(int index) {
  std::string text = "\"" + std::string(ParameterName(index)) + "\"";
  if (HasLevel(index)) text += " at level " + std::to_string(index / 100);
  return text;
}

std::string ShownNumber(double number) {
  return PlainDecimal(number, kFloatDigits);
}

std::string ShownValue(const Value& value) {
  const std::optional<double> number = ToNumber(value);
  return number ? ShownNumber(*number) : QuotedText(ToText(value));
}

std::string QuotedText(std::string_view text) {
  return "\"" + ShownText(text) + "\"";
}

std::string QuotedChatType(int type) {
  return "\"" + std::string(ChatTypeAt(type).Caption) + "\"";
}

}  // namespace fragsmith
