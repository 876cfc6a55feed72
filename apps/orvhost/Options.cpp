#include "Options.h"

#include "com/WideText.h"
#include "xml/StrFormat.h"

namespace orv::host_app {

const char* const kUsage =
    "usage: orvhost [options]\n"
    "  --activate registered|manifest|direct  how ChartPages is created (default manifest)\n"
    "  --progid <ProgID>        registered/manifest: create by ProgID, not by class id\n"
    "  --dll <path>             direct: the DLL (default OrvChartDlgs.dll beside orvhost.exe)\n"
    "  --manifest <file>        manifest: this application manifest instead of the built-in one\n"
    "  --doc <file.xml>         the document (default: the built-in Trendline line study sheet)\n"
    "  --page <class id|ProgID> show that chart page in orvhost's frame (OK, Cancel, Apply) instead of\n"
    "                           a sheet: the page reads its properties from the document's element\n"
    "                           named as its root; --activate direct or registered\n"
    "  --no-chart-data          DoModal without chart data (default DoModal2 with a synthetic chart)\n"
    "  --language <file.xml>    the prompts served as document LANGUAGE (default: the built-in sample)\n"
    "  --prefs <file.xml>       the theme, colour table and values served as PREFS (default: built in)\n"
    "  --no-services            serve no settings or help service: no theme, prompts or help\n"
    "  --intraday               the synthetic chart has five-minute bars stamped to the second\n"
    "  --script <file or text>  drive the sheet: text <id> <value>, click <id>, select <id> <index>\n"
    "                           (a combo box, or a list box of one selection), toggle <id> <index>\n"
    "                           (a click on that row of a list box of several selections),\n"
    "                           expect <id> <text> (the control shows it, else the script fails: a\n"
    "                           combo box its selection, a list box its selected rows joined by \", \",\n"
    "                           a check box or radio button checked, unchecked or indeterminate),\n"
    "                           tab <index>, spin <id> <steps>, color <id> <cell> (the colour button's\n"
    "                           drop-down, then a click on that cell of its grid, 0 to 62),\n"
    "                           apply, ok, cancel, next, back, finish,\n"
    "                           wait <ms>, screenshot <file.png>; separated by new lines or ';'\n"
    "  --screenshot <file.png>  the same as appending: screenshot <file.png>; cancel\n"
    "  --box-screenshot <file.png>  the first window that opens over the sheet or the page's frame\n"
    "                           (a message box, a dialog):\n"
    "                           its picture, then Esc as its answer\n"
    "Prints each StatusEvent as one line \"StatusEvent: <pValue>\" (\\r \\n \\t \\\\ escaped), each help\n"
    "request as \"ShowHelp: <book> <topic> <flags>\" and each stored value as\n"
    "\"SetValue: <section> <key> <value> <kind>\", then \"DoModal returned <n>\".\n"
    "With --page: \"GetPageProperties: <scope> <root> found|not found\", \"SetPageProperties: <scope>\n"
    "<xml>\" and \"OnStatusChange: <flags>\" as the page calls them, then \"Frame returned <n>\" (1 OK,\n"
    "0 Cancel).\n"
    "Exit code: the result (1 changed, 0 not, 2 no such sheet, 255 for -1);\n"
    "3 a bad or failed script, 4 a bad command line or document, 5 the component failed.\n";

ParsedOptions ParseOptions(const std::vector<std::wstring>& args) {
  ParsedOptions parsed;
  Options& o = parsed.options;
  bool sawProgId = false, sawDll = false, sawManifest = false;
  for (std::size_t i = 0; i < args.size(); ++i) {
    const std::wstring& arg = args[i];
    // Options that take a value refuse a missing or empty one.
    auto value = [&](std::wstring& out) {
      if (i + 1 >= args.size() || args[i + 1].empty()) {
        parsed.error = StrFormat("%s needs a value", Narrow(arg, CP_UTF8).c_str());
        return false;
      }
      out = args[++i];
      return true;
    };
    if (arg == L"--activate") {
      std::wstring how;
      if (!value(how)) return parsed;
      if (how == L"registered")
        o.activation = Activation::Registered;
      else if (how == L"manifest")
        o.activation = Activation::Manifest;
      else if (how == L"direct")
        o.activation = Activation::Direct;
      else {
        parsed.error =
            StrFormat("--activate takes registered, manifest or direct, not \"%s\"", Narrow(how, CP_UTF8).c_str());
        return parsed;
      }
    } else if (arg == L"--progid") {
      if (!value(o.progId)) return parsed;
      sawProgId = true;
    } else if (arg == L"--dll") {
      if (!value(o.dllPath)) return parsed;
      sawDll = true;
    } else if (arg == L"--manifest") {
      if (!value(o.manifestPath)) return parsed;
      sawManifest = true;
    } else if (arg == L"--page") {
      if (!value(o.pageClass)) return parsed;
    } else if (arg == L"--doc") {
      if (!value(o.docPath)) return parsed;
    } else if (arg == L"--script") {
      if (!value(o.script)) return parsed;
    } else if (arg == L"--screenshot") {
      if (!value(o.screenshot)) return parsed;
    } else if (arg == L"--box-screenshot") {
      if (!value(o.boxScreenshot)) return parsed;
    } else if (arg == L"--language") {
      if (!value(o.languagePath)) return parsed;
    } else if (arg == L"--prefs") {
      if (!value(o.prefsPath)) return parsed;
    } else if (arg == L"--no-services") {
      o.noServices = true;
    } else if (arg == L"--no-chart-data") {
      o.noChartData = true;
    } else if (arg == L"--intraday") {
      o.intraday = true;
    } else if (arg == L"--help" || arg == L"-h" || arg == L"/?") {
      o.help = true;
    } else {
      parsed.error = StrFormat("unknown argument \"%s\"", Narrow(arg, CP_UTF8).c_str());
      return parsed;
    }
  }
  // An option that the chosen activation would ignore is a mistake worth saying.
  if (sawProgId && o.activation == Activation::Direct)
    parsed.error = "--progid does not go with --activate direct";
  else if (sawDll && o.activation != Activation::Direct)
    parsed.error = "--dll goes only with --activate direct";
  else if (sawManifest && o.activation != Activation::Manifest)
    parsed.error = "--manifest goes only with --activate manifest";
  else if (!o.pageClass.empty() && o.activation == Activation::Manifest)
    parsed.error = "--page goes with --activate direct or registered";
  else if (o.intraday && o.noChartData)
    parsed.error = "--intraday needs chart data; drop --no-chart-data";
  else if (o.noServices && (!o.languagePath.empty() || !o.prefsPath.empty()))
    parsed.error = "--language and --prefs need the services; drop --no-services";
  return parsed;
}

}  // namespace orv::host_app
