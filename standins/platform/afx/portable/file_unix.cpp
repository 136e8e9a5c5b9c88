// CFile's operating system calls on systems other than Windows. Share flags have no counterpart and
// are ignored; backslashes in a path are not converted.
#ifndef _WIN32
#include "file.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>
#include <cerrno>
#include <cstdio>

namespace afx_file {
namespace {

constexpr unsigned kUtf8Page = 65001;

LONG Result(bool done) { return done ? 0 : errno; }
int Descriptor(CFile::Handle handle) { return static_cast<int>(handle); }

std::string PathOf(const CString& path) {
  return WideToAnsi({path.GetString(), static_cast<std::size_t>(path.GetLength())}, kUtf8Page);
}

}  // namespace

LONG OpenFile(const CString& path, UINT flags, CFile::Handle* handle) {
  int mode = (flags & 3) == CFile::modeWrite       ? O_WRONLY
             : (flags & 3) == CFile::modeReadWrite ? O_RDWR
                                                   : O_RDONLY;
  if (flags & CFile::modeCreate) mode |= O_CREAT | (flags & CFile::modeNoTruncate ? 0 : O_TRUNC);
  const std::string name = PathOf(path);
  const int opened = open(name.c_str(), mode | O_CLOEXEC, 0666);
  *handle = opened;
  if (opened < 0) return Result(false);
  struct stat status;
  if (fstat(opened, &status) == 0 && S_ISDIR(status.st_mode)) {
    close(opened);
    *handle = -1;
    return EISDIR;  // open() accepts a directory here, Windows does not
  }
  return 0;
}

LONG CloseFile(CFile::Handle handle) { return Result(close(Descriptor(handle)) == 0); }

LONG ReadFile(CFile::Handle handle, void* buffer, UINT count, UINT* taken) {
  *taken = 0;
  while (*taken < count) {
    const ssize_t got =
        read(Descriptor(handle), static_cast<char*>(buffer) + *taken, count - *taken);
    if (got < 0 && errno == EINTR) continue;
    if (got <= 0) return Result(got == 0);
    *taken += static_cast<UINT>(got);
  }
  return 0;
}

LONG WriteFile(CFile::Handle handle, const void* buffer, UINT count) {
  for (UINT done = 0; done < count;) {
    const ssize_t put =
        write(Descriptor(handle), static_cast<const char*>(buffer) + done, count - done);
    if (put < 0 && errno == EINTR) continue;
    if (put < 0) return Result(false);
    done += static_cast<UINT>(put);
  }
  return 0;
}

LONG SeekFile(CFile::Handle handle, LONGLONG offset, UINT from, ULONGLONG* position) {
  const off_t reached = lseek(Descriptor(handle), offset, static_cast<int>(from));
  if (reached < 0) return Result(false);
  *position = static_cast<ULONGLONG>(reached);
  return 0;
}

LONG FileLength(CFile::Handle handle, ULONGLONG* length) {
  struct stat status;
  if (fstat(Descriptor(handle), &status) != 0) return Result(false);
  *length = static_cast<ULONGLONG>(status.st_size);
  return 0;
}

LONG SetFileLength(CFile::Handle handle, ULONGLONG length) {
  if (ftruncate(Descriptor(handle), static_cast<off_t>(length)) != 0) return Result(false);
  ULONGLONG position;
  return SeekFile(handle, static_cast<LONGLONG>(length), CFile::begin, &position);
}

LONG FlushFile(CFile::Handle handle) { return Result(fsync(Descriptor(handle)) == 0); }

LONG RenameFile(const CString& from, const CString& to) {
  return Result(std::rename(PathOf(from).c_str(), PathOf(to).c_str()) == 0);
}

LONG RemoveFile(const CString& path) { return Result(unlink(PathOf(path).c_str()) == 0); }

}  // namespace afx_file

int CFileException::OsErrorToException(LONG osError) {
  switch (osError) {
    case 0:
      return none;
    case ENOENT:
      return fileNotFound;
    case ENOTDIR:
    case ENAMETOOLONG:
      return badPath;
    case EMFILE:
    case ENFILE:
      return tooManyOpenFiles;
    case EACCES:
    case EPERM:
    case EROFS:
    case EISDIR:
      return accessDenied;
    case EBADF:
      return invalidFile;
    case EINVAL:
      return badSeek;
    case EIO:
      return hardIO;
    case ENOSPC:
      return diskFull;
    default:
      return genericException;
  }
}
#endif
