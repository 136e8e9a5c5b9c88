// Runs flex and bison over a source in memory, and implements the functions
// of the grammar's actions.
#include <algorithm>
#include <string>

#include "adsdef.h"
#include "bench/peers/parse_state.h"
#include "bench/peers/peer.h"
#include "bench/peers/peer_text.h"
#include "kernel/qvxexport.h"
#include "peer_parser.h"
#include "peer_scanner.h"

namespace peer {
namespace {

// A scanner over a copy of the source, as flex makes one.
class Scanner {
 public:
  Scanner(const std::string& source, ParseState& state) {
    peer_yylex_init_extra(&state, &m_scanner);
    if (source.find("\r\n") == std::string::npos) {
      peer_yy_scan_bytes(source.data(), static_cast<int>(source.size()), m_scanner);
      return;
    }
    std::string folded;
    folded.reserve(source.size());
    for (size_t at = 0; at < source.size();) {
      const size_t end = std::min(source.find("\r\n", at), source.size());
      folded.append(source, at, end - at);
      at = end + (end < source.size());
    }
    peer_yy_scan_bytes(folded.data(), static_cast<int>(folded.size()), m_scanner);
  }
  ~Scanner() { peer_yylex_destroy(m_scanner); }
  Scanner(const Scanner&) = delete;
  Scanner& operator=(const Scanner&) = delete;
  operator void*() const { return m_scanner; }

 private:
  yyscan_t m_scanner = nullptr;
};

bool KindFits(ParseState& state, int code, short kind, const char* name) {
  if (QvxExport::TypeOfCode(code) == kind) return true;
  state.Report(("Dxf code " + std::to_string(code) + " is not " + name + " code").c_str());
  return false;
}

// Each '^' is removed with the character after it; "^C" becomes ESC.
std::u16string WithoutCarets(const std::u16string& text) {
  std::u16string out;
  out.reserve(text.size());
  for (size_t i = 0; i < text.size(); ++i) {
    if (text[i] != u'^') {
      out += text[i];
    } else if (i + 1 < text.size() && text[i + 1] != u'\n') {
      ++i;
      if (text[i] == u'C' || text[i] == u'c') out += u'\x1b';
    }
  }
  return out;
}

}  // namespace

size_t Scan(const std::string& source) {
  Menu menu;
  ParseState state{menu};
  Scanner scanner(source, state);
  PEER_YYSTYPE value;
  size_t count = 0;
  while (peer_yylex(&value, scanner) != 0) ++count;
  return count;
}

bool Parse(const std::string& source, Menu& menu) {
  ParseState state{menu};
  Scanner scanner(source, state);
  const bool accepted = peer_yyparse(scanner, state) == 0;
  if (!accepted) menu.title.clear();
  if (!accepted) menu.switches.clear();
  if (!accepted) menu.resources.clear();
  if (!accepted || state.barsLost) menu.bars.clear();
  return accepted;
}

bool Compile(const std::string& source, Menu& menu) {
  const bool accepted = Parse(source, menu);
  RunPasses(menu);
  return accepted;
}

bool MakeInteger(ParseState& state, int code, int value, Group& group) {
  group.code = code;
  group.integer = static_cast<int16_t>(value);
  return KindFits(state, code, RTSHORT, "integer");
}

bool MakeReal(ParseState& state, int code, double value, Group& group) {
  group.code = code;
  group.real = value;
  return KindFits(state, code, RTREAL, "real");
}

bool MakeString(ParseState& state, int code, std::string_view value, Group& group) {
  group.code = code;
  group.text = Widen(value);
  return KindFits(state, code, RTSTR, "integer");
}

void ParseLine(const std::u16string& text, Item& item) {
  const size_t close = text.find(u']');
  if (close == std::u16string::npos) return;
  item.label = text.substr(1, close - 1);
  const size_t last = text.find_last_not_of(u" \t");
  if (last <= close) return;
  std::u16string command = text.substr(close + 1, last - close);
  if (command.back() == u';') command.pop_back();
  bool quoted = false;
  for (char16_t& c : command) {
    if (c == u'"') quoted = !quoted;
    if (c == u';' && !quoted) c = u'\n';
  }
  command += u'\n';
  item.command = WithoutCarets(command);
}

}  // namespace peer
