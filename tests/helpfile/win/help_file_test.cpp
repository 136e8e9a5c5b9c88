// The product's help file is opened by the system's own reader of HTML help; it has a page for
// every keyword that F1 looks up, and the index that the lookup uses.
#include <gtest/gtest.h>
#include <ole2.h>
#include <windows.h>

#include <filesystem>
#include <fstream>
#include <set>
#include <sstream>
#include <string>

// The storage of HTML help files; not in the system's headers. Outside of the unnamed namespace,
// where the compiler would assume that no class implements it.
struct HelpStorage : IUnknown {
  virtual HRESULT STDMETHODCALLTYPE StgCreateDocfile(const WCHAR*, DWORD, DWORD, IStorage**) = 0;
  virtual HRESULT STDMETHODCALLTYPE StgCreateDocfileOnILockBytes(ILockBytes*, DWORD, DWORD,
                                                                 IStorage**) = 0;
  virtual HRESULT STDMETHODCALLTYPE StgIsStorageFile(const WCHAR*) = 0;
  virtual HRESULT STDMETHODCALLTYPE StgIsStorageILockBytes(ILockBytes*) = 0;
  virtual HRESULT STDMETHODCALLTYPE StgOpenStorage(const WCHAR*, IStorage*, DWORD, SNB, DWORD,
                                                   IStorage**) = 0;
};
namespace {

namespace fs = std::filesystem;

constexpr GUID kHelpStorageClass = {
    0x5d02926a, 0x212e, 0x11d0, {0x9d, 0xf9, 0x00, 0xa0, 0xc9, 0x22, 0xe6, 0xec}};
constexpr GUID kHelpStorageInterface = {
    0x88cc31de, 0x27ab, 0x11d0, {0x9d, 0xf9, 0x00, 0xa0, 0xc9, 0x22, 0xe6, 0xec}};

fs::path ProductFolder() {
  wchar_t path[MAX_PATH] = L"";
  GetModuleFileNameW(nullptr, path, MAX_PATH);
  return fs::path(path).parent_path() / L"product";
}

class HelpFile : public ::testing::Test {
 protected:
  void SetUp() override {
    ASSERT_TRUE(SUCCEEDED(OleInitialize(nullptr)));
    HelpStorage* reader = nullptr;
    ASSERT_EQ(CoCreateInstance(kHelpStorageClass, nullptr, CLSCTX_INPROC_SERVER,
                               kHelpStorageInterface, reinterpret_cast<void**>(&reader)),
              S_OK);
    const HRESULT opened =
        reader->StgOpenStorage((ProductFolder() / L"qvxhelp.chm").c_str(), nullptr,
                               STGM_READ | STGM_SHARE_DENY_WRITE, nullptr, 0, &m_file);
    reader->Release();
    ASSERT_EQ(opened, S_OK);
  }
  void TearDown() override {
    if (m_file) m_file->Release();
    OleUninitialize();
  }

  // Empty if the file has no such stream.
  std::string Read(const std::wstring& name) {
    IStream* stream = nullptr;
    std::string bytes;
    if (m_file->OpenStream(name.c_str(), nullptr, STGM_READ, 0, &stream) != S_OK) return bytes;
    char part[1024];
    ULONG got = 0;
    while (SUCCEEDED(stream->Read(part, sizeof part, &got)) && got > 0) bytes.append(part, got);
    stream->Release();
    return bytes;
  }

  IStorage* m_file = nullptr;
};

TEST_F(HelpFile, HasAPageForEveryKeyword) {
  std::set<std::string> headings;
  for (int i = 0;; ++i) {
    const std::string page = Read(L"/topic" + std::to_wstring(i) + L".htm");
    if (page.empty()) break;
    const std::size_t from = page.find("<h1>") + 4;
    headings.insert(page.substr(from, page.find("</h1>") - from));
  }
  std::ifstream table(ProductFolder() / L"qvxcmd.txt", std::ios::binary);
  int keywords = 0;
  for (std::string line; std::getline(table, line); ++keywords) {
    std::string keyword;
    std::istringstream(line) >> keyword;
    EXPECT_TRUE(headings.count(keyword)) << line;
  }
  EXPECT_GT(keywords, 40);
}

TEST_F(HelpFile, HasTheIndexForLookups) {
  EXPECT_FALSE(Read(L"/$WWKeywordLinks/BTree").empty());
  EXPECT_FALSE(Read(L"/help.hhk").empty());
}

}  // namespace
