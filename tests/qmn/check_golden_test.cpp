// Golden cases: each NAME.qmn in golden/check with its expected findings in NAME.findings. A new
// case needs its .qmn and no code. On a difference the result is written next to the expectation as
// .new; tools/accept-golden accepts it.
#include <algorithm>

#include "tests/qmn/check_testing.h"
#include "tools/qmn/encoding.h"

namespace {

namespace fs = std::filesystem;

fs::path Folder() { return fs::path(QVX_SOURCE_DIR) / "tests" / "qmn" / "golden" / "check"; }

std::vector<std::string> Cases() {
  std::vector<std::string> names;
  for (const auto& entry : fs::directory_iterator(Folder()))
    if (entry.path().extension() == ".qmn") names.push_back(entry.path().stem().string());
  std::sort(names.begin(), names.end());
  return names;
}

class CheckGolden : public testing::TestWithParam<std::string> {};

TEST_P(CheckGolden, IsReportedAsExpected) {
  const fs::path expected = Folder() / (GetParam() + ".findings");
  const fs::path fresh = expected.string() + ".new";
  const std::string source = ReadBytes(Folder() / (GetParam() + ".qmn"));
  const QmnRun run = Qmn({"check", "-"}, source);
  EXPECT_TRUE(run.err.starts_with("1 file checked: ")) << run.err;
  const bool isReadable = EncodingOf(source, kUsualPage) == Encoding::kPage;
  EXPECT_EQ(run.code, isReadable && EngineTakes(source) ? 0 : 1);
  if (ReadBytes(expected) == run.out) {
    std::error_code ignored;
    fs::remove(fresh, ignored);
    return;
  }
  WriteBytes(fresh, run.out);
  ADD_FAILURE() << expected.filename() << " differs, see " << fresh << "\n" << run.out;
}

INSTANTIATE_TEST_SUITE_P(Cases, CheckGolden, testing::ValuesIn(Cases()),
                         [](const auto& info) { return info.param; });

}  // namespace
