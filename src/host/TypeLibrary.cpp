#include "host/TypeLibrary.h"

#include <oleauto.h>

#include <string>

#include "host/Module.h"
#include "xml/XmlError.h"

namespace orv::host {
namespace {

std::wstring ModuleFilePath() {
  std::wstring path(MAX_PATH, L'\0');
  for (;;) {
    DWORD length = GetModuleFileNameW(ModuleInstance(), path.data(), static_cast<DWORD>(path.size()));
    if (length == 0) throw XmlComError(HRESULT_FROM_WIN32(GetLastError()), "GetModuleFileName");
    if (length < path.size()) {
      path.resize(length);
      return path;
    }
    path.resize(path.size() * 2);  // truncated: a long path
  }
}

ComPtr<ITypeLib> LoadComponentTypeLib() {
  ComPtr<ITypeLib> library;
  XmlCheck(LoadTypeLibEx(ModuleFilePath().c_str(), REGKIND_NONE, library.put()), "LoadTypeLibEx");
  return library;
}

}  // namespace

ITypeLib& ComponentTypeLib() {
  // A static's initialiser that throws runs again on the next call; statics are thread-safe.
  static const ComPtr<ITypeLib> library = LoadComponentTypeLib();
  return *library.get();
}

ComPtr<ITypeInfo> ComponentTypeInfo(REFGUID guid) {
  ComPtr<ITypeInfo> info;
  XmlCheck(ComponentTypeLib().GetTypeInfoOfGuid(guid, info.put()), "ITypeLib::GetTypeInfoOfGuid");
  return info;
}

}  // namespace orv::host
