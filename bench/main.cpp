#include <benchmark/benchmark.h>

#include "support/system/time_zone.h"

int main(int count, char** arguments) {
  // As the programs do at their start.
  fragsmith::PrepareTimeZone();
  benchmark::Initialize(&count, arguments);
  if (benchmark::ReportUnrecognizedArguments(count, arguments)) return 2;
  benchmark::RunSpecifiedBenchmarks();
  benchmark::Shutdown();
}
