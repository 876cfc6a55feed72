// FormatDateValue and FormatTimeValue per id: an axis or a data window formats one text per bar,
// so the cost of one call is what counts. Dates and times walk on, so no call repeats the last.

#include <benchmark/benchmark.h>

#include <cstdint>
#include <string>

#include "format/DateFormat.h"

namespace {

void DateValue(benchmark::State& state) {
  const auto id = static_cast<std::int32_t>(state.range(0));
  std::string text;
  double date = 40000.0;
  for (auto _ : state) {
    benchmark::DoNotOptimize(FormatDateValue(date, id, text));
    date += 1.0 + 1.0 / 1440.0;  // the next day, a minute later
    if (date > 50000.0) date = 40000.0;
  }
  state.SetItemsProcessed(state.iterations());
}

void TimeValue(benchmark::State& state) {
  const auto id = static_cast<std::int32_t>(state.range(0));
  std::string text;
  std::int32_t value = 0;
  for (auto _ : state) {
    benchmark::DoNotOptimize(FormatTimeValue(value, id, text));
    value = (value + 61) % 2000000000;
  }
  state.SetItemsProcessed(state.iterations());
}

// Plain date masks, the no-leading-zero and long forms, the locale's picture, day and date,
// milliseconds, date and time, and an unknown id.
BENCHMARK(DateValue)->ArgName("id")->Arg(16)->Arg(144)->Arg(244)->Arg(224)->Arg(241)->Arg(258)->Arg(274)->Arg(514)->Arg(
    999);
// Clock forms by plain arithmetic, the forms through a date of 1970 onwards, the locale's time.
BENCHMARK(TimeValue)->ArgName("id")->Arg(256)->Arg(258)->Arg(512)->Arg(272)->Arg(277)->Arg(769)->Arg(999);

}  // namespace
