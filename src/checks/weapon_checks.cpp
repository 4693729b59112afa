#include "checks/weapon_checks.h"

#include <algorithm>
#include <string>
#include <string_view>
#include <vector>

#include "chat/vocabulary.h"
#include "checks/weight_checks.h"
#include "game/weight_vocabulary.h"
#include "inplace/splice.h"
#include "model/value.h"
#include "support/localization.h"
#include "support/text.h"

namespace fragsmith {
namespace {

/// A bot begins with these two, by the names of either game.
struct StartWeapon {
  std::string_view name;
  std::string_view macro;
  std::string_view other_macro;
};
constexpr StartWeapon kGauntlet = {"Gauntlet", "W_GAUNTLET", "GTW"};
constexpr StartWeapon kMachinegun = {"Machinegun", "W_MACHINEGUN", "MGW"};

const OwnMacro* MacroOf(const WeightsRead& read, const StartWeapon& weapon) {
  const auto found =
      std::ranges::find_if(read.macros, [&weapon](const OwnMacro& macro) {
        return macro.name == weapon.macro || macro.name == weapon.other_macro;
      });
  return found == read.macros.end() ? nullptr : &*found;
}

int LineOf(const GameFile& file, const OwnMacro& macro) {
  return static_cast<int>(LineNumberAt(file.bytes, macro.value.begin));
}

/// The largest that the code of the weight may return; 0 without such a weight.
double LargestOf(const GameWeight* weight) {
  double largest = 0;
  if (weight == nullptr) return largest;
  for (const WeightReturn& way : weight->returns) {
    for (const double value : way.values) largest = std::max(largest, value);
  }
  return largest;
}

const GameWeight* WeightOf(const WeightsRead& read, std::string_view name) {
  const auto found = std::ranges::find(read.weights, name, &GameWeight::name);
  return found == read.weights.end() ? nullptr : &*found;
}

/// As people write it, with blanks and capitals of their own.
std::string Bare(std::string_view name) {
  std::string bare = ToLower(name);
  std::erase_if(
      bare, [](char one) { return one == ' ' || one == '_' || one == '-'; });
  return bare;
}

}  // namespace

std::optional<Complaint> NoWeaponAtStart(const GameFile& file,
                                         const WeightsRead& read,
                                         bool is_game_known) {
  Complaint fault = {.id = "no-weapon-at-start",
                     .severity = Severity::kError,
                     .place = {.file = file.name, .line = 0},
                     .text = Localized(kWeaponlessText)};
  const OwnMacro* const of_gauntlet = MacroOf(read, kGauntlet);
  const OwnMacro* const of_machinegun = MacroOf(read, kMachinegun);
  if (of_gauntlet != nullptr && of_machinegun != nullptr) {
    const std::optional<double> gauntlet = ToNumber(of_gauntlet->text);
    const std::optional<double> machinegun = ToNumber(of_machinegun->text);
    if (!gauntlet || !machinegun || !IsWeaponless(*gauntlet, *machinegun)) {
      return std::nullopt;
    }
    fault.place.line = LineOf(file, *of_machinegun);
    fault.text +=
        " " + Localized("Give W_GAUNTLET or W_MACHINEGUN a weight above 0.");
    return fault;
  }
  const GameWeight* const gauntlet = WeightOf(read, kGauntlet.name);
  const GameWeight* const machinegun = WeightOf(read, kMachinegun.name);
  const bool is_own = std::ranges::any_of(
      read.weights, [](const GameWeight& weight) { return weight.line > 0; });
  // What is missing may stand in code of the game's.
  const bool is_unknown =
      !is_game_known && (gauntlet == nullptr || machinegun == nullptr);
  if (!is_own || is_unknown ||
      !IsWeaponless(LargestOf(gauntlet), LargestOf(machinegun))) {
    return std::nullopt;
  }
  for (const GameWeight* const weight : {gauntlet, machinegun}) {
    if (weight != nullptr && weight->line > 0) fault.place.line = weight->line;
  }
  fault.text += " " + Localized(
                          "Let weight \"Gauntlet\" or weight \"Machinegun\" "
                          "return more than 0.");
  return fault;
}

void CheckWeaponNames(const GameFile& file, const WeightsRead& read,
                      const IncludeLookup& game, Complaints& complaints) {
  const std::string weapons = game("weapons.c").value_or("");
  const std::vector<std::string_view> known = WeaponNames();
  for (const GameWeight& weight : read.weights) {
    if (weight.line == 0 || std::ranges::count(known, weight.name) > 0 ||
        Contains(weapons, '"' + weight.name + '"')) {
      continue;
    }
    const auto meant =
        std::ranges::find_if(known, [&weight](std::string_view name) {
          return Bare(name) == Bare(weight.name);
        });
    complaints.Add(
        "weapon-unknown", Severity::kWarning, file.name, weight.line,
        Localized(
            meant != known.end()
                ? Localizable(
                      "The game has no weapon %1, and passes over this weight. "
                      "Write %2, with these capitals and blanks.")
                : Localizable("The game has no weapon %1, and passes over this "
                              "weight. It calls its weapons as Gauntlet, "
                              "Machinegun, Rocket Launcher or Plasma Gun."),
            {Quoted(weight.name), meant != known.end() ? Quoted(*meant) : ""}));
  }
}

}  // namespace fragsmith
