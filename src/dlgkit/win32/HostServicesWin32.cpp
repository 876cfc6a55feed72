#include "dlgkit/win32/HostServicesWin32.h"

#include <memory>
#include <string>

#include "xml/XmlError.h"

namespace orv {
namespace {

struct ReleaseDeleter {
  void operator()(IUnknown* unknown) const { unknown->Release(); }
};
template <class I>
using ComRef = std::unique_ptr<I, ReleaseDeleter>;

struct BstrDeleter {
  void operator()(BSTR text) const { ::SysFreeString(text); }
};
using OwnedBstr = std::unique_ptr<OLECHAR, BstrDeleter>;

// Narrow text in the thread's code page to a BSTR for the COM boundary.
OwnedBstr ToBstr(const std::string& text) {
  const int length = ::MultiByteToWideChar(CP_THREAD_ACP, 0, text.data(), static_cast<int>(text.size()), nullptr, 0);
  OwnedBstr result(::SysAllocStringLen(nullptr, static_cast<UINT>(length > 0 ? length : 0)));
  if (!result) throw XmlComError(kStatusOutOfMemory, "IHelpService");
  if (length > 0)
    ::MultiByteToWideChar(CP_THREAD_ACP, 0, text.data(), static_cast<int>(text.size()), result.get(), length);
  return result;
}

template <class I>
ComRef<I> Create(const CLSID& clsid, const IID& iid) {
  void* object = nullptr;
  if (FAILED(::CoCreateInstance(clsid, nullptr, kHostServiceContext, iid, &object)) || !object) return nullptr;
  return ComRef<I>(static_cast<I*>(object));
}

class ComSettingsService final : public SettingsService {
 public:
  explicit ComSettingsService(ComRef<ISettingsService> service) : service_(std::move(service)) {}
  void GetTheme(ThemeColors& theme, std::int32_t zero, std::int32_t& result) override {
    static_assert(sizeof(long) == sizeof(std::uint32_t), "the host fills 32-bit entries");
    long answer = 0;
    XmlCheck(service_->GetTheme(reinterpret_cast<long*>(theme.data()), zero, &answer), "ISettingsService");
    result = answer;
  }

 private:
  ComRef<ISettingsService> service_;
};

class ComHelpService final : public HelpService {
 public:
  explicit ComHelpService(ComRef<IHelpService> service) : service_(std::move(service)) {}
  void ShowHelp(const std::string& book, std::int32_t topicId, std::int32_t flags, std::int32_t& result) override {
    OwnedBstr bookText = ToBstr(book);
    long answer = 0;
    XmlCheck(service_->ShowHelp(bookText.get(), topicId, flags, &answer), "IHelpService");
    result = answer;
  }

 private:
  ComRef<IHelpService> service_;
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
