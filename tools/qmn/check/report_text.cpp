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

// Filled with blanks to that many columns of a terminal.
std::string Padded(const std::string& text, size_t columns) {
  size_t used = 0;
  for (size_t at = 0; at < text.size();) {
    const TextChar next = NextUtf8(text, at);
    used += static_cast<size_t>(DisplayWidth(next.code));
    at += next.size;
  }
  return used < columns ? text + std::string(columns - used, ' ') : text;
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
  FileReport report{file,
                    true,
                    std::string(),
                    {},
                    findings.Errors(),
                    findings.Warnings(),
                    findings.Silenced(),
                    findings.Omitted()};
  for (const Finding& finding : findings.InOrder())
    report.findings.push_back({finding.rule, source.PlaceOf(finding.begin),
                               source.PlaceOf(finding.end), finding.text,
                               source.SnippetOf(finding.begin, finding.end)});
  return report;
}

Message OmittedText(const FileReport& report) {
  return "{0} more findings are not shown"_say(report.omitted);
}

void ReportAsText(const FileReport& report, std::ostream& out, ReportForm form) {
  for (const ReportedFinding& finding : report.findings) {
    const RuleInfo& info = InfoOf(finding.rule);
    const char* on = form.colour ? ColourOf(info.severity) : "";
    const char* off = form.colour ? "\x1b[0m" : "";
    out << Positioned(report, finding) << ": " << on
        << SeverityText(info.severity).In(form.language) << ":" << off << " "
        << finding.text.In(form.language) << " [" << info.code << "]\n"
        << finding.snippet.line << "\n"
        << on << finding.snippet.caret << off << "\n";
  }
  if (report.omitted) out << report.file << ": " << OmittedText(report).In(form.language) << "\n";
}

void ReportAsGitHub(const FileReport& report, std::ostream& out, Language language) {
  const std::string file = EscapedProperty(report.file);
  for (const ReportedFinding& finding : report.findings) {
    const RuleInfo& info = InfoOf(finding.rule);
    out << "::" << WordOf(info.severity) << " file=" << file << ",line=" << finding.begin.line
        << ",endLine=" << finding.end.line << ",col=" << finding.begin.column;
    // The end column is interpreted on the line where the finding begins.
    if (finding.begin.line == finding.end.line) out << ",endColumn=" << finding.end.column;
    out << ",title=" << EscapedProperty(std::string(info.code) + " " + info.name)
        << "::" << EscapedData(finding.text.In(language)) << "\n";
  }
  if (report.omitted)
    out << "::notice file=" << file << "::" << OmittedText(report).In(language) << "\n";
}

void ListRules(std::ostream& out, Language language) {
  for (const RuleInfo& info : AllRules()) {
    std::string name = info.name;
    name.resize(23, ' ');
    out << info.code << "  " << Padded(SeverityText(info.severity).In(language), 9) << name
        << SummaryOf(info).In(language) << "\n";
  }
}
