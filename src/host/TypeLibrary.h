#pragma once
// The component's type library, embedded in the module's file: IDispatch and IProvideClassInfo
// are served from it. Loaded once per process (never registered by loading).

#include <windows.h>
#include <oaidl.h>

#include "com/ComPtr.h"

namespace orv::host {

// The type library of the module's own file (ModuleInstance(); a program that links the objects
// directly carries the library in its own resources). Raises XmlComError when it can't be loaded;
// the next call tries again.
ITypeLib& ComponentTypeLib();

// The type info of an interface or class of the library; raises XmlComError when missing.
ComPtr<ITypeInfo> ComponentTypeInfo(REFGUID guid);

}  // namespace orv::host
