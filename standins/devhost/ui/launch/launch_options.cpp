// Parses the command line. An option's value is the next word or follows "=".
#include "devhost/ui/launch/launch_options.h"

#include <cmath>
#include <cwchar>

namespace devhost {
namespace {

bool TakeVersion(const std::wstring& text, double* out) {
  wchar_t* end = nullptr;
  const double value = std::wcstod(text.c_str(), &end);
  const double tenths = value * 10;
  if (end == text.c_str() || *end != 0 || !(value >= 15.0 && value < 100.0)) return false;
  // Release numbers have one decimal.
  if (std::fabs(tenths - std::round(tenths)) > 1e-6) return false;
  *out = value;
  return true;
}

bool TakeSeconds(const std::wstring& text, std::optional<double>* out) {
  wchar_t* end = nullptr;
  const double value = std::wcstod(text.c_str(), &end);
  if (end == text.c_str() || *end != 0 || !(value >= 0 && value <= 60)) return false;
  *out = value;
  return true;
}

class Reader {
 public:
  Reader(const std::vector<std::wstring>& words, LaunchOptions* out) : m_words(words), m_out(out) {}

  bool Read(std::wstring* error) {
    while (m_next < m_words.size()) {
      const std::wstring& word = m_words[m_next++];
      const bool good = m_onlyDrawings || word.size() < 2 || word[0] != L'-' ? TakeDrawing(word)
                                                                             : TakeOption(word);
      if (good) continue;
      *error = m_error;
      return false;
    }
    return true;
  }

 private:
  bool TakeDrawing(const std::wstring& word) {
    if (word.empty()) return Fail(L"a drawing has an empty name");
    m_out->drawings.push_back(word);
    return true;
  }

  bool TakeOption(const std::wstring& word) {
    if (word == L"--") return m_onlyDrawings = true;
    if (word == L"--help" || word == L"-h") return m_out->help = true;
    if (word == L"--doctor") return m_out->doctor = true;
    if (word == L"--list-commands") return m_out->listCommands = true;
    const size_t equals = word.find(L'=');
    const std::wstring name = word.substr(0, equals);
    if (!IsKnown(name)) return Fail(L"unknown option " + name);
    std::wstring value;
    if (equals != std::wstring::npos) {
      value = word.substr(equals + 1);
    } else if (m_next < m_words.size()) {
      value = m_words[m_next++];
    }
    if (value.empty()) return Fail(name + L" needs a value");
    return Store(name, value);
  }

  static bool IsKnown(const std::wstring& name) {
    for (const wchar_t* known : {L"--product", L"--host-version", L"--profile", L"--arx", L"--play",
                                 L"--journal", L"--trace-start", L"--longest-wait"})
      if (name == known) return true;
    return false;
  }

  bool Store(const std::wstring& name, const std::wstring& value) {
    if (name == L"--host-version")
      return TakeVersion(value, &m_out->hostVersion) ||
             Fail(L"--host-version takes a release number such as 24.0, not " + value);
    if (name == L"--longest-wait")
      return TakeSeconds(value, &m_out->longestWait) ||
             Fail(L"--longest-wait takes seconds from 0 to 60, not " + value);
    if (name == L"--arx") {
      m_out->modules.push_back(value);
      return true;
    }
    std::wstring& target = name == L"--product"       ? m_out->productFolder
                           : name == L"--profile"     ? m_out->profile
                           : name == L"--play"        ? m_out->script
                           : name == L"--trace-start" ? m_out->startTrace
                                                      : m_out->journal;
    target = value;
    return true;
  }

  bool Fail(const std::wstring& error) {
    m_error = error;
    return false;
  }

  const std::vector<std::wstring>& m_words;
  LaunchOptions* m_out;
  size_t m_next = 0;
  bool m_onlyDrawings = false;
  std::wstring m_error;
};

}  // namespace

bool ParseLaunchOptions(const std::vector<std::wstring>& words, LaunchOptions* out,
                        std::wstring* error) {
  return Reader(words, out).Read(error);
}

const wchar_t* LaunchUsage() {
  return L"usage: devhost [--product DIR] [--host-version 24.0] [--profile NAME] [--arx FILE]...\n"
         L"               [--play SCRIPT] [--journal FILE|-] [--trace-start FILE.json]\n"
         L"               [--longest-wait SECONDS] [DRAWING.dxf ...]\n"
         L"       devhost --doctor [--product DIR] [--host-version 24.0] [--profile NAME] [--arx "
         L"FILE]\n"
         L"               every setting, where it comes from and what it does; starts nothing\n"
         L"       devhost --list-commands [--product DIR] [--arx FILE]...\n"
         L"               the commands and LISP functions of host and modules, for 'qmn check "
         L"--commands'\n";
}

}  // namespace devhost
