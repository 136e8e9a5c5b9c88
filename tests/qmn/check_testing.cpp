#include "tests/qmn/check_testing.h"

#include "afxstr.h"
#include "tools/qmn/check/check_source.h"
#include "tools/qmn/model_io.h"
#include "tools/qmn/tool_text.h"
#include "tools/qmn/silent_messages.h"

namespace {

constexpr unsigned kFieldPage = 936;
constexpr char kOpen[] = "‹";
constexpr char kClose[] = "›";
constexpr char kTimes[] = "×";
constexpr char kNoNewline[] = "no newline";

std::string InPage(const std::string& utf8) { return WideToAnsi(Wide(utf8), kFieldPage); }

std::string Expand(const std::string& marker) {
  const size_t times = marker.find(kTimes);
  if (times == std::string::npos) return {static_cast<char>(std::stoi(marker, nullptr, 16))};
  std::string out;
  for (int count = std::stoi(marker); count > 0; --count)
    out += InPage(marker.substr(times + sizeof kTimes - 1));
  return out;
}

}  // namespace

std::string MenuBytes(const std::string& utf8) {
  std::string out;
  size_t at = 0;
  for (;;) {
    const size_t open = utf8.find(kOpen, at);
    out += InPage(utf8.substr(at, open - at));
    if (open == std::string::npos) return out;
    const size_t begin = open + sizeof kOpen - 1;
    const size_t close = utf8.find(kClose, begin);
    const std::string marker = utf8.substr(begin, close - begin);
    if (marker == kNoNewline) return out;
    out += Expand(marker);
    at = close + sizeof kClose - 1;
  }
}

std::string Framed(const std::string& part, const std::string& text) {
  if (part == "file") return text;
  const auto in = [&](const char* wanted) { return part == wanted ? text : std::string(); };
  return "MENU_TITLE = \"T\"\n***COMMON\n" +
         (part == "lines" ? text : std::string("[First]^C^CFIRST;\n")) + in("blocks") +
         "***SWITCH\n" + in("switches") + "***RESOURCE\n" + in("icons") +
         "A = \"BMP_A\",\"help of A\"\n";
}

CheckSettings ExampleSettings() {
  CheckSettings settings;
  AddRules("QMN073", settings.hidden);
  AddRules("QMN074", settings.hidden);
  return settings;
}

std::set<std::string> CodesOf(const std::string& source, const CheckSettings& settings,
                              unsigned page) {
  SourceText text(source, page);
  std::set<std::string> codes;
  for (const Finding& finding : CheckSource(text, settings).InOrder())
    codes.insert(InfoOf(finding.rule).code);
  return codes;
}

bool EngineTakes(const std::string& source) {
  SilentMessages messages;
  TMenuSystem system;
  return CompileSource(source, messages, system).accepted && messages.Count() == 0;
}
