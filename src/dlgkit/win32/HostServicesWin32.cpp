#include "dlgkit/win32/HostServicesWin32.h"

#include <memory>
#include <string>

#include "com/WideText.h"
#include "xml/XmlError.h"
#include "xml/msxml/XmlMsxml.h"

namespace orv {
namespace {

constexpr char kSettingsContext[] = "ISettingsService";

template <class I>
ComPtr<I> Create(const CLSID& clsid, const IID& iid) {
  ComPtr<I> object;
  if (FAILED(::CoCreateInstance(clsid, nullptr, kHostServiceContext, iid, reinterpret_cast<void**>(object.put()))))
    return nullptr;
  return object;
}

class ComSettingsService final : public SettingsService {
 public:
  explicit ComSettingsService(ComPtr<ISettingsService> service) : service_(std::move(service)) {}
  void GetValue(const std::string& section, const std::string& key, std::string& value, std::int32_t& result) override {
    Bstr sectionText = MakeBstr(section);
    Bstr keyText = MakeBstr(key);
    Variant answer;
    long status = 0;
    XmlCheck(service_->GetValue(sectionText.get(), keyText.get(), answer.put(), &status), kSettingsContext);
    result = status;
    // Whatever type the host answers with, the program takes its text; empty and null are none.
    if (answer.get().vt == VT_EMPTY || answer.get().vt == VT_NULL) {
      value.clear();
      return;
    }
    Variant text;
    XmlCheck(::VariantChangeType(text.put(), &answer.get(), 0, VT_BSTR), kSettingsContext);
    value = NarrowFromBstr(text.get().bstrVal);
  }
  void SetValue(const std::string& section, const std::string& key, std::int32_t value, std::int32_t kind,
                std::int32_t& result) override {
    Bstr sectionText = MakeBstr(section);
    Bstr keyText = MakeBstr(key);
    long status = 0;
    XmlCheck(service_->SetValue(sectionText.get(), keyText.get(), value, kind, &status), kSettingsContext);
    result = status;
  }
  void GetTheme(ThemeColors& theme, std::int32_t zero, std::int32_t& result) override {
    static_assert(sizeof(long) == sizeof(std::uint32_t), "the host fills 32-bit entries");
    long answer = 0;
    XmlCheck(service_->GetTheme(reinterpret_cast<long*>(theme.data()), zero, &answer), kSettingsContext);
    result = answer;
  }
  void GetDocumentValue(const std::string& document, const std::string& xpath, const std::string& attribute,
                        std::int32_t kind, std::string& value, std::int32_t& result) override {
    Bstr documentText = MakeBstr(document);
    Bstr xpathText = MakeBstr(xpath);
    Bstr attributeText = MakeBstr(attribute);
    Bstr owned;  // freed also when the call failed but gave a text
    long status = 0;
    const HRESULT hr = service_->GetDocumentValue(documentText.get(), xpathText.get(), attributeText.get(), kind,
                                                  owned.put(), &status);
    XmlCheck(hr, kSettingsContext);
    value = NarrowFromBstr(owned.get());
    result = status;
  }
  void GetDocumentNode(const std::string& document, const std::string& xpath, XmlNode& node,
                       std::int32_t& result) override {
    Bstr documentText = MakeBstr(document);
    Bstr xpathText = MakeBstr(xpath);
    ComPtr<IUnknown> owned;
    long status = 0;
    const HRESULT hr = service_->GetDocumentNode(documentText.get(), xpathText.get(), owned.put(), &status);
    XmlCheck(hr, kSettingsContext);
    // Anything but a DOM node counts as no node.
    node = XmlWrapUnknown(owned.get());
    result = status;
  }

 private:
  ComPtr<ISettingsService> service_;
};

class ComHelpService final : public HelpService {
 public:
  explicit ComHelpService(ComPtr<IHelpService> service) : service_(std::move(service)) {}
  void ShowHelp(const std::string& book, std::int32_t topicId, std::int32_t flags, std::int32_t& result) override {
    Bstr bookText = MakeBstr(book);
    long answer = 0;
    XmlCheck(service_->ShowHelp(bookText.get(), topicId, flags, &answer), "IHelpService");
    result = answer;
  }

 private:
  ComPtr<IHelpService> service_;
};

class ComHostServices final : public HostServices {
 public:
  std::unique_ptr<SettingsService> CreateSettingsService() override {
    auto service = Create<ISettingsService>(kClsidSettingsService, kIidSettingsService);
    if (!service) return nullptr;
    return std::make_unique<ComSettingsService>(std::move(service));
  }
  std::unique_ptr<HelpService> CreateHelpService() override {
    auto service = Create<IHelpService>(kClsidHelpService, kIidHelpService);
    if (!service) return nullptr;
    return std::make_unique<ComHelpService>(std::move(service));
  }
};

}  // namespace

HostServices& PlatformHostServices() {
  static ComHostServices services;
  return services;
}

}  // namespace orv
