// The file is text but is opened in binary mode: the run-time library's wide reading uses the ANSI
// code page only after the program has set a locale, and in text mode ftell returns wrong, even
// negative positions in a file with bare line feeds. Line ends and the end mark of text files are
// therefore handled here, and a position is a byte offset.
#include "dialogs/tip_file.h"

#include <string>

#include "dialogs/tip_file_system.h"
#include "kernel/twcstring.h"

namespace qvx {

namespace {

constexpr int kTextEnd = 0x1A;  // end mark of a text file, as for the system

constexpr int kFirstTrailByte = 0x40;

int TakeByte(std::FILE* file) {
  const int byte = std::fgetc(file);
  if (byte == kTextEnd) {
    std::ungetc(byte, file);
    return EOF;
  }
  if (byte != '\r') return byte;
  const int next = std::fgetc(file);
  if (next == '\n') return next;
  if (next != EOF) std::ungetc(next, file);
  return byte;
}

constexpr wchar_t kReplacement = 0xFFFD;

// Collects the bytes of one line and converts them at the end in one call.
class LineBuilder {
 public:
  // Reads one character of one or two bytes; false at the end of the file. A lead byte without a
  // valid trail byte does not consume the next byte, so a damaged line still ends at its line end.
  bool Take(std::FILE* file) {
    const int first = TakeByte(file);
    if (first == EOF) return false;
    m_bytes.push_back(static_cast<char>(first));
    m_atLineEnd = first == '\n';
    if (!IsLeadByte(first)) return true;
    const int second = std::fgetc(file);
    if (second >= kFirstTrailByte) {
      m_bytes.push_back(static_cast<char>(second));
      return true;
    }
    if (second != EOF) std::ungetc(second, file);
    m_bytes.pop_back();
    Convert();
    m_line += kReplacement;
    return true;
  }
  bool AtLineEnd() const { return m_atLineEnd; }
  const std::wstring& Text() {
    Convert();
    return m_line;
  }

 private:
  void Convert() {
    const TUString wide(m_bytes.data(), static_cast<int>(m_bytes.size()));
    m_line.append(wide, static_cast<size_t>(wide.Length()));
    m_bytes.clear();
  }

  std::string m_bytes;  // read, not yet converted
  std::wstring m_line;
  bool m_atLineEnd = false;
};

}  // namespace

FileOwner OpenTipFile(const wchar_t* path) { return OpenWideFile(path, L"rb"); }

bool ReadTipLine(std::FILE* file, CString& line) {
  LineBuilder builder;
  int units = 0;
  while (units < kTipUnits - 1 && builder.Take(file)) {
    ++units;
    if (builder.AtLineEnd()) break;
  }
  line = builder.Text().c_str();
  return units > 0;
}

bool IsTipLine(const wchar_t* line) {
  return line[0] != L'\t' && line[0] != L'\n' && line[0] != L' ' && line[0] != L';';
}

bool SeekTip(std::FILE* file, int offset) { return std::fseek(file, offset, SEEK_SET) == 0; }

// Ends the second time it reaches the end of the file: in a file without any tip the search would
// loop for ever and hang the host.
TipFound ReadNextTip(std::FILE* file, CString& tip) {
  for (int ends = 0; ends < 2;) {
    if (ReadTipLine(file, tip)) {
      if (IsTipLine(tip)) return TipFound::kYes;
      continue;
    }
    if (!SeekTip(file, 0)) return TipFound::kSeekFailed;
    ++ends;
  }
  tip.Empty();
  return TipFound::kNoTip;
}

// Skipped lines belong to no tip and do not change the tip found last, so from a tip below a
// comment the user still goes back to the tip above it.
bool FindTipBefore(std::FILE* file, int end, int& offset) {
  offset = 0;
  if (!SeekTip(file, 0)) return false;
  int before = 0, current = 0;
  bool lastWasTip = false;
  CString line;
  while (end != 0) {
    if (lastWasTip) before = current;
    current = static_cast<int>(std::ftell(file));
    if (!ReadTipLine(file, line)) return true;  // no tip ends at `end`
    lastWasTip = IsTipLine(line);
    if (lastWasTip && std::ftell(file) == end) break;
  }
  offset = before;
  return true;
}

CString TipFileStamp(std::FILE* file) {
  CString stamp(LastChangeOf(file).c_str());
  stamp.TrimRight();
  return stamp;
}

}  // namespace qvx
