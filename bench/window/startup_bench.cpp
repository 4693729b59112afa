// fragsmith-window-bench: how long a start takes until the window is painted,
// each time in a process of its own. Needs a display.

#include <benchmark/benchmark.h>

#include <QProcess>
#include <string_view>

#include "bench/window/first_paint.h"

namespace {

constexpr std::string_view kPaint = "--paint=";
constexpr int kLongestStart = 10'000;  // Milliseconds.
const char* own_path = nullptr;

void StartUp(benchmark::State& state, const char* kind) {
  const QStringList arguments = {
      QString::fromUtf8(kPaint.data(), kPaint.size()) + QLatin1String(kind)};
  for ([[maybe_unused]] auto step : state) {
    QProcess start;
    start.start(QString::fromLocal8Bit(own_path), arguments);
    if (!start.waitForFinished(kLongestStart) || start.exitCode() != 0) {
      state.SkipWithError("the window was not painted");
      break;
    }
  }
}

}  // namespace

int main(int count, char** words) {
  if (count == 2 && std::string_view(words[1]).starts_with(kPaint)) {
    return fragsmith::bench::PaintOnce(
        std::string_view(words[1]).substr(kPaint.size()), count, words);
  }
  own_path = words[0];
  for (const char* const kind :
       {"fragsmith", "shown_page_alone", "bare_window"}) {
    benchmark::RegisterBenchmark(
        (std::string("StartUp/") + kind).c_str(),
        [kind](benchmark::State& state) { StartUp(state, kind); })
        ->UseRealTime()
        ->Unit(benchmark::kMillisecond);
  }
  benchmark::Initialize(&count, words);
  if (benchmark::ReportUnrecognizedArguments(count, words)) return 2;
  benchmark::RunSpecifiedBenchmarks();
  benchmark::Shutdown();
}
