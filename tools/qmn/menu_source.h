// A menu source with its settings, as all subcommands that take sources read it; and its findings.
#pragma once

#include <string>
#include <vector>

#include "tools/qmn/check/report.h"
#include "tools/qmn/source_settings.h"

struct MenuSource {
  std::string name;
  std::string bytes;  // without the byte order mark where the page is UTF-8
  bool hadMark = false;
  SourceSettings settings;
};

// Returns an exit code; what went wrong has been reported.
int ReadMenuSource(const std::string& name, SettingsOfFolders& folders, const QmnStreams& streams,
                   MenuSource& out);
// The same for bytes that have been read.
int UseMenuSource(const std::string& name, std::string bytes, SettingsOfFolders& folders,
                  const QmnStreams& streams, MenuSource& out);

FileReport CheckMenuSource(const MenuSource& source);
// Prints the errors, and the warnings on request, to standard error. True without errors.
bool ReportErrorsOf(const MenuSource& source, bool withWarnings, const QmnStreams& streams);

// Replaces each folder by the sources in it and in its sub-folders, in the order of their names.
// Returns an exit code.
int ExpandFolders(const std::vector<std::string>& names, const QmnStreams& streams,
                  std::vector<std::string>& out);
