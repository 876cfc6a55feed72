#pragma once
// The class factory of every class of the table, and the body of DllGetClassObject.

#include <windows.h>
#include <unknwn.h>

#include <span>

#include "host/ClassTable.h"

namespace orv::host {

// DllGetClassObject over a table: a new factory for a class with a creator (queried for iid),
// CLASS_E_CLASSNOTAVAILABLE for a class not in the table or not built, E_POINTER without object.
// *object is cleared on every failure.
HRESULT GetClassObject(std::span<const ClassEntry> table, REFCLSID clsid, REFIID iid, void** object) noexcept;

}  // namespace orv::host
