#include "tools/qmn/tool_files.h"

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
  fs::remove(beside, failure);
  return false;
}

}  // namespace

bool ReadInput(const std::string& name, const QmnStreams& streams, std::string& bytes) {
  if (IsStandardStream(name)) return ReadAll(streams.in, bytes);
  std::error_code failure;
  if (fs::is_directory(PathOf(name), failure)) return false;
  std::ifstream file(PathOf(name), std::ios::binary);
  return file && ReadAll(file, bytes);
}

bool WriteOutput(const std::string& name, const QmnStreams& streams, const std::string& bytes) {
  if (IsStandardStream(name)) {
    streams.out.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    streams.out.flush();
    return streams.out.good();
  }
  const fs::path target = Target(PathOf(name));
  std::error_code failure;
  const fs::file_status status = fs::status(target, failure);
  if (!fs::exists(status)) return WriteBesideAndRename(target, bytes);
  // A device or pipe is written to: replacing it with a file would disconnect all its users.
  if (!fs::is_regular_file(status)) return !fs::is_directory(status) && WriteAll(target, bytes);
  // A read-only file is kept, even when its folder would permit replacing it.
  if (!std::ofstream(target, std::ios::binary | std::ios::app)) return false;
  return WriteBesideAndRename(target, bytes);
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
