// The list of modules for the first start of a release, with the real module, a real sibling module
// and the machine's part of the registry.
#include "tests/module/win/module_test.h"

#include <aclapi.h>
#include <sddl.h>

namespace {

constexpr wchar_t kSibling[] = L"qvx_design.arx";

void SetFlag(const wchar_t* name, DWORD value) {
  ::RegSetKeyValueW(HKEY_LOCAL_MACHINE, ProductKey(L"InitFlag").c_str(), name, REG_DWORD, &value,
                    sizeof value);
}

bool HasFlag(const wchar_t* name) {
  return ::RegGetValueW(HKEY_LOCAL_MACHINE, ProductKey(L"InitFlag").c_str(), name, RRF_RT_REG_DWORD,
                        nullptr, nullptr, nullptr) == ERROR_SUCCESS;
}

// Sets everyone's rights on the flags' key ("KR" read, "KA" all).
void AllowOnFlags(const wchar_t* rights) {
  HKEY key = nullptr;
  ::RegCreateKeyExW(HKEY_LOCAL_MACHINE, ProductKey(L"InitFlag").c_str(), 0, nullptr, 0, WRITE_DAC,
                    nullptr, &key, nullptr);
  PSECURITY_DESCRIPTOR descriptor = nullptr;
  ::ConvertStringSecurityDescriptorToSecurityDescriptorW(
      (L"D:P(A;;" + std::wstring(rights) + L";;;WD)").c_str(), SDDL_REVISION_1, &descriptor,
      nullptr);
  ::RegSetKeySecurity(key, DACL_SECURITY_INFORMATION, descriptor);
  ::LocalFree(descriptor);
  ::RegCloseKey(key);
}

class FirstStart : public Module {
 protected:
  void SetUp() override {
    Module::SetUp();
    ForgetFlags();
    HostProcess::Get().Write(L"dmload.rx", "missing.arx\r\n\r\nqvx_design.arx  remark\r\n");
  }
  void TearDown() override {
    Module::TearDown();
    acrxUnloadModule(kSibling);
    ForgetFlags();
    SetNumber(L"Settings", L"g_nCustomFlag", 2);
    HostProcess::Get().Remove(L"dmload.rx");
  }
  static void ForgetFlags() { ::RegDeleteTreeW(HKEY_LOCAL_MACHINE, kProductKey); }

  // Starts the module once; true if it loaded the sibling of the list.
  static bool StartLoadsTheList() {
    EXPECT_TRUE(LoadModule());
    const bool loaded = IsMapped(kSibling);
    acrxUnloadModule(kSibling);
    EXPECT_TRUE(UnloadModule());
    return loaded;
  }
};

}  // namespace

TEST_F(FirstStart, LoadsTheListOnceAndNotAgain) {
  EXPECT_TRUE(StartLoadsTheList());
  EXPECT_TRUE(HasFlag(L"InitStart19"));
  EXPECT_TRUE(HasFlag(L"InitStart19.1"));
  EXPECT_FALSE(StartLoadsTheList());
}

TEST_F(FirstStart, TheOlderValueAloneSuppressesTheList) {
  SetFlag(L"InitStart19", 1);
  EXPECT_FALSE(StartLoadsTheList());
  EXPECT_TRUE(HasFlag(L"InitStart19.1")) << "and both are there afterwards";
}

TEST_F(FirstStart, TheCustomFlagSkipsTheListAndKeepsTheValues) {
  SetNumber(L"Settings", L"g_nCustomFlag", 2 | 8);
  EXPECT_FALSE(StartLoadsTheList());
  EXPECT_FALSE(HasFlag(L"InitStart19"));
  EXPECT_FALSE(HasFlag(L"InitStart19.1"));
}

TEST_F(FirstStart, AModuleThatIsLoadedIsNotLoadedAgain) {
  ASSERT_TRUE(acrxLoadModule(kSibling, true));
  StartAnew();
  EXPECT_TRUE(LoadModule());
  EXPECT_FALSE(Contains(Told("module", "name"), "qvx_design")) << Told("module", "name");
}

TEST_F(FirstStart, WithoutWriteRightsTheStartContinuesAndProcessesTheListEachTime) {
  AllowOnFlags(L"KR");
  for (int start = 0; start < 3; ++start) {
    EXPECT_TRUE(StartLoadsTheList()) << start;
    EXPECT_FALSE(HasFlag(L"InitStart19")) << start;
  }
  ASSERT_TRUE(LoadModule());
  BringUp();
  EXPECT_TRUE(Contains(Shell(), "\"exists\":true")) << "the start went on";
  UnloadModule();
  acrxUnloadModule(kSibling);
  AllowOnFlags(L"KA");
  EXPECT_TRUE(StartLoadsTheList());
  EXPECT_FALSE(StartLoadsTheList()) << "with rights it is once";
}
