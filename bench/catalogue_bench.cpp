#include <benchmark/benchmark.h>

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <random>
#include <string>
#include <tuple>
#include <vector>

#include "install/program/bot_list.h"
#include "install/program/model_catalogue.h"

namespace fragsmith::bench {
namespace {

/// What a package's table of contents says of a skin.
struct FoundSkin {
  std::string model;
  std::string skin;
  std::string package;
  std::string icon;
};

std::vector<std::string> Names(std::size_t count, std::uint32_t seed) {
  std::mt19937 generator(seed);
  std::vector<std::string> names;
  for (std::size_t index = 0; index < count; ++index) {
    std::string name;
    for (std::size_t left = 4 + generator() % 8; left > 0; --left) {
      name += static_cast<char>('a' + generator() % 26);
    }
    names.push_back(name + std::to_string(index));
  }
  return names;
}

/// Skins in no order, of so many models.
std::vector<FoundSkin> FindSkins(std::size_t count, std::size_t model_count) {
  const std::vector<std::string> models = Names(model_count, 1);
  const std::vector<std::string> skins = Names(count, 2);
  std::mt19937 generator(3);
  std::vector<FoundSkin> found;
  found.reserve(count);
  for (const std::string& skin : skins) {
    const std::string& model = models[generator() % model_count];
    found.push_back({model, skin,
                     "package" + std::to_string(generator() % 2000) + ".pk3",
                     "models\\players\\" + model + "\\icon_" + skin + ".tga"});
  }
  return found;
}

/// Ten skins a model.
std::vector<FoundSkin> FindSkinsOfManyModels(std::size_t count) {
  return FindSkins(count, count / 10);
}

std::vector<FoundSkin> FindSkinsOfOneModel(std::size_t count) {
  return FindSkins(count, 1);
}

using SkinSource = std::vector<FoundSkin> (*)(std::size_t count);

void Catalogue(benchmark::State& state, SkinSource source) {
  const std::vector<FoundSkin> found =
      source(static_cast<std::size_t>(state.range(0)));
  for ([[maybe_unused]] auto _ : state) {
    ModelCatalogue catalogue;
    for (const FoundSkin& skin : found) {
      catalogue.AddModelSkin(skin.model, skin.skin, skin.package, skin.icon);
    }
    catalogue.SortCatalogue();
    benchmark::DoNotOptimize(catalogue);
  }
  state.SetComplexityN(state.range(0));
}

/// The same texts in one list that is sorted by model and skin.
void CatalogueFloor(benchmark::State& state, SkinSource source) {
  const std::vector<FoundSkin> found =
      source(static_cast<std::size_t>(state.range(0)));
  for ([[maybe_unused]] auto _ : state) {
    std::vector<FoundSkin> list;
    for (const FoundSkin& skin : found) list.push_back(skin);
    std::sort(list.begin(), list.end(),
              [](const FoundSkin& left, const FoundSkin& right) {
                return std::tie(left.model, left.skin) <
                       std::tie(right.model, right.skin);
              });
    benchmark::DoNotOptimize(list);
  }
  state.SetComplexityN(state.range(0));
}

void Bots(benchmark::State& state) {
  const std::vector<std::string> names =
      Names(static_cast<std::size_t>(state.range(0)), 4);
  for ([[maybe_unused]] auto _ : state) {
    BotList list;
    for (const std::string& name : names) {
      list.AddBot(name, "package.pk3", true);
    }
    list.SortBotList();
    benchmark::DoNotOptimize(list);
  }
  state.SetComplexityN(state.range(0));
}

void BotsFloor(benchmark::State& state) {
  const std::vector<std::string> names =
      Names(static_cast<std::size_t>(state.range(0)), 4);
  for ([[maybe_unused]] auto _ : state) {
    std::vector<std::string> list;
    for (const std::string& name : names) list.push_back(name);
    std::sort(list.begin(), list.end());
    benchmark::DoNotOptimize(list);
  }
  state.SetComplexityN(state.range(0));
}

void Counts(benchmark::internal::Benchmark* run) {
  run->Arg(25'000)
      ->Arg(50'000)
      ->Arg(100'000)
      ->Complexity(benchmark::oNLogN)
      ->Unit(benchmark::kMillisecond);
}

BENCHMARK_CAPTURE(Catalogue, many_models, &FindSkinsOfManyModels)
    ->Apply(Counts);
BENCHMARK_CAPTURE(CatalogueFloor, many_models, &FindSkinsOfManyModels)
    ->Apply(Counts);
BENCHMARK_CAPTURE(Catalogue, one_model, &FindSkinsOfOneModel)->Apply(Counts);
BENCHMARK_CAPTURE(CatalogueFloor, one_model, &FindSkinsOfOneModel)
    ->Apply(Counts);
BENCHMARK(Bots)->Apply(Counts);
BENCHMARK(BotsFloor)->Apply(Counts);

}  // namespace
}  // namespace fragsmith::bench
