// Load and Save of the line study pages whose documents hold a list of lines: the Gann line tab
// (every line of its TVector is kept, whatever the rows) and the graph object line page (its
// LineList). Both must grow linearly with the number of lines.

#include <benchmark/benchmark.h>

#include <cstdint>
#include <cstdlib>
#include <string>

#include "linestudies/GraphObjLinePg.h"
#include "linestudies/LsPgLineGann.h"
#include "xml/StrFormat.h"

namespace {

XmlNode PageOf(const std::string& inside) {
  XmlNode document = XmlCreateDocument();
  if (!XmlLoadString(document, "<PropertyPage Name=\"P\">" + inside + "</PropertyPage>")) std::abort();
  return XmlFindNode(document, "PropertyPage", true);
}

std::string GannLines(std::int64_t count) {
  std::string text = "<CGann><TVLineProps><TVector>";
  for (std::int64_t i = 0; i < count; ++i) {
    text += orv::StrFormat(
        "<Item_%d><LineProp><LineName>%d x 1</LineName><LineVis>TRUE</LineVis><LineColor>RGB(255,%d,0)</LineColor>"
        "<LineWeight>1</LineWeight><LineStyle>%d</LineStyle><LineFlag>0</LineFlag></LineProp></Item_%d>",
        static_cast<int>(i), static_cast<int>(i), static_cast<int>(i % 256), static_cast<int>(i % 5),
        static_cast<int>(i));
  }
  return text + "</TVector></TVLineProps></CGann>";
}

std::string LineList(std::int64_t count) {
  std::string text = "<LineList>";
  for (std::int64_t i = 0; i < count; ++i)
    text += orv::StrFormat("<Line Name=\"Band %d\" Color=\"%d\" Weight=\"2\" Style=\"1\" Flags=\"0\"/>",
                           static_cast<int>(i), static_cast<int>(i * 997));
  return text + "</LineList><UseShowPrice ShowPrice=\"TRUE\"/>";
}

// What the sheet does with a page: read it from the host's page, write it into a fresh one.
template <class Page>
void LoadSave(benchmark::State& state, const std::string& inside) {
  XmlNode page = PageOf(inside);
  for (auto _ : state) {
    Page read;
    if (!read.Load(page)) std::abort();
    XmlNode out = PageOf("");
    read.Save(out);
    benchmark::DoNotOptimize(out);
  }
  state.SetItemsProcessed(state.iterations() * state.range(0));
}

void GannLineTab(benchmark::State& state) { LoadSave<CLsPgLineGann>(state, GannLines(state.range(0))); }
void GraphObjLinePage(benchmark::State& state) { LoadSave<CGraphObjLinePg>(state, LineList(state.range(0))); }

BENCHMARK(GannLineTab)->Arg(10)->Arg(100)->Arg(1000)->Unit(benchmark::kMicrosecond);
BENCHMARK(GraphObjLinePage)->Arg(10)->Arg(100)->Arg(1000)->Unit(benchmark::kMicrosecond);

}  // namespace
