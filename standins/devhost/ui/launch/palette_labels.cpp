// Labels of a menu source; see the header. Reads lines only: the source was checked when the
// product was built.
#include <algorithm>
#include <sstream>

#include "devhost/ui/launch/first_width.h"

namespace devhost {

namespace {

constexpr wchar_t kGap[] = L"    ";  // between a label and its accelerator

// What a row shows of the text in its brackets; empty for separators and places of switches.
std::wstring ShownLabel(std::wstring text) {
  for (const wchar_t* arrow : {L"->", L"<-"})
    if (text.rfind(arrow, 0) == 0) text.erase(0, 2);
  if (text.rfind(L"{", 0) == 0) text.erase(0, std::min(text.find(L'}'), text.size() - 1) + 1);
  if (text == L"--" || text == L"*SWITCH*") return L"";
  std::erase(text, L'&');
  if (const std::size_t tab = text.find(L'\t'); tab != std::wstring::npos)
    text.replace(tab, 1, kGap);
  return text;
}

std::wstring Between(const std::wstring& line, wchar_t open, wchar_t close) {
  const std::size_t from = line.find(open);
  const std::size_t to = from == std::wstring::npos ? from : line.find(close, from + 1);
  return to == std::wstring::npos ? L"" : line.substr(from + 1, to - from - 1);
}

}  // namespace

std::vector<std::wstring> PaletteLabels(const std::wstring& source) {
  std::vector<std::wstring> labels;
  std::wstring section, line;
  for (std::wistringstream lines(source); std::getline(lines, line);) {
    if (line.rfind(L"***", 0) == 0) section = line.substr(3, line.find_first_of(L" \t\r", 3) - 3);
    if (line.rfind(L"//", 0) == 0) continue;
    std::wstring label;
    if (section == L"SCREEN") label = ShownLabel(Between(line, L'[', L']'));
    if (section == L"SWITCH") label = Between(line, L'"', L'"');
    if (!label.empty()) labels.push_back(label);
  }
  return labels;
}

}  // namespace devhost
