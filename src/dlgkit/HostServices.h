#pragma once
// The host application's services as the kit uses them: the settings service (the theme) and
// the help service. A service is created at each use and dropped after it; creation that fails
// gives no service, and the caller goes on without (no theme, no help).
//
// Which host a process talks to: CurrentHostServices(), the platform's (COM on Windows, none
// natively) unless a ScopedHostServices names another for its lifetime (tests, the demo).

#include <cstdint>
#include <memory>
#include <string>

#include "dlgkit/ThemeColors.h"
#include "xml/Xml.h"

namespace orv {

// The operations in the order of the host's interface. Every failed call raises XmlComError;
// a result other than 0 is the host's "not found" or "not done", never an exception.
class SettingsService {
 public:
  virtual ~SettingsService() = default;
  // A value the host keeps under (section, key), as text ("LinePpgX", "Caption").
  virtual void GetValue(const std::string& section, const std::string& key, std::string& value,
                        std::int32_t& result) = 0;
  // Stores a 32-bit value of the given XmlValueKind ("Displays/Seasonal", "ByWizard", 1, 4).
  virtual void SetValue(const std::string& section, const std::string& key, std::int32_t value, std::int32_t kind,
                        std::int32_t& result) = 0;
  // Fills the record; result non-zero means the host has no theme (the record is then not
  // trusted).
  virtual void GetTheme(ThemeColors& theme, std::int32_t zero, std::int32_t& result) = 0;
  // The text of the node that `xpath` selects in the named document ("LANGUAGE", "PREFS"), or of
  // its attribute when `attribute` is not empty. `kind` is 17 for text.
  virtual void GetDocumentValue(const std::string& document, const std::string& xpath, const std::string& attribute,
                                std::int32_t kind, std::string& value, std::int32_t& result) = 0;
  // The node that `xpath` selects in the named document; null when there is none.
  virtual void GetDocumentNode(const std::string& document, const std::string& xpath, XmlNode& node,
                               std::int32_t& result) = 0;
};

// The kind GetDocumentValue is asked for: the value as text.
inline constexpr std::int32_t kDocumentValueText = 17;

class HelpService {
 public:
  virtual ~HelpService() = default;
  // A failed call raises XmlComError.
  virtual void ShowHelp(const std::string& book, std::int32_t topicId, std::int32_t flags, std::int32_t& result) = 0;
};

// The host's field service: the data fields a chart can show, in pages of records of
// kFieldRecordSize bytes. Asked for by (filter, kFieldListKind, start, kFieldPageSize); the answer
// is the records of that page, fewer or none at the end. Their layout: FieldRecords.h.
class FieldService {
 public:
  virtual ~FieldService() = default;
  // Fills `records` with up to `count` records from `start` (its size a multiple of the record
  // size). A failed call raises XmlComError.
  virtual void GetFields(const std::string& filter, std::int32_t kind, std::int32_t start, std::int32_t count,
                         std::string& records) = 0;
};

inline constexpr std::int32_t kFieldListKind = 7;
inline constexpr std::int32_t kFieldPageSize = 25;

class HostServices {
 public:
  virtual ~HostServices() = default;
  // Null when the service cannot be created.
  virtual std::unique_ptr<SettingsService> CreateSettingsService() = 0;
  virtual std::unique_ptr<HelpService> CreateHelpService() = 0;
  // Null when the host offers no field service (the default).
  virtual std::unique_ptr<FieldService> CreateFieldService() { return nullptr; }
};

// The platform's host: COM activation on Windows (win32/), no services natively (native/).
HostServices& PlatformHostServices();

// The host a dialog talks to now.
HostServices& CurrentHostServices();

// Makes `services` the current host until destruction, then restores the previous one.
// Nests; destroy in reverse order of construction.
class ScopedHostServices {
 public:
  explicit ScopedHostServices(HostServices& services);
  ~ScopedHostServices();
  ScopedHostServices(const ScopedHostServices&) = delete;
  ScopedHostServices& operator=(const ScopedHostServices&) = delete;

 private:
  HostServices* previous_;
};

// The current host for the time of one open of a sheet or dialog, wrapping the host that was
// current when it was made. Every creation goes to that host, as at each use, except one: once
// the settings service could not be created, the open goes on without it and does not ask
// again. A host that has no settings service (none registered) is asked once per open instead
// of once per dialog, sheet and page; what is read and what is shown stay the same. A service
// that can be created is still created at each use. Nests like ScopedHostServices.
class OneOpenHostServices final : public HostServices {
 public:
  OneOpenHostServices();
  OneOpenHostServices(const OneOpenHostServices&) = delete;
  OneOpenHostServices& operator=(const OneOpenHostServices&) = delete;

  std::unique_ptr<SettingsService> CreateSettingsService() override;
  std::unique_ptr<HelpService> CreateHelpService() override;
  std::unique_ptr<FieldService> CreateFieldService() override;

 private:
  HostServices& host_;
  bool noSettingsService_ = false;
  ScopedHostServices current_;  // last: made current once the members above are ready
};

// Help over the current host's help service: its result, -1 when there is no service.
// Dialogs answer the help message with ShowHelp("CHARTX", <their dialog resource id>).
std::int32_t ShowHelp(const std::string& book, std::int32_t topicId, std::int32_t flags = 0);

}  // namespace orv
