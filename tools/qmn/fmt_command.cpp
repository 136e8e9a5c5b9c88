// qmn fmt: rewrites sources in the canonical layout. A file is written only when its text changes,
// and only after a check that it still compiles to the same bytes.
#include <algorithm>
#include <ostream>

#include "tools/qmn/commands.h"
#include "tools/qmn/fmt_source.h"
#include "tools/qmn/model_io.h"
#include "tools/qmn/tool_files.h"
#include "tools/qmn/tool_messages.h"
#include "tools/qmn/tool_text.h"

namespace {

// False after an error, which has been reported.
bool CompileAloud(const std::string& file, const std::string& source, unsigned page,
                  const QmnStreams& streams, std::string& bytes) {
  TMenuSystem system;
  ToolMessages messages(file, streams);
  const CompileResult result = CompileSource(source, messages, system, page);
  if (result.openCommentLine) {
    ReportError(streams, file + ":" + std::to_string(result.openCommentLine), kOpenCommentText);
    return false;
  }
  bytes = SaveBytes(system);
  return result.accepted && !messages.Count();
}

bool FormatAloud(const std::string& file, const std::string& source, const FmtOptions& options,
                 const QmnStreams& streams, std::string& text) {
  std::string before, after;
  if (!CompileAloud(file, source, options.page, streams, before)) return false;
  FormattedSource formatted = FormatSource(source, options.page);
  if (formatted.strayLine) {
    ReportError(
        streams, file + ":" + std::to_string(formatted.strayLine),
        "bytes that the language skips stand here, which a new layout would lose; qmn check "
        "shows them");
    return false;
  }
  text = std::move(formatted.text);
  if (text == source || (CompileAloud(file, text, options.page, streams, after) && before == after))
    return true;
  ReportError(streams, file, "its canonical layout would compile to other bytes; left as it is");
  return false;
}

int FormatOne(const std::string& file, const FmtOptions& options, const QmnStreams& streams) {
  std::string source, text;
  if (!ReadInput(file, streams, source)) {
    ReportError(streams, file, "can't be read");
    return kFileTrouble;
  }
  if (!FormatAloud(file, source, options, streams, text)) return kFindings;
  if (options.check) {
    if (text == source) return kFine;
    streams.out << file << "\n";
    return kFindings;
  }
  if (text == source && !IsStandardStream(file)) return kFine;
  if (WriteOutput(file, streams, text)) return kFine;
  ReportError(streams, file, "can't be written");
  return kFileTrouble;
}

}  // namespace

int RunFmt(const FmtOptions& options, const QmnStreams& streams) {
  int code = kFine;
  for (const std::string& file : options.in)
    code = std::max(code, FormatOne(file, options, streams));
  return code;
}
