// Operating system calls of CFile with one error convention. Used by file.cpp; implemented in
// file_windows.cpp and file_unix.cpp.
#pragma once

#include "afx.h"

namespace afx_file {

// All functions return the system's error number, 0 for success.
LONG OpenFile(const CString& path, UINT openFlags, CFile::Handle* handle);
LONG CloseFile(CFile::Handle handle);
LONG ReadFile(CFile::Handle handle, void* buffer, UINT count, UINT* taken);
LONG WriteFile(CFile::Handle handle, const void* buffer, UINT count);
LONG SeekFile(CFile::Handle handle, LONGLONG offset, UINT from, ULONGLONG* position);
LONG FileLength(CFile::Handle handle, ULONGLONG* length);
LONG SetFileLength(CFile::Handle handle, ULONGLONG length);
LONG FlushFile(CFile::Handle handle);
LONG RenameFile(const CString& from, const CString& to);
LONG RemoveFile(const CString& path);

}  // namespace afx_file
