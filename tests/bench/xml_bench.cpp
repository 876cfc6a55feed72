// XmlFindNode over a whole document, and a write-print-load-read round trip, for N items.
// Both must grow linearly with N.

#include <benchmark/benchmark.h>

#include <cstdint>
#include <cstdlib>
#include <string>

#include "xml/Xml.h"

namespace {

// N items in groups of 100, each with an attribute and two value children.
XmlNode Build(std::int64_t items) {
  XmlNode document = XmlCreateDocument();
  XmlNode root = XmlAddChild(document, "PropertySheet");
  XmlNode group;
  for (std::int64_t i = 0; i < items; ++i) {
    if (i % 100 == 0) group = XmlAddChild(root, "Group");
    XmlNode item = XmlAddChild(group, "Item");
    XmlSetAttrValue(item, "Id", static_cast<std::int32_t>(i));
    XmlAddValueChild(item, "Color", static_cast<std::int32_t>(i), XmlValueKind::Color);
    XmlAddValueChild(item, "Price", static_cast<std::uint32_t>(i) * 3u, XmlValueKind::Hex);
  }
  return document;
}

void FindMissing(benchmark::State& state) {
  XmlNode document = Build(state.range(0));
  for (auto _ : state) benchmark::DoNotOptimize(XmlFindNode(document, "Missing", true));
  state.SetItemsProcessed(state.iterations() * state.range(0));
}

void RoundTrip(benchmark::State& state) {
  const std::int64_t items = state.range(0);
  for (auto _ : state) {
    const std::string markup = XmlGetXml(Build(items));
    XmlNode again = XmlCreateDocument();
    if (!XmlLoadString(again, markup)) std::abort();
    std::int64_t sum = 0;
    XmlNode root = XmlFindNode(again, "PropertySheet", true);
    for (XmlNode group = XmlFindChild(root, "Group"); group; group = XmlNextSibling(group)) {
      for (XmlNode item = XmlFirstChild(group); item; item = XmlNextSibling(item)) {
        std::int32_t id = 0, color = 0;
        std::uint32_t price = 0;
        XmlGetAttrValue(item, "Id", id);
        XmlGetChildValue(item, "Color", color);
        XmlGetChildValue(item, "Price", price);
        sum += id + color + price;
      }
    }
    benchmark::DoNotOptimize(sum);
  }
  state.SetItemsProcessed(state.iterations() * items);
}

BENCHMARK(FindMissing)->Arg(1000)->Arg(10000)->Arg(100000)->Unit(benchmark::kMicrosecond);
BENCHMARK(RoundTrip)->Arg(1000)->Arg(10000)->Arg(100000)->Unit(benchmark::kMillisecond);

}  // namespace
