#include "HostServiceObjects.h"

#include "ComObjects.h"

#include "com/ComObject.h"
#include "com/WideText.h"
#include "xml/Xml.h"
#include "xml/msxml/MsxmlGuids.h"

#include <cwctype>
#include <functional>
#include <span>

namespace orv::host_app {
namespace {

std::wstring Upper(std::wstring text) {
  for (wchar_t& c : text) c = static_cast<wchar_t>(std::towupper(c));
  return text;
}

std::string Printable(const std::wstring& text) {
  return EscapeEventText(text.c_str(), static_cast<UINT>(text.size()));
}

// The node that `xpath` selects, or null; a malformed XPath is the caller's error.
HRESULT SelectNode(IXMLDOMDocument2* document, BSTR xpath, ComPtr<IXMLDOMNode>& node) {
  const HRESULT hr = document->selectSingleNode(xpath, node.put());
  if (FAILED(hr)) return hr == E_FAIL ? E_INVALIDARG : hr;
  return S_OK;
}

// An element's attribute, or the node's own text when `attribute` is empty.
bool NodeValue(IXMLDOMNode* node, BSTR attribute, std::wstring& value) {
  if (SysStringLen(attribute) == 0) {
    Bstr text;
    if (FAILED(node->get_text(text.put()))) return false;
    value = WideFromBstr(text.get());
    return true;
  }
  ComPtr<IXMLDOMElement> element;
  if (FAILED(node->QueryInterface(msxml::kIID_IXMLDOMElement, reinterpret_cast<void**>(element.put())))) return false;
  Variant answer;
  if (element->getAttribute(attribute, answer.put()) != S_OK || answer.get().vt != VT_BSTR) return false;
  value = WideFromBstr(answer.get().bstrVal);
  return true;
}

// Each element child of `parent` in order.
void ForEachElement(IXMLDOMNode* parent, const std::function<void(IXMLDOMNode*)>& visit) {
  ComPtr<IXMLDOMNode> child;
  if (FAILED(parent->get_firstChild(child.put()))) return;
  while (child) {
    DOMNodeType type = NODE_INVALID;
    if (SUCCEEDED(child->get_nodeType(&type)) && type == NODE_ELEMENT) visit(child.get());
    ComPtr<IXMLDOMNode> next;
    if (FAILED(child->get_nextSibling(next.put()))) return;
    child = std::move(next);
  }
}

std::wstring NodeName(IXMLDOMNode* node) {
  Bstr name;
  if (FAILED(node->get_nodeName(name.put()))) return {};
  return WideFromBstr(name.get());
}

std::wstring Attribute(IXMLDOMNode* node, const wchar_t* name) {
  std::wstring value;
  Bstr attribute = MakeBstr(name);
  NodeValue(node, attribute.get(), value);
  return value;
}

// A plain single-threaded COM object: the component calls it on this thread only. The
// dispatch half is not served: the component calls the dual interfaces through their vtables.
template <typename Object, typename Interface>
class ServiceObject : public ComObject<Object, Interface> {
 public:
  explicit ServiceObject(std::shared_ptr<HostSettings> settings) : settings_(std::move(settings)) {}

  // The service's own interface and IDispatch, both answered by the dual interface.
  static std::span<const ComInterfaceEntry> Interfaces() {
    static constexpr ComInterfaceEntry table[] = {
        ComInterface<Object, Interface>(Object::kIid),
        ComInterface<Object, Interface>(IID_IDispatch),
    };
    return table;
  }

  HRESULT STDMETHODCALLTYPE GetTypeInfoCount(UINT* count) override {
    if (count == nullptr) return E_POINTER;
    *count = 0;
    return S_OK;
  }
  HRESULT STDMETHODCALLTYPE GetTypeInfo(UINT, LCID, ITypeInfo** info) override {
    if (info != nullptr) *info = nullptr;
    return E_NOTIMPL;
  }
  HRESULT STDMETHODCALLTYPE GetIDsOfNames(REFIID, LPOLESTR*, UINT, LCID, DISPID*) override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE Invoke(DISPID, REFIID, LCID, WORD, DISPPARAMS*, VARIANT*, EXCEPINFO*, UINT*) override {
    return DISP_E_MEMBERNOTFOUND;
  }

 protected:
  std::shared_ptr<HostSettings> settings_;
};

constexpr long kFound = 0;
constexpr long kNotFound = 1;

class SettingsService final : public ServiceObject<SettingsService, ISettingsService> {
 public:
  static constexpr const IID& kIid = IID_ISettingsService;
  explicit SettingsService(std::shared_ptr<HostSettings> settings) : ServiceObject(std::move(settings)) {}

  HRESULT STDMETHODCALLTYPE GetValue(BSTR section, BSTR key, VARIANT* value, LONG* result) override {
    if (value == nullptr || result == nullptr) return E_POINTER;
    VariantInit(value);
    std::wstring text;
    if (!settings_->Value(WideFromBstr(section), WideFromBstr(key), text)) {
      *result = kNotFound;
      return S_OK;
    }
    value->bstrVal = SysAllocStringLen(text.data(), static_cast<UINT>(text.size()));
    if (value->bstrVal == nullptr) return E_OUTOFMEMORY;
    value->vt = VT_BSTR;
    *result = kFound;
    return S_OK;
  }
  HRESULT STDMETHODCALLTYPE SetValue(BSTR section, BSTR key, LONG value, LONG kind, LONG* result) override {
    if (result == nullptr) return E_POINTER;
    settings_->SetValue(WideFromBstr(section), WideFromBstr(key), std::to_wstring(value));
    std::fprintf(settings_->Output(), "SetValue: %s %s %ld %ld\n", Printable(WideFromBstr(section)).c_str(),
                 Printable(WideFromBstr(key)).c_str(), static_cast<long>(value), static_cast<long>(kind));
    std::fflush(settings_->Output());
    *result = kFound;
    return S_OK;
  }
  HRESULT STDMETHODCALLTYPE GetTheme(LONG* themeRecord, LONG, LONG* result) override {
    if (themeRecord == nullptr || result == nullptr) return E_POINTER;
    long record[kThemeColorCount] = {};
    if (!settings_->Theme(record)) {
      *result = kNotFound;
      return S_OK;
    }
    for (int i = 0; i < kThemeColorCount; ++i) themeRecord[i] = record[i];
    *result = kFound;
    return S_OK;
  }
  HRESULT STDMETHODCALLTYPE GetDocumentValue(BSTR document, BSTR xpath, BSTR attribute, LONG, BSTR* value,
                                             LONG* result) override {
    if (value == nullptr || result == nullptr) return E_POINTER;
    *value = nullptr;
    *result = kNotFound;
    std::wstring text;
    if (IXMLDOMDocument2* doc = settings_->Document(WideFromBstr(document))) {
      ComPtr<IXMLDOMNode> node;
      const HRESULT hr = SelectNode(doc, xpath, node);
      if (FAILED(hr)) return hr;
      if (node && NodeValue(node.get(), attribute, text)) *result = kFound;
    }
    // Always a string, empty when nothing was found.
    *value = SysAllocStringLen(text.data(), static_cast<UINT>(text.size()));
    return *value != nullptr ? S_OK : E_OUTOFMEMORY;
  }
  HRESULT STDMETHODCALLTYPE GetDocumentNode(BSTR document, BSTR xpath, IUnknown** node, LONG* result) override {
    if (node == nullptr || result == nullptr) return E_POINTER;
    *node = nullptr;
    *result = kNotFound;
    IXMLDOMDocument2* doc = settings_->Document(WideFromBstr(document));
    if (doc == nullptr) return S_OK;
    ComPtr<IXMLDOMNode> found;
    const HRESULT hr = SelectNode(doc, xpath, found);
    if (FAILED(hr)) return hr;
    if (!found) return S_OK;
    *result = kFound;
    return found->QueryInterface(IID_IUnknown, reinterpret_cast<void**>(node));
  }
};

class HelpService final : public ServiceObject<HelpService, IHelpService> {
 public:
  static constexpr const IID& kIid = IID_IHelpService;
  explicit HelpService(std::shared_ptr<HostSettings> settings) : ServiceObject(std::move(settings)) {}

  HRESULT STDMETHODCALLTYPE ShowHelp(BSTR book, LONG topicId, LONG flags, LONG* result) override {
    if (result == nullptr) return E_POINTER;
    std::fprintf(settings_->Output(), "ShowHelp: %s %ld %ld\n", Printable(WideFromBstr(book)).c_str(),
                 static_cast<long>(topicId), static_cast<long>(flags));
    std::fflush(settings_->Output());
    *result = 0;
    return S_OK;
  }
};

// Makes a new service at each creation, as the component expects.
class ServiceFactory final : public ComObject<ServiceFactory, IClassFactory> {
 public:
  using Creator = std::function<HRESULT(REFIID, void**)>;
  explicit ServiceFactory(Creator create) : create_(std::move(create)) {}

  static std::span<const ComInterfaceEntry> Interfaces() {
    static constexpr ComInterfaceEntry table[] = {ComInterface<ServiceFactory, IClassFactory>(IID_IClassFactory)};
    return table;
  }
  HRESULT STDMETHODCALLTYPE CreateInstance(IUnknown* outer, REFIID iid, void** object) override {
    if (object == nullptr) return E_POINTER;
    *object = nullptr;
    if (outer != nullptr) return CLASS_E_NOAGGREGATION;
    return create_(iid, object);
  }
  HRESULT STDMETHODCALLTYPE LockServer(BOOL) override { return S_OK; }

 private:
  Creator create_;
};

template <typename Interface>
HRESULT Hand(ComPtr<Interface> service, REFIID iid, void** object) {
  return service->QueryInterface(iid, object);
}

}  // namespace

HRESULT MakeXmlDocument(const std::wstring& text, ComPtr<IXMLDOMDocument2>& document) {
  CLSID clsid{};
  HRESULT hr = CLSIDFromProgID(L"Microsoft.XMLDOM", &clsid);
  if (SUCCEEDED(hr)) {
    hr = CoCreateInstance(clsid, nullptr, CLSCTX_INPROC_SERVER, msxml::kIID_IXMLDOMDocument2,
                          reinterpret_cast<void**>(document.put()));
  }
  if (FAILED(hr)) return hr;
  document->put_async(VARIANT_FALSE);
  Bstr xml = MakeBstr(text);
  VARIANT_BOOL loaded = VARIANT_FALSE;
  hr = document->loadXML(xml.get(), &loaded);
  return FAILED(hr) || loaded != VARIANT_TRUE ? S_FALSE : S_OK;
}

bool HostSettings::AddDocument(const std::wstring& name, const std::wstring& text, std::string& error) {
  ComPtr<IXMLDOMDocument2> document;
  const HRESULT hr = MakeXmlDocument(text, document);
  if (FAILED(hr)) {
    error = "cannot create Microsoft.XMLDOM for the " + Printable(name) + " document";
    return false;
  }
  if (hr != S_OK) {
    error = "the " + Printable(name) + " document is not well-formed XML";
    return false;
  }
  // The component asks in XPath; older parsers default to XSL patterns.
  Variant language;
  language.SetBstr(MakeBstr(L"XPath"));
  Bstr property = MakeBstr(L"SelectionLanguage");
  document->setProperty(property.get(), language.get());
  const std::wstring key = Upper(name);
  if (key == L"PREFS") {
    ComPtr<IXMLDOMNode> table;
    Bstr path = MakeBstr(L"//General/Values");
    if (SUCCEEDED(SelectNode(document.get(), path.get(), table)) && table) {
      ForEachElement(table.get(), [this](IXMLDOMNode* value) {
        if (NodeName(value) != L"Value") return;
        std::wstring text;
        NodeValue(value, nullptr, text);
        SetValue(Attribute(value, L"Section"), Attribute(value, L"Key"), text);
      });
    }
  }
  documents_[key] = std::move(document);
  return true;
}

IXMLDOMDocument2* HostSettings::Document(const std::wstring& name) const {
  const auto found = documents_.find(Upper(name));
  return found != documents_.end() ? found->second.get() : nullptr;
}

bool HostSettings::Theme(long (&record)[kThemeColorCount]) const {
  IXMLDOMDocument2* prefs = Document(L"PREFS");
  if (prefs == nullptr) return false;
  ComPtr<IXMLDOMNode> theme;
  Bstr path = MakeBstr(L"//General/Theme");
  if (FAILED(SelectNode(prefs, path.get(), theme)) || !theme) return false;
  int index = 0;
  ForEachElement(theme.get(), [&](IXMLDOMNode* color) {
    if (index >= kThemeColorCount || NodeName(color) != L"Color") return;
    std::wstring text;
    NodeValue(color, nullptr, text);
    std::uint32_t value = 0;
    XmlParseValue(Printable(text), value);
    record[index++] = static_cast<long>(value);
  });
  return true;
}

bool HostSettings::Value(const std::wstring& section, const std::wstring& key, std::wstring& value) const {
  const auto found = values_.find({section, key});
  if (found == values_.end()) return false;
  value = found->second;
  return true;
}

void HostSettings::SetValue(const std::wstring& section, const std::wstring& key, std::wstring value) {
  values_[{section, key}] = std::move(value);
}

ComPtr<ISettingsService> MakeSettingsService(std::shared_ptr<HostSettings> settings) {
  return SettingsService::Make(std::move(settings));
}

ComPtr<IHelpService> MakeHelpService(std::shared_ptr<HostSettings> settings) {
  return HelpService::Make(std::move(settings));
}

ServiceRegistration::~ServiceRegistration() {
  for (const DWORD cookie : cookies_) CoRevokeClassObject(cookie);
}

HRESULT ServiceRegistration::Register(std::shared_ptr<HostSettings> settings) {
  const std::pair<const CLSID*, ServiceFactory::Creator> classes[] = {
      {&kClsidSettingsService,
       [settings](REFIID iid, void** object) { return Hand(MakeSettingsService(settings), iid, object); }},
      {&kClsidHelpService,
       [settings](REFIID iid, void** object) { return Hand(MakeHelpService(settings), iid, object); }},
  };
  for (const auto& [clsid, creator] : classes) {
    const ComPtr<ServiceFactory> factory = ServiceFactory::Make(creator);
    DWORD cookie = 0;
    // This process only; CoCreateInstance in any context the component asks for finds it.
    const HRESULT hr = CoRegisterClassObject(*clsid, factory.get(), CLSCTX_INPROC_SERVER, REGCLS_MULTIPLEUSE, &cookie);
    if (FAILED(hr)) return hr;
    cookies_.push_back(cookie);
  }
  return S_OK;
}

}  // namespace orv::host_app
