// The settings of a source: those of the command line, then those of qmn.toml in its folder, then
// the defaults. Lists of ignored rules are added together.
#pragma once

#include <map>
#include <optional>
#include <string>
#include <vector>

#include "tools/qmn/check/check_settings.h"
#include "tools/qmn/code_page.h"
#include "tools/qmn/qmn_tool.h"

// As given on the command line.
struct SourceOptions {
  std::optional<unsigned> page;
  std::optional<bool> failOnWarning;
  std::vector<std::string> select, ignore;  // codes, their beginnings, or names
  std::string icons, commands;              // files; empty: none
};

struct SourceSettings {
  unsigned page = kUsualPage;
  bool failOnWarning = false;
  CheckSettings check;
};

// The icon library and the list of commands are read only where warnings are reported.
enum class NameFiles { kRead, kIgnore };

class SettingsOfFolders {
 public:
  SettingsOfFolders(const SourceOptions& options, const QmnStreams& streams,
                    NameFiles names = NameFiles::kIgnore)
      : m_options(options), m_streams(streams), m_names(names) {}

  // Null after an error, which has been reported, and whose exit code is in `code`.
  const SourceSettings* Of(const std::string& source, int& code);

 private:
  struct Entry {
    SourceSettings settings;
    int code = kFine;
  };
  int Read(const std::string& folder, SourceSettings& out);

  const SourceOptions& m_options;
  const QmnStreams& m_streams;
  const NameFiles m_names;
  std::map<std::string, Entry> m_entries;
};
