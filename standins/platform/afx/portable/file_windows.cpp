// CFile's operating system calls on Windows.
#ifdef _WIN32
#include "file.h"

namespace afx_file {
namespace {

LONG Result(BOOL done) { return done ? 0 : static_cast<LONG>(GetLastError()); }

DWORD Access(UINT flags) {
  switch (flags & 3) {
    case CFile::modeWrite:
      return GENERIC_WRITE;
    case CFile::modeReadWrite:
      return GENERIC_READ | GENERIC_WRITE;
    default:
      return GENERIC_READ;
  }
}

DWORD Share(UINT flags) {
  switch (flags & 0x70) {
    case CFile::shareDenyWrite:
      return FILE_SHARE_READ;
    case CFile::shareDenyRead:
      return FILE_SHARE_WRITE;
    case CFile::shareDenyNone:
      return FILE_SHARE_READ | FILE_SHARE_WRITE;
    case CFile::shareExclusive:
      return 0;
    // Default: a reader allows others to read, a writer allows nothing.
    default:
      return (flags & 3) == CFile::modeRead ? FILE_SHARE_READ : 0;
  }
}

DWORD Disposition(UINT flags) {
  if (!(flags & CFile::modeCreate)) return OPEN_EXISTING;
  return flags & CFile::modeNoTruncate ? OPEN_ALWAYS : CREATE_ALWAYS;
}

}  // namespace

LONG OpenFile(const CString& path, UINT flags, CFile::Handle* handle) {
  *handle = CreateFileW(path, Access(flags), Share(flags), nullptr, Disposition(flags),
                        FILE_ATTRIBUTE_NORMAL, nullptr);
  return Result(*handle != INVALID_HANDLE_VALUE);
}

LONG CloseFile(CFile::Handle handle) { return Result(CloseHandle(handle)); }

LONG ReadFile(CFile::Handle handle, void* buffer, UINT count, UINT* taken) {
  DWORD read = 0;
  const LONG result = Result(::ReadFile(handle, buffer, count, &read, nullptr));
  *taken = read;
  return result;
}

LONG WriteFile(CFile::Handle handle, const void* buffer, UINT count) {
  DWORD written = 0;
  if (!::WriteFile(handle, buffer, count, &written, nullptr)) return Result(FALSE);
  return written == count ? 0 : ERROR_DISK_FULL;
}

LONG SeekFile(CFile::Handle handle, LONGLONG offset, UINT from, ULONGLONG* position) {
  LARGE_INTEGER wanted, reached;
  wanted.QuadPart = offset;
  if (!SetFilePointerEx(handle, wanted, &reached, from)) return Result(FALSE);
  *position = static_cast<ULONGLONG>(reached.QuadPart);
  return 0;
}

LONG FileLength(CFile::Handle handle, ULONGLONG* length) {
  LARGE_INTEGER size;
  if (!GetFileSizeEx(handle, &size)) return Result(FALSE);
  *length = static_cast<ULONGLONG>(size.QuadPart);
  return 0;
}

LONG SetFileLength(CFile::Handle handle, ULONGLONG length) {
  ULONGLONG position;
  const LONG result = SeekFile(handle, static_cast<LONGLONG>(length), CFile::begin, &position);
  return result ? result : Result(SetEndOfFile(handle));
}

LONG FlushFile(CFile::Handle handle) { return Result(FlushFileBuffers(handle)); }
LONG RenameFile(const CString& from, const CString& to) { return Result(MoveFileW(from, to)); }
LONG RemoveFile(const CString& path) { return Result(DeleteFileW(path)); }

}  // namespace afx_file

int CFileException::OsErrorToException(LONG osError) {
  switch (osError) {
    case NO_ERROR:
      return none;
    case ERROR_FILE_NOT_FOUND:
      return fileNotFound;
    case ERROR_PATH_NOT_FOUND:
    case ERROR_INVALID_NAME:
    case ERROR_BAD_PATHNAME:
      return badPath;
    case ERROR_TOO_MANY_OPEN_FILES:
      return tooManyOpenFiles;
    case ERROR_ACCESS_DENIED:
    case ERROR_WRITE_PROTECT:
      return accessDenied;
    case ERROR_INVALID_HANDLE:
      return invalidFile;
    case ERROR_SEEK:
    case ERROR_NEGATIVE_SEEK:
      return badSeek;
    case ERROR_SHARING_VIOLATION:
      return sharingViolation;
    case ERROR_LOCK_VIOLATION:
      return lockViolation;
    case ERROR_HANDLE_DISK_FULL:
    case ERROR_DISK_FULL:
      return diskFull;
    case ERROR_HANDLE_EOF:
      return endOfFile;
    default:
      return genericException;
  }
}
#endif
