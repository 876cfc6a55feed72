// ReadContext and WriteContext for a Context whose three year lists hold N entries each.
// Both must grow linearly with N.

#include <benchmark/benchmark.h>

#include <cstdint>
#include <cstdlib>
#include <string>

#include "seasonal/WizardSeasonState.h"

namespace {

using orv::seasonal::WizardSeasonState;

std::string ContextText(std::int64_t years) {
  std::string list, years1, years2;
  for (std::int64_t i = 0; i < years; ++i) {
    list += "<SelYear>" + std::to_string(i) + "</SelYear>";
    years1 += "<Year>" + std::to_string(2026 - i) + "</Year>";
    years2 += "<Year>" + std::to_string(2025 - i) + "</Year>";
  }
  return "<PropertySheet Name=\"SznWzrdPs\"><Context><FormSel>3</FormSel><YearsBack>5</YearsBack>"
         "<MonthDayWindow Start=\"46327\" End=\"46446\"/><SelYearList>" +
         list +
         "</SelYearList><SymbolList><Symbol>MSFT</Symbol><Symbol>INDU.X</Symbol></SymbolList><FutureList>"
         "<Future Root=\"@C\" Month=\"2\" Multiplier=\"2.5\"/><Future Root=\"@S\" Month=\"4\"/></FutureList>"
         "<YearListList><YearList>" +
         years1 + "</YearList><YearList>" + years2 + "</YearList></YearListList></Context></PropertySheet>";
}

XmlNode Load(const std::string& text) {
  XmlNode document = XmlCreateDocument();
  if (!XmlLoadString(document, text)) std::abort();
  return document;
}

void ReadContext(benchmark::State& state) {
  XmlNode document = Load(ContextText(state.range(0)));
  for (auto _ : state) {
    WizardSeasonState read;
    orv::seasonal::ReadContext(read, document);
    benchmark::DoNotOptimize(read.Years2.size());
  }
  state.SetItemsProcessed(state.iterations() * state.range(0) * 3);
}

// Into a fresh small document each time, so that replaced Contexts don't pile up.
void WriteContext(benchmark::State& state) {
  WizardSeasonState filled;
  orv::seasonal::ReadContext(filled, Load(ContextText(state.range(0))));
  XmlNode document = XmlCreateDocument();
  for (auto _ : state) {
    if (!XmlLoadString(document, "<PropertySheet/>")) std::abort();
    orv::seasonal::WriteContext(filled, document);
    benchmark::DoNotOptimize(document);
  }
  state.SetItemsProcessed(state.iterations() * state.range(0) * 3);
}

// What a run does with the host's document: load it, read the Context, write it anew.
void LoadReadWrite(benchmark::State& state) {
  const std::string text = ContextText(state.range(0));
  XmlNode document = XmlCreateDocument();
  for (auto _ : state) {
    if (!XmlLoadString(document, text)) std::abort();
    WizardSeasonState read;
    orv::seasonal::ReadContext(read, document);
    orv::seasonal::WriteContext(read, document);
  }
  state.SetItemsProcessed(state.iterations() * state.range(0) * 3);
}

BENCHMARK(ReadContext)->Arg(10)->Arg(100)->Arg(1000)->Unit(benchmark::kMicrosecond);
BENCHMARK(WriteContext)->Arg(10)->Arg(100)->Arg(1000)->Unit(benchmark::kMicrosecond);
BENCHMARK(LoadReadWrite)->Arg(10)->Arg(100)->Arg(1000)->Unit(benchmark::kMicrosecond);

}  // namespace
