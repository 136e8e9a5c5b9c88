// The corpus of tools/fuzz merge: the smallest inputs with the same coverage as all inputs.
#pragma once

#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <vector>

namespace fuzz {

// `tree`: the folder of the sources.
inline std::vector<std::string> ReadCorpus(const std::filesystem::path& tree, const char* target) {
  std::vector<std::string> inputs;
  for (const auto& entry :
       std::filesystem::directory_iterator(tree / "tests/fuzz/corpus" / target)) {
    std::ifstream file(entry.path(), std::ios::binary);
    inputs.emplace_back(std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>());
  }
  return inputs;
}

}  // namespace fuzz
