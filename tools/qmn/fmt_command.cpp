// qmn fmt: rewrites sources in the canonical layout, and converts their encoding on request. A file
// is written only when its bytes change, and only after a check that it still compiles to the same
// model.
#include <algorithm>
#include <ostream>

#include "tools/qmn/commands.h"
#include "tools/qmn/encoding.h"
#include "tools/qmn/fmt_source.h"
#include "tools/qmn/menu_source.h"
#include "tools/qmn/model_aloud.h"
#include "tools/qmn/model_io.h"
#include "tools/qmn/silent_messages.h"
#include "tools/qmn/text_diff.h"
#include "tools/qmn/tool_files.h"
#include "tools/qmn/tool_text.h"

namespace {

class FmtRun {
 public:
  FmtRun(const FmtOptions& options, const QmnStreams& streams)
      : m_options(options), m_streams(streams), m_folders(options.source, streams) {}

  int Run() {
    std::vector<std::string> files;
    int code = ExpandFolders(m_options.in, m_streams, files);
    for (const std::string& file : files) code = std::max(code, Format(file));
    return code;
  }

 private:
  int Format(const std::string& file) {
    std::string before;
    if (const auto trouble = ReadInput(file, m_streams, before))
      return ReportError(m_streams, file, *trouble), kFileTrouble;
    MenuSource source;
    int code = UseMenuSource(file, before, m_folders, m_streams, source);
    if (code != kFine) return code;
    const unsigned page = source.settings.page;
    const Encoding encoding = EncodingOf(source.bytes, page);
    if (m_options.to && !Convert(source, encoding)) return kFindings;
    std::string text;
    if (!LayOut(source, text)) {
      // The conversion of a source with errors is still wanted: it is the first step of mending it.
      if (!m_options.to) return kFindings;
      text = source.bytes;
      code = kFindings;
    }
    if (m_options.check || m_options.diff) {
      const std::string old = m_options.diff ? ToUtf8(before, encoding, page) : std::string();
      return std::max(code, Compare(file, before, old, text, source.settings.page));
    }
    if (text == before && !IsStandardStream(file)) return code;
    const auto trouble = WriteOutput(file, m_streams, text);
    if (trouble) return ReportError(m_streams, file, *trouble), kFileTrouble;
    if (m_options.to && m_options.to != page) ReportPage(file);
    return code;
  }

  // Makes the source one of the wanted page.
  bool Convert(MenuSource& source, Encoding encoding) const {
    const std::string text = ToUtf8(source.bytes, encoding, source.settings.page);
    Encoded encoded = FromUtf8(text, m_options.to);
    if (encoded.lackingAt != std::string::npos) {
      ReportLacking(source.name, text, encoded);
      return false;
    }
    source.bytes = std::move(encoded.bytes);
    source.settings.page = m_options.to;
    return true;
  }

  void ReportLacking(const std::string& file, const std::string& text,
                     const Encoded& encoded) const {
    SourceText shown(text, kUtf8Page);
    // Line ends are folded there.
    const std::string_view before(text.data(), encoded.lackingAt);
    size_t at = encoded.lackingAt;
    for (size_t i = 0; i + 1 < before.size(); ++i) at -= before[i] == '\r' && before[i + 1] == '\n';
    const Place place = shown.PlaceOf(at);
    const Snippet snippet = shown.SnippetOf(at, at + 1);
    ReportError(m_streams,
                file + ":" + std::to_string(place.line) + ":" + std::to_string(place.column),
                "{0} is not in code page {1}; the file is left as it is"_say(
                    encoded.lacking, static_cast<int>(m_options.to)));
    m_streams.err << snippet.line << "\n" << snippet.caret << "\n";
  }

  // False after an error, which has been reported.
  bool LayOut(const MenuSource& source, std::string& text) const {
    if (!ReportErrorsOf(source, false, m_streams)) return false;
    TMenuSystem before;
    if (!CompileAloud(source, m_streams, before)) return false;
    FormattedSource formatted = FormatSource(source.bytes, source.settings.page);
    if (formatted.strayLine) {
      ReportError(m_streams, source.name + ":" + std::to_string(formatted.strayLine),
                  "bytes that the language skips stand here, which a new layout would lose; 'qmn "
                  "check' shows them"_say);
      return false;
    }
    text = std::move(formatted.text);
    if (text == source.bytes || CompilesToSame(text, source.settings.page, before)) return true;
    ReportError(m_streams, source.name,
                "its canonical layout would compile to other bytes; left as it is"_say);
    return false;
  }

  static bool CompilesToSame(const std::string& text, unsigned page, TMenuSystem& before) {
    TMenuSystem after;
    SilentMessages messages;
    const CompileResult result = CompileSource(text, messages, after, page);
    return result.accepted && !messages.Count() && SaveBytes(after) == SaveBytes(before);
  }

  // For --check and --diff, which write nothing.
  int Compare(const std::string& file, const std::string& before, const std::string& beforeUtf8,
              const std::string& after, unsigned page) const {
    if (before == after) return kFine;
    if (m_options.check) m_streams.out << file << "\n";
    if (!m_options.diff) return kFindings;
    const std::string now = ToUtf8(after, Encoding::kPage, page);
    WriteDiff(file, beforeUtf8, now, m_streams.out, m_streams.colourOut);
    if (m_options.to && beforeUtf8 == now) ReportNote(file, "only the encoding would change"_say);
    return kFindings;
  }

  void ReportPage(const std::string& file) const {
    ReportNote(
        file,
        "is in code page {0} now; the other commands need --codepage {0}, or 'codepage = {0}' in a qmn.toml in its folder"_say(
            static_cast<int>(m_options.to)));
  }

  void ReportNote(const std::string& file, const Message& text) const {
    m_streams.err << file << ": " << Message("note"_say).In(m_streams.language) << ": "
                  << text.In(m_streams.language) << "\n";
  }

  const FmtOptions& m_options;
  const QmnStreams& m_streams;
  SettingsOfFolders m_folders;
};

}  // namespace

int RunFmt(const FmtOptions& options, const QmnStreams& streams) {
  return FmtRun(options, streams).Run();
}
