#include "game/stand_ins.h"

#include "model/characteristic_catalogue.h"
#include "model/file_names.h"
#include "model/game_characteristics.h"
#include "support/text.h"

namespace fragsmith {
namespace {

/// What a weight may depend on. Numbers 0 to 255 would all do here.
constexpr std::array<std::string_view, 42> kConditions = {
    "INVENTORY_NONE",
    "INVENTORY_ARMOR",
    "INVENTORY_GAUNTLET",
    "INVENTORY_SHOTGUN",
    "INVENTORY_MACHINEGUN",
    "INVENTORY_GRENADELAUNCHER",
    "INVENTORY_ROCKETLAUNCHER",
    "INVENTORY_LIGHTNING",
    "INVENTORY_RAILGUN",
    "INVENTORY_PLASMAGUN",
    "INVENTORY_BFG10K",
    "INVENTORY_GRAPPLINGHOOK",
    "INVENTORY_NAILGUN",
    "INVENTORY_PROXLAUNCHER",
    "INVENTORY_CHAINGUN",
    "INVENTORY_SHELLS",
    "INVENTORY_BULLETS",
    "INVENTORY_GRENADES",
    "INVENTORY_CELLS",
    "INVENTORY_LIGHTNINGAMMO",
    "INVENTORY_ROCKETS",
    "INVENTORY_SLUGS",
    "INVENTORY_BFGAMMO",
    "INVENTORY_NAILS",
    "INVENTORY_MINES",
    "INVENTORY_BELT",
    "INVENTORY_HEALTH",
    "INVENTORY_TELEPORTER",
    "INVENTORY_MEDKIT",
    "INVENTORY_QUAD",
    "INVENTORY_ENVIRONMENTSUIT",
    "INVENTORY_HASTE",
    "INVENTORY_INVISIBILITY",
    "INVENTORY_REGEN",
    "INVENTORY_FLIGHT",
    "INVENTORY_REDFLAG",
    "INVENTORY_BLUEFLAG",
    "INVENTORY_NEUTRALFLAG",
    "ENEMY_HORIZONTAL_DIST",
    "ENEMY_HEIGHT",
    "NUM_VISIBLE_ENEMIES",
    "NUM_VISIBLE_TEAMMATES",
};

template <typename Names>
std::string Definitions(std::string_view prefix, const Names& names) {
  std::string text;
  for (std::size_t number = 0; number < names.size(); ++number) {
    text += "#define ";
    text += prefix;
    text += names[number];
    text += ' ' + std::to_string(number) + '\n';
  }
  return text;
}

/// A weight for each macro that the editor writes, under the macro's name.
/// Where the game calculates with them, so does this.
std::string Weights(IndexRange range, std::string_view before,
                    std::string_view after) {
  constexpr std::string_view kDefine = "#define ";
  std::string text;
  for (int index = range.first; index <= range.last; ++index) {
    const std::string name(BareKey(index).substr(kDefine.size()));
    text += "weight \"" + name + "\" { switch(INVENTORY_ARMOR) { default: ";
    text += "return ";
    text += before;
    text += name;
    text += after;
    text += "; } }\n";
  }
  return text;
}

/// One block is like the other.
std::string Character() {
  std::string text = "#include \"chars.h\"\n";
  for (const Level level : kLevels) {
    text += "skill " + std::to_string(NumberOf(level));
    text += R"( {
CHARACTERISTIC_NAME "default"
CHARACTERISTIC_GENDER "it"
CHARACTERISTIC_CHAT_FILE "bots/default_t.c"
CHARACTERISTIC_CHAT_NAME "default"
CHARACTERISTIC_WEAPONWEIGHTS "bots/default_w.c"
CHARACTERISTIC_ITEMWEIGHTS "bots/default_i.c"
}
)";
  }
  return text;
}

}  // namespace

std::optional<std::string> StandInGameFile(std::string_view path) {
  const std::string name = ToLower(path);
  if (name == "chars.h") {
    return Definitions("CHARACTERISTIC_", kGameCharacteristics);
  }
  if (name == "inv.h") return Definitions("", kConditions);
  if (name == "fw_weap.c") return Weights(kWeaponWeightRange, "", "");
  if (name == "fw_items.c") {
    return Weights(kItemWeightRange, "$evalfloat(", ")");
  }
  if (name == "teamplay.h") return "";
  if (name == kDefaultCharacter) return Character();
  if (name == "bots/default_w.c" || name == "bots/default_i.c") {
    return "weight \"Gauntlet\" { return 1; }\n";
  }
  if (name == "bots/default_t.c") return "chat \"default\" { }\n";
  return std::nullopt;
}

}  // namespace fragsmith
