#include <benchmark/benchmark.h>

#include <chrono>
#include <cstddef>
#include <filesystem>
#include <map>

#include "bench/game_folder_maker.h"
#include "bench/package_peers.h"
#include "bench/silent_prompts.h"
#include "bench/work_folder.h"
#include "install/program/base_scan.h"

namespace fragsmith::bench {
namespace {

/// The game folder with so many packages, made when it is first asked for.
const GameFolder& FolderOf(std::size_t package_count) {
  static const WorkFolder kWork;
  static std::map<std::size_t, GameFolder> folders;
  const auto [place, is_new] = folders.try_emplace(package_count);
  if (is_new) {
    place->second = MakeGameFolder(kWork.path() / std::to_string(package_count),
                                   package_count);
  }
  return place->second;
}

// One way to read all packages of a folder; false when it did not find all
// that is there.

/// From the packages to the sorted lists: what a user waits for.
bool ScanByFragsmith(const GameFolder& folder) {
  ProgramSettings settings;
  settings.Q3Baseq3 = folder.path.string();
  BaseLists lists;
  CatalogueSelection selection;
  SilentPrompts prompts;
  Notes notes;
  return CheckBaseq3(settings, lists, selection, prompts, {}, notes) &&
         lists.models.CountSkins() == folder.skin_count &&
         lists.bots.entries().size() == folder.bot_count &&
         prompts.shown() == 0 && notes.empty();
}

template <Listing (*kList)(const std::filesystem::path&)>
bool ListBy(const GameFolder& folder) {
  return kList(folder.packages) ==
         Listing{folder.entry_count, folder.name_bytes};
}

using Way = bool (*)(const GameFolder&);

/// What was read before is still in memory.
void ScanWarm(benchmark::State& state, Way way) {
  const GameFolder& folder = FolderOf(static_cast<std::size_t>(state.range(0)));
  bool finds_all = way(folder);
  for ([[maybe_unused]] auto _ : state) finds_all = way(folder) && finds_all;
  if (!finds_all) state.SkipWithError("not everything was found");
}

/// The packages have to come from the disk.
void ScanCold(benchmark::State& state, Way way) {
  const GameFolder& folder = FolderOf(static_cast<std::size_t>(state.range(0)));
  bool finds_all = true;
  for ([[maybe_unused]] auto _ : state) {
    ForgetPackages(folder);
    const auto start = std::chrono::steady_clock::now();
    finds_all = way(folder) && finds_all;
    const std::chrono::duration<double> time =
        std::chrono::steady_clock::now() - start;
    state.SetIterationTime(time.count());
  }
  if (!finds_all) state.SkipWithError("not everything was found");
}

void Counts(benchmark::internal::Benchmark* run) {
  run->Arg(500)->Arg(2000)->Unit(benchmark::kMillisecond);
}

#define FRAGSMITH_SCAN(name, way)                                       \
  BENCHMARK_CAPTURE(ScanWarm, name, way)->Apply(Counts)->UseRealTime(); \
  BENCHMARK_CAPTURE(ScanCold, name, way)->Apply(Counts)->UseManualTime()

FRAGSMITH_SCAN(fragsmith, &ScanByFragsmith);
FRAGSMITH_SCAN(walk, &ListBy<WalkPlainly>);
FRAGSMITH_SCAN(bare_walk, &ListBy<WalkBarely>);
FRAGSMITH_SCAN(libzip, &ListBy<ListByLibzip>);
FRAGSMITH_SCAN(libarchive, &ListBy<ListByLibarchive>);
FRAGSMITH_SCAN(minizip, &ListBy<ListByMinizip>);
FRAGSMITH_SCAN(zipinfo, &ListBy<ListByZipinfo>);
BENCHMARK_CAPTURE(ScanWarm, zipinfo_each, &ListBy<ListByZipinfoEach>)
    ->Arg(500)
    ->Unit(benchmark::kMillisecond)
    ->UseRealTime();

#undef FRAGSMITH_SCAN

}  // namespace
}  // namespace fragsmith::bench
