#include "inplace/game_macro_files.h"

#include <algorithm>
#include <array>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "botfiles/game_text.h"
#include "botfiles/weight_file.h"
#include "game/stand_ins.h"
#include "game/weight_reader.h"
#include "inplace/origin_files.h"
#include "support/numbers.h"
#include "support/text.h"

namespace fragsmith {
namespace {

struct WeightKind {
  BotFile file;
  IndexRange range;
  std::string_view our_script;
};

constexpr std::array kWeightKinds = {
    WeightKind{BotFile::kWeaponWeights, kWeaponWeightRange, "fw_weap.c"},
    WeightKind{BotFile::kItemWeights, kItemWeightRange, "fw_items.c"}};

/// What the file includes, in its order.
std::vector<std::string> IncludesOf(std::string_view bytes) {
  std::vector<std::string> names;
  LineReader lines(bytes);
  while (const std::optional<std::string_view> line = lines.Next()) {
    std::string_view rest = TrimBlanksAndTabs(*line);
    if (TakeWord(rest) != "#include") continue;
    std::string name(WithoutQuotes(TakeWord(rest)));
    if (name != "inv.h") names.push_back(std::move(name));
  }
  return names;
}

/// The file of that kind, where the bot has one that can be read.
std::optional<std::string> BytesOfKind(const OriginFiles& files, BotFile kind) {
  const auto file = files.find(kind);
  if (file == files.end()) return std::nullopt;
  Result<std::string> bytes = BytesAt(file->second);
  if (!bytes) return std::nullopt;
  return *std::move(bytes);
}

/// The numbers that the bot's own file gives its macros.
std::vector<OwnMacro> MacrosIn(const std::optional<std::string>& bytes) {
  if (!bytes) return {};
  Complaints untold;
  return ReadGameWeights({{}, {}, *bytes}, StandInGameFile, untold).macros;
}

Value ValueOf(const GameMacros::Macro& macro, const Bot& bot,
              const std::vector<OwnMacro>& known) {
  if (macro.parameter) return bot.Parameter(*macro.parameter);
  const auto own = std::find_if(
      known.begin(), known.end(),
      [&macro](const OwnMacro& one) { return one.name == macro.name; });
  if (own == known.end()) return 0.0;
  return NumberFromText(own->text).value_or(0.0);
}

}  // namespace

MacrosByFile OtherMacrosFor(const OriginFiles& files,
                            const IncludeLookup& game) {
  MacrosByFile macros;
  for (const WeightKind& kind : kWeightKinds) {
    const auto file = files.find(kind.file);
    IncludeLookup look_up = game;
    std::vector<std::string> scripts;
    if (file != files.end()) {
      if (const auto bytes = BytesOfKind(files, kind.file)) {
        scripts = IncludesOf(*bytes);
      }
      // No game is there to win over what the package brings.
      const std::string script(kind.our_script);
      const bool has_game = game(script) != StandInGameFile(script);
      look_up = LookUpBeside(
          file->second,
          [game, script,
           has_game](std::string_view path) -> std::optional<std::string> {
            if (!has_game && path == script) return std::nullopt;
            return game(path);
          });
    }
    std::optional<GameMacros> found = OtherMacros(kind.range, look_up, scripts);
    if (found) macros.emplace(kind.file, *std::move(found));
  }
  return macros;
}

void WriteGameMacros(const MacrosByFile& macros, const Bot& bot,
                     const Author& author, const OriginFiles& files,
                     SavePlan& plan) {
  for (const auto& [kind, wanted] : macros) {
    if (plan.contents.contains(kind)) continue;
    const std::vector<OwnMacro> known = MacrosIn(BytesOfKind(files, kind));
    GameMacroValues values = {.script = wanted.script, .macros = {}};
    for (const GameMacros::Macro& macro : wanted.macros) {
      values.macros.emplace_back(macro.name, ValueOf(macro, bot, known));
    }
    plan.contents.emplace(kind, kind == BotFile::kWeaponWeights
                                    ? WriteWeaponWeightFile(bot, author, values)
                                    : WriteItemWeightFile(bot, author, values));
  }
}

}  // namespace fragsmith
