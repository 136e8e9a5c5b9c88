// Replaces a file as a whole: the new contents go to a temporary file in the same folder, to the
// disk, and then take the name of the old file. Whatever fails, and whenever the process ends, the
// old file or the new one is there, complete.
//
// A temporary file that an ended process left is named "~" + start of the name + "-" + hash of the
// name + "-" + number + ".tmp". The next replacement of the same file removes it.
#pragma once

#include <filesystem>
#include <string>
#include <string_view>
#include <system_error>

namespace devhost {

enum class FileProblem { None, NoFolder, IsFolder, BadName, NoRights, DiskFull, InUse, Other };

// The steps on the disk. Tests replace single ones; each returns its error.
struct FileSteps {
  std::error_code (*write)(int file, std::string_view bytes);
  std::error_code (*flush)(int file);
  std::error_code (*rename)(const std::filesystem::path& from, const std::filesystem::path& to);
};
FileSteps SystemFileSteps();

FileProblem ReplaceFileContents(const std::filesystem::path& target, std::string_view bytes,
                                const FileSteps& steps = SystemFileSteps());

// A line for the user, without the name of the file.
const wchar_t* ProblemText(FileProblem problem);

// Whether a name in the folder of `target` is that of a temporary file for it.
bool IsTemporaryFor(const std::filesystem::path& target, const std::filesystem::path& name);

}  // namespace devhost
