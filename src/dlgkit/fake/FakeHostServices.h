#pragma once
// A strict stand-in for the host's services. A test states what each creation and call is to
// do, in order: one call per service created, as the program makes a service at each use. Any
// call nobody expected (another operation, other arguments, a second call) throws
// UnexpectedHostCall and is recorded, so the test fails where it happened.

#include <deque>
#include <stdexcept>
#include <string>
#include <vector>

#include "dlgkit/HostServices.h"
#include "xml/XmlError.h"

namespace orv {

class UnexpectedHostCall : public std::logic_error {
 public:
  using std::logic_error::logic_error;
};

// The settings service's operations, in the order of its interface.
enum class SettingsCall { GetValue, SetValue, GetTheme, GetDocumentValue, GetDocumentNode };

class FakeHostServices final : public HostServices {
 public:
  // Settings service creations, consumed in order.
  void ExpectNoSettingsService();
  void ExpectTheme(const ThemeColors& theme);   // GetTheme fills it, result 0
  void ExpectNoTheme(std::int32_t result = 1);  // GetTheme answers this non-zero result
  void ExpectThemeFailure(Status status);       // GetTheme fails with this status
  void ExpectValue(std::string section, std::string key, std::string value, std::int32_t result = 0);
  void ExpectSetValue(std::string section, std::string key, std::int32_t value, std::int32_t kind,
                      std::int32_t result = 0);
  // GetDocumentValue with these arguments answers `value` and `result`.
  void ExpectDocumentValue(std::string document, std::string xpath, std::string attribute, std::int32_t kind,
                           std::string value, std::int32_t result = 0);
  // GetDocumentNode with these arguments answers `node` and `result`.
  void ExpectDocumentNode(std::string document, std::string xpath, XmlNode node, std::int32_t result = 0);
  // The one call of the next service is `call` (any arguments) and fails with `status`.
  void ExpectSettingsFailure(SettingsCall call, Status status);
  // Help service creations, consumed in order.
  void ExpectNoHelpService();
  void ExpectHelp(std::string book, std::int32_t topicId, std::int32_t flags, std::int32_t result);

  // Field service creations, consumed in order. A service made by ExpectFields answers each
  // GetFields(filter, 7, start, 25) with the records from `start` (none past the end), and
  // records the filter and start of every call; any other kind or count is unexpected.
  void ExpectNoFieldService();
  void ExpectFields(std::vector<std::string> records);
  struct FieldCall {
    std::string filter;
    std::int32_t start = 0;
    friend bool operator==(const FieldCall&, const FieldCall&) = default;
  };
  const std::vector<FieldCall>& FieldCalls() const { return fieldCalls_; }
  void RecordFieldCall(FieldCall call) { fieldCalls_.push_back(std::move(call)); }

  bool AllExpectationsMet() const {
    return settings_.empty() && help_.empty() && fields_.empty() && pendingCalls_ == 0;
  }
  const std::vector<std::string>& UnexpectedCalls() const { return unexpected_; }

  std::unique_ptr<SettingsService> CreateSettingsService() override;
  std::unique_ptr<HelpService> CreateHelpService() override;
  std::unique_ptr<FieldService> CreateFieldService() override;

  // Used by the services this fake hands out.
  [[noreturn]] void Unexpected(const std::string& what);
  void CallDone() { --pendingCalls_; }

  struct SettingsExpectation {
    bool service = true;
    SettingsCall call = SettingsCall::GetTheme;
    // Arguments: section and key, or document, XPath and attribute.
    std::string first, second, third;
    std::int32_t value = 0, kind = 0;
    // Answers.
    ThemeColors theme;
    bool fillTheme = false;
    std::string text;
    XmlNode node;
    std::int32_t result = 0;
    bool fails = false;
    Status status = kStatusOk;
  };
  struct HelpExpectation {
    bool service = false;
    std::string book;
    std::int32_t topicId = 0, flags = 0, result = 0;
  };

 private:
  std::deque<SettingsExpectation> settings_;
  std::deque<HelpExpectation> help_;
  struct FieldsExpectation {
    bool service = false;
    std::vector<std::string> records;
  };
  std::deque<FieldsExpectation> fields_;
  std::vector<FieldCall> fieldCalls_;
  std::vector<std::string> unexpected_;
  int pendingCalls_ = 0;  // services created whose one expected call hasn't come yet
};

}  // namespace orv
