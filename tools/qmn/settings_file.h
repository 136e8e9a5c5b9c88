// qmn.toml beside the sources: the settings that all of them share. Only what is used here of that
// format: comments, and keys whose value is a number, a text, or a list of texts.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "tools/qmn/message.h"

constexpr char kSettingsFile[] = "qmn.toml";

struct FileSettings {
  std::optional<unsigned> page;
  std::optional<bool> failOnWarning;
  std::vector<std::string> select, ignore;
  std::string icons, commands;  // paths, from the folder of the file; empty: none
};

struct SettingsError {
  int line;
  Message text;
};

// The first error, nothing when all is well.
std::optional<SettingsError> ReadSettings(const std::string& text, FileSettings& out);
