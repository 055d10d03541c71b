// The guard decision runs on every 30-second refresh and for every tray and dialog redraw; this
// measures one evaluation against a profile with many windows.
#include <benchmark/benchmark.h>

#include "guard/guard_status.h"
#include "guard/guard_text.h"

namespace {

void EvaluateBlocking(benchmark::State& state) {
  StayholdConfig config;
  BehaviorProfile profile;
  for (int i = 0; i < state.range(0); ++i) {
    profile.windows.push_back(RestartWindow{true, i % 7, (i * 37) % 1380, (i * 37) % 1380 + 30});
  }
  config.profiles.push_back(profile);
  LocalTime now;
  now.day_of_week = 3;
  now.hour = 23;
  now.minute = 59;
  for (auto _ : state)
    benchmark::DoNotOptimize(EvaluateGuardStatusAt(config, now));
}
BENCHMARK(EvaluateBlocking)->Arg(1)->Arg(16)->Arg(256);

void FormatTooltip(benchmark::State& state) {
  GuardStatus status{true, false, true, L"Work", L"Friday 13:00-17:00"};
  for (auto _ : state)
    benchmark::DoNotOptimize(FormatTrayTooltip(status));
}
BENCHMARK(FormatTooltip);

}  // namespace
