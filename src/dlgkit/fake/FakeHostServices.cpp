#include "dlgkit/fake/FakeHostServices.h"

#include <string>
#include <utility>
#include <vector>

namespace orv {
namespace {

const char* CallName(SettingsCall call) {
  switch (call) {
    case SettingsCall::GetValue:
      return "GetValue";
    case SettingsCall::SetValue:
      return "SetValue";
    case SettingsCall::GetTheme:
      return "GetTheme";
    case SettingsCall::GetDocumentValue:
      return "GetDocumentValue";
    case SettingsCall::GetDocumentNode:
      return "GetDocumentNode";
  }
  return "?";
}

std::string Quoted(const std::string& text) { return "\"" + text + "\""; }

class FakeSettings final : public SettingsService {
 public:
  using Expectation = FakeHostServices::SettingsExpectation;
  FakeSettings(FakeHostServices& owner, Expectation expectation)
      : owner_(owner), expectation_(std::move(expectation)) {}

  void GetValue(const std::string& section, const std::string& key, std::string& value, std::int32_t& result) override {
    const std::string call = "GetValue(" + Quoted(section) + ", " + Quoted(key) + ")";
    Begin(SettingsCall::GetValue, call, section == expectation_.first && key == expectation_.second);
    value = expectation_.text;
    result = expectation_.result;
  }
  void SetValue(const std::string& section, const std::string& key, std::int32_t value, std::int32_t kind,
                std::int32_t& result) override {
    const std::string call = "SetValue(" + Quoted(section) + ", " + Quoted(key) + ", " + std::to_string(value) + ", " +
                             std::to_string(kind) + ")";
    Begin(SettingsCall::SetValue, call,
          section == expectation_.first && key == expectation_.second && value == expectation_.value &&
              kind == expectation_.kind);
    result = expectation_.result;
  }
  void GetTheme(ThemeColors& theme, std::int32_t zero, std::int32_t& result) override {
    Begin(SettingsCall::GetTheme, "GetTheme(" + std::to_string(zero) + ")", zero == 0);
    if (expectation_.fillTheme) theme = expectation_.theme;
    result = expectation_.result;
  }
  void GetDocumentValue(const std::string& document, const std::string& xpath, const std::string& attribute,
                        std::int32_t kind, std::string& value, std::int32_t& result) override {
    const std::string call = "GetDocumentValue(" + Quoted(document) + ", " + Quoted(xpath) + ", " + Quoted(attribute) +
                             ", " + std::to_string(kind) + ")";
    Begin(SettingsCall::GetDocumentValue, call,
          document == expectation_.first && xpath == expectation_.second && attribute == expectation_.third &&
              kind == expectation_.kind);
    value = expectation_.text;
    result = expectation_.result;
  }
  void GetDocumentNode(const std::string& document, const std::string& xpath, XmlNode& node,
                       std::int32_t& result) override {
    const std::string call = "GetDocumentNode(" + Quoted(document) + ", " + Quoted(xpath) + ")";
    Begin(SettingsCall::GetDocumentNode, call, document == expectation_.first && xpath == expectation_.second);
    node = expectation_.node;
    result = expectation_.result;
  }

 private:
  // Checks the call against the one expected; raises the expected failure.
  void Begin(SettingsCall call, const std::string& description, bool argumentsMatch) {
    if (called_) owner_.Unexpected("a second call on one settings service: " + description);
    if (call != expectation_.call) {
      owner_.Unexpected(description + ", expected " + CallName(expectation_.call));
    }
    if (!expectation_.fails && !argumentsMatch) {
      owner_.Unexpected(description + ": other arguments than expected");
    }
    called_ = true;
    owner_.CallDone();
    if (expectation_.fails) throw XmlComError(expectation_.status, "ISettingsService");
  }

  FakeHostServices& owner_;
  Expectation expectation_;
  bool called_ = false;
};

class FakeHelp final : public HelpService {
 public:
  FakeHelp(FakeHostServices& owner, FakeHostServices::HelpExpectation expectation)
      : owner_(owner), expectation_(std::move(expectation)) {}
  void ShowHelp(const std::string& book, std::int32_t topicId, std::int32_t flags, std::int32_t& result) override {
    if (called_) owner_.Unexpected("a second ShowHelp on one help service");
    if (book != expectation_.book || topicId != expectation_.topicId || flags != expectation_.flags)
      owner_.Unexpected("ShowHelp(" + book + ", " + std::to_string(topicId) + ", " + std::to_string(flags) +
                        "), expected ShowHelp(" + expectation_.book + ", " + std::to_string(expectation_.topicId) +
                        ", " + std::to_string(expectation_.flags) + ")");
    called_ = true;
    owner_.CallDone();
    result = expectation_.result;
  }

 private:
  FakeHostServices& owner_;
  FakeHostServices::HelpExpectation expectation_;
  bool called_ = false;
};

class FakeFields final : public FieldService {
 public:
  FakeFields(FakeHostServices& owner, std::vector<std::string> records) : owner_(owner), records_(std::move(records)) {}
  void GetFields(const std::string& filter, std::int32_t kind, std::int32_t start, std::int32_t count,
                 std::string& records) override {
    if (kind != kFieldListKind || count != kFieldPageSize || start < 0) {
      owner_.Unexpected("GetFields(" + filter + ", " + std::to_string(kind) + ", " + std::to_string(start) + ", " +
                        std::to_string(count) + ")");
    }
    owner_.RecordFieldCall({filter, start});
    records.clear();
    for (std::size_t i = static_cast<std::size_t>(start);
         i < records_.size() && i < static_cast<std::size_t>(start) + static_cast<std::size_t>(count); ++i)
      records += records_[i];
  }

 private:
  FakeHostServices& owner_;
  std::vector<std::string> records_;
};

}  // namespace

void FakeHostServices::ExpectNoFieldService() { fields_.push_back({}); }
void FakeHostServices::ExpectFields(std::vector<std::string> records) { fields_.push_back({true, std::move(records)}); }

std::unique_ptr<FieldService> FakeHostServices::CreateFieldService() {
  if (fields_.empty()) Unexpected("creation of the field service");
  auto expectation = std::move(fields_.front());
  fields_.pop_front();
  if (!expectation.service) return nullptr;
  return std::make_unique<FakeFields>(*this, std::move(expectation.records));
}

void FakeHostServices::ExpectNoSettingsService() {
  SettingsExpectation expectation;
  expectation.service = false;
  settings_.push_back(std::move(expectation));
}
void FakeHostServices::ExpectTheme(const ThemeColors& theme) {
  SettingsExpectation expectation;
  expectation.theme = theme;
  expectation.fillTheme = true;
  settings_.push_back(std::move(expectation));
}
void FakeHostServices::ExpectNoTheme(std::int32_t result) {
  SettingsExpectation expectation;
  expectation.result = result;
  settings_.push_back(std::move(expectation));
}
void FakeHostServices::ExpectThemeFailure(Status status) { ExpectSettingsFailure(SettingsCall::GetTheme, status); }
void FakeHostServices::ExpectValue(std::string section, std::string key, std::string value, std::int32_t result) {
  SettingsExpectation expectation;
  expectation.call = SettingsCall::GetValue;
  expectation.first = std::move(section);
  expectation.second = std::move(key);
  expectation.text = std::move(value);
  expectation.result = result;
  settings_.push_back(std::move(expectation));
}
void FakeHostServices::ExpectSetValue(std::string section, std::string key, std::int32_t value, std::int32_t kind,
                                      std::int32_t result) {
  SettingsExpectation expectation;
  expectation.call = SettingsCall::SetValue;
  expectation.first = std::move(section);
  expectation.second = std::move(key);
  expectation.value = value;
  expectation.kind = kind;
  expectation.result = result;
  settings_.push_back(std::move(expectation));
}
void FakeHostServices::ExpectDocumentValue(std::string document, std::string xpath, std::string attribute,
                                           std::int32_t kind, std::string value, std::int32_t result) {
  SettingsExpectation expectation;
  expectation.call = SettingsCall::GetDocumentValue;
  expectation.first = std::move(document);
  expectation.second = std::move(xpath);
  expectation.third = std::move(attribute);
  expectation.kind = kind;
  expectation.text = std::move(value);
  expectation.result = result;
  settings_.push_back(std::move(expectation));
}
void FakeHostServices::ExpectDocumentNode(std::string document, std::string xpath, XmlNode node, std::int32_t result) {
  SettingsExpectation expectation;
  expectation.call = SettingsCall::GetDocumentNode;
  expectation.first = std::move(document);
  expectation.second = std::move(xpath);
  expectation.node = std::move(node);
  expectation.result = result;
  settings_.push_back(std::move(expectation));
}
void FakeHostServices::ExpectSettingsFailure(SettingsCall call, Status status) {
  SettingsExpectation expectation;
  expectation.call = call;
  expectation.fails = true;
  expectation.status = status;
  settings_.push_back(std::move(expectation));
}
void FakeHostServices::ExpectNoHelpService() { help_.push_back({}); }
void FakeHostServices::ExpectHelp(std::string book, std::int32_t topicId, std::int32_t flags, std::int32_t result) {
  help_.push_back({true, std::move(book), topicId, flags, result});
}

void FakeHostServices::Unexpected(const std::string& what) {
  unexpected_.push_back(what);
  throw UnexpectedHostCall("unexpected host call: " + what);
}

std::unique_ptr<SettingsService> FakeHostServices::CreateSettingsService() {
  if (settings_.empty()) Unexpected("creation of the settings service");
  auto expectation = settings_.front();
  settings_.pop_front();
  if (!expectation.service) return nullptr;
  ++pendingCalls_;
  return std::make_unique<FakeSettings>(*this, expectation);
}

std::unique_ptr<HelpService> FakeHostServices::CreateHelpService() {
  if (help_.empty()) Unexpected("creation of the help service");
  auto expectation = help_.front();
  help_.pop_front();
  if (!expectation.service) return nullptr;
  ++pendingCalls_;
  return std::make_unique<FakeHelp>(*this, expectation);
}

}  // namespace orv
