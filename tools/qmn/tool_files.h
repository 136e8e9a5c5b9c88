// Reads and writes whole files by the names of the command line. An output appears under its name
// only when it is complete.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "tools/qmn/qmn_tool.h"

inline bool IsStandardStream(const std::string& name) { return name == "-"; }

// Why it can't be read; nothing when it was read.
std::optional<Message> ReadInput(const std::string& name, const QmnStreams& streams,
                                 std::string& bytes);
// Why it can't be written; the previous content is then unchanged. Nothing when it was written.
std::optional<Message> WriteOutput(const std::string& name, const QmnStreams& streams,
                                   const std::string& bytes);

bool IsFile(const std::string& name);  // or a device
bool IsFolder(const std::string& name);
// The folder that contains the file; "." when the name has none.
std::string FolderOf(const std::string& name);
// `name` as seen from the folder; unchanged when it is absolute.
std::string InFolder(const std::string& folder, const std::string& name);
// The files with this extension in the folder and its sub-folders, sorted; hidden ones are left
// out.
std::vector<std::string> FilesIn(const std::string& folder, const char* extension);

// The name with its extension replaced by another (".qmc"); appended when it has none.
std::string WithExtension(const std::string& name, const char* extension);
// In lower case, including the dot.
std::string ExtensionOf(const std::string& name);
bool IsSameFile(const std::string& a, const std::string& b);
