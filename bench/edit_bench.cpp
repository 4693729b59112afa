#include <benchmark/benchmark.h>

#include <array>
#include <cstddef>
#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "bench/silent_prompts.h"
#include "bench/work_folder.h"
#include "botfiles/characteristic_file.h"
#include "botfiles/weight_file.h"
#include "chat/chat_file.h"
#include "game/stand_ins.h"
#include "inplace/edit_in_place.h"
#include "inplace/file_reading.h"
#include "inplace/game_values.h"
#include "install/packages/package_writer.h"
#include "model/characteristic_catalogue.h"
#include "session/load_from_package.h"
#include "session/presets.h"
#include "support/random.h"

namespace fragsmith::bench {
namespace fs = std::filesystem;
namespace {

constexpr std::string_view kDefine = "#define ";

/// Weapons as the game's weight code names them, in the catalogue's order.
constexpr std::array<std::string_view, 10> kWeapons = {
    "Gauntlet",        "Shotgun",       "Machinegun", "Grenade Launcher",
    "Rocket Launcher", "Railgun",       "BFG10K",     "Lightning Gun",
    "Plasma Gun",      "Grappling Hook"};

/// A file of a bot, with one value or line in it changed.
struct Edited {
  BothReaders readers;
  std::string bytes;
  Bot before;
  Bot after;
};

std::vector<Edited> EditedFiles() {
  const Bot made = CreateAverageBot(SeededRandom(1));
  const auto file = [](BotFile kind, std::string bytes, const auto& change) {
    BothReaders readers({kind, "bot", "bot"}, StandInGameFile);
    Bot before = readers.Read(bytes).bot;
    Bot after = before;
    change(after);
    return Edited{std::move(readers), std::move(bytes), std::move(before),
                  std::move(after)};
  };
  const auto put = [](ParameterId id, double value) {
    return [id, value](Bot& bot) { bot.Put(id, value); };
  };
  return {file(BotFile::kCharacteristics, WriteCharacteristicFile(made, {}),
               put({Level::k4, kAttackSkillIndex}, 0.375)),
          file(BotFile::kWeaponWeights, WriteWeaponWeightFile(made, {}),
               put(ParameterId(kWeaponWeightRange.first), 123)),
          file(BotFile::kItemWeights, WriteItemWeightFile(made, {}),
               put(ParameterId(kItemWeightRange.last), 123)),
          file(BotFile::kChat, WriteChatFile(made, {}), [](Bot& bot) {
            bot.SetChatLine(kAllChatTypes[0], ChatLineIndex(0),
                            "Another line.");
          })};
}

// One edit in each file, with all that is read again to be sure of it.

void BotEdit(benchmark::State& state) {
  const std::vector<Edited> files = EditedFiles();
  for ([[maybe_unused]] auto _ : state) {
    for (const Edited& file : files) {
      const Result<std::string> edited =
          EditInPlace(file.readers, file.bytes, file.before, file.after);
      if (!edited) state.SkipWithError("the file was not edited");
    }
  }
}

// The same files read once by both readers.

void BotEditReading(benchmark::State& state) {
  const std::vector<Edited> files = EditedFiles();
  for ([[maybe_unused]] auto _ : state) {
    for (const Edited& file : files) {
      benchmark::DoNotOptimize(file.readers.Read(file.bytes));
    }
  }
}

/// A package of a bot whose weights have other names than ours.
class OtherMacrosPackage {
 public:
  OtherMacrosPackage() {
    const Bot bot = CreateAverageBot(SeededRandom(1));
    std::string weapons = "#include \"inv.h\"\n";
    std::string code;
    for (std::size_t at = 0; at < kWeapons.size(); ++at) {
      const std::string name = "M" + std::to_string(at);
      weapons += std::string(kDefine) + name + " 50\n";
      code += "weight \"" + std::string(kWeapons.at(at)) +
              "\" { switch(INVENTORY_SHELLS) { case 1: return 0; default: "
              "return " +
              name + "; } }\n";
    }
    weapons += "#include \"fuzw.c\"\n";
    const std::string start = "botfiles/bots/rookie";
    const Result<void> made = WritePackage(
        path(), {{start + "_c.c", WriteCharacteristicFile(bot, {})},
                 {start + "_w.c", weapons},
                 {start + "_i.c", WriteItemWeightFile(bot, {})},
                 {start + "_t.c", WriteChatFile(bot, {})},
                 {"botfiles/fuzw.c", code}});
    is_good_ = made.has_value();
  }

  fs::path path() const { return folder_.path() / "somebody.pk3"; }
  bool is_good() const { return is_good_; }

 private:
  WorkFolder folder_{fs::temp_directory_path()};
  bool is_good_ = false;
};

// A bot out of somebody else's package, with the weights that only its weight
// code tells, and without them.

void BotFromOthers(benchmark::State& state, bool takes_game_values) {
  const OtherMacrosPackage package;
  const ModelCatalogue models = ModelCatalogue::Standard();
  const BotList bots = BotList::Standard();
  SilentPrompts prompts;
  TemporaryFolder temporary;
  std::optional<LoadedBot> loaded;
  for ([[maybe_unused]] auto _ : state) {
    loaded = LoadBotFromPackage({.package = package.path(), .name = "rookie"},
                                Bot(), {.folder = WZUNZIP_FOLDER}, temporary,
                                {models, bots, prompts});
    if (loaded && takes_game_values) {
      TakeGameValues(*loaded, true, models, StandInGameFile);
    }
  }
  const double wanted = takes_game_values ? 50 : 0;
  const ParameterId weapon(kWeaponWeightRange.first);
  if (!package.is_good() || !loaded ||
      ToNumber(loaded->bot.Parameter(weapon)).value_or(0) != wanted) {
    state.SkipWithError("the bot was not read as it is meant");
  }
}

BENCHMARK(BotEdit)->UseRealTime();
BENCHMARK(BotEditReading)->UseRealTime();
BENCHMARK_CAPTURE(BotFromOthers, found, true)->UseRealTime();
BENCHMARK_CAPTURE(BotFromOthers, plain, false)->UseRealTime();

}  // namespace
}  // namespace fragsmith::bench
