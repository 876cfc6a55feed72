// orvhost's command line.
#pragma once

#include <string>
#include <vector>

namespace orv::host_app {

enum class Activation {
  Registered,  // CoCreateInstance of the registered class (or of --progid)
  Manifest,    // registration-free, through an activation context naming the component's assembly
  Direct,      // LoadLibrary + DllGetClassObject, nothing registered
};

struct Options {
  Activation activation = Activation::Manifest;
  std::wstring progId;         // by ProgID instead of the class id (registered, manifest)
  std::wstring dllPath;        // direct: the DLL (default: OrvChartDlgs.dll beside orvhost.exe)
  std::wstring manifestPath;   // manifest: an application manifest file instead of the built-in one
  std::wstring docPath;        // the document; empty: the built-in line study sample
  std::wstring pageClass;      // --page: a chart page's class id or ProgID, shown in orvhost's frame
  std::wstring script;         // --script: a file name, or the script itself
  std::wstring screenshot;     // --screenshot: screenshot <file>; cancel, after the script
  std::wstring boxScreenshot;  // --box-screenshot: the first window opened over the sheet, answered by Esc
  std::wstring languagePath;   // the LANGUAGE document served; empty: the built-in samples/language.xml
  std::wstring prefsPath;      // the PREFS document served; empty: the built-in samples/prefs.xml
  bool noServices = false;     // register no settings or help service: the dialogs do without
  bool noChartData = false;    // DoModal instead of DoModal2
  bool intraday = false;       // the synthetic chart is intraday
  bool help = false;
};

struct ParsedOptions {
  Options options;
  std::string error;  // empty when the command line is good
};

// args: the arguments after the program name.
ParsedOptions ParseOptions(const std::vector<std::wstring>& args);

extern const char* const kUsage;

}  // namespace orv::host_app
