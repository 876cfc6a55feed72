#pragma once
// No exception crosses a COM method: each method runs its body through ComMethod, which turns
// what was thrown into the method's HRESULT and the thread's error info.

#include <windows.h>

#include <exception>
#include <new>
#include <string>

#include "xml/XmlError.h"

namespace orv::host {

// Sets the thread's error info: `iid` the interface whose method failed, `source` the ProgID,
// `description` narrow text in the thread's code page. Never throws; a failure to build the
// record leaves the error info cleared.
void SetComErrorInfo(REFIID iid, const wchar_t* source, const std::string& description) noexcept;

// The HRESULT for a caught exception: XmlComError gives its status (E_UNEXPECTED when that is
// not a failure), bad_alloc E_OUTOFMEMORY, anything else E_UNEXPECTED. The description names
// `method` and the status.
HRESULT ReportCurrentException(REFIID iid, const wchar_t* source, const char* method) noexcept;

// Runs `body` (returning HRESULT); an exception becomes the result and the error info.
template <typename Body>
HRESULT ComMethod(REFIID iid, const wchar_t* source, const char* method, Body&& body) noexcept {
  try {
    return body();
  } catch (...) {
    return ReportCurrentException(iid, source, method);
  }
}

}  // namespace orv::host
