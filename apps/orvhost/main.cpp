// orvhost: a host of the component, as a charting application would be one. It creates
// ChartPages through COM (registered, registration-free or straight from the DLL), hands it a
// document and a synthetic chart, prints every StatusEvent and the sheet's result, and can drive
// the open sheet by a script. See apps/README.md.
#include "Activation.h"
#include "ComObjects.h"
#include "HostServiceObjects.h"
#include "Options.h"
#include "PageFrame.h"
#include "PopupCapture.h"
#include "Script.h"
#include "ScriptDriver.h"
#include "resource.h"

#include "xml/StrFormat.h"
#include "com/ComPtr.h"
#include "com/WideText.h"
#include "com/ComApartment.h"

#include <windows.h>
#include <commctrl.h>
#include <msxml2.h>
#include <objbase.h>
#include <shellapi.h>

#include <cstdio>
#include <exception>
#include <fstream>
#include <iterator>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace orv::host_app {
namespace {

enum ExitCode {
  kExitBadScript = 3,
  kExitBadInput = 4,
  kExitComponentFailed = 5,
};

std::string Utf8(const std::wstring& text) { return Narrow(text, CP_UTF8); }

// UTF-8 (with or without a byte order mark) to UTF-16; other bytes are taken in the ANSI code page.
std::wstring Wide(std::string bytes) {
  if (bytes.size() >= 3 && bytes.compare(0, 3, "\xEF\xBB\xBF") == 0) bytes.erase(0, 3);
  if (std::optional<std::wstring> utf8 = WidenStrict(bytes, CP_UTF8)) return std::move(*utf8);
  return Widen(bytes, CP_ACP);
}

bool ReadFile(const std::wstring& path, std::string& bytes) {
  std::ifstream in(path.c_str(), std::ios::binary);
  if (!in) return false;
  bytes.assign(std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>());
  return !in.bad();
}

bool IsFile(const std::wstring& path) {
  const DWORD attributes = GetFileAttributesW(path.c_str());
  return attributes != INVALID_FILE_ATTRIBUTES && !(attributes & FILE_ATTRIBUTE_DIRECTORY);
}

std::string BuiltInSample(int id = IDR_SAMPLE_LSPS) {
  const HRSRC found = FindResourceW(nullptr, MAKEINTRESOURCEW(id), MAKEINTRESOURCEW(10) /* RT_RCDATA */);
  const HGLOBAL loaded = found != nullptr ? LoadResource(nullptr, found) : nullptr;
  const void* data = loaded != nullptr ? LockResource(loaded) : nullptr;
  if (data == nullptr) return {};
  return std::string(static_cast<const char*>(data), SizeofResource(nullptr, found));
}

// The document as a host holds it (MakeXmlDocument).
bool LoadDocument(const Options& options, ComPtr<IXMLDOMDocument2>& document, std::string& error) {
  std::string bytes;
  std::string name = "the built-in sample";
  if (options.docPath.empty()) {
    bytes = BuiltInSample();
  } else {
    name = Utf8(options.docPath);
    if (!ReadFile(options.docPath, bytes)) {
      error = StrFormat("cannot read %s", name.c_str());
      return false;
    }
  }
  const HRESULT hr = MakeXmlDocument(Wide(std::move(bytes)), document);
  if (FAILED(hr)) {
    error = StrFormat("cannot create Microsoft.XMLDOM (0x%08lX)", static_cast<unsigned long>(hr));
    return false;
  }
  if (hr != S_OK) {
    error = StrFormat("%s is not well-formed XML", name.c_str());
    return false;
  }
  return true;
}

// The documents the host's settings service serves: the given files or the built-in samples.
bool LoadHostSettings(const Options& options, HostSettings& settings, std::string& error) {
  const struct {
    const wchar_t* name;
    const std::wstring& path;
    int sample;
  } documents[] = {
      {L"LANGUAGE", options.languagePath, IDR_SAMPLE_LANGUAGE},
      {L"PREFS", options.prefsPath, IDR_SAMPLE_PREFS},
  };
  for (const auto& document : documents) {
    std::string bytes;
    if (document.path.empty()) {
      bytes = BuiltInSample(document.sample);
    } else if (!ReadFile(document.path, bytes)) {
      error = StrFormat("cannot read %s", Utf8(document.path).c_str());
      return false;
    }
    if (!settings.AddDocument(document.name, Wide(std::move(bytes)), error)) return false;
  }
  return true;
}

// The script's text: the file of that name if there is one, else the argument itself.
std::string ScriptText(const std::wstring& argument) {
  std::string bytes;
  if (IsFile(argument) && ReadFile(argument, bytes)) return Utf8(Wide(std::move(bytes)));
  return Utf8(argument);
}

std::string QuoteForScript(const std::wstring& path) {
  std::string quoted = "\"";
  for (const char c : Utf8(path)) {
    if (c == '"' || c == '\\') quoted += '\\';
    quoted += c;
  }
  return quoted + "\"";
}

// The text of the error info the component set, if any.
std::string ErrorDescription() {
  ComPtr<IErrorInfo> info;
  if (GetErrorInfo(0, info.put()) != S_OK || !info) return {};
  Bstr description;
  if (FAILED(info->GetDescription(description.put())) || description.get() == nullptr) return {};
  return Utf8(std::wstring(description.get(), description.size()));
}

// Starts the script's timer (unless the script is empty) and the box picture's (when one is asked
// for); false, with the reason on standard error, when either can't start.
bool StartTimers(ScriptDriver& driver, PopupCapture& popup, const Options& options) {
  if (!driver.Finished() && !driver.Start()) {
    std::fprintf(stderr, "orvhost: cannot start the script's timer (error %lu)\n", GetLastError());
    return false;
  }
  if (!options.boxScreenshot.empty() && !popup.Start()) {
    std::fprintf(stderr, "orvhost: cannot start the box picture's timer (error %lu)\n", GetLastError());
    return false;
  }
  return true;
}

int ExitCodeOf(long result) { return (result < 0 || result > 255) ? 255 : static_cast<int>(result); }

// --page: the chart page in orvhost's own frame, with a chart object serving the document.
int RunPage(const Options& options, const ComPtr<IXMLDOMDocument2>& document, std::vector<ScriptStep> steps) {
  std::string error;
  PageInstance page;
  if (!page.Create(options, error)) {
    std::fprintf(stderr, "orvhost: %s\n", error.c_str());
    return kExitComponentFailed;
  }
  const ComPtr<PageHostObject> host = PageHostObject::Make(document, stdout);
  ScriptDriver driver(std::move(steps));
  PopupCapture popup(options.boxScreenshot);
  if (!StartTimers(driver, popup, options)) return kExitComponentFailed;
  const int result = RunPageFrame(page.Page(), static_cast<IChartPageHost*>(host.get()), stdout, error);
  driver.Stop();
  popup.Stop();
  if (result < 0) {
    std::fprintf(stderr, "orvhost: %s\n", error.c_str());
    return kExitComponentFailed;
  }
  std::printf("Frame returned %d\n", result);
  std::fflush(stdout);
  if (!driver.Error().empty()) {
    std::fprintf(stderr, "orvhost: script: %s\n", driver.Error().c_str());
    return kExitBadScript;
  }
  if (!options.boxScreenshot.empty() && !popup.Written()) {
    std::fprintf(stderr, "orvhost: %s\n",
                 popup.Error().empty() ? "no window opened over the frame" : popup.Error().c_str());
    return kExitBadScript;
  }
  return result;
}

int Run(const std::vector<std::wstring>& args) {
  const ParsedOptions parsed = ParseOptions(args);
  if (!parsed.error.empty()) {
    std::fprintf(stderr, "orvhost: %s\n%s", parsed.error.c_str(), kUsage);
    return kExitBadInput;
  }
  const Options& options = parsed.options;
  if (options.help) {
    std::fputs(kUsage, stdout);
    return 0;
  }

  // The whole script is checked before anything is shown.
  std::vector<ScriptStep> steps;
  if (!options.script.empty() || !options.screenshot.empty()) {
    std::string text = options.script.empty() ? std::string() : ScriptText(options.script);
    if (!options.screenshot.empty()) text += "\nscreenshot " + QuoteForScript(options.screenshot) + "\ncancel\n";
    ParsedScript script = ParseScript(text);
    if (!script.error.empty()) {
      std::fprintf(stderr, "orvhost: %s\n", script.error.c_str());
      return kExitBadScript;
    }
    steps = std::move(script.steps);
  }

  ComApartment apartment;
  if (FAILED(apartment.Status())) {
    std::fprintf(stderr, "orvhost: CoInitializeEx failed (0x%08lX)\n", static_cast<unsigned long>(apartment.Status()));
    return kExitComponentFailed;
  }
  INITCOMMONCONTROLSEX classes{sizeof(classes), ICC_WIN95_CLASSES};
  InitCommonControlsEx(&classes);

  std::string error;
  HRESULT hr = S_OK;
  ComPtr<IXMLDOMDocument2> document;
  if (!LoadDocument(options, document, error)) {
    std::fprintf(stderr, "orvhost: %s\n", error.c_str());
    return kExitBadInput;
  }

  // The host's services, for this process only, before the component can ask for them; they go
  // after the component does (objects are destroyed in reverse order).
  const auto settings = std::make_shared<HostSettings>();
  ServiceRegistration services;
  if (!options.noServices) {
    if (!LoadHostSettings(options, *settings, error)) {
      std::fprintf(stderr, "orvhost: %s\n", error.c_str());
      return kExitBadInput;
    }
    hr = services.Register(settings);
    if (FAILED(hr)) {
      std::fprintf(stderr, "orvhost: cannot register the host's services (0x%08lX)\n", static_cast<unsigned long>(hr));
      return kExitComponentFailed;
    }
  }

  if (!options.pageClass.empty()) return RunPage(options, document, std::move(steps));

  ComponentInstance component;
  if (!component.Create(options, error)) {
    std::fprintf(stderr, "orvhost: %s\n", error.c_str());
    return kExitComponentFailed;
  }

  const ComPtr<StatusEventPrinter> sink = StatusEventPrinter::Make(stdout);
  EventConnection connection;
  hr = connection.Connect(component.Pages(), DIID__IChartPagesEvents, sink.get());
  if (FAILED(hr)) {
    std::fprintf(stderr, "orvhost: cannot connect to StatusEvent (0x%08lX)\n", static_cast<unsigned long>(hr));
    return kExitComponentFailed;
  }

  ComPtr<IChartData> chartData;
  if (!options.noChartData) {
    chartData = MakeChartData(HostChart(options.intraday));
  }

  ScriptDriver driver(std::move(steps));
  PopupCapture popup(options.boxScreenshot);
  if (!StartTimers(driver, popup, options)) return kExitComponentFailed;

  LONG result = 0;
  hr = options.noChartData ? component.Pages()->DoModal(document.get(), &result)
                           : component.Pages()->DoModal2(document.get(), chartData.get(), &result);
  driver.Stop();
  popup.Stop();
  if (FAILED(hr)) {
    const std::string description = ErrorDescription();
    std::fprintf(stderr, "orvhost: %s failed (0x%08lX)%s%s\n", options.noChartData ? "DoModal" : "DoModal2",
                 static_cast<unsigned long>(hr), description.empty() ? "" : ": ", description.c_str());
    return kExitComponentFailed;
  }
  std::printf("DoModal returned %ld\n", static_cast<long>(result));
  std::fflush(stdout);

  if (!driver.Error().empty()) {
    std::fprintf(stderr, "orvhost: script: %s\n", driver.Error().c_str());
    return kExitBadScript;
  }
  if (!options.boxScreenshot.empty() && !popup.Written()) {
    std::fprintf(stderr, "orvhost: %s\n",
                 popup.Error().empty() ? "no window opened over the sheet" : popup.Error().c_str());
    return kExitBadScript;
  }
  if (!driver.Finished() && !driver.SheetSeen()) {
    std::fprintf(stderr, "orvhost: no sheet was shown, so the script did not run\n");
  }
  return ExitCodeOf(result);
}

}  // namespace
}  // namespace orv::host_app

int main() {
  try {
    int argc = 0;
    std::unique_ptr<LPWSTR, decltype(&LocalFree)> argv(CommandLineToArgvW(GetCommandLineW(), &argc), &LocalFree);
    std::vector<std::wstring> args;
    for (int i = 1; argv && i < argc; ++i) args.emplace_back(argv.get()[i]);
    return orv::host_app::Run(args);
  } catch (const std::exception& e) {
    std::fprintf(stderr, "orvhost: %s\n", e.what());
  } catch (...) {
    std::fprintf(stderr, "orvhost: unexpected failure\n");
  }
  return orv::host_app::kExitComponentFailed;
}
