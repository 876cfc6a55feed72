// The host application's services as orvhost serves them to the component in its own process:
// the settings service (a theme, the documents "LANGUAGE" and "PREFS", values by section and
// key) and the help service, which prints each request as one line. Both are registered for
// this process only (CoRegisterClassObject), under the class ids the component creates them by.
#pragma once

#include <windows.h>
#include <msxml2.h>

#include "OrvChartDlgs_h.h"
#include "com/ComPtr.h"

#include <cstdio>
#include <map>
#include <memory>
#include <string>
#include <utility>
#include <vector>

namespace orv::host_app {

// {C64DDFCF-FC15-4725-9F5D-6EE5658680A2}
inline constexpr CLSID kClsidSettingsService = {
    0xC64DDFCF, 0xFC15, 0x4725, {0x9F, 0x5D, 0x6E, 0xE5, 0x65, 0x86, 0x80, 0xA2}};
// {3BCD3CE9-8D2B-47B3-ACFB-6DA1F3F32F31}
inline constexpr CLSID kClsidHelpService = {
    0x3BCD3CE9, 0x8D2B, 0x47B3, {0xAC, 0xFB, 0x6D, 0xA1, 0xF3, 0xF3, 0x2F, 0x31}};

inline constexpr int kThemeColorCount = 31;

// A Microsoft.XMLDOM document (synchronous) holding `text`, as a host hands one over. S_FALSE
// when the text isn't well-formed XML; a failure when the document can't be made.
HRESULT MakeXmlDocument(const std::wstring& text, ComPtr<IXMLDOMDocument2>& document);

// What the settings service serves. Documents are looked up by name ignoring case; the theme
// comes from PREFS' //General/Theme, whose Color children fill the record in order.
class HostSettings {
 public:
  // A document as the host holds it: MakeXmlDocument's, with XPath selection. False with
  // `error` set when it can't be made or the text isn't well-formed.
  bool AddDocument(const std::wstring& name, const std::wstring& text, std::string& error);
  IXMLDOMDocument2* Document(const std::wstring& name) const;

  // The theme record from PREFS (nothing when PREFS has no //General/Theme). Entries the
  // document doesn't give stay 0.
  bool Theme(long (&record)[kThemeColorCount]) const;

  // Values by (section, key): the Value elements of PREFS' //General/Values, each with
  // attributes Section and Key and its text, then whatever SetValue stored.
  bool Value(const std::wstring& section, const std::wstring& key, std::wstring& value) const;
  void SetValue(const std::wstring& section, const std::wstring& key, std::wstring value);

  // Where SetValue and ShowHelp are reported, one line each.
  void SetOutput(std::FILE* out) { out_ = out; }
  std::FILE* Output() const { return out_; }

 private:
  std::map<std::wstring, ComPtr<IXMLDOMDocument2>> documents_;  // upper-case name -> document
  std::map<std::pair<std::wstring, std::wstring>, std::wstring> values_;
  std::FILE* out_ = stdout;
};

ComPtr<ISettingsService> MakeSettingsService(std::shared_ptr<HostSettings> settings);
ComPtr<IHelpService> MakeHelpService(std::shared_ptr<HostSettings> settings);

// Both services registered for this process while it lives; revoked on destruction.
class ServiceRegistration {
 public:
  ServiceRegistration() = default;
  ServiceRegistration(const ServiceRegistration&) = delete;
  ServiceRegistration& operator=(const ServiceRegistration&) = delete;
  ~ServiceRegistration();
  HRESULT Register(std::shared_ptr<HostSettings> settings);

 private:
  std::vector<DWORD> cookies_;
};

}  // namespace orv::host_app
