#pragma once
// Registration of the module's classes, driven by the class table: DllRegisterServer and
// DllUnregisterServer. Where: "OrvInstallOpts" (DWORD) of "Software\ZEL" for the current user,
// bit 0 set = the machine (HKLM\Software\Classes), anything else or no value = the current
// user (HKCU\Software\Classes). Only classes with a creator are registered.

#include <windows.h>

#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <vector>

#include "host/ClassTable.h"

namespace orv::host {

enum class RegistrationScope { CurrentUser, Machine };

RegistrationScope ScopeFromInstallOptions(std::optional<std::uint32_t> options) noexcept;
// Reads "OrvInstallOpts" now.
RegistrationScope ConfiguredRegistrationScope();

// One key below the classes root (CLSID\{...}\InprocServer32) and, when name is set, one REG_SZ
// value of it ("" = the default value). A key without values is listed once with no name.
struct RegistryEntry {
  std::wstring key;
  std::optional<std::wstring> name;
  std::wstring data;
};

// Everything registration writes below the classes root, for the table's built classes.
std::vector<RegistryEntry> RegistrationEntries(std::span<const ClassEntry> table, const std::wstring& modulePath);

// Writes the entries and registers the type library of module's file (per user with
// RegisterTypeLibForUser, for the machine with RegisterTypeLib), under thread locale 2048.
// On a failure what was written is removed again and the failure returned.
HRESULT RegisterServer(std::span<const ClassEntry> table, HMODULE module, RegistrationScope scope) noexcept;

// Removes exactly what RegisterServer writes: its values, then each of its keys that has no
// sub-keys and no values left (deepest first); anything others added stays, with the keys
// leading to it. Unregistering what is not registered succeeds.
HRESULT UnregisterServer(std::span<const ClassEntry> table, HMODULE module, RegistrationScope scope) noexcept;

}  // namespace orv::host
