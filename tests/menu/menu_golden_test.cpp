// Golden cases: each NAME.qmn in the folder golden with NAME.tokens, NAME.messages and NAME.tree
// beside it, and NAME.bytes, the compiled file in hexadecimal. A new case needs its .qmn and no
// code. On a difference the result is written beside the expectation as .new; tools/accept-golden
// makes it the expectation.
#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>

#include "tests/menu/menu_testing.h"

namespace {

namespace fs = std::filesystem;

fs::path Folder() { return fs::path(QVX_SOURCE_DIR) / "tests" / "menu" / "golden"; }

std::vector<std::string> Cases() {
  std::vector<std::string> names;
  for (const auto& entry : fs::directory_iterator(Folder()))
    if (entry.path().extension() == ".qmn") names.push_back(entry.path().stem().string());
  std::sort(names.begin(), names.end());
  return names;
}

std::string Hex(const std::string& bytes) {
  std::string text;
  for (size_t i = 0; i < bytes.size(); ++i) {
    char code[4];
    std::snprintf(code, sizeof code, "%02X", static_cast<unsigned char>(bytes[i]));
    text += code;
    text += i % 32 == 31 || i + 1 == bytes.size() ? "\n" : " ";
  }
  return text;
}

class MenuGolden : public testing::TestWithParam<std::string> {
 public:
  void Expect(const char* extension, const std::string& actual) {
    const fs::path expected = Folder() / (GetParam() + extension);
    const fs::path fresh = expected.string() + ".new";
    if (ReadFile(expected.wstring()) == actual) {
      std::error_code ignored;
      fs::remove(fresh, ignored);
      return;
    }
    WriteFile(fresh.wstring(), actual);
    ADD_FAILURE() << expected.filename() << " differs, see " << fresh << "\n" << actual;
  }
};

TEST_P(MenuGolden, CompilesAsExpected) {
  const std::string source = ReadFile((Folder() / (GetParam() + ".qmn")).wstring());
  Compiled compiled;
  Compile(source, compiled);
  Expect(".tokens", DumpTokens(source));
  Expect(".messages", compiled.messages.Text());
  Expect(".tree", compiled.Tree());
  Expect(".bytes", Hex(SaveBytes(compiled.system)));
}

INSTANTIATE_TEST_SUITE_P(Cases, MenuGolden, testing::ValuesIn(Cases()),
                         [](const auto& info) { return info.param; });

}  // namespace
