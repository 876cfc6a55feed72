// Registration as an installer does it: Wine's regsvr32 on the DLL, per user and for the machine,
// checked against the registry it leaves. Each test compares whole listings of the keys that the
// component owns (its classes, ProgIDs, application id, type library and interfaces) before,
// during and after, so a key written too many, too few or left behind fails.
#include <gtest/gtest.h>

#include <objbase.h>
#include <oleauto.h>

#include <optional>
#include <set>
#include <string>
#include <utility>
#include <vector>

#include "ModuleTesting.h"
#include "OrvChartDlgs_h.h"
#include "com/ComPtr.h"

namespace {

using namespace orv::host::testing;
using orv::ComPtr;
using Listing = std::set<std::wstring>;

const wchar_t kChartPages[] = L"{938D688E-9268-4672-87AC-842DD8A62AA8}";
const wchar_t kChartDrawPg[] = L"{6D73A8E6-1A90-438E-A317-B76226F7B7EA}";
const wchar_t kNumFmtPpgX[] = L"{FEA090CF-4F6F-4D07-AD9B-18D39D07F784}";
const wchar_t kGenXAxisPpg[] = L"{9F9E8A73-AFC6-4004-BC66-8359D19223AE}";
const wchar_t kGenYAxisPpg[] = L"{97DEF558-6200-46BF-AD42-BF49C48272C3}";
const wchar_t kChartGenPpg[] = L"{337F885D-E536-4411-A829-B71E5A8BEDC0}";
const wchar_t kDataWndPg[] = L"{4E497245-A3A8-4706-8E0E-5CF228E90F21}";
const wchar_t kPointBreakPpg[] = L"{E6C132A9-3C0D-4F98-9F81-65A59C2E0790}";
const wchar_t kAppId[] = L"{DA578EB6-B0B1-4578-9E6B-6F6529BB5929}";
const wchar_t kTypeLib[] = L"{6A2CB4D9-8647-4339-8E26-82D3E724F0D1}";

// Every key path and value below root/path as "path" and "path|name=data" lines.
void List(HKEY root, const std::wstring& path, Listing& out) {
  HKEY raw = nullptr;
  if (RegOpenKeyExW(root, path.c_str(), 0, KEY_READ, &raw) != ERROR_SUCCESS) return;
  Key key(raw);
  out.insert(path);
  for (DWORD i = 0;; ++i) {
    wchar_t name[256];
    DWORD nameLength = 256, type = 0, size = 0;
    BYTE data[2048];
    size = sizeof data;
    if (RegEnumValueW(key.get(), i, name, &nameLength, nullptr, &type, data, &size) != ERROR_SUCCESS) break;
    std::wstring text;
    if (type == REG_SZ || type == REG_EXPAND_SZ)
      text.assign(reinterpret_cast<const wchar_t*>(data), size / sizeof(wchar_t)), text.resize(wcslen(text.c_str()));
    else if (type == REG_DWORD)
      text = L"dword:" + std::to_wstring(*reinterpret_cast<const DWORD*>(data));
    else
      text = L"type " + std::to_wstring(type);
    out.insert(path + L"|" + name + L"=" + text);
  }
  std::vector<std::wstring> children;
  for (DWORD i = 0;; ++i) {
    wchar_t name[256];
    DWORD nameLength = 256;
    if (RegEnumKeyExW(key.get(), i, name, &nameLength, nullptr, nullptr, nullptr, nullptr) != ERROR_SUCCESS) break;
    children.emplace_back(name);
  }
  for (const std::wstring& child : children) List(root, path + L"\\" + child, out);
}

// What the component could own below a classes root: every class of its type library, every key
// whose name starts with the module's name (ProgIDs), its application id, type library and interfaces.
Listing ComponentKeys(HKEY hive) {
  const std::wstring classes = L"Software\\Classes";
  Listing out;
  for (const GUID* clsid :
       {&CLSID_ChartPages, &CLSID_CmnDateRangeDlg, &CLSID_ChartDrawPg, &CLSID_ChartGenPpg, &CLSID_DataWndPg,
        &CLSID_GenXAxisPpg, &CLSID_GenYAxisPpg, &CLSID_LinePpgX, &CLSID_NumFmtPpgX, &CLSID_PointBreakPpg,
        &CLSID_TextGenPpg, &CLSID_XAxisPpgX, &CLSID_YAxisPpgX, &CLSID_AnalyticsPpg, &CLSID_SznWzrdPgSeason})
    List(hive, classes + L"\\CLSID\\" + GuidText(*clsid), out);
  for (const GUID* iid : {&IID_IChartPages, &DIID__IChartPagesEvents, &IID_ICmnDateRangeDlg, &IID_IChartPageHost,
                          &IID_IChartData, &IID_ISettingsService, &IID_IHelpService})
    List(hive, classes + L"\\Interface\\" + GuidText(*iid), out);
  List(hive, classes + L"\\AppID\\" + kAppId, out);
  List(hive, classes + L"\\TypeLib\\" + kTypeLib, out);

  HKEY raw = nullptr;
  if (RegOpenKeyExW(hive, classes.c_str(), 0, KEY_READ, &raw) == ERROR_SUCCESS) {
    Key root(raw);
    for (DWORD i = 0;; ++i) {
      wchar_t name[256];
      DWORD nameLength = 256;
      if (RegEnumKeyExW(root.get(), i, name, &nameLength, nullptr, nullptr, nullptr, nullptr) != ERROR_SUCCESS) break;
      if (_wcsnicmp(name, L"OrvChartDlgs", 12) == 0) List(hive, classes + L"\\" + name, out);
    }
  }
  return out;
}

Listing Added(const Listing& after, const Listing& before) {
  Listing added;
  for (const std::wstring& line : after)
    if (!before.count(line)) added.insert(line);
  return added;
}

// Only the lines of listing that start with prefix.
Listing Under(const Listing& listing, const std::wstring& prefix) {
  Listing out;
  for (const std::wstring& line : listing)
    if (line.compare(0, prefix.size(), prefix) == 0) out.insert(line);
  return out;
}

// The class registration of one property page class, letter for letter (made by a property frame
// only: not programmable, no categories).
Listing PageClassKeys(const std::wstring& clsid, const std::wstring& name, const std::wstring& dll) {
  const std::wstring c = L"Software\\Classes\\";
  const std::wstring d = c + L"CLSID\\" + clsid;
  const std::wstring progId = L"OrvChartDlgs." + name;
  return {
      c + progId,
      c + progId + L"|=" + name + L" Class",
      c + progId + L"\\CLSID",
      c + progId + L"\\CLSID|=" + clsid,
      c + progId + L"\\CurVer",
      c + progId + L"\\CurVer|=" + progId + L".1",
      c + progId + L".1",
      c + progId + L".1|=" + name + L" Class",
      c + progId + L".1\\CLSID",
      c + progId + L".1\\CLSID|=" + clsid,
      d,
      d + L"|=" + name + L" Class",
      d + L"|AppID=" + kAppId,
      d + L"\\ProgID",
      d + L"\\ProgID|=" + progId + L".1",
      d + L"\\VersionIndependentProgID",
      d + L"\\VersionIndependentProgID|=" + progId,
      d + L"\\InprocServer32",
      d + L"\\InprocServer32|=" + dll,
      d + L"\\InprocServer32|ThreadingModel=Apartment",
      d + L"\\TypeLib",
      d + L"\\TypeLib|=" + kTypeLib,
      d + L"\\Version",
      d + L"\\Version|=1.0",
  };
}

// The page classes the DLL serves.
const std::pair<std::wstring, std::wstring> kServedPages[] = {
    {kChartDrawPg, L"ChartDrawPg"},     {kNumFmtPpgX, L"NumFmtPpgX"},   {kGenXAxisPpg, L"GenXAxisPpg"},
    {kGenYAxisPpg, L"GenYAxisPpg"},     {kChartGenPpg, L"ChartGenPpg"}, {kDataWndPg, L"DataWndPg"},
    {kPointBreakPpg, L"PointBreakPpg"},
};

// The class registration of the served classes, letter for letter: ChartPages (programmable,
// safe for scripting) and the page classes.
Listing ExpectedClassKeys(const std::wstring& dll) {
  const std::wstring c = L"Software\\Classes\\";
  const std::wstring k = c + L"CLSID\\" + kChartPages;
  Listing keys = {
      c + L"OrvChartDlgs.ChartPages",
      c + L"OrvChartDlgs.ChartPages|=ChartPages Class",
      c + L"OrvChartDlgs.ChartPages\\CLSID",
      c + L"OrvChartDlgs.ChartPages\\CLSID|=" + kChartPages,
      c + L"OrvChartDlgs.ChartPages\\CurVer",
      c + L"OrvChartDlgs.ChartPages\\CurVer|=OrvChartDlgs.ChartPages.1",
      c + L"OrvChartDlgs.ChartPages.1",
      c + L"OrvChartDlgs.ChartPages.1|=ChartPages Class",
      c + L"OrvChartDlgs.ChartPages.1\\CLSID",
      c + L"OrvChartDlgs.ChartPages.1\\CLSID|=" + kChartPages,
      k,
      k + L"|=ChartPages Class",
      k + L"|AppID=" + kAppId,
      k + L"\\ProgID",
      k + L"\\ProgID|=OrvChartDlgs.ChartPages.1",
      k + L"\\VersionIndependentProgID",
      k + L"\\VersionIndependentProgID|=OrvChartDlgs.ChartPages",
      k + L"\\Programmable",
      k + L"\\InprocServer32",
      k + L"\\InprocServer32|=" + dll,
      k + L"\\InprocServer32|ThreadingModel=Apartment",
      k + L"\\TypeLib",
      k + L"\\TypeLib|=" + kTypeLib,
      k + L"\\Version",
      k + L"\\Version|=1.0",
      k + L"\\Implemented Categories",
      k + L"\\Implemented Categories\\{7DD95801-9882-11CF-9FA9-00AA006C42C4}",
      k + L"\\Implemented Categories\\{7DD95802-9882-11CF-9FA9-00AA006C42C4}",
      c + L"AppID\\" + kAppId,
      c + L"AppID\\" + kAppId + L"|=OrvChartDlgs",
  };
  for (const auto& [clsid, name] : kServedPages) keys.merge(PageClassKeys(clsid, name, dll));
  return keys;
}

std::optional<DWORD> ReadInstallOptions() {
  DWORD value = 0, size = sizeof value, type = 0;
  if (RegGetValueW(HKEY_CURRENT_USER, L"Software\\ZEL", L"OrvInstallOpts", RRF_RT_ANY, &type, &value, &size) !=
      ERROR_SUCCESS)
    return std::nullopt;
  return value;
}

void WriteInstallOptions(std::optional<DWORD> value) {
  HKEY raw = nullptr;
  ASSERT_EQ(RegCreateKeyExW(HKEY_CURRENT_USER, L"Software\\ZEL", 0, nullptr, 0, KEY_SET_VALUE, nullptr, &raw, nullptr),
            ERROR_SUCCESS);
  Key key(raw);
  if (value)
    RegSetValueExW(key.get(), L"OrvInstallOpts", 0, REG_DWORD, reinterpret_cast<const BYTE*>(&*value), sizeof(DWORD));
  else
    RegDeleteValueW(key.get(), L"OrvInstallOpts");
}

// regsvr32 [/u] /s <dll>: its exit code, 0 on success.
DWORD Regsvr32(bool unregister) {
  std::wstring command = L"regsvr32.exe /s " + std::wstring(unregister ? L"/u " : L"") + L"\"" + DllPath() + L"\"";
  STARTUPINFOW startup = {sizeof startup};
  PROCESS_INFORMATION process{};
  // Under Wine, starting a process right after another has ended fails now and then on a loaded
  // machine (the DLL is not involved yet): start it again, a few times at most.
  bool started = false;
  for (int attempt = 0; attempt < 5 && !started; ++attempt) {
    if (attempt > 0) Sleep(200);
    started = CreateProcessW(nullptr, command.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr, &startup, &process);
  }
  if (!started) return 0xFFFFFFFF;
  WaitForSingleObject(process.hProcess, 60000);
  DWORD code = 0xFFFFFFFE;
  GetExitCodeProcess(process.hProcess, &code);
  CloseHandle(process.hThread);
  CloseHandle(process.hProcess);
  return code;
}

class Registration : public ::testing::Test {
 protected:
  void SetUp() override {
    saved_ = ReadInstallOptions();
    userBefore_ = ComponentKeys(HKEY_CURRENT_USER);
    machineBefore_ = ComponentKeys(HKEY_LOCAL_MACHINE);
    ASSERT_TRUE(Under(machineBefore_, L"Software\\Classes\\CLSID\\" + std::wstring(kChartPages)).empty())
        << "ChartPages is registered for the machine already; unregister it first";
  }
  void TearDown() override {
    // Whatever happened, the next test and the prefix start clean.
    Regsvr32(true);
    WriteInstallOptions(1);
    Regsvr32(true);
    WriteInstallOptions(saved_);
  }
  std::optional<DWORD> saved_;
  Listing userBefore_, machineBefore_;
};

TEST_F(Registration, PerUserWritesExactlyTheClassKeysAndUnregisteringRemovesThemAll) {
  for (std::optional<DWORD> options : {std::optional<DWORD>{}, std::optional<DWORD>{0}, std::optional<DWORD>{6}}) {
    SCOPED_TRACE(options ? "OrvInstallOpts " + std::to_string(*options) : "no OrvInstallOpts");
    WriteInstallOptions(options);
    ASSERT_EQ(Regsvr32(false), 0u);
    const Listing user = ComponentKeys(HKEY_CURRENT_USER);
    EXPECT_EQ(Added(user, userBefore_), ExpectedClassKeys(DllPath()));
    // Nothing of the classes goes to the machine; the type library may (Wine's per-user form
    // writes the machine's TypeLib key), but it names this DLL.
    const Listing machine = ComponentKeys(HKEY_LOCAL_MACHINE);
    for (const std::wstring& line : Added(machine, machineBefore_))
      EXPECT_TRUE(line.find(L"\\TypeLib\\") != std::wstring::npos || line.find(L"\\Interface\\") != std::wstring::npos)
          << "written for the machine: " << std::string(line.begin(), line.end());

    // regsvr32 /u reads the option again and removes exactly what it wrote, type library included.
    ASSERT_EQ(Regsvr32(true), 0u);
    EXPECT_EQ(ComponentKeys(HKEY_CURRENT_USER), userBefore_);
    EXPECT_EQ(ComponentKeys(HKEY_LOCAL_MACHINE), machineBefore_);
    // And again: unregistering what is not registered succeeds.
    EXPECT_EQ(Regsvr32(true), 0u);
  }
}

TEST_F(Registration, UnregisteringKeepsWhatOthersAddedBelowTheComponentsKeys) {
  WriteInstallOptions(std::nullopt);
  ASSERT_EQ(Regsvr32(false), 0u);
  // Another product's key and value inside the class's key.
  const std::wstring clsidKey = L"Software\\Classes\\CLSID\\" + std::wstring(kChartPages);
  HKEY raw = nullptr;
  ASSERT_EQ(RegCreateKeyExW(HKEY_CURRENT_USER,
                            (clsidKey + L"\\Implemented Categories\\{00000000-1111-2222-3333-444444444444}").c_str(), 0,
                            nullptr, 0, KEY_WRITE, nullptr, &raw, nullptr),
            ERROR_SUCCESS);
  RegCloseKey(raw);
  ASSERT_EQ(Regsvr32(true), 0u);

  const Listing left = Added(ComponentKeys(HKEY_CURRENT_USER), userBefore_);
  const Listing expected = {clsidKey, clsidKey + L"\\Implemented Categories",
                            clsidKey + L"\\Implemented Categories\\{00000000-1111-2222-3333-444444444444}"};
  EXPECT_EQ(left, expected);
  RegDeleteTreeW(HKEY_CURRENT_USER, clsidKey.c_str());
}

TEST_F(Registration, ForTheMachineActivatesByBothProgIdsAndUnregistersClean) {
  WriteInstallOptions(1);
  ASSERT_EQ(Regsvr32(false), 0u);
  const Listing machine = ComponentKeys(HKEY_LOCAL_MACHINE);
  const Listing added = Added(machine, machineBefore_);
  // The class keys exactly, plus the type library and its interfaces.
  Listing classKeys;
  for (const std::wstring& line : added)
    if (line.find(L"\\TypeLib\\{") == std::wstring::npos && line.find(L"\\Interface\\") == std::wstring::npos)
      classKeys.insert(line);
  EXPECT_EQ(classKeys, ExpectedClassKeys(DllPath()));
  EXPECT_FALSE(Under(added, L"Software\\Classes\\TypeLib\\" + std::wstring(kTypeLib) + L"\\1.0").empty());
  EXPECT_FALSE(Under(added, L"Software\\Classes\\Interface\\" + GuidText(IID_IChartPages)).empty());
  EXPECT_EQ(ComponentKeys(HKEY_CURRENT_USER), userBefore_);

  ASSERT_TRUE(SUCCEEDED(CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED)));
  for (const wchar_t* progId : {L"OrvChartDlgs.ChartPages", L"OrvChartDlgs.ChartPages.1"}) {
    SCOPED_TRACE(std::string(progId, progId + wcslen(progId)));
    CLSID clsid{};
    ASSERT_EQ(CLSIDFromProgID(progId, &clsid), S_OK);
    EXPECT_TRUE(IsEqualCLSID(clsid, CLSID_ChartPages));
    ComPtr<IChartPages> pages;
    ASSERT_EQ(
        CoCreateInstance(clsid, nullptr, CLSCTX_INPROC_SERVER, IID_IChartPages, reinterpret_cast<void**>(pages.put())),
        S_OK);
    long result = -5;
    EXPECT_EQ(pages->DoModal(nullptr, &result), S_OK);
    EXPECT_EQ(result, 2);
    // The registered type library answers for the dispatch interface.
    ComPtr<ITypeInfo> info;
    EXPECT_EQ(pages->GetTypeInfo(0, LOCALE_USER_DEFAULT, info.put()), S_OK);
  }
  {
    ComPtr<ITypeLib> library;
    EXPECT_EQ(LoadRegTypeLib(LIBID_OrvChartDlgsLib, 1, 0, LOCALE_NEUTRAL, library.put()), S_OK);
  }
  CoFreeUnusedLibraries();
  CoUninitialize();

  ASSERT_EQ(Regsvr32(true), 0u);
  EXPECT_EQ(ComponentKeys(HKEY_LOCAL_MACHINE), machineBefore_);
  EXPECT_EQ(ComponentKeys(HKEY_CURRENT_USER), userBefore_);
}

}  // namespace
