#include <benchmark/benchmark.h>

#include <cstdint>
#include <random>
#include <string>

#include "trial/match_log.h"

namespace fragsmith::bench {
namespace {

constexpr int kPlayers = 8;
constexpr int kSecondsInMinute = 60;

std::string Stamp(int second) {
  const std::string rest = std::to_string(second % kSecondsInMinute);
  return "  " + std::to_string(second / kSecondsInMinute) +
         (rest.size() < 2 ? ":0" : ":") + rest + " ";
}

/// A match of eight bots. Each second has more than real ones have: two things
/// taken, a kill with its points, and every fifth a word.
std::string LogOf(int minutes) {
  std::mt19937 generator(1);
  const auto player = [&generator] {
    return std::to_string(generator() % kPlayers);
  };
  std::string log = Stamp(0) + "InitGame: \\mapname\\q3dm1\n";
  for (int number = 0; number < kPlayers; ++number) {
    const std::string name = std::to_string(number);
    log += Stamp(0) + "ClientUserinfoChanged: " + name + " n\\^1Bot" + name +
           "\\t\\0\\model\\sarge\\hc\\100\\w\\0\\l\\0\\skill\\ 4.00\n";
  }
  for (int second = 1; second < minutes * kSecondsInMinute; ++second) {
    const std::string stamp = Stamp(second);
    log += stamp + "Item: " + player() + " weapon_rocketlauncher\n";
    log += stamp + "Item: " + player() + " item_armor_shard\n";
    const std::string killer = player();
    const std::string victim = player();
    log += stamp + "Kill: " + killer + " " + victim + " 7: ^1Bot" + killer +
           "^7 killed ^1Bot" + victim + "^7 by MOD_ROCKET_SPLASH\n";
    log += stamp + "PlayerScore: " + killer + " 3: ^1Bot" + killer +
           "^7 now has 3 points\n";
    if (second % 5 == 0) {
      log += stamp + "say: ^1Bot" + killer + "^7: Too slow, Bot" + victim +
             ". I had you in sight all the time.\n";
    }
  }
  const std::string end = Stamp(minutes * kSecondsInMinute);
  log += end + "Exit: Timelimit hit.\n";
  for (int number = 0; number < kPlayers; ++number) {
    log += end + "score: 3  ping: 0  client: " + std::to_string(number) +
           " ^1Bot\n";
  }
  return log;
}

/// The argument is the minutes of the match.
void ReadMatchLog(benchmark::State& state) {
  const std::string log = LogOf(static_cast<int>(state.range(0)));
  for (auto _ : state) {
    MatchLogReader reader;
    reader.Read(log);
    if (!reader.record().IsWhole()) {
      state.SkipWithError("the log was not read to its end");
    }
    benchmark::DoNotOptimize(reader.record().events.size());
  }
  state.SetBytesProcessed(state.iterations() *
                          static_cast<std::int64_t>(log.size()));
}
BENCHMARK(ReadMatchLog)->Arg(15)->Arg(60)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace fragsmith::bench
