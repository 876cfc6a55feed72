#pragma once
// The module's classes: one table of every class of the type library, walked by
// DllGetClassObject, by registration and (by hand, checked by a test) by the assembly manifest.

#include <windows.h>
#include <unknwn.h>

#include <span>

namespace orv::host {

// Creates an instance, plain (outer null) or aggregated (outer given, iid IID_IUnknown).
using CreatorFn = HRESULT (*)(IUnknown* outer, REFIID iid, void** object);

struct ClassEntry {
  const CLSID* clsid;
  const wchar_t* name;         // the coclass name: "ChartPages"; ProgIDs are "OrvChartDlgs.<name>[.1]"
  const wchar_t* description;  // "<name> Class"
  bool programmable;           // marked Programmable (script hosts may create it)
  std::span<const GUID> implementedCategories;
  std::span<const GUID> requiredCategories;
  CreatorFn create;  // null: the class is not built yet, neither served nor registered
};

// The module's fixed identities.
// {6A2CB4D9-8647-4339-8E26-82D3E724F0D1}, version 1.0: the type library embedded as resource 1.
inline constexpr GUID kTypeLibId = {0x6A2CB4D9, 0x8647, 0x4339, {0x8E, 0x26, 0x82, 0xD3, 0xE7, 0x24, 0xF0, 0xD1}};
inline constexpr WORD kTypeLibMajor = 1;
inline constexpr WORD kTypeLibMinor = 0;
// {DA578EB6-B0B1-4578-9E6B-6F6529BB5929}
inline constexpr GUID kAppId = {0xDA578EB6, 0xB0B1, 0x4578, {0x9E, 0x6B, 0x6F, 0x65, 0x29, 0xBB, 0x59, 0x29}};
inline constexpr wchar_t kModuleName[] = L"OrvChartDlgs";

// Component categories a class may name.
// {7DD95801-9882-11CF-9FA9-00AA006C42C4}
inline constexpr GUID kCatidSafeForScripting = {
    0x7DD95801, 0x9882, 0x11CF, {0x9F, 0xA9, 0x00, 0xAA, 0x00, 0x6C, 0x42, 0xC4}};
// {7DD95802-9882-11CF-9FA9-00AA006C42C4}
inline constexpr GUID kCatidSafeForInitializing = {
    0x7DD95802, 0x9882, 0x11CF, {0x9F, 0xA9, 0x00, 0xAA, 0x00, 0x6C, 0x42, 0xC4}};

// The DLL's table (ClassTable.cpp, built into the DLL only: it names the objects' creators).
std::span<const ClassEntry> ModuleClasses();

// The entry of clsid in table, or null.
inline const ClassEntry* FindClass(std::span<const ClassEntry> table, REFCLSID clsid) noexcept {
  for (const ClassEntry& entry : table)
    if (IsEqualGUID(*entry.clsid, clsid)) return &entry;
  return nullptr;
}

}  // namespace orv::host
