#include "tools/qmn/menu_source.h"

#include <algorithm>
#include <ostream>

#include "tools/qmn/check/check_source.h"
#include "tools/qmn/encoding.h"
#include "tools/qmn/model_aloud.h"
#include "tools/qmn/tool_files.h"
#include "tools/qmn/tool_text.h"

namespace {

constexpr char kSourceExtension[] = ".qmn";

bool IsWarning(const ReportedFinding& finding) {
  return InfoOf(finding.rule).severity == Severity::kWarning;
}

}  // namespace

int ReadMenuSource(const std::string& name, SettingsOfFolders& folders, const QmnStreams& streams,
                   MenuSource& out) {
  std::string bytes;
  if (const auto trouble = ReadInput(name, streams, bytes)) {
    ReportError(streams, name, *trouble);
    return kFileTrouble;
  }
  return UseMenuSource(name, std::move(bytes), folders, streams, out);
}

int UseMenuSource(const std::string& name, std::string bytes, SettingsOfFolders& folders,
                  const QmnStreams& streams, MenuSource& out) {
  if (IsCompiledMenu(name, bytes)) {
    ReportError(streams, name,
                "this is a compiled menu, not a source; 'qmn decompile' makes a source of it"_say);
    return kFindings;
  }
  int code = kFine;
  const SourceSettings* settings = folders.Of(name, code);
  if (!settings) return code;
  out = {name, std::move(bytes), false, *settings};
  if (out.settings.page != kUtf8Page) return kFine;
  const size_t size = out.bytes.size();
  RemoveUtf8Mark(out.bytes);
  out.hadMark = out.bytes.size() < size;
  return kFine;
}

FileReport CheckMenuSource(const MenuSource& source) {
  const unsigned page = source.settings.page;
  SourceText text(source.bytes, page);
  const Findings findings = CheckSource(text, source.settings.check);
  const Encoding encoding = EncodingOf(source.bytes, page);
  if (encoding == Encoding::kNotUtf8) {
    SourceText shown(source.bytes, kUsualPage);
    return MakeReport(source.name, shown, findings);
  }
  const bool isUtf16 = encoding == Encoding::kUtf16Little || encoding == Encoding::kUtf16Big;
  if (!isUtf16) return MakeReport(source.name, text, findings);
  // Its one finding is at the beginning; the line is shown decoded.
  SourceText shown(ToUtf8(source.bytes, encoding, page), kUtf8Page);
  return MakeReport(source.name, shown, findings);
}

bool ReportErrorsOf(const MenuSource& source, bool withWarnings, const QmnStreams& streams) {
  FileReport report = CheckMenuSource(source);
  if (!withWarnings) {
    std::erase_if(report.findings, IsWarning);
    report.warnings = 0;
  }
  ReportAsText(report, streams.err, {streams.language, streams.colour});
  if (!report.findings.empty()) ReportSummary({report}, streams);
  return report.errors == 0;
}

int ExpandFolders(const std::vector<std::string>& names, const QmnStreams& streams,
                  std::vector<std::string>& out) {
  int code = kFine;
  for (const std::string& name : names) {
    if (IsStandardStream(name) || !IsFolder(name)) {
      out.push_back(name);
      continue;
    }
    const std::vector<std::string> sources = FilesIn(name, kSourceExtension);
    if (sources.empty()) {
      ReportError(streams, name, "there is no menu source (*.qmn) in this folder"_say);
      code = kFileTrouble;
    }
    out.insert(out.end(), sources.begin(), sources.end());
  }
  return code;
}
