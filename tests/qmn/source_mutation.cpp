#include "tests/qmn/source_mutation.h"

#include <algorithm>
#include <filesystem>

#include "tests/qmn/qmn_testing.h"

namespace fs = std::filesystem;

namespace {

// Pieces that are valid at many places of a source, so that most mutations still compile.
const char* const kInLines[] = {"^",        ";",     "\"",  "^\"", " ",    "\t",       "<-",
                                "->",       "{~=F}", "{x}", "]",   "\x1b", "^C",       "\xFF",
                                "\xC7\xBD", "{",     "[",   "\\",  "\r",   "*SWITCH*", "  "};
const char* const kBetween[] = {
    "\n", "\n\n", " ", "\t", "// c\n", " /* c */ ", "/* \n */", "\r\n", "// \xC7\xBD  \n\n"};

size_t LineStart(const std::string& text, size_t at) {
  const size_t newline = text.rfind('\n', at);
  return newline == std::string::npos ? 0 : newline + 1;
}

void Mutate(std::string& text, std::mt19937& random) {
  const size_t at = random() % (text.size() + 1);
  const size_t start = LineStart(text, at);
  switch (random() % 8) {
    case 0:  // inside a line, most often a menu line
    case 1:
    case 2:
      text.insert(at, kInLines[random() % std::size(kInLines)]);
      break;
    case 3:
      text.insert(start, kBetween[random() % std::size(kBetween)]);
      break;
    case 4:
      text.insert(at, kBetween[random() % std::size(kBetween)]);
      break;
    case 5:  // duplicates a line
      text.insert(start, text.substr(start, text.find('\n', start) - start + 1));
      break;
    case 6:
      text.erase(start, std::min(text.find('\n', start), text.size() - 1) - start + 1);
      break;
    default:
      text.erase(at, random() % 3);
  }
}

}  // namespace

std::vector<std::string> SeedSources() {
  std::vector<fs::path> paths;
  for (const fs::path& folder : {GoldenFolder(), ProductFolder()})
    for (const auto& entry : fs::directory_iterator(folder))
      if (entry.path().extension() == ".qmn") paths.push_back(entry.path());
  std::sort(paths.begin(), paths.end());
  std::vector<std::string> sources;
  for (const fs::path& path : paths)
    sources.push_back(path.parent_path() == ProductFolder() ? ProductMenu(path) : ReadBytes(path));
  return sources;
}

std::string MutatedSource(const std::vector<std::string>& seeds, std::mt19937& random) {
  std::string text = seeds[random() % seeds.size()];
  for (unsigned n = random() % 5; n; --n) Mutate(text, random);
  return text;
}
