#include "game/game_macros.h"

#include <algorithm>
#include <cstddef>
#include <string>
#include <string_view>
#include <utility>

#include "game/weight_reader.h"
#include "game/weight_vocabulary.h"

namespace fragsmith {
namespace {

/// No game has as many weights.
constexpr std::size_t kMaxMacros = 200;

/// Far from every number that a script has of its own.
constexpr std::size_t kFirstNumber = 1001;

constexpr std::string_view kDefine = "#define ";

/// True for a macro that our files define.
bool IsOurs(const std::string& name, IndexRange range) {
  return std::any_of(range.begin(), range.end(), [&name](int index) {
    return BareKey(index).substr(kDefine.size()) == name;
  });
}

/// Which of the macros are the bot's weights.
void TakeParameters(const WeightsRead& read, IndexRange range,
                    GameMacros& result) {
  for (const FoundWeight& weight : FindWeights(read, range)) {
    std::vector<OwnNumber> numbers = weight.others;
    numbers.push_back(weight.own);
    for (const OwnNumber& number : numbers) {
      const auto own = std::find_if(
          read.macros.begin(), read.macros.end(),
          [&number](const OwnMacro& one) { return one.value == number.span; });
      if (own == read.macros.end()) continue;
      for (GameMacros::Macro& macro : result.macros) {
        if (macro.name == own->name && !macro.parameter) {
          macro.parameter = weight.parameter;
        }
      }
    }
  }
}

}  // namespace

std::optional<GameMacros> MacrosOf(const std::string& script, IndexRange range,
                                   const IncludeLookup& game) {
  if (!game(script)) return std::nullopt;
  GameMacros result = {.script = script, .macros = {}};
  std::string defines = "#include \"inv.h\"\n";
  while (result.macros.size() < kMaxMacros) {
    std::string bytes = defines;
    bytes.append("#include \"").append(script).append("\"\n");
    const GameFile file = {script, "bots/nobody" + script, std::move(bytes)};
    Complaints untold;
    const WeightsRead read = ReadGameWeights(file, game, untold);
    if (read.is_loaded) {
      TakeParameters(read, range, result);
      return result;
    }
    const std::string& name = read.missing_macro;
    const bool is_known = std::any_of(
        result.macros.begin(), result.macros.end(),
        [&name](const GameMacros::Macro& one) { return one.name == name; });
    if (name.empty() || is_known) return std::nullopt;
    defines += std::string(kDefine) + name + ' ' +
               std::to_string(kFirstNumber + result.macros.size()) + '\n';
    result.macros.push_back({name, {}});
  }
  return std::nullopt;
}

std::optional<GameMacros> OtherMacros(IndexRange range,
                                      const IncludeLookup& game,
                                      const std::vector<std::string>& scripts) {
  const bool is_weapons = range.Contains(kWeaponWeightRange.first);
  std::vector<std::string> candidates = {is_weapons ? "fw_weap.c"
                                                    : "fw_items.c"};
  candidates.insert(candidates.end(), scripts.begin(), scripts.end());
  candidates.emplace_back(is_weapons ? "fuzw.c" : "fuzi.c");
  const auto script =
      std::find_if(candidates.begin(), candidates.end(),
                   [&game](const std::string& name) { return game(name); });
  if (script == candidates.end()) return std::nullopt;
  std::optional<GameMacros> macros = MacrosOf(*script, range, game);
  if (!macros) return std::nullopt;
  std::erase_if(macros->macros, [range](const GameMacros::Macro& macro) {
    return IsOurs(macro.name, range);
  });
  if (macros->macros.empty()) return std::nullopt;
  return macros;
}

}  // namespace fragsmith
