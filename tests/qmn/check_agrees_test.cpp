// Compares the check with the engine over mutated menus and random bytes: an error for each source
// that the engine refuses, none for one that it accepts, and termination. The seed is fixed.
#include <random>

#include "menu/menu_model.h"
#include "tests/qmn/check_testing.h"
#include "tools/qmn/check/check_source.h"
#include "tools/qmn/check/lint_parser.h"
#include "tools/qmn/check/model_view.h"
#include "tools/qmn/encoding.h"
#include "tools/qmn/model_io.h"
#include "tools/qmn/silent_messages.h"

namespace {

namespace fs = std::filesystem;

std::vector<std::string> Menus() {
  std::vector<fs::path> paths;
  for (const fs::path& folder : {ProductFolder(), GoldenFolder()})
    for (const auto& entry : fs::directory_iterator(folder))
      if (entry.path().extension() == ".qmn") paths.push_back(entry.path());
  std::sort(paths.begin(), paths.end());
  std::vector<std::string> menus;
  for (const fs::path& path : paths)
    menus.push_back(path.parent_path() == ProductFolder() ? ProductMenu(path) : ReadBytes(path));
  return menus;
}

class Mutator {
 public:
  explicit Mutator(unsigned seed) : m_random(seed) {}

  size_t Below(size_t count) { return m_random() % count; }

  std::string Mutated(std::string source) {
    for (size_t count = 1 + Below(2); count > 0; --count) Once(source);
    return source;
  }
  // Pieces of the language in random order.
  std::string Salad() {
    std::string out;
    for (size_t count = Below(60); count > 0; --count) out += Piece();
    return out;
  }
  std::string Bytes(size_t count) {
    std::string out;
    while (count--) out += static_cast<char>(m_random());
    return out;
  }

 private:
  const char* Piece() {
    static const char* const kPieces[] = {"MENU_TITLE",
                                          "=",
                                          "\"t\"",
                                          "***",
                                          "COMMON ",
                                          "A ",
                                          "[a]x;\n",
                                          "SWITCH\n",
                                          "**",
                                          "S ",
                                          "GET=g ",
                                          "SET=s ",
                                          "0",
                                          ",",
                                          "***SWITCH\n",
                                          "1.5",
                                          "/*",
                                          "*/",
                                          "//",
                                          "\n",
                                          "***RESOURCE\n",
                                          "[->a]\n",
                                          "\"\\",
                                          "0,\"W\"",
                                          "[<-<-b]\n",
                                          "-7",
                                          " ",
                                          "B=\"i\",\"h\"\n",
                                          "***K L = 0,\"W\",8,\"@X\"\n[x]\n",
                                          "\r\n",
                                          "\xB0",
                                          "POP",
                                          "[",
                                          "MENU_TITLE = \"\"\n***A[a]\n***SWITCH\n***RESOURCE\n",
                                          "***switch\n",
                                          "\t",
                                          "]"};
    return kPieces[Below(std::size(kPieces))];
  }
  void Once(std::string& source) {
    const size_t at = Below(source.size() + 1);
    const size_t length = Below(40);
    switch (Below(7)) {
      case 0:
        source.erase(at, 1 + length);
        break;
      case 1:
        source.insert(at, Piece());
        break;
      case 2:
        if (at < source.size()) source[at] = static_cast<char>(m_random());
        break;
      case 3:
        source.insert(at, source.substr(Below(source.size() + 1), length));
        break;
      case 4:
        source.resize(at);
        break;
      case 5:
        source.insert(at, 1, "\0\"[]*/\n\\<-{}^&"[Below(14)]);
        break;
      default:
        source.insert(at, std::string(190 + Below(20), 'x'));
    }
  }

  std::mt19937 m_random;
};

void ExpectAgreement(const std::string& source) {
  SourceText text(source);
  const Findings findings = CheckSource(text);
  // The engine does not look at the encoding.
  if (EncodingOf(source, kUsualPage) == Encoding::kPage) {
    ASSERT_EQ(findings.Errors() == 0, EngineTakes(source)) << source;
  }
  for (const Finding& finding : findings.InOrder()) {
    ASSERT_LE(finding.end, text.Bytes().size()) << finding.text.English();
    ASSERT_LE(finding.begin, finding.end) << finding.text.English();
  }
}

TEST(CheckAgrees, TheProductMenusHaveNoFindings) {
  for (const auto& entry : fs::directory_iterator(ProductFolder()))
    if (entry.path().extension() == ".qmn") {
      EXPECT_EQ(CodesOf(ProductMenu(entry.path()), {}), std::set<std::string>{}) << entry.path();
      EXPECT_EQ(CodesOf(ReadBytes(entry.path()), {}, kUtf8Page), std::set<std::string>{})
          << entry.path();
    }
}

TEST(CheckAgrees, MutatedMenusHaveAnErrorExactlyWhenTheEngineRefusesThem) {
  const std::vector<std::string> menus = Menus();
  Mutator mutator(20240611);
  int taken = 0;
  for (int i = 0; i < 3000; ++i) {
    const std::string source = mutator.Mutated(menus[mutator.Below(menus.size())]);
    ASSERT_NO_FATAL_FAILURE(ExpectAgreement(source)) << i;
    taken += EngineTakes(source);
  }
  // Both kinds must occur often, or the comparison would be meaningless.
  EXPECT_GT(taken, 300);
  EXPECT_LT(taken, 2700);
}

TEST(CheckAgrees, RandomTokensHaveAnErrorExactlyWhenTheEngineRefusesThem) {
  Mutator mutator(7);
  for (int i = 0; i < 10000; ++i) ASSERT_NO_FATAL_FAILURE(ExpectAgreement(mutator.Salad())) << i;
}

TEST(CheckAgrees, RandomBytesAreReadToTheEnd) {
  Mutator mutator(99);
  for (int i = 0; i < 2000; ++i)
    ASSERT_NO_FATAL_FAILURE(ExpectAgreement(mutator.Bytes(mutator.Below(600)))) << i;
}

// The readable lines must compile by themselves, whatever surrounds them in the file.
TEST(CheckAgrees, TheReadablePartOfABrokenFileCompiles) {
  const std::vector<std::string> menus = Menus();
  Mutator mutator(5);
  for (int i = 0; i < 2000; ++i) {
    SourceText text(i % 2 ? mutator.Salad() : mutator.Mutated(menus[mutator.Below(menus.size())]));
    Findings findings;
    const TokenList tokens = ReadTokens(text, findings);
    const LintTree tree = LintParser(text, tokens, findings).Parse();
    ASSERT_TRUE(ModelView(text, tree).IsWhole()) << text.Bytes();
  }
}

bool HasArrow(const TMenuItem& item) {
  const std::wstring_view label(item.m_strLabel);
  return label.substr(0, 2) == L"->" || label.substr(0, 2) == L"<-";
}

bool AnyArrowIsLeft(const std::string& source) {
  SilentMessages messages;
  TMenuSystem system;
  CompileSource(source, messages, system);
  for (TMenuBar* bar : system) {
    MenuWalk walk(*bar);
    while (const TMenuItem* item = walk.Next())
      if (HasArrow(*item)) return true;
  }
  return false;
}

TEST(CheckAgrees, ArrowsAreReportedExactlyIfTheEngineLeavesOneInALabel) {
  Mutator mutator(31);
  int left = 0;
  for (int i = 0; i < 5000; ++i) {
    std::string lines;
    for (size_t count = 1 + mutator.Below(8); count > 0; --count)
      lines += std::string("[") +
               std::array{"x", "->x", "->y", "<-x", "<-<-x", "<-<-<-x"}[mutator.Below(6)] + "]\n";
    const std::string source = Framed("lines", lines);
    const std::set<std::string> codes = CodesOf(source);
    const bool isLeft = AnyArrowIsLeft(source);
    ASSERT_EQ(codes.count("QMN041") + codes.count("QMN042") > 0, isLeft) << lines;
    left += isLeft;
  }
  EXPECT_GT(left, 100);
  EXPECT_LT(left, 4900);
}

TEST(CheckAgrees, DeepAndLongFilesDoNotOverflowTheStack) {
  std::string lines;
  for (int i = 0; i < 20000; ++i) lines += "[->x]\n";
  EXPECT_EQ(CodesOf(Framed("lines", lines)), std::set<std::string>{"QMN041"});
  lines += "[y]x;\n";
  for (int i = 0; i < 20000; ++i) lines += "[<-x]x;\n";
  EXPECT_EQ(CodesOf(Framed("lines", lines)), std::set<std::string>{});
}

}  // namespace
