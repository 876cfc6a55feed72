#include "dlgkit/fake/FakeHostServices.h"

namespace orv {
namespace {

class FakeSettings final : public SettingsService {
 public:
  FakeSettings(FakeHostServices& owner, FakeHostServices::SettingsExpectation expectation)
      : owner_(owner), expectation_(std::move(expectation)) {}
  void GetTheme(ThemeColors& theme, std::int32_t zero, std::int32_t& result) override {
    if (called_) owner_.Unexpected("a second GetTheme on one settings service");
    if (zero != 0) owner_.Unexpected("GetTheme with a non-zero second argument");
    called_ = true;
    owner_.CallDone();
    switch (expectation_.kind) {
      case FakeHostServices::SettingsExpectation::Theme:
        theme = expectation_.theme;
        result = 0;
        return;
      case FakeHostServices::SettingsExpectation::NoTheme:
        result = expectation_.result;
        return;
      case FakeHostServices::SettingsExpectation::Failure:
        throw XmlComError(expectation_.status, "ISettingsService");
      case FakeHostServices::SettingsExpectation::NoService:
        break;
    }
    owner_.Unexpected("GetTheme on a service that should not exist");
  }

 private:
  FakeHostServices& owner_;
  FakeHostServices::SettingsExpectation expectation_;
  bool called_ = false;
};

class FakeHelp final : public HelpService {
 public:
  FakeHelp(FakeHostServices& owner, FakeHostServices::HelpExpectation expectation)
      : owner_(owner), expectation_(std::move(expectation)) {}
  void ShowHelp(const std::string& book, std::int32_t topicId, std::int32_t flags,
                std::int32_t& result) override {
    if (called_) owner_.Unexpected("a second ShowHelp on one help service");
    if (book != expectation_.book || topicId != expectation_.topicId || flags != expectation_.flags)
      owner_.Unexpected("ShowHelp(" + book + ", " + std::to_string(topicId) + ", " +
                        std::to_string(flags) + "), expected ShowHelp(" + expectation_.book + ", " +
                        std::to_string(expectation_.topicId) + ", " +
                        std::to_string(expectation_.flags) + ")");
    called_ = true;
    owner_.CallDone();
    result = expectation_.result;
  }

 private:
  FakeHostServices& owner_;
  FakeHostServices::HelpExpectation expectation_;
  bool called_ = false;
};

}  // namespace

void FakeHostServices::ExpectNoSettingsService() {
  settings_.push_back({SettingsExpectation::NoService, {}, 0, kStatusOk});
}
void FakeHostServices::ExpectTheme(const ThemeColors& theme) {
  settings_.push_back({SettingsExpectation::Theme, theme, 0, kStatusOk});
}
void FakeHostServices::ExpectNoTheme(std::int32_t result) {
  settings_.push_back({SettingsExpectation::NoTheme, {}, result, kStatusOk});
}
void FakeHostServices::ExpectThemeFailure(Status status) {
  settings_.push_back({SettingsExpectation::Failure, {}, 0, status});
}
void FakeHostServices::ExpectNoHelpService() { help_.push_back({}); }
void FakeHostServices::ExpectHelp(std::string book, std::int32_t topicId, std::int32_t flags,
                                  std::int32_t result) {
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
  if (expectation.kind == SettingsExpectation::NoService) return nullptr;
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
