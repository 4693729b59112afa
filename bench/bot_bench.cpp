#include <benchmark/benchmark.h>

#include <array>
#include <cstddef>
#include <filesystem>
#include <string>
#include <utility>

#include "bench/bot_floor.h"
#include "bench/child_program.h"
#include "bench/silent_prompts.h"
#include "bench/work_folder.h"
#include "botfiles/characteristic_file.h"
#include "botfiles/description_file.h"
#include "botfiles/weight_file.h"
#include "chat/chat_catalogue.h"
#include "chat/chat_file.h"
#include "checks/bot_checks.h"
#include "model/characteristic_catalogue.h"
#include "session/load_bot.h"
#include "session/load_from_package.h"
#include "session/presets.h"
#include "session/save_bot.h"
#include "support/random.h"

namespace fragsmith::bench {
namespace fs = std::filesystem;
namespace {

constexpr std::array<BotFile, 5> kFiles = {
    BotFile::kCharacteristics, BotFile::kItemWeights, BotFile::kWeaponWeights,
    BotFile::kChat, BotFile::kDescription};

Author TheAuthor() {
  return {"Somebody", "somebody@example.org", "https://example.org"};
}

/// As large as the bots that people make: for each chat type a ready-made
/// line, a text and a text with variables.
Bot MakeBot() {
  Bot bot = CreateAverageBot(SeededRandom(1));
  for (const ChatTypeId type : kAllChatTypes) {
    const int pointer = ChatTypeAt(type).Pointers().front();
    bot.SetChatLine(type, ChatLineIndex(1),
                    "I have seen worse on days that were better.");
    bot.SetChatLine(type, ChatLineIndex(2),
                    std::string(ChatPointerAt(pointer).Variable) +
                        " should try the {WEAPON}, it is good for {ANIMAL}s.");
  }
  // A bot takes any names.
  (void)bot.SetParameter(kNameField, std::string("Rookie"));
  (void)bot.SetParameter(kFunNameField, std::string("^1Rookie"));
  return bot;
}

/// The bot with its files in a folder and a package.
struct BotOnDisk {
  WorkFolder folder;
  Bot bot = MakeBot();
  std::array<fs::path, 5> paths;  ///< In the order of kFiles.
  std::array<std::string, 5> bytes;
  fs::path package;

  explicit BotOnDisk(const fs::path& parent) : folder(parent) {
    SilentPrompts prompts;
    const SavedBot saved = SaveBot(bot, folder.path(), {.makes_package = true},
                                   TheAuthor(), prompts);
    for (std::size_t file = 0; file < kFiles.size(); ++file) {
      paths.at(file) =
          folder.path() / ("rookie" + std::string(FileSuffix(kFiles.at(file))));
      bytes.at(file) = ReadWhole(paths.at(file));
    }
    if (!saved.error) package = saved.written.back();
  }
};

const BotOnDisk& OnDisk() {
  static const BotOnDisk kBot(fs::temp_directory_path());
  return kBot;
}

/// In a folder that the system keeps in memory, where a flush has nothing to
/// do.
const BotOnDisk& InMemory() {
  static const BotOnDisk kBot("/dev/shm");
  return kBot;
}

using Place = const BotOnDisk& (*)();

/// The bot is read as it was written, and nobody has to be told anything.
void CheckLoaded(const LoadedBot& loaded, const SilentPrompts& prompts,
                 benchmark::State& state) {
  if (loaded.bot.ChatLines(kAllChatTypes.back()).size() != 3 ||
      loaded.bot.Name() != "Rookie" || !loaded.notes.empty() ||
      prompts.shown() > 0) {
    state.SkipWithError("the bot was not read whole");
  }
}

// Opening, reading and understanding the five files.

void BotRead(benchmark::State& state) {
  const BotOnDisk& disk = OnDisk();
  const ModelCatalogue models = ModelCatalogue::Standard();
  const BotList bots = BotList::Standard();
  SilentPrompts prompts;
  LoadedBot loaded;
  for ([[maybe_unused]] auto _ : state) {
    loaded = LoadBotFromFolder("rookie", disk.folder.path(), {},
                               {models, bots, prompts, TheAuthor()});
  }
  CheckLoaded(loaded, prompts, state);
}

void BotReadFloor(benchmark::State& state) {
  const BotOnDisk& disk = OnDisk();
  for ([[maybe_unused]] auto _ : state) {
    for (const fs::path& path : disk.paths) {
      const std::string bytes = ReadWhole(path);
      benchmark::DoNotOptimize(SplitLines(bytes));
    }
  }
}

void BotReadPlain(benchmark::State& state) {
  const BotOnDisk& disk = OnDisk();
  for ([[maybe_unused]] auto _ : state) {
    for (const fs::path& path : disk.paths) {
      benchmark::DoNotOptimize(ReadLines(path));
    }
  }
}

/// A load reads each file twice, by our reading rules and as the game does: the
/// lines and, for each of the two, the words and numbers.
void BotReadTwice(benchmark::State& state) {
  const BotOnDisk& disk = OnDisk();
  for ([[maybe_unused]] auto _ : state) {
    for (const fs::path& path : disk.paths) {
      const std::string bytes = ReadWhole(path);
      benchmark::DoNotOptimize(SplitLines(bytes));
      benchmark::DoNotOptimize(SplitWords(bytes));
      benchmark::DoNotOptimize(SplitWords(bytes));
    }
  }
}

// The same from five texts in memory: what understanding costs.

void BotParse(benchmark::State& state) {
  const BotOnDisk& disk = OnDisk();
  SilentPrompts prompts;
  LoadedBot loaded;
  for ([[maybe_unused]] auto _ : state) {
    loaded = LoadedBot();
    for (std::size_t file = 0; file < kFiles.size(); ++file) {
      ReadBotFile(kFiles.at(file), WholeBot{}, disk.bytes.at(file), "rookie",
                  "rookie", loaded);
    }
  }
  CheckLoaded(loaded, prompts, state);
}

void BotParseFloor(benchmark::State& state) {
  const BotOnDisk& disk = OnDisk();
  for ([[maybe_unused]] auto _ : state) {
    for (const std::string& bytes : disk.bytes) {
      benchmark::DoNotOptimize(SplitLines(bytes));
    }
  }
}

// Writing the file set, each file by way of a temporary one that is flushed
// and renamed.

void BotWrite(benchmark::State& state, Place place) {
  const BotOnDisk& disk = place();
  SilentPrompts prompts;
  const WorkFolder folder(disk.folder.path());
  for ([[maybe_unused]] auto _ : state) {
    const SavedBot saved =
        SaveBot(disk.bot, folder.path(), {}, TheAuthor(), prompts);
    if (saved.error) state.SkipWithError("the bot was not written");
  }
}

void BotWriteFloor(benchmark::State& state, Place place) {
  const BotOnDisk& disk = place();
  const WorkFolder folder(disk.folder.path());
  std::array<fs::path, 5> paths;
  for (std::size_t file = 0; file < paths.size(); ++file) {
    paths.at(file) = folder.path() / disk.paths.at(file).filename();
  }
  for ([[maybe_unused]] auto _ : state) {
    for (std::size_t file = 0; file < paths.size(); ++file) {
      if (!WriteWhole(paths.at(file), disk.bytes.at(file))) {
        state.SkipWithError("the files were not written");
      }
    }
  }
}

// Five texts in memory: what putting them together costs.

void BotFormat(benchmark::State& state) {
  const Bot& bot = OnDisk().bot;
  const Author author = TheAuthor();
  for ([[maybe_unused]] auto _ : state) {
    benchmark::DoNotOptimize(WriteCharacteristicFile(bot, author));
    benchmark::DoNotOptimize(WriteItemWeightFile(bot, author));
    benchmark::DoNotOptimize(WriteWeaponWeightFile(bot, author));
    benchmark::DoNotOptimize(WriteChatFile(bot, author));
    benchmark::DoNotOptimize(WriteDescriptionFile(bot, author));
  }
}

void BotFormatFloor(benchmark::State& state) {
  const BotOnDisk& disk = OnDisk();
  std::array<std::vector<std::string_view>, 5> lines;
  for (std::size_t file = 0; file < lines.size(); ++file) {
    lines.at(file) = SplitLines(disk.bytes.at(file));
  }
  for ([[maybe_unused]] auto _ : state) {
    for (const std::vector<std::string_view>& file : lines) {
      std::string text;
      for (const std::string_view line : file) {
        text += line;
        text += "\r\n";
      }
      benchmark::DoNotOptimize(text);
    }
  }
}

// A bot out of its package, which starts the unzip tool five times.

void BotFromPackage(benchmark::State& state) {
  const BotOnDisk& disk = OnDisk();
  const ModelCatalogue models = ModelCatalogue::Standard();
  const BotList bots = BotList::Standard();
  SilentPrompts prompts;
  TemporaryFolder temporary;
  std::optional<LoadedBot> loaded;
  for ([[maybe_unused]] auto _ : state) {
    loaded = LoadBotFromPackage(
        {.package = disk.package, .name = "rookie", .withScript = true}, Bot(),
        {.folder = WZUNZIP_FOLDER}, temporary,
        {models, bots, prompts, TheAuthor()});
  }
  CheckLoaded(loaded ? *loaded : LoadedBot(), prompts, state);
}

void FiveEmptyPrograms(benchmark::State& state) {
  for ([[maybe_unused]] auto _ : state) {
    for (int program = 0; program < 5; ++program) {
      if (!RunProgram({"true"})) state.SkipWithError("no program was run");
    }
  }
}

// What the window does after each edit. No game is there to be asked.

void BotCheck(benchmark::State& state) {
  const Bot bot = MakeBot();
  for ([[maybe_unused]] auto _ : state) {
    benchmark::DoNotOptimize(CheckBot(bot, nullptr));
  }
}

BENCHMARK(BotRead)->UseRealTime();
BENCHMARK(BotReadFloor)->UseRealTime();
BENCHMARK(BotReadPlain)->UseRealTime();
BENCHMARK(BotReadTwice)->UseRealTime();
BENCHMARK(BotParse)->UseRealTime();
BENCHMARK(BotParseFloor)->UseRealTime();
BENCHMARK_CAPTURE(BotWrite, disk, &OnDisk)->UseRealTime();
BENCHMARK_CAPTURE(BotWriteFloor, disk, &OnDisk)->UseRealTime();
BENCHMARK_CAPTURE(BotWrite, memory, &InMemory)->UseRealTime();
BENCHMARK_CAPTURE(BotWriteFloor, memory, &InMemory)->UseRealTime();
BENCHMARK(BotFormat)->UseRealTime();
BENCHMARK(BotFormatFloor)->UseRealTime();
BENCHMARK(BotFromPackage)->UseRealTime();
BENCHMARK(BotCheck)->UseRealTime();
BENCHMARK(FiveEmptyPrograms)->UseRealTime();

}  // namespace
}  // namespace fragsmith::bench
