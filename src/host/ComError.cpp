#include "host/ComError.h"

#include <oleauto.h>

#include "xml/StrFormat.h"
#include "com/ComPtr.h"
#include "com/WideText.h"

namespace orv::host {
namespace {

// The system's own words for a status, when it has any ("Not enough memory resources ...").
std::string SystemText(HRESULT status) {
  char* buffer = nullptr;
  DWORD length =
      FormatMessageA(FORMAT_MESSAGE_ALLOCATE_BUFFER | FORMAT_MESSAGE_FROM_SYSTEM | FORMAT_MESSAGE_IGNORE_INSERTS,
                     nullptr, static_cast<DWORD>(status), 0, reinterpret_cast<char*>(&buffer), 0, nullptr);
  std::string text;
  if (length > 0 && buffer != nullptr) {
    text.assign(buffer, length);
    while (!text.empty() && (text.back() == '\r' || text.back() == '\n' || text.back() == ' ')) text.pop_back();
  }
  LocalFree(buffer);
  return text;
}

std::string Describe(const char* method, HRESULT status, const std::string& detail) {
  std::string text = StrFormat("%s failed: ", method);
  std::string system = SystemText(status);
  if (!system.empty()) text += system + " ";
  text += "(" + detail + ")";
  return text;
}

}  // namespace

void SetComErrorInfo(REFIID iid, const wchar_t* source, const std::string& description) noexcept {
  try {
    ComPtr<ICreateErrorInfo> create;
    if (FAILED(CreateErrorInfo(create.put()))) {
      SetErrorInfo(0, nullptr);
      return;
    }
    std::wstring wide = Widen(description);
    create->SetGUID(iid);
    create->SetSource(const_cast<LPOLESTR>(source));
    create->SetDescription(wide.data());
    ComPtr<IErrorInfo> info;
    if (SUCCEEDED(create.As(IID_IErrorInfo, info))) {
      SetErrorInfo(0, info.get());
      return;
    }
  } catch (...) {
    // Out of memory while describing: the status still reaches the caller.
  }
  SetErrorInfo(0, nullptr);
}

HRESULT ReportCurrentException(REFIID iid, const wchar_t* source, const char* method) noexcept {
  HRESULT status = E_UNEXPECTED;
  std::string detail;
  try {
    throw;
  } catch (const XmlComError& error) {
    // A thrown success would read as success to the host: the call did fail.
    status = error.status() < 0 ? static_cast<HRESULT>(error.status()) : E_UNEXPECTED;
    detail = error.what();
  } catch (const std::bad_alloc&) {
    status = E_OUTOFMEMORY;
    detail = "out of memory";
  } catch (const std::exception& error) {
    detail = error.what();
  } catch (...) {
    detail = "unexpected failure";
  }
  try {
    SetComErrorInfo(iid, source, Describe(method, status, detail));
  } catch (...) {
    SetErrorInfo(0, nullptr);
  }
  return status;
}

}  // namespace orv::host
