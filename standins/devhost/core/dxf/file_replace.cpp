// Replacing files; see the header. Files are opened by the functions of the C library that return
// numbers, as streams can neither be created exclusively nor written to the disk.
#include "devhost/core/dxf/file_replace.h"

#include <fcntl.h>
#include <sys/stat.h>

#include <algorithm>
#include <cerrno>
#include <cstdint>
#include <cstdlib>
#include <vector>

#ifdef _WIN32
#include <io.h>
#include <share.h>
#else
#include <sys/file.h>
#include <unistd.h>
#endif

#include "devhost/core/base/text_case.h"

namespace devhost {
namespace {

namespace fs = std::filesystem;

constexpr std::size_t kShownLetters = 40;  // of the name: the whole stays below limits of names
constexpr int kMaxTries = 1000;            // to find a free name
constexpr std::size_t kPiece = 1 << 24;    // bytes of one call
constexpr char kEnding[] = ".tmp";

std::error_code LastError() { return {errno, std::generic_category()}; }

// What the systems do differently.
#ifdef _WIN32

// An open file cannot be renamed.
constexpr bool kCloseBeforeRename = true;

constexpr int kSharingViolation = 32, kLockViolation = 33;

bool IsInUse(std::error_code error) {
  return error.category() == std::system_category() &&
         (error.value() == kSharingViolation || error.value() == kLockViolation);
}

// Other processes can neither open nor remove the file while it is open.
int CreateNew(const fs::path& path) {
  int file = -1;
  errno = _wsopen_s(&file, path.c_str(), _O_CREAT | _O_EXCL | _O_WRONLY | _O_BINARY | _O_NOINHERIT,
                    _SH_DENYRW, _S_IREAD | _S_IWRITE);
  return file;
}
int WritePiece(int file, const char* bytes, std::size_t count) {
  return _write(file, bytes, static_cast<unsigned>(count));
}
std::error_code Flush(int file) { return _commit(file) == 0 ? std::error_code() : LastError(); }
std::error_code CloseFile(int file) { return _close(file) == 0 ? std::error_code() : LastError(); }
void CopyRights(const fs::path&, int) {}
void FlushFolder(const fs::path&) {}

// Why the file cannot be written, as far as opening it shows.
std::error_code TryToOpen(const fs::path& target) {
  struct _stat64 state {};  // write protection does not stop every user from opening
  if (_wstat64(target.c_str(), &state) == 0 && !(state.st_mode & _S_IWRITE))
    return std::make_error_code(std::errc::permission_denied);
  int file = -1;
  if (_wsopen_s(&file, target.c_str(), _O_RDWR | _O_BINARY, _SH_DENYNO, 0) == 0) {
    _close(file);
    return {};
  }
  return {static_cast<int>(_doserrno), std::system_category()};
}

void RemoveIfUnused(const fs::path& left) {
  std::error_code ignored;
  fs::remove(left, ignored);
}

#else

constexpr bool kCloseBeforeRename = false;

bool IsInUse(std::error_code error) {
  return error == std::errc::text_file_busy || error == std::errc::device_or_resource_busy;
}

// The lock ends with the process and shows others that the file is in use.
int CreateNew(const fs::path& path) {
  const int file = ::open(path.c_str(), O_CREAT | O_EXCL | O_WRONLY | O_CLOEXEC, 0666);
  if (file >= 0) ::flock(file, LOCK_EX | LOCK_NB);
  return file;
}
ssize_t WritePiece(int file, const char* bytes, std::size_t count) {
  return ::write(file, bytes, count);
}
std::error_code Flush(int file) { return ::fsync(file) == 0 ? std::error_code() : LastError(); }
std::error_code CloseFile(int file) { return ::close(file) == 0 ? std::error_code() : LastError(); }

void CopyRights(const fs::path& target, int file) {
  struct stat old {};
  if (::stat(target.c_str(), &old) == 0) ::fchmod(file, old.st_mode & 07777);
}

// Without it the new name can be lost with the power supply.
void FlushFolder(const fs::path& folder) {
  const int file = ::open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
  if (file < 0) return;
  ::fsync(file);
  ::close(file);
}

std::error_code TryToOpen(const fs::path& target) {
  return ::access(target.c_str(), W_OK) == 0 ? std::error_code() : LastError();
}

void RemoveIfUnused(const fs::path& left) {
  const int file = ::open(left.c_str(), O_WRONLY | O_CLOEXEC);
  if (file < 0) return;
  if (::flock(file, LOCK_EX | LOCK_NB) == 0) ::unlink(left.c_str());
  ::close(file);
}

#endif

std::error_code WriteAll(int file, std::string_view bytes) {
  while (!bytes.empty()) {
    const auto done = WritePiece(file, bytes.data(), std::min(bytes.size(), kPiece));
    if (done < 0 && errno == EINTR) continue;
    if (done < 0) return LastError();
    if (done == 0) return std::make_error_code(std::errc::no_space_on_device);
    bytes.remove_prefix(static_cast<std::size_t>(done));
  }
  return {};
}

std::error_code Rename(const fs::path& from, const fs::path& to) {
  std::error_code error;
  fs::rename(from, to, error);  // replaces an existing file, on every system
  return error;
}

FileProblem ProblemOf(std::error_code error) {
  if (!error) return FileProblem::None;
  if (IsInUse(error)) return FileProblem::InUse;
  if (error == std::errc::no_space_on_device || error == std::errc::file_too_large
#ifdef EDQUOT
      || (error.category() == std::generic_category() && error.value() == EDQUOT)
#endif
  )
    return FileProblem::DiskFull;
  if (error == std::errc::permission_denied || error == std::errc::operation_not_permitted ||
      error == std::errc::read_only_file_system)
    return FileProblem::NoRights;
  if (error == std::errc::no_such_file_or_directory || error == std::errc::not_a_directory)
    return FileProblem::NoFolder;
  if (error == std::errc::is_a_directory) return FileProblem::IsFolder;
  if (error == std::errc::invalid_argument || error == std::errc::filename_too_long)
    return FileProblem::BadName;
  return FileProblem::Other;
}

// Names as the system stores them, not converted: a name may be no valid text.
using Name = fs::path::string_type;

// As the system compares names.
Name Compared(const fs::path& name) {
#ifdef _WIN32
  return UpperCase(name.native());
#else
  return name.native();
#endif
}

// The start of the names of temporary files, up to their number.
fs::path TemporaryStart(const fs::path& target) {
  std::uint32_t hash = 2166136261u;  // FNV-1a
  for (auto c : Compared(target.filename()))
    hash = (hash ^ static_cast<std::uint32_t>(c)) * 16777619u;
  fs::path start("~");
  start += target.filename().native().substr(0, kShownLetters);
  start += "-" + std::to_string(hash) + "-";
  return start;
}

void RemoveLeftFiles(const fs::path& target, const fs::path& folder) {
  std::error_code error;
  std::vector<fs::path> left;
  for (fs::directory_iterator at(folder, error), end; !error && at != end; at.increment(error))
    if (IsTemporaryFor(target, at->path().filename())) left.push_back(at->path());
  for (const fs::path& path : left) RemoveIfUnused(path);
}

// Of one name in a folder, on all usual file systems. Windows reports a longer one in several ways.
constexpr std::size_t kLongestName = 255;

// What is wrong with the place before anything is written.
FileProblem ProblemOfPlace(const fs::path& target, const fs::path& folder) {
  std::error_code error;
  if (target.filename().empty() || fs::is_directory(target, error)) return FileProblem::IsFolder;
  if (target.filename().native().size() > kLongestName) return FileProblem::BadName;
  if (!fs::is_directory(folder, error)) return FileProblem::NoFolder;
  const fs::file_status old = fs::status(target, error);
  if (!fs::exists(old)) return FileProblem::None;
  if (!fs::is_regular_file(old)) return FileProblem::BadName;  // a device
  return ProblemOf(TryToOpen(target));
}

struct Temporary {
  int file = -1;
  fs::path path;
};

FileProblem CreateTemporary(const fs::path& target, const fs::path& folder, Temporary* made) {
  for (int number = 1; number <= kMaxTries; ++number) {
    made->path = folder / TemporaryStart(target);
    made->path += std::to_string(number) + kEnding;
    made->file = CreateNew(made->path);
    if (made->file >= 0) return FileProblem::None;
    if (errno != EEXIST) return ProblemOf(LastError());
  }
  return FileProblem::Other;
}

// Writes the contents and gives them the name. The file is open, and so protected from another
// save, as long as the system allows. `renaming` is set for the last step.
std::error_code Exchange(const Temporary& temporary, std::string_view bytes, const fs::path& target,
                         const FileSteps& steps, bool* renaming) {
  CopyRights(target, temporary.file);
  std::error_code error = steps.write(temporary.file, bytes);
  if (!error) error = steps.flush(temporary.file);
  if (error || kCloseBeforeRename) {
    const std::error_code closed = CloseFile(temporary.file);
    if (error || closed) return error ? error : closed;
  }
  *renaming = true;
  error = steps.rename(temporary.path, target);
  if (!kCloseBeforeRename) CloseFile(temporary.file);
  return error;
}

// A link stays a link: the file that it names is replaced.
fs::path WithoutLinks(const fs::path& path) {
  std::error_code error;
  const fs::path real = fs::is_symlink(path, error) ? fs::canonical(path, error) : path;
  return error ? path : real;
}

}  // namespace

FileSteps SystemFileSteps() { return {WriteAll, Flush, Rename}; }

bool IsTemporaryFor(const fs::path& target, const fs::path& name) {
  const Name text = Compared(name), start = Compared(TemporaryStart(target)),
             ending = Compared(kEnding);
  if (text.size() <= start.size() + ending.size() || !text.starts_with(start) ||
      !text.ends_with(ending))
    return false;
  const Name number = text.substr(start.size(), text.size() - start.size() - ending.size());
  return std::all_of(number.begin(), number.end(), [](auto c) { return c >= '0' && c <= '9'; });
}

FileProblem ReplaceFileContents(const fs::path& path, std::string_view bytes,
                                const FileSteps& steps) {
  const fs::path target = WithoutLinks(path);
  const fs::path folder = target.has_parent_path() ? target.parent_path() : fs::path(".");
  if (const FileProblem bad = ProblemOfPlace(target, folder); bad != FileProblem::None) return bad;
  RemoveLeftFiles(target, folder);
  Temporary temporary;
  if (const FileProblem bad = CreateTemporary(target, folder, &temporary); bad != FileProblem::None)
    return bad;
  bool renaming = false;
  const std::error_code error = Exchange(temporary, bytes, target, steps, &renaming);
  if (!error) {
    FlushFolder(folder);
    return FileProblem::None;
  }
  std::error_code ignored;
  const bool lost = !fs::remove(temporary.path, ignored);
  if (renaming && lost) return FileProblem::InUse;  // removed by another save of the same file
  const FileProblem problem = ProblemOf(error);
  // Renaming over a file that another program has open is refused as if rights were missing.
  if (renaming && problem == FileProblem::NoRights && fs::exists(target, ignored)) {
    const FileProblem opened = ProblemOf(TryToOpen(target));
    return opened == FileProblem::None ? FileProblem::InUse : opened;
  }
  return problem;
}

const wchar_t* ProblemText(FileProblem problem) {
  switch (problem) {
    case FileProblem::NoFolder:
      return L"文件夹不存在，图形未保存";
    case FileProblem::IsFolder:
      return L"这是一个文件夹，图形未保存";
    case FileProblem::BadName:
      return L"文件名无效，图形未保存";
    case FileProblem::NoRights:
      return L"没有写入权限，图形未保存";
    case FileProblem::DiskFull:
      return L"磁盘已满，图形未保存";
    case FileProblem::InUse:
      return L"文件正被其他程序使用，图形未保存";
    case FileProblem::Other:
      return L"无法写入文件，图形未保存";
    case FileProblem::None:
      break;
  }
  return L"";
}

}  // namespace devhost
