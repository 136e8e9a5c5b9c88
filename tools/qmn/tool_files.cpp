#include "tools/qmn/tool_files.h"

#include <algorithm>
#include <cerrno>
#include <filesystem>
#include <fstream>
#include <istream>
#include <iterator>
#include <ostream>
#include <random>
#include <system_error>

namespace {

namespace fs = std::filesystem;

fs::path PathOf(const std::string& name) {
  return fs::path(std::u8string(name.begin(), name.end()));
}

std::string NameOf(const fs::path& path) {
  const std::u8string name = path.u8string();
  return std::string(name.begin(), name.end());
}

bool ReadAll(std::istream& in, std::string& bytes) {
  bytes.assign(std::istreambuf_iterator<char>(in), {});
  return !in.bad();
}

bool WriteAll(const fs::path& path, const std::string& bytes) {
  std::ofstream file(path, std::ios::binary | std::ios::trunc);
  file.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
  file.close();
  return file.good();
}

// Resolves a link, so that writing replaces its target and not the link.
fs::path Target(const fs::path& path) {
  std::error_code failure;
  const fs::path target = fs::weakly_canonical(path, failure);
  return failure ? path : target;
}

// A name beside the target that is unique to this run.
fs::path Beside(const fs::path& target) {
  fs::path name = target;
  name += "." + std::to_string(std::random_device{}()) + ".new";
  return name;
}

bool WriteBesideAndRename(const fs::path& target, const std::string& bytes) {
  const fs::path beside = Beside(target);
  std::error_code failure;
  if (WriteAll(beside, bytes)) {
    fs::rename(beside, target, failure);
    if (!failure) return true;
  }
  const int reason = errno;
  fs::remove(beside, failure);
  errno = reason;
  return false;
}

bool WriteFile(const fs::path& target, const std::string& bytes) {
  std::error_code failure;
  const fs::file_status status = fs::status(target, failure);
  if (!fs::exists(status)) return WriteBesideAndRename(target, bytes);
  // A device or pipe is written to: replacing it with a file would disconnect all its users.
  if (!fs::is_regular_file(status)) return WriteAll(target, bytes);
  // A read-only file is kept, even when its folder would permit replacing it.
  if (!std::ofstream(target, std::ios::binary | std::ios::app)) return false;
  return WriteBesideAndRename(target, bytes);
}

// In the tool's words where there are some, else in the system's.
Message WhyNot(const fs::path& path, int reason) {
  std::error_code failure;
  const fs::path folder = path.parent_path();
  if (!folder.empty() && !fs::is_directory(folder, failure))
    return "there is no folder {0}"_say(NameOf(folder));
  if (reason == EACCES || reason == EPERM || reason == EROFS) return "access is denied"_say;
  if (!fs::exists(path, failure)) return "there is no such file"_say;
  if (reason == ENOSPC) return "the disk is full"_say;
  return std::generic_category().message(reason);
}

}  // namespace

std::optional<Message> ReadInput(const std::string& name, const QmnStreams& streams,
                                 std::string& bytes) {
  const auto failed = [](const Message& why) { return "can't be read: {0}"_say(why); };
  if (IsStandardStream(name)) {
    if (ReadAll(streams.in, bytes)) return std::nullopt;
    return failed("standard input failed"_say);
  }
  const fs::path path = PathOf(name);
  std::error_code failure;
  if (fs::is_directory(path, failure)) return failed("it is a folder"_say);
  errno = 0;
  std::ifstream file(path, std::ios::binary);
  if (file && ReadAll(file, bytes)) return std::nullopt;
  return failed(WhyNot(path, errno));
}

std::optional<Message> WriteOutput(const std::string& name, const QmnStreams& streams,
                                   const std::string& bytes) {
  const auto failed = [](const Message& why) { return "can't be written: {0}"_say(why); };
  if (IsStandardStream(name)) {
    streams.out.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    streams.out.flush();
    if (streams.out.good()) return std::nullopt;
    return failed("standard output failed"_say);
  }
  const fs::path target = Target(PathOf(name));
  std::error_code failure;
  if (fs::is_directory(target, failure)) return failed("it is a folder"_say);
  errno = 0;
  if (WriteFile(target, bytes)) return std::nullopt;
  return failed(WhyNot(target, errno));
}

bool IsFile(const std::string& name) {
  std::error_code failure;
  const fs::file_status status = fs::status(PathOf(name), failure);
  return fs::exists(status) && !fs::is_directory(status);
}

bool IsFolder(const std::string& name) {
  std::error_code failure;
  return fs::is_directory(PathOf(name), failure);
}

std::string FolderOf(const std::string& name) {
  const fs::path folder = PathOf(name).parent_path();
  return folder.empty() ? "." : NameOf(folder);
}

std::string InFolder(const std::string& folder, const std::string& name) {
  return folder == "." ? name : NameOf(PathOf(folder) / PathOf(name));
}

std::vector<std::string> FilesIn(const std::string& folder, const char* extension) {
  std::vector<std::string> names;
  std::error_code failure;
  fs::recursive_directory_iterator entries(PathOf(folder), failure), end;
  while (!failure && entries != end) {
    const std::string name = NameOf(entries->path().filename());
    const bool isHidden = name.starts_with(".");
    if (isHidden && entries->is_directory(failure)) entries.disable_recursion_pending();
    if (!isHidden && entries->is_regular_file(failure) && ExtensionOf(name) == extension)
      names.push_back(NameOf(entries->path()));
    entries.increment(failure);
  }
  std::sort(names.begin(), names.end());
  return names;
}

std::string WithExtension(const std::string& name, const char* extension) {
  return NameOf(PathOf(name).replace_extension(extension));
}

std::string ExtensionOf(const std::string& name) {
  std::string extension = NameOf(PathOf(name).extension());
  for (char& c : extension)
    if (c >= 'A' && c <= 'Z') c = static_cast<char>(c + ('a' - 'A'));
  return extension;
}

bool IsSameFile(const std::string& a, const std::string& b) {
  if (IsStandardStream(a) || IsStandardStream(b)) return false;
  std::error_code failure;
  return fs::equivalent(PathOf(a), PathOf(b), failure);
}
