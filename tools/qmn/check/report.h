// The findings of all files in the form that was asked for.
#pragma once

#include <iosfwd>
#include <string>
#include <vector>

#include "tools/qmn/check/findings.h"
#include "tools/qmn/check/source_text.h"

struct ReportedFinding {
  Rule rule;
  Place begin, end;  // the end is one column behind
  std::string text;
  Snippet snippet;
};

struct FileReport {
  std::string file;
  bool isRead = false;
  std::vector<ReportedFinding> findings;
  int errors = 0, warnings = 0;
  size_t omitted = 0;  // behind the last finding
};

FileReport MakeReport(const std::string& file, SourceText& source, const Findings& findings);

void ReportAsText(const FileReport& report, std::ostream& out, bool colour);
void ReportAsGitHub(const FileReport& report, std::ostream& out);
void ReportAsJson(const std::vector<FileReport>& reports, std::ostream& out);
void ReportAsSarif(const std::vector<FileReport>& reports, std::ostream& out);
// One rule a line: code, severity, name, sentence.
void ListRules(std::ostream& out);

std::string OmittedText(const FileReport& report);
