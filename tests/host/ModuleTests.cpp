// The DLL's entry points as a host sees them: loaded from disk, reached by GetProcAddress.
#include "host/Module.h"

#include <gtest/gtest.h>

#include <objbase.h>
#include <unknwn.h>

#include <filesystem>
#include <memory>
#include <string>

namespace {

using orv::host::CanUnloadNow;
using orv::host::ModuleLock;

TEST(ModuleCount, UnloadIsRefusedWhileAnythingHoldsTheModule)
{
    ASSERT_EQ(CanUnloadNow(), S_OK);
    {
        ModuleLock object;
        EXPECT_EQ(CanUnloadNow(), S_FALSE);
        {
            ModuleLock copy = object; // a copied object is a second object
            orv::host::LockModule();  // and a LockServer(TRUE) on a factory
            orv::host::UnlockModule();
            EXPECT_EQ(CanUnloadNow(), S_FALSE);
        }
        EXPECT_EQ(CanUnloadNow(), S_FALSE);
    }
    EXPECT_EQ(CanUnloadNow(), S_OK);
    EXPECT_EQ(orv::host::ModuleLockCount(), 0);
}

struct LibraryDeleter {
    void operator()(HMODULE module) const { FreeLibrary(module); }
};
using Library = std::unique_ptr<std::remove_pointer_t<HMODULE>, LibraryDeleter>;

// The DLL is built into the same folder as this program.
std::wstring DllPath()
{
    std::wstring self(MAX_PATH, L'\0');
    self.resize(GetModuleFileNameW(nullptr, self.data(), static_cast<DWORD>(self.size())));
    return (std::filesystem::path(self).parent_path() / L"OrvChartDlgs.dll").wstring();
}

class Dll : public ::testing::Test {
protected:
    void SetUp() override
    {
        library_.reset(LoadLibraryW(DllPath().c_str()));
        ASSERT_TRUE(library_) << "cannot load OrvChartDlgs.dll, error " << GetLastError();
    }
    template <typename F> F Export(const char* name)
    {
        auto proc = GetProcAddress(library_.get(), name);
        EXPECT_NE(proc, nullptr) << name << " is not exported";
        return reinterpret_cast<F>(reinterpret_cast<void*>(proc));
    }
    Library library_;
};

using GetClassObjectFn = HRESULT(STDAPICALLTYPE*)(REFCLSID, REFIID, LPVOID*);
using NoArgFn = HRESULT(STDAPICALLTYPE*)();

// ChartPages, the class a host asks for first.
constexpr CLSID kChartPagesClsid = {0x938D688E, 0x9268, 0x4672, {0x87, 0xAC, 0x84, 0x2D, 0xD8, 0xA6, 0x2A, 0xA8}};

TEST_F(Dll, GetClassObjectRefusesUnknownClassesAndClearsTheOutPointer)
{
    auto getClassObject = Export<GetClassObjectFn>("DllGetClassObject");
    ASSERT_NE(getClassObject, nullptr);

    void* object = reinterpret_cast<void*>(0x1234);
    EXPECT_EQ(getClassObject(kChartPagesClsid, IID_IClassFactory, &object), CLASS_E_CLASSNOTAVAILABLE);
    EXPECT_EQ(object, nullptr);

    object = reinterpret_cast<void*>(0x1234);
    EXPECT_EQ(getClassObject(GUID_NULL, IID_IUnknown, &object), CLASS_E_CLASSNOTAVAILABLE);
    EXPECT_EQ(object, nullptr);

    EXPECT_EQ(getClassObject(kChartPagesClsid, IID_IClassFactory, nullptr), E_POINTER);
}

TEST_F(Dll, AFreshlyLoadedModuleCanBeUnloaded)
{
    auto canUnloadNow = Export<NoArgFn>("DllCanUnloadNow");
    ASSERT_NE(canUnloadNow, nullptr);
    EXPECT_EQ(canUnloadNow(), S_OK);
}

TEST_F(Dll, RegistrationEntryPointsSucceed)
{
    auto registerServer = Export<NoArgFn>("DllRegisterServer");
    auto unregisterServer = Export<NoArgFn>("DllUnregisterServer");
    ASSERT_NE(registerServer, nullptr);
    ASSERT_NE(unregisterServer, nullptr);
    EXPECT_EQ(registerServer(), S_OK);
    EXPECT_EQ(unregisterServer(), S_OK);
    // Unregistering what is not registered is not an error either.
    EXPECT_EQ(unregisterServer(), S_OK);
}

} // namespace
