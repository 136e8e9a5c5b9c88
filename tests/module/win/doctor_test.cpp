// The diagnostic run of the program in its own process, read from its standard output.
#include <gtest/gtest.h>
#include <windows.h>

#include <filesystem>
#include <fstream>
#include <string>

namespace {

namespace fs = std::filesystem;

constexpr wchar_t kUserKey[] = L"Software\\Quivera\\QVX\\R88.8";
constexpr wchar_t kMachineFlags[] = L"Software\\Quivera\\QVX\\R88.8\\QVX-1\\InitFlag";

struct DoctorRun {
  DWORD exitCode = 99;
  std::string out;
};

// Reads standard output through a pipe, which ends with the program.
DoctorRun Doctor(const std::wstring& words) {
  SECURITY_ATTRIBUTES inherited{sizeof inherited, nullptr, TRUE};
  HANDLE from = nullptr, to = nullptr;
  if (!::CreatePipe(&from, &to, &inherited, 0)) return {};
  ::SetHandleInformation(from, HANDLE_FLAG_INHERIT, 0);
  wchar_t self[MAX_PATH];
  ::GetModuleFileNameW(nullptr, self, MAX_PATH);
  std::wstring line = L"\"" + (fs::path(self).parent_path() / L"devhost.exe").wstring() +
                      L"\" --doctor --host-version 88.8 " + words;
  STARTUPINFOW start{};
  start.cb = sizeof start;
  start.dwFlags = STARTF_USESTDHANDLES;
  start.hStdOutput = start.hStdError = to;
  PROCESS_INFORMATION process{};
  const BOOL started = ::CreateProcessW(nullptr, line.data(), nullptr, nullptr, TRUE, 0, nullptr,
                                        nullptr, &start, &process);
  ::CloseHandle(to);
  DoctorRun run;
  char block[4096];
  for (DWORD got = 0; started && ::ReadFile(from, block, sizeof block, &got, nullptr) && got;)
    run.out.append(block, got);
  ::CloseHandle(from);
  if (!started) return run;
  ::WaitForSingleObject(process.hProcess, INFINITE);
  ::GetExitCodeProcess(process.hProcess, &run.exitCode);
  ::CloseHandle(process.hThread);
  ::CloseHandle(process.hProcess);
  return run;
}

bool Has(const std::string& text, const std::string& part) { return text.find(part) != text.npos; }

class DoctorTest : public ::testing::Test {
 protected:
  void SetUp() override {
    m_product = fs::temp_directory_path() / "qvx_doctor_test";
    fs::create_directories(m_product);
    Forget();
  }
  void TearDown() override {
    Forget();
    fs::remove_all(m_product);
  }
  static void Forget() {
    ::RegDeleteTreeW(HKEY_CURRENT_USER, kUserKey);
    ::RegDeleteTreeW(HKEY_LOCAL_MACHINE, kUserKey);
  }
  void Write(const char* name, const std::string& bytes) const {
    std::ofstream(m_product / name, std::ios::binary) << bytes;
  }
  DoctorRun OnProduct() const { return Doctor(L"--product \"" + m_product.wstring() + L"\""); }

  fs::path m_product;
};

}  // namespace

TEST_F(DoctorTest, PrintsTheHostsPropertiesAndEverySetting) {
  Write("qvx.ini", "[Product]\nTitle=\xC6\xE6\xCE\xAC\n");
  const DoctorRun run = OnProduct();
  EXPECT_EQ(run.exitCode, 0u) << run.out;
  for (const char* part :
       {"host release: 88.8\n", "host profile: default\n", "code page: 936\n", "support path:\n",
        "qvx_doctor_test\n", "location: Software\\Quivera\\QVX\\R88.8\\QVX-1\n",
        "  Title = \xE5\xA5\x87\xE7\xBB\xB4  [qvx.ini]",
        "  Settings\\ScreenMenu\\SizeX = 76  [default]", "  default\\Menu =   [default]",
        "  g_nSpeedMenu = 3  [default]", "  g_dHostVersion = 88.8  [this run]",
        "  CPROFILE = default  [host]", "  _prefix = "})
    EXPECT_TRUE(Has(run.out, part)) << part << "\n" << run.out;
  EXPECT_FALSE(Has(run.out, "\r"));
}

TEST_F(DoctorTest, WritesNothing) {
  const DoctorRun first = OnProduct();
  EXPECT_TRUE(Has(first.out, "processed at the next start, no value of this release is there"));
  EXPECT_EQ(OnProduct().out, first.out) << "the first run would have written its flag";
  HKEY key = nullptr;
  EXPECT_NE(::RegOpenKeyExW(HKEY_LOCAL_MACHINE, kMachineFlags, 0, KEY_READ, &key), ERROR_SUCCESS);
  EXPECT_NE(::RegOpenKeyExW(HKEY_CURRENT_USER, kUserKey, 0, KEY_READ, &key), ERROR_SUCCESS);
}

TEST_F(DoctorTest, NamesTheFlagThatStopsTheFirstStartList) {
  const DWORD started = 1;
  ::RegSetKeyValueW(HKEY_LOCAL_MACHINE, kMachineFlags, L"InitStart19", REG_DWORD, &started,
                    sizeof started);
  const DoctorRun run = OnProduct();
  EXPECT_TRUE(Has(run.out, "stopped by InitStart19 = 1")) << run.out;
  EXPECT_TRUE(Has(run.out, "  InitFlag\\InitStart19 = 1  [registry]"));
}

TEST_F(DoctorTest, WarnsOfATipFileWithoutTips) {
  Write("qvxtips.txt", "; nothing here\n");
  const DoctorRun run = OnProduct();
  EXPECT_TRUE(Has(run.out, "qvxtips.txt  warning: it has no tip\n")) << run.out;
}

TEST_F(DoctorTest, ReportsAMissingModule) {
  const DoctorRun run = Doctor(L"--arx Z:\\none.arx --product Z:\\no-such-folder");
  EXPECT_EQ(run.exitCode, 3u);
  EXPECT_TRUE(Has(run.out, "Z:\\no-such-folder  warning: not there\n"));
  EXPECT_TRUE(Has(run.out, "Z:\\none.arx  warning: it can't be loaded")) << run.out;
}
