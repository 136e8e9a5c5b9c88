// qmn check: every problem of menu sources, including those that the engine ignores
// without a message. Findings are data and go to standard output; the summary and errors of the
// tool itself go to standard error.
#include <algorithm>
#include <ostream>
#include <utility>

#include "tools/qmn/commands.h"
#include "tools/qmn/menu_source.h"
#include "tools/qmn/tool_files.h"
#include "tools/qmn/tool_text.h"

namespace {

class CheckRun {
 public:
  CheckRun(const CheckOptions& options, const QmnStreams& streams)
      : m_options(options),
        m_streams(streams),
        m_folders(options.source, streams, NameFiles::kRead) {}

  int Run() {
    std::vector<std::string> files;
    m_code = ExpandFolders(m_options.files, m_streams, files);
    for (const std::string& file : files) {
      Check(file);
      if (m_code == kWrongUsage) return m_code;  // the settings are wrong
      ReportOne(m_reports.back());
    }
    ReportAll();
    return m_code;
  }

 private:
  void Check(const std::string& file) {
    FileReport report;
    report.file = file;
    std::string bytes;
    if (const auto trouble = ReadInput(file, m_streams, bytes)) {
      ReportError(m_streams, file, *trouble);
      report.trouble = *trouble;
      m_code = std::max<int>(m_code, kFileTrouble);
      m_reports.push_back(std::move(report));
      return;
    }
    MenuSource source;
    const int code = UseMenuSource(file, std::move(bytes), m_folders, m_streams, source);
    if (code != kFine) {
      report.trouble = "it could not be checked"_say;
      m_code = code == kWrongUsage ? code : std::max(m_code, code);
      m_reports.push_back(std::move(report));
      return;
    }
    report = CheckMenuSource(source);
    if (report.errors || (source.settings.failOnWarning && report.warnings))
      m_code = std::max<int>(m_code, kFindings);
    m_reports.push_back(std::move(report));
  }

  void ReportOne(const FileReport& report) const {
    const Language language = m_streams.language;
    if (m_options.format == CheckFormat::kText)
      ReportAsText(report, m_streams.out, {language, m_streams.colourOut});
    if (m_options.format == CheckFormat::kGitHub) ReportAsGitHub(report, m_streams.out, language);
  }

  void ReportAll() const {
    const Language language = m_streams.language;
    if (m_options.format == CheckFormat::kJson) ReportAsJson(m_reports, m_streams.out, language);
    if (m_options.format == CheckFormat::kSarif) ReportAsSarif(m_reports, m_streams.out, language);
    if (m_options.format == CheckFormat::kText) ReportSummary(m_reports, m_streams);
  }

  const CheckOptions& m_options;
  const QmnStreams& m_streams;
  SettingsOfFolders m_folders;
  std::vector<FileReport> m_reports;
  int m_code = kFine;
};

}  // namespace

int RunCheck(const CheckOptions& options, const QmnStreams& streams) {
  if (options.listRules) {
    ListRules(streams.out, streams.language);
    return kFine;
  }
  return CheckRun(options, streams).Run();
}
