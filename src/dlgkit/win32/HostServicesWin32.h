#pragma once
// The host application's services over COM, as its type library declares them. Only the
// operations the kit calls are exercised; the others are declared to keep the vtable order.

#include <windows.h>
#include <oaidl.h>

#include "dlgkit/HostServices.h"

namespace orv {

// {C64DDFCF-FC15-4725-9F5D-6EE5658680A2}
inline constexpr CLSID kClsidSettingsService = {
    0xC64DDFCF, 0xFC15, 0x4725, {0x9F, 0x5D, 0x6E, 0xE5, 0x65, 0x86, 0x80, 0xA2}};
// {D4E52A94-99B8-4701-90A2-2EC9D7970D19}
inline constexpr IID kIidSettingsService = {
    0xD4E52A94, 0x99B8, 0x4701, {0x90, 0xA2, 0x2E, 0xC9, 0xD7, 0x97, 0x0D, 0x19}};
// {3BCD3CE9-8D2B-47B3-ACFB-6DA1F3F32F31}
inline constexpr CLSID kClsidHelpService = {
    0x3BCD3CE9, 0x8D2B, 0x47B3, {0xAC, 0xFB, 0x6D, 0xA1, 0xF3, 0xF3, 0x2F, 0x31}};
// {86B90E6F-AF28-497C-9C24-DA8BA6A7BDC4}
inline constexpr IID kIidHelpService = {0x86B90E6F, 0xAF28, 0x497C, {0x9C, 0x24, 0xDA, 0x8B, 0xA6, 0xA7, 0xBD, 0xC4}};

// Every server context the host may run its services in (CLSCTX_INPROC_SERVER |
// CLSCTX_INPROC_HANDLER | CLSCTX_LOCAL_SERVER | CLSCTX_REMOTE_SERVER).
inline constexpr DWORD kHostServiceContext = 23;

}  // namespace orv

struct ISettingsService : public IDispatch {
  virtual HRESULT STDMETHODCALLTYPE GetValue(BSTR section, BSTR key, VARIANT* value, long* result) = 0;
  virtual HRESULT STDMETHODCALLTYPE SetValue(BSTR section, BSTR key, long value, long kind, long* result) = 0;
  virtual HRESULT STDMETHODCALLTYPE GetTheme(long* themeRecord, long zero, long* result) = 0;
  virtual HRESULT STDMETHODCALLTYPE GetDocumentValue(BSTR document, BSTR xpath, BSTR attribute, long kind, BSTR* value,
                                                     long* result) = 0;
  virtual HRESULT STDMETHODCALLTYPE GetDocumentNode(BSTR document, BSTR xpath, IUnknown** node, long* result) = 0;
};

struct IHelpService : public IDispatch {
  virtual HRESULT STDMETHODCALLTYPE ShowHelp(BSTR book, long topicId, long flags, long* result) = 0;
};
