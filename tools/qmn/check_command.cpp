// qmn check: every problem of menu sources, including those that the engine ignores
// without a message. Findings are data and go to standard output; errors of the tool
// itself go to standard error.
#include <ostream>
#include <utility>

#include "tools/qmn/check/check_source.h"
#include "tools/qmn/check/report.h"
#include "tools/qmn/commands.h"
#include "tools/qmn/tool_files.h"
#include "tools/qmn/tool_text.h"

namespace {

FileReport CheckFile(const std::string& file, unsigned page, const QmnStreams& streams) {
  FileReport report;
  report.file = file;
  std::string bytes;
  if (!ReadInput(file, streams, bytes)) {
    ReportError(streams, file, "can't be read");
    return report;
  }
  SourceText source(std::move(bytes), page);
  const Findings findings = CheckSource(source);
  return MakeReport(file, source, findings);
}

int ExitCodeOf(const std::vector<FileReport>& reports, bool failOnWarning) {
  int code = kFine;
  for (const FileReport& report : reports) {
    if (!report.isRead) return kFileTrouble;
    if (report.errors || (failOnWarning && report.warnings)) code = kFindings;
  }
  return code;
}

}  // namespace

int RunCheck(const CheckOptions& options, const QmnStreams& streams) {
  if (options.listRules) {
    ListRules(streams.out);
    return kFine;
  }
  std::vector<FileReport> reports;
  for (const std::string& file : options.files) {
    reports.push_back(CheckFile(file, options.page, streams));
    if (options.format == CheckFormat::kText)
      ReportAsText(reports.back(), streams.out, streams.colourOut);
    if (options.format == CheckFormat::kGitHub) ReportAsGitHub(reports.back(), streams.out);
  }
  if (options.format == CheckFormat::kJson) ReportAsJson(reports, streams.out);
  if (options.format == CheckFormat::kSarif) ReportAsSarif(reports, streams.out);
  return ExitCodeOf(reports, options.failOnWarning);
}
