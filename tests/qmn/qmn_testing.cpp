#include "tests/qmn/qmn_testing.h"

#include <fstream>
#include <iterator>
#include <random>
#include <sstream>

#include "tools/qmn/code_page.h"
#include "tools/qmn/encoding.h"
#include "tools/qmn/qmn_tool.h"

namespace fs = std::filesystem;

const char kGoodSource[] =
    "MENU_TITLE = \"T\"\n"
    "***SCREEN\n"
    "[->Draw]\n"
    "A [{!=Locked}Line]^C^CLINE;\n"
    "[<-]\n"
    "S [*SWITCH*]\n"
    "***WALL_MENU WALL = 8,\"X\",62,3\n"
    "[Edit \"a\\\"]\n"
    "***SWITCH\n"
    "**S GET=GetS SET=SetS\n"
    "0=A,\"off\"\n"
    "***RESOURCE\n"
    "A = \"BMP_A\",\"help\"\n";

QmnRun Qmn(const std::vector<std::string>& args, const std::string& in, bool colour) {
  std::istringstream input(in);
  std::ostringstream out, err;
  const int code = RunQmn(args, {input, out, err, colour});
  return {code, out.str(), err.str()};
}

std::string ReadBytes(const fs::path& path) {
  std::ifstream file(path, std::ios::binary);
  if (!file) return "<missing>";
  return {std::istreambuf_iterator<char>(file), {}};
}

void WriteBytes(const fs::path& path, const std::string& bytes) {
  std::ofstream(path, std::ios::binary) << bytes;
}

std::string Utf8Name(const fs::path& path) {
  const std::u8string name = path.u8string();
  return {name.begin(), name.end()};
}

fs::path GoldenFolder() { return fs::path(QVX_SOURCE_DIR) / "tests" / "menu" / "golden"; }
std::string ProductMenu(const fs::path& path) {
  return FromUtf8(ReadBytes(path), kUsualPage).bytes;
}
fs::path ProductFolder() { return fs::path(QVX_SOURCE_DIR) / "product"; }

QmnTest::QmnTest()
    : m_folder(fs::temp_directory_path() / ("qmn_" + std::to_string(std::random_device{}()))) {
  fs::create_directories(m_folder);
}

QmnTest::~QmnTest() {
  std::error_code ignored;
  fs::remove_all(m_folder, ignored);
}

std::string QmnTest::Write(const char8_t* file, const std::string& bytes) const {
  WriteBytes(m_folder / file, bytes);
  return Name(file);
}

int QmnTest::FileCount() const {
  int count = 0;
  for ([[maybe_unused]] const auto& entry : fs::directory_iterator(m_folder)) ++count;
  return count;
}

std::string GoodBytes() { return Qmn({"compile", "-"}, kGoodSource).out; }
