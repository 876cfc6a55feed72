// orvbench: what opening a sheet of the component costs, against the platform's own sheet.
// In one process it opens, round after round and in turn, the platform's sheet with one empty
// page of the line study pages' size and each measured line study sheet, through ChartPages as
// a bare host does (straight from the DLL, no host services registered, a synthetic chart),
// cancels each at its first page's first complete paint and prints the medians and their ratios
// to the platform's. Wall time: a measurement to read, never a test. See apps/README.md.
#include "FloorSheet.h"
#include "SheetProbe.h"

#include "Activation.h"
#include "ComObjects.h"
#include "HostServiceObjects.h"

#include "OrvChartDlgs_h.h"
#include "com/ComPtr.h"
#include "com/ComApartment.h"

#include <windows.h>
#include <commctrl.h>
#include <msxml2.h>
#include <objbase.h>
#include <shellapi.h>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <cwchar>
#include <functional>
#include <memory>
#include <string>
#include <utility>
#include <vector>

namespace orv::bench {
namespace {

constexpr char kUsage[] =
    "usage: orvbench [--rounds N] [--runs N] [--warmup N] [--phases]\n"
    "                [--trace | --trace-messages] [--dll PATH]\n"
    "Opens in turn, N rounds (default 25) after --warmup rounds (default 2) that don't count:\n"
    "  platform        the platform's sheet with one empty page of the line study pages' size\n"
    "  advanced        the line study sheet with its Advanced page alone\n"
    "  trend+advanced  the line study sheet of a trendline by date, then its Advanced page\n"
    "  pf-advanced     the platform's sheet with the Advanced page's template and no page code\n"
    "  pf-trend+adv    the same with both templates of trend+advanced\n"
    "cancels each at its first page's first complete paint and prints the medians of the time\n"
    "from the call to that moment, in ms, and their ratios to the platform's sheet (/pf) and to\n"
    "the platform's sheet with the same templates (/tpl). --runs repeats the whole (default 1).\n"
    "--phases adds the medians of the moments inside an open. --trace prints, after the rounds,\n"
    "one open of each with every window made, WM_INITDIALOG sent and WM_PAINT taken, in ms from\n"
    "the call; --trace-messages adds every other message sent or taken from the queue.\n"
    "The component is loaded from PATH (default: OrvChartDlgs.dll beside orvbench.exe).\n"
    "Exit code 0; 1 when an open failed; 2 on a bad command line.\n";

// The line study sheet as the host hands it over, with these pages: the Advanced page alone, or
// a trendline by date with its Advanced page after it.
std::wstring LineStudySheet(const std::wstring& pages) {
  return LR"(<PropertySheet Name="LSPs" Title="Trendline" Kind="1">
  <PropertyPageList>
)" + pages +
         LR"(  </PropertyPageList>
</PropertySheet>)";
}

constexpr wchar_t kAdvancedPage[] =
    LR"(    <PropertyPage Name="LsPgAdvanced">
      <AlwaysVisible>FALSE</AlwaysVisible>
      <LSTxt_ScrnAnch>FALSE</LSTxt_ScrnAnch>
    </PropertyPage>
)";

constexpr wchar_t kDayTrendPage[] =
    LR"(    <PropertyPage Name="LsPgDayTrend">
      <SnapEntryList><SnapEntry>0</SnapEntry><SnapEntry>1</SnapEntry><SnapEntry>2</SnapEntry><SnapEntry>3</SnapEntry><SnapEntry>4</SnapEntry></SnapEntryList>
      <VertexButtons Show="Yes"/>
      <CTrendline>
        <CLineStudy>
          <PosLock>FALSE</PosLock>
          <LS_CtrlPtList>
            <CXYCoord><XY_xPos>379</XY_xPos><XY_yValue>104.25</XY_yValue><XY_lDate>45301</XY_lDate><XY_lTime>0</XY_lTime><XY_lSec>0</XY_lSec><XY_lSnap>-1</XY_lSnap></CXYCoord>
            <CXYCoord><XY_xPos>429</XY_xPos><XY_yValue>112.5</XY_yValue><XY_lDate>45371</XY_lDate><XY_lTime>0</XY_lTime><XY_lSec>0</XY_lSec><XY_lSnap>0</XY_lSnap></CXYCoord>
          </LS_CtrlPtList>
        </CLineStudy>
        <LSTrl_Extendpt1>0</LSTrl_Extendpt1>
        <LSTrl_Extendpt2>1</LSTrl_Extendpt2>
      </CTrendline>
    </PropertyPage>
)";

// The dialog templates of the line study pages measured, as the DLL carries them.
constexpr int kDayTrendTemplate = 1317;
constexpr int kAdvancedTemplate = 1352;

// Where the host's settings service (host_app::kClsidSettingsService) is looked for; a bare
// host has it nowhere.
constexpr DWORD kAllServerContexts =
    CLSCTX_INPROC_SERVER | CLSCTX_INPROC_HANDLER | CLSCTX_LOCAL_SERVER | CLSCTX_REMOTE_SERVER;

struct Options {
  int rounds = 25;
  int runs = 1;
  int warmup = 2;
  bool phases = false;
  SheetProbe::Tracing trace = SheetProbe::Tracing::None;
  bool help = false;
  std::wstring dll;
};

bool ParseCount(const std::wstring& text, int low, int& out) {
  wchar_t* end = nullptr;
  const long value = std::wcstol(text.c_str(), &end, 10);
  if (text.empty() || *end != L'\0' || value < low || value > 100000) return false;
  out = static_cast<int>(value);
  return true;
}

bool ParseOptions(const std::vector<std::wstring>& args, Options& options, std::string& error) {
  for (std::size_t i = 0; i < args.size(); ++i) {
    const std::wstring& arg = args[i];
    const bool hasValue = i + 1 < args.size();
    if (arg == L"--help" || arg == L"-h") {
      options.help = true;
    } else if (arg == L"--trace") {
      options.trace = SheetProbe::Tracing::Windows;
    } else if (arg == L"--trace-messages") {
      options.trace = SheetProbe::Tracing::AllMessages;
    } else if (arg == L"--phases") {
      options.phases = true;
    } else if (arg == L"--rounds" && hasValue) {
      if (!ParseCount(args[++i], 1, options.rounds)) return error = "--rounds takes a number from 1", false;
    } else if (arg == L"--runs" && hasValue) {
      if (!ParseCount(args[++i], 1, options.runs)) return error = "--runs takes a number from 1", false;
    } else if (arg == L"--warmup" && hasValue) {
      if (!ParseCount(args[++i], 0, options.warmup)) return error = "--warmup takes a number from 0", false;
    } else if (arg == L"--dll" && hasValue) {
      options.dll = args[++i];
    } else {
      error = "unknown or incomplete option";
      return false;
    }
  }
  return true;
}

// One kind of open, and what it measured.
struct Subject {
  Subject(const char* name, std::function<long()> open, int twin = -1)
      : name(name), open(std::move(open)), twin(twin) {}
  const char* name;
  std::function<long()> open;  // runs the sheet; its result (-1: not shown)
  int twin;                    // the subject with the same templates and no page code; -1 none
  std::vector<SheetTimes> samples;
};

double Median(std::vector<double> values) {
  values.erase(std::remove_if(values.begin(), values.end(), [](double v) { return v < 0; }), values.end());
  if (values.empty()) return -1;
  std::sort(values.begin(), values.end());
  const std::size_t middle = values.size() / 2;
  return values.size() % 2 ? values[middle] : (values[middle - 1] + values[middle]) / 2;
}

double MedianOf(const std::vector<SheetTimes>& samples, double (*field)(const SheetTimes&)) {
  std::vector<double> values;
  for (const SheetTimes& times : samples) values.push_back(field(times));
  return Median(std::move(values));
}

double FirstPaint(const SheetTimes& t) { return t.painted; }

// What a failed creation of the host's settings service costs: the component tries it at each
// use when no host registered one.
double MedianMissingServiceCost(int count) {
  std::vector<double> values;
  for (int i = 0; i < count; ++i) {
    IUnknown* service = nullptr;
    const double start = NowMs();
    const HRESULT hr = CoCreateInstance(host_app::kClsidSettingsService, nullptr, kAllServerContexts, IID_IUnknown,
                                        reinterpret_cast<void**>(&service));
    values.push_back(NowMs() - start);
    if (SUCCEEDED(hr) && service != nullptr) service->Release();
  }
  return Median(std::move(values));
}

void PrintPhases(const std::vector<Subject>& subjects) {
  struct Phase {
    const char* name;
    double (*field)(const SheetTimes&);
  };
  const Phase phases[] = {
      {"sheet window made", [](const SheetTimes& t) { return t.sheetCreated; }},
      {"first page WM_INITDIALOG", [](const SheetTimes& t) { return t.pageInitBegin; }},
      {"  its duration",
       [](const SheetTimes& t) {
         return t.pageInitBegin >= 0 && t.pageInitEnd >= 0 ? t.pageInitEnd - t.pageInitBegin : -1;
       }},
      {"first page's first WM_PAINT", [](const SheetTimes& t) { return t.firstPaint; }},
      {"all painted (Cancel)", [](const SheetTimes& t) { return t.painted; }},
      {"closed", [](const SheetTimes& t) { return t.closed; }},
  };
  std::printf("  %-30s", "phase (median ms from the call)");
  for (const Subject& subject : subjects) std::printf(" %14s", subject.name);
  std::printf("\n");
  for (const Phase& phase : phases) {
    std::printf("  %-30s", phase.name);
    for (const Subject& subject : subjects) std::printf(" %14.2f", MedianOf(subject.samples, phase.field));
    std::printf("\n");
  }
}

int Run(const std::vector<std::wstring>& args) {
  Options options;
  std::string error;
  if (!ParseOptions(args, options, error)) {
    std::fprintf(stderr, "orvbench: %s\n%s", error.c_str(), kUsage);
    return 2;
  }
  if (options.help) {
    std::fputs(kUsage, stdout);
    return 0;
  }

  ComApartment apartment;
  if (FAILED(apartment.Status())) {
    std::fprintf(stderr, "orvbench: CoInitializeEx failed (0x%08lX)\n", static_cast<unsigned long>(apartment.Status()));
    return 1;
  }
  INITCOMMONCONTROLSEX classes{sizeof(classes), ICC_WIN95_CLASSES};
  InitCommonControlsEx(&classes);

  // ChartPages straight from the DLL's class factory, as a host without registration can have it.
  host_app::Options direct;
  direct.activation = host_app::Activation::Direct;
  direct.dllPath = options.dll;
  host_app::ComponentInstance component;
  if (!component.Create(direct, error)) {
    std::fprintf(stderr, "orvbench: cannot create ChartPages from the DLL: %s\n", error.c_str());
    return 1;
  }
  IChartPages* const pages = component.Pages();
  ComPtr<IXMLDOMDocument2> advancedOnly;
  ComPtr<IXMLDOMDocument2> trendAndAdvanced;
  HRESULT hr = S_OK;
  if ((hr = host_app::MakeXmlDocument(LineStudySheet(kAdvancedPage), advancedOnly)) != S_OK ||
      (hr = host_app::MakeXmlDocument(LineStudySheet(std::wstring(kDayTrendPage) + kAdvancedPage), trendAndAdvanced)) !=
          S_OK) {
    if (hr == S_FALSE) hr = E_FAIL;  // not well-formed
    std::fprintf(stderr, "orvbench: cannot load a document (0x%08lX)\n", static_cast<unsigned long>(hr));
    return 1;
  }
  const ComPtr<IChartData> chart = host_app::MakeChartData(host_app::HostChart(false));

  const auto openSheet = [pages, &chart](IXMLDOMDocument2* document) {
    LONG result = -1;
    const HRESULT status = pages->DoModal2(document, chart.get(), &result);
    return FAILED(status) ? -1L : static_cast<long>(result);
  };
  const HINSTANCE templates = component.Module();
  std::vector<Subject> subjects = {
      {"platform", [] { return static_cast<long>(RunFloorSheet(nullptr)); }},
      {"advanced", [&] { return openSheet(advancedOnly.get()); }, 3},
      {"trend+advanced", [&] { return openSheet(trendAndAdvanced.get()); }, 4},
      {"pf-advanced",
       [templates] { return static_cast<long>(RunTemplateSheet(nullptr, templates, {kAdvancedTemplate})); }},
      {"pf-trend+adv",
       [templates] {
         return static_cast<long>(RunTemplateSheet(nullptr, templates, {kDayTrendTemplate, kAdvancedTemplate}));
       }},
  };

  // The phases need the detailed hooks, which cost every message a little: with --phases the
  // rounds are timed with them, else without. A trace always has them.
  auto probe = std::make_unique<SheetProbe>(options.phases);
  if (!probe->Installed()) {
    std::fprintf(stderr, "orvbench: cannot install the window hooks (error %lu)\n", GetLastError());
    return 1;
  }
  // One open of one subject; false when it wasn't shown or never painted.
  const auto measure = [&probe](Subject& subject, bool keep) {
    probe->Begin();
    const long result = subject.open();
    const SheetTimes times = probe->End();
    if (result < 0 || times.painted < 0) {
      std::fprintf(stderr, "orvbench: the %s sheet %s\n", subject.name,
                   result < 0 ? "could not be shown" : "closed before its first page painted");
      return false;
    }
    if (keep) subject.samples.push_back(times);
    return true;
  };

  std::printf("orvbench: medians of %d opens each, interleaved; ms from the call to the first page painted\n",
              options.rounds);
  std::printf("%-4s", "run");
  for (const Subject& subject : subjects) std::printf(" %14s", subject.name);
  for (std::size_t i = 1; i < subjects.size(); ++i) std::printf(" %*s/pf", 11, subjects[i].name);
  for (const Subject& subject : subjects)
    if (subject.twin >= 0) std::printf(" %*s/tpl", 10, subject.name);
  std::printf(" %s\n", "unsettled");
  std::fflush(stdout);

  for (int run = 1; run <= options.runs; ++run) {
    for (Subject& subject : subjects) subject.samples.clear();
    const int total = options.warmup + options.rounds;
    for (int round = 0; round < total; ++round) {
      // Each round starts with another subject, so none always follows the same one.
      for (std::size_t k = 0; k < subjects.size(); ++k) {
        Subject& subject = subjects[(static_cast<std::size_t>(round) + k) % subjects.size()];
        if (!measure(subject, round >= options.warmup)) return 1;
      }
    }
    const double floor = MedianOf(subjects[0].samples, &FirstPaint);
    int unsettled = 0;
    for (const Subject& subject : subjects)
      for (const SheetTimes& times : subject.samples) unsettled += times.settled ? 0 : 1;
    std::printf("%-4d", run);
    for (const Subject& subject : subjects) std::printf(" %14.2f", MedianOf(subject.samples, &FirstPaint));
    for (std::size_t i = 1; i < subjects.size(); ++i)
      std::printf(" %14.2f", MedianOf(subjects[i].samples, &FirstPaint) / floor);
    for (const Subject& subject : subjects)
      if (subject.twin >= 0)
        std::printf(" %14.2f", MedianOf(subject.samples, &FirstPaint) /
                                   MedianOf(subjects[static_cast<std::size_t>(subject.twin)].samples, &FirstPaint));
    std::printf(" %d\n", unsettled);
    if (options.phases) PrintPhases(subjects);
    std::fflush(stdout);
  }
  if (options.trace != SheetProbe::Tracing::None) {
    probe.reset();  // one probe per thread
    probe = std::make_unique<SheetProbe>(true);
    for (Subject& subject : subjects) {
      probe->Begin(options.trace);
      subject.open();
      probe->End();
      std::printf("trace of one open: %s\n", subject.name);
      for (const TraceEvent& event : probe->Trace()) std::printf("  %9.3f %s\n", event.at, event.what.c_str());
    }
  }

  std::printf("settings service creation that fails (none registered): %.2f ms median of %d\n",
              MedianMissingServiceCost(options.rounds), options.rounds);
  return 0;
}

}  // namespace
}  // namespace orv::bench

int main() {
  int argc = 0;
  std::unique_ptr<LPWSTR, decltype(&LocalFree)> argv(CommandLineToArgvW(GetCommandLineW(), &argc), &LocalFree);
  std::vector<std::wstring> args;
  for (int i = 1; argv && i < argc; ++i) args.emplace_back(argv.get()[i]);
  return orv::bench::Run(args);
}
