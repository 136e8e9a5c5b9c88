#include "tools/qmn/command_list.h"

#include <sstream>

#include "tools/qmn/check/names.h"
#include "tools/qmn/encoding.h"

namespace {

std::string_view Trim(std::string_view text) {
  constexpr std::string_view kBlank = " \t\r";
  const size_t begin = text.find_first_not_of(kBlank);
  if (begin == text.npos) return {};
  return text.substr(begin, text.find_last_not_of(kBlank) - begin + 1);
}

}  // namespace

KnownNames ReadCommandList(const std::string& text) {
  KnownNames names;
  std::string plain = text;
  RemoveUtf8Mark(plain);
  std::istringstream lines(plain);
  for (std::string line; std::getline(lines, line);) {
    const std::string_view name = Trim(std::string_view(line).substr(0, line.find('#')));
    if (name.size() > 2 && name.front() == '(' && name.back() == ')')
      names.functions.insert(FoldedName(Trim(name.substr(1, name.size() - 2))));
    else if (!name.empty())
      names.commands.insert(FoldedName(name));
  }
  return names;
}
