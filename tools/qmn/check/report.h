// Writes the findings of all files in the requested form.
#pragma once

#include <iosfwd>
#include <string>
#include <vector>

#include "tools/qmn/check/findings.h"
#include "tools/qmn/check/source_text.h"
#include "tools/qmn/qmn_tool.h"

struct ReportedFinding {
  Rule rule;
  Place begin, end;  // the end is exclusive
  Message text;
  Snippet snippet;
};

struct FileReport {
  std::string file;
  bool isRead = false;
  Message trouble{std::string()};  // why it is not read
  std::vector<ReportedFinding> findings;
  int errors = 0, warnings = 0;
  int silenced = 0;    // by a comment
  size_t omitted = 0;  // findings cut after the last one
};

FileReport MakeReport(const std::string& file, SourceText& source, const Findings& findings);

struct ReportForm {
  Language language = Language::kEnglish;
  bool colour = false;
};
void ReportAsText(const FileReport& report, std::ostream& out, ReportForm form);
void ReportAsGitHub(const FileReport& report, std::ostream& out, Language language);
void ReportAsJson(const std::vector<FileReport>& reports, std::ostream& out, Language language);
void ReportAsSarif(const std::vector<FileReport>& reports, std::ostream& out, Language language);
// One line for all files, to standard error.
void ReportSummary(const std::vector<FileReport>& reports, const QmnStreams& streams);
// One rule per line: code, severity, name, sentence.
void ListRules(std::ostream& out, Language language);

Message OmittedText(const FileReport& report);
