// The line-based forms: text and GitHub workflow commands.
#include <ostream>

#include "tools/qmn/check/report.h"

namespace {

const char* ColourOf(Severity severity) {
  return severity == Severity::kError ? "\x1b[1;31m" : "\x1b[1;35m";
}

std::string Positioned(const FileReport& report, const ReportedFinding& finding) {
  return report.file + ":" + std::to_string(finding.begin.line) + ":" +
         std::to_string(finding.begin.column);
}

// Escapes the data of a workflow command.
std::string EscapedData(const std::string& text) {
  std::string out;
  for (const char c : text) {
    if (c == '%')
      out += "%25";
    else if (c == '\r')
      out += "%0D";
    else if (c == '\n')
      out += "%0A";
    else
      out += c;
  }
  return out;
}

// Escapes a property of a workflow command, which ends at a colon or comma.
std::string EscapedProperty(const std::string& text) {
  std::string out;
  for (const char c : EscapedData(text)) {
    if (c == ':')
      out += "%3A";
    else if (c == ',')
      out += "%2C";
    else
      out += c;
  }
  return out;
}

}  // namespace

FileReport MakeReport(const std::string& file, SourceText& source, const Findings& findings) {
  FileReport report{file, true, {}, findings.Errors(), findings.Warnings(), findings.Omitted()};
  for (const Finding& finding : findings.InOrder())
    report.findings.push_back({finding.rule, source.PlaceOf(finding.begin),
                               source.PlaceOf(finding.end), finding.text,
                               source.SnippetOf(finding.begin, finding.end)});
  return report;
}

std::string OmittedText(const FileReport& report) {
  return std::to_string(report.omitted) + " more findings are not shown";
}

void ReportAsText(const FileReport& report, std::ostream& out, bool colour) {
  for (const ReportedFinding& finding : report.findings) {
    const RuleInfo& info = InfoOf(finding.rule);
    const char* on = colour ? ColourOf(info.severity) : "";
    const char* off = colour ? "\x1b[0m" : "";
    out << Positioned(report, finding) << ": " << on << WordOf(info.severity) << ":" << off << " "
        << finding.text << " [" << info.code << "]\n"
        << finding.snippet.line << "\n"
        << on << finding.snippet.caret << off << "\n";
  }
  if (report.omitted) out << report.file << ": " << OmittedText(report) << "\n";
}

void ReportAsGitHub(const FileReport& report, std::ostream& out) {
  const std::string file = EscapedProperty(report.file);
  for (const ReportedFinding& finding : report.findings) {
    const RuleInfo& info = InfoOf(finding.rule);
    out << "::" << WordOf(info.severity) << " file=" << file << ",line=" << finding.begin.line
        << ",endLine=" << finding.end.line << ",col=" << finding.begin.column;
    // The end column is interpreted on the line where the finding begins.
    if (finding.begin.line == finding.end.line) out << ",endColumn=" << finding.end.column;
    out << ",title=" << EscapedProperty(std::string(info.code) + " " + info.name)
        << "::" << EscapedData(finding.text) << "\n";
  }
  if (report.omitted) out << "::notice file=" << file << "::" << OmittedText(report) << "\n";
}

void ListRules(std::ostream& out) {
  for (const RuleInfo& info : AllRules()) {
    std::string line = std::string(info.code) + "  " + WordOf(info.severity);
    line.resize(17, ' ');
    line += info.name;
    line.resize(40, ' ');
    out << line << info.summary << "\n";
  }
}
