#pragma once
// Narrow text inside, wide text at the COM boundary: the one conversion between them.
// The program's narrow text is in the thread's ANSI code page (CP_THREAD_ACP), so a thread
// locale set by the host or by registration is honoured. Text outside that code page is not
// preserved (it becomes the code page's default character). Lengths are explicit: embedded NULs
// cross in both directions.

#include <windows.h>
#include <oleauto.h>

#include <climits>
#include <optional>
#include <string>
#include <string_view>

#include "com/ComPtr.h"
#include "xml/XmlError.h"

namespace orv {

// Narrow to wide in `codePage` (the thread's by default). Bytes the code page doesn't map become
// U+FFFD or the code page's own stand-in, as the platform decides.
inline std::wstring Widen(std::string_view text, UINT codePage = CP_THREAD_ACP) {
  if (text.empty()) return {};
  if (text.size() > static_cast<std::size_t>(INT_MAX)) throw XmlComError(kStatusOutOfMemory, "text too long");
  const int inLength = static_cast<int>(text.size());
  const int length = ::MultiByteToWideChar(codePage, 0, text.data(), inLength, nullptr, 0);
  if (length <= 0) throw XmlComError(kStatusInvalidArg, "MultiByteToWideChar");
  std::wstring wide(static_cast<std::size_t>(length), L'\0');
  ::MultiByteToWideChar(codePage, 0, text.data(), inLength, wide.data(), length);
  return wide;
}

// Like Widen, but nothing when `text` is not valid in `codePage` (for telling UTF-8 from others).
inline std::optional<std::wstring> WidenStrict(std::string_view text, UINT codePage) {
  if (text.empty()) return std::wstring();
  if (text.size() > static_cast<std::size_t>(INT_MAX)) return std::nullopt;
  const int inLength = static_cast<int>(text.size());
  const int length = ::MultiByteToWideChar(codePage, MB_ERR_INVALID_CHARS, text.data(), inLength, nullptr, 0);
  if (length <= 0) return std::nullopt;
  std::wstring wide(static_cast<std::size_t>(length), L'\0');
  ::MultiByteToWideChar(codePage, MB_ERR_INVALID_CHARS, text.data(), inLength, wide.data(), length);
  return wide;
}

// Wide to narrow in `codePage` (the thread's by default); characters it lacks become its default
// character.
inline std::string Narrow(std::wstring_view text, UINT codePage = CP_THREAD_ACP) {
  if (text.empty()) return {};
  if (text.size() > static_cast<std::size_t>(INT_MAX)) throw XmlComError(kStatusOutOfMemory, "text too long");
  const int inLength = static_cast<int>(text.size());
  const int length = ::WideCharToMultiByte(codePage, 0, text.data(), inLength, nullptr, 0, nullptr, nullptr);
  if (length <= 0) throw XmlComError(kStatusInvalidArg, "WideCharToMultiByte");
  std::string narrow(static_cast<std::size_t>(length), '\0');
  ::WideCharToMultiByte(codePage, 0, text.data(), inLength, narrow.data(), length, nullptr, nullptr);
  return narrow;
}

// A new BSTR holding `text` (its full length, NULs included); raises out-of-memory when the
// string can't be allocated.
inline Bstr MakeBstr(std::wstring_view text) {
  if (text.size() > 0x3FFFFFFF) throw XmlComError(kStatusOutOfMemory, "text too long");
  Bstr result = Bstr::Attach(::SysAllocStringLen(text.data(), static_cast<UINT>(text.size())));
  if (!result.get()) throw XmlComError(kStatusOutOfMemory, "SysAllocStringLen");
  return result;
}

// The program's narrow text as a BSTR for the COM boundary, through the thread's code page.
inline Bstr MakeBstr(std::string_view text) { return MakeBstr(Widen(text)); }

// A BSTR's whole text (SysStringLen, so NULs inside are kept); null is the empty text.
inline std::wstring WideFromBstr(BSTR text) {
  return text != nullptr ? std::wstring(text, ::SysStringLen(text)) : std::wstring();
}

// A BSTR from the COM boundary as the program's narrow text; null is the empty text.
inline std::string NarrowFromBstr(BSTR text) {
  return text != nullptr ? Narrow(std::wstring_view(text, ::SysStringLen(text))) : std::string();
}

}  // namespace orv
