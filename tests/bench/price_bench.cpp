// FormatPrice against the C library's "%.*f" over the same prices: an axis or a data window
// formats one price per label or bar, so the cost of one call is what counts. The decimal formats
// must stay within twice the cost of snprintf; the fraction, tick and sub-tick forms are reported
// beside them. Prices walk on in 1/256 steps over a futures-like range, so no call repeats the last.

#include <benchmark/benchmark.h>

#include <cstdint>
#include <cstdio>
#include <string>

#include "format/FormatPrice.h"

namespace {

constexpr double kStep = 1.0 / 256.0 + 0.0001;

double NextPrice(double price) {
  price += kStep;
  return price > 5000.0 ? 1.0 : price;
}

// The baseline: the same digits into the same kind of string.
void Snprintf(benchmark::State& state) {
  const int digits = static_cast<int>(state.range(0));
  std::string text;
  double price = 1.0;
  for (auto _ : state) {
    char buffer[64];
    std::snprintf(buffer, sizeof buffer, "%.*f", digits, price);
    text.assign(buffer);
    benchmark::DoNotOptimize(text.data());
    price = NextPrice(price);
  }
  state.SetItemsProcessed(state.iterations());
}

void Price(benchmark::State& state) {
  const auto format = static_cast<std::int32_t>(state.range(0));
  const auto precision = static_cast<std::int32_t>(state.range(1));
  std::string text;
  double price = 1.0;
  for (auto _ : state) {
    benchmark::DoNotOptimize(orv::FormatPrice(price, format, precision, text));
    benchmark::DoNotOptimize(text.data());
    price = NextPrice(price);
  }
  state.SetItemsProcessed(state.iterations());
}

BENCHMARK(Snprintf)->ArgName("digits")->Arg(2)->Arg(4)->Arg(8);
// Decimals: composed (0), the decimal text (8193) and its best fit (0 with -1); then the market's
// short form in eighths and 32nds, the fraction text, the tick text, sub-ticks, grouping.
BENCHMARK(Price)
    ->ArgNames({"format", "precision"})
    ->Args({0, 2})
    ->Args({0, 4})
    ->Args({0, 22})
    ->Args({8193, 2})
    ->Args({8193, 4})
    ->Args({0, -1})
    ->Args({0, 10})
    ->Args({0, 12})
    ->Args({12291, 10})
    ->Args({12291, 100})
    ->Args({3, 12})
    ->Args({12, 12})
    ->Args({7, 12})
    ->Args({6, 2});

}  // namespace
