// Every binary of the product and of the development host has the version of the product in its
// resource, in numbers and in words.
#include <gtest/gtest.h>
#include <windows.h>

#include <algorithm>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <vector>

#include "qvx_version.h"

namespace {

namespace fs = std::filesystem;

fs::path ProgramFolder() {
  wchar_t path[MAX_PATH] = L"";
  GetModuleFileNameW(nullptr, path, MAX_PATH);
  return fs::path(path).parent_path();
}

// The version resource of a file; empty if it has none.
std::vector<char> ResourceOf(const fs::path& file) {
  DWORD unused = 0;
  std::vector<char> bytes(GetFileVersionInfoSizeW(file.c_str(), &unused));
  if (!bytes.empty() &&
      !GetFileVersionInfoW(file.c_str(), 0, static_cast<DWORD>(bytes.size()), bytes.data()))
    bytes.clear();
  return bytes;
}

std::wstring Words(const std::vector<char>& resource, const wchar_t* name) {
  void* text = nullptr;
  UINT length = 0;
  const std::wstring path = std::wstring(L"\\StringFileInfo\\080404B0\\") + name;
  return VerQueryValueW(resource.data(), path.c_str(), &text, &length)
             ? static_cast<const wchar_t*>(text)
             : L"";
}

std::wstring Numbers(DWORD high, DWORD low) {
  return std::to_wstring(HIWORD(high)) + L"." + std::to_wstring(LOWORD(high)) +
         (low ? L" and more" : L"");
}

// Modules, libraries and programs. The compiler's libraries and the programs of tests and
// benchmarks are no part of the product.
bool IsOurs(const fs::path& file) {
  const std::wstring name = file.filename().wstring(), suffix = file.extension().wstring();
  if (suffix == L".exe") return name == L"devhost.exe" || name == L"qmn.exe";
  return (suffix == L".arx" && name != L"sibling_pane.arx") ||
         (suffix == L".dll" && name.rfind(L"lib", 0) != 0);
}

std::vector<fs::path> Binaries() {
  std::vector<fs::path> files;
  for (const fs::path& folder : {ProgramFolder(), ProgramFolder() / L"product"})
    for (const auto& entry : fs::directory_iterator(folder))
      if (IsOurs(entry.path())) files.push_back(entry.path());
  return files;
}

TEST(VersionResources, OfEveryBinaryHaveTheVersionOfTheProduct) {
  const std::vector<fs::path> files = Binaries();
  for (const fs::path& file : files) {
    SCOPED_TRACE(file.filename().string());
    const std::vector<char> resource = ResourceOf(file);
    void* fixed = nullptr;
    UINT length = 0;
    ASSERT_FALSE(resource.empty());
    ASSERT_TRUE(VerQueryValueW(resource.data(), L"\\", &fixed, &length));
    const auto& numbers = *static_cast<const VS_FIXEDFILEINFO*>(fixed);
    EXPECT_EQ(Numbers(numbers.dwFileVersionMS, numbers.dwFileVersionLS), QVX_VERSION_WIDE);
    EXPECT_EQ(Numbers(numbers.dwProductVersionMS, numbers.dwProductVersionLS), QVX_VERSION_WIDE);
    EXPECT_EQ(Words(resource, L"FileVersion"), QVX_VERSION_WIDE);
    EXPECT_EQ(Words(resource, L"ProductVersion"), QVX_VERSION_WIDE);
    EXPECT_EQ(Words(resource, L"OriginalFilename"), file.filename().wstring());
    EXPECT_NE(Words(resource, L"FileDescription"), L"");
  }
  for (const wchar_t* name :
       {L"qvx_initstart.arx", L"qvx_kernal.arx", L"qvx_design.arx", L"qvx_annotate.arx", L"qvx.dll",
        L"qmn.exe", L"devhost.exe", L"qvxhost.dll", L"qvxafx.dll"})
    EXPECT_TRUE(std::any_of(files.begin(), files.end(), [&](const fs::path& file) {
      return file.filename() == name;
    })) << fs::path(name).string();
}

// The about box shows NewVersion; the frame's title begins with Title.
TEST(ProductFile, HasTheVersionOfTheProductInTheTitleAndTheVersionLine) {
  std::ifstream file(ProgramFolder() / L"product" / L"qvx.ini", std::ios::binary);
  const std::string text{std::istreambuf_iterator<char>(file), {}};
  EXPECT_NE(text.find("\nNewVersion=" QVX_VERSION), std::string::npos);
  const std::size_t title = text.find("\nTitle=");
  ASSERT_NE(title, std::string::npos);
  EXPECT_NE(text.substr(title, text.find('\n', title + 1) - title).find(" " QVX_VERSION),
            std::string::npos);
}

// The program's own output, through a pipe: a program with or without a console may write it.
std::string OutputOf(const std::wstring& command) {
  std::string out;
  FILE* pipe = _wpopen(command.c_str(), L"rb");
  if (!pipe) return out;
  char part[256];
  while (const std::size_t got = std::fread(part, 1, sizeof part, pipe)) out.append(part, got);
  _pclose(pipe);
  return out;
}

TEST(MenuTool, PrintsTheVersionOfTheProduct) {
  const std::string out = OutputOf((ProgramFolder() / L"qmn.exe").wstring() + L" --version");
  EXPECT_EQ(out.substr(0, out.find_first_of("\r\n")), "qmn " QVX_VERSION);
}

}  // namespace
