#include "chat/vocabulary.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <stdexcept>
#include <utility>

#include "chat/chat_catalogue.h"
#include "model/characteristic_catalogue.h"
#include "support/code_page.h"
#include "support/localization.h"
#include "support/numbers.h"

namespace fragsmith {
namespace {

/// What a player calls a parameter.
struct Words {
  std::string_view name;
  /// Above its control, where that says more or less than the name.
  std::string_view caption = kAsName;

  static constexpr std::string_view kAsName = "=";
};

/// By catalogue index from 2 on. A control without a caption stands below the
/// one of the same weapon.
constexpr std::array<Words, 79> kWords = {{
    {"Attack skill"},
    {"Aim skill"},
    {"Aim accuracy"},
    {"View factor"},
    {"Max view change angle", "Max view change angle °/s"},
    {"Reaction time", "Reaction time s"},
    {"Croucher"},
    {"Jumper"},
    {"Weapon jumper"},
    {"Grapple user"},
    {"Aggression"},
    {"Selfpreservation"},
    {"Vengefulness"},
    {"Camper"},
    {"Frags easy targets"},
    {"Alertness"},
    {"Machinegun aim accuracy", "Machinegun"},
    {"Shotgun aim accuracy", "Shotgun"},
    {"Rocket launcher aim accuracy", "Rocket launcher"},
    {"Grenade launcher aim accuracy", "Grenade launcher"},
    {"Lightning gun aim accuracy", "Lightning gun"},
    {"Plasma gun aim accuracy", "Plasma gun"},
    {"Railgun aim accuracy", "Railgun"},
    {"BFG10K aim accuracy", "BFG10K"},
    {"Rocket launcher aim skill", "Rocket launcher"},
    {"Grenade launcher aim skill", "Grenade launcher"},
    {"Plasma gun aim skill", "Plasma gun"},
    {"BFG10K aim skill", "BFG10K"},
    {"Firing speed"},
    {"Typing speed", "Typing speed cpm"},
    {"Insult"},
    {"Misc"},
    {"Start and end of level"},
    {"Enters or exits level"},
    {"Kills"},
    {"Dies"},
    {"Enemy suicide"},
    {"Hit while talking"},
    {"Hit, not dead"},
    {"Hit, no kill"},
    {"Random"},
    {"Reply"},
    {"Gauntlet usage", "Gauntlet"},
    {"Shotgun usage", "Shotgun"},
    {"Machinegun usage", "Machinegun"},
    {"Grenade launcher usage", "Grenade launcher"},
    {"Rocket launcher usage", "Rocket launcher"},
    {"Railgun usage", "Railgun"},
    {"BFG10K usage", "BFG10K"},
    {"Lightning gun usage", "Lightning gun"},
    {"Plasma gun usage", "Plasma gun"},
    {"Grapple usage", "Grapple"},
    {"Health pickup", "Health"},
    {"Armor pickup", "Armor"},
    {"Shotgun pickup without it", "Shotgun"},
    {"Machinegun pickup without it", "Machinegun"},
    {"Grenade launcher pickup without it", "Grenade launcher"},
    {"Rocket launcher pickup without it", "Rocket launcher"},
    {"Railgun pickup without it", "Railgun"},
    {"BFG10K pickup without it", "BFG10K"},
    {"Lightning gun pickup without it", "Lightning gun"},
    {"Plasma gun pickup without it", "Plasma gun"},
    {"Shotgun pickup with it", ""},
    {"Machinegun pickup with it", ""},
    {"Grenade launcher pickup with it", ""},
    {"Rocket launcher pickup with it", ""},
    {"Railgun pickup with it", ""},
    {"BFG10K pickup with it", ""},
    {"Lightning gun pickup with it", ""},
    {"Plasma gun pickup with it", ""},
    {"Teleporter pickup", "Teleporter"},
    {"Medkit pickup", "Medkit"},
    {"Quad damage pickup", "Quad damage"},
    {"Battle suit pickup", "Battle suit"},
    {"Haste pickup", "Haste"},
    {"Invisibility pickup", "Invisibility"},
    {"Regeneration pickup", "Regeneration"},
    {"Flight pickup", "Flight"},
    {"CTF Flag pickup", "CTF Flag"},
}};

static_assert(kWords.size() ==
              kItemWeightRange.last - kPerLevelRange.first + 1);
static_assert(std::none_of(kWords.begin(), kWords.end(),
                           [](const Words& one) { return one.name.empty(); }));

constexpr std::array<std::pair<ParameterId, std::string_view>, 10> kFieldNames =
    {{{kNameField, "Name"},
      {kGenderField, "Gender"},
      {kFunNameField, "Funname"},
      {kRailColorField, "Railgun color"},
      {kModelField, "Model"},
      {kSkinField, "Skin"},
      {kVersionMajorField, "Version, major"},
      {kVersionMinorField, "Version, minor"},
      {kCommentField, "Comment"},
      {kArenaLordField, "Arenalord"}}};

const Words& WordsOf(int index) {
  return kWords.at(static_cast<std::size_t>(index - kPerLevelRange.first));
}

}  // namespace

std::string_view ParameterCaption(int index) {
  const Words& words = WordsOf(index);
  return words.caption == Words::kAsName ? words.name : words.caption;
}

std::string_view ParameterName(ParameterId id) {
  if (id.level() || id.index() > kArenaLordField.index()) {
    return WordsOf(id.index()).name;
  }
  const auto* const field =
      std::find_if(kFieldNames.begin(), kFieldNames.end(),
                   [id](const auto& row) { return row.first == id; });
  if (field == kFieldNames.end()) {
    throw std::out_of_range("no name for parameter " +
                            std::to_string(id.index()));
  }
  return field->second;
}

std::string ParameterTitle(ParameterId id) {
  const std::string_view name = ParameterName(id);
  if (!id.level()) return std::string(name);
  return Localized("%1, level %2",
                   {name, std::to_string(NumberOf(*id.level()))});
}

std::string QuotedName(ParameterId id) {
  std::string name = Localized("\"%1\"", {ParameterName(id)});
  if (!id.level()) return name;
  return Localized("%1 at level %2",
                   {name, std::to_string(NumberOf(*id.level()))});
}

std::string ShownNumber(double number) {
  return PlainDecimal(number, kFloatDigits);
}

std::string ShownValue(const Value& value) {
  const std::optional<double> number = ToNumber(value);
  return number ? ShownNumber(*number)
                : Quoted(ToText(value), std::string::npos);
}

std::string Quoted(std::string_view game_text, std::size_t most) {
  std::string text = ShownText(game_text.substr(0, most));
  if (game_text.size() > most) text += "…";
  return "\"" + text + "\"";
}

std::string QuotedChatType(ChatTypeId type) {
  return Localized("\"%1\"", {ChatTypeAt(type).Caption});
}

}  // namespace fragsmith
