// Writes the findings of all files in the requested form.
#pragma once

#include <iosfwd>
#include <string>
#include <vector>

#include "tools/qmn/check/findings.h"
#include "tools/qmn/check/source_text.h"

struct ReportedFinding {
  Rule rule;
  Place begin, end;  // the end is exclusive
  std::string text;
  Snippet snippet;
};

struct FileReport {
  std::string file;
  bool isRead = false;
  std::vector<ReportedFinding> findings;
  int errors = 0, warnings = 0;
  size_t omitted = 0;  // findings cut after the last one
};

FileReport MakeReport(const std::string& file, SourceText& source, const Findings& findings);

void ReportAsText(const FileReport& report, std::ostream& out, bool colour);
void ReportAsGitHub(const FileReport& report, std::ostream& out);
void ReportAsJson(const std::vector<FileReport>& reports, std::ostream& out);
void ReportAsSarif(const std::vector<FileReport>& reports, std::ostream& out);
// One rule per line: code, severity, name, sentence.
void ListRules(std::ostream& out);

std::string OmittedText(const FileReport& report);
