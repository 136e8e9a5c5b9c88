// CFile over the operating system's handle, and CMemFile.
#include "file.h"

#include <algorithm>

IMPLEMENT_DYNAMIC(CFile, CObject)
IMPLEMENT_DYNAMIC(CMemFile, CFile)

#ifdef _WIN32
const CFile::Handle CFile::hFileNull = INVALID_HANDLE_VALUE;
#else
const CFile::Handle CFile::hFileNull = -1;
#endif

static void Check(LONG result, const CString& path) {
  if (result) CFileException::ThrowOsError(result, path);
}

CFile::CFile(LPCTSTR path, UINT openFlags) {
  CFileException error;
  if (!CFile::Open(path, openFlags, &error))
    AfxThrowFileException(error.m_cause, error.m_lOsError, error.m_strFileName);
}

CFile::~CFile() {
  if (m_hFile != hFileNull) afx_file::CloseFile(m_hFile);
}

BOOL CFile::Open(LPCTSTR path, UINT openFlags, CFileException* error) {
  m_strFileName = path;
  const LONG result = afx_file::OpenFile(m_strFileName, openFlags, &m_hFile);
  if (!result) return TRUE;
  m_hFile = hFileNull;
  if (error) {
    error->m_cause = CFileException::OsErrorToException(result);
    error->m_lOsError = result;
    error->m_strFileName = m_strFileName;
  }
  return FALSE;
}

CString CFile::GetFileName() const {
  const int slash = std::max(m_strFileName.ReverseFind(L'\\'), m_strFileName.ReverseFind(L'/'));
  return m_strFileName.Mid(slash + 1);
}

ULONGLONG CFile::GetPosition() const {
  ULONGLONG position = 0;
  Check(afx_file::SeekFile(m_hFile, 0, current, &position), m_strFileName);
  return position;
}

ULONGLONG CFile::Seek(LONGLONG offset, UINT from) {
  ULONGLONG position = 0;
  Check(afx_file::SeekFile(m_hFile, offset, from, &position), m_strFileName);
  return position;
}

void CFile::SetLength(ULONGLONG length) {
  Check(afx_file::SetFileLength(m_hFile, length), m_strFileName);
}

ULONGLONG CFile::GetLength() const {
  ULONGLONG length = 0;
  Check(afx_file::FileLength(m_hFile, &length), m_strFileName);
  return length;
}

UINT CFile::Read(void* buffer, UINT count) {
  UINT taken = 0;
  Check(afx_file::ReadFile(m_hFile, buffer, count, &taken), m_strFileName);
  return taken;
}

void CFile::Write(const void* buffer, UINT count) {
  Check(afx_file::WriteFile(m_hFile, buffer, count), m_strFileName);
}

void CFile::Flush() {
  if (m_hFile != hFileNull) Check(afx_file::FlushFile(m_hFile), m_strFileName);
}

void CFile::Close() {
  if (m_hFile == hFileNull) return;
  const Handle closing = std::exchange(m_hFile, hFileNull);
  Check(afx_file::CloseFile(closing), m_strFileName);
}

void CFile::Abort() {
  if (m_hFile != hFileNull) afx_file::CloseFile(std::exchange(m_hFile, hFileNull));
}

void CFile::Rename(LPCTSTR from, LPCTSTR to) { Check(afx_file::RenameFile(from, to), from); }
void CFile::Remove(LPCTSTR path) { Check(afx_file::RemoveFile(path), path); }

CMemFile::CMemFile(UINT growBytes) { m_bytes.reserve(growBytes); }
CMemFile::CMemFile(const BYTE* bytes, UINT count) : m_bytes(bytes, bytes + count) {}

ULONGLONG CMemFile::Seek(LONGLONG offset, UINT from) {
  const LONGLONG base = from == begin     ? 0
                        : from == current ? static_cast<LONGLONG>(m_position)
                                          : static_cast<LONGLONG>(m_bytes.size());
  if (offset < -base) AfxThrowFileException(CFileException::badSeek);
  return m_position = static_cast<ULONGLONG>(base + offset);
}

UINT CMemFile::Read(void* buffer, UINT count) {
  if (m_position >= m_bytes.size()) return 0;
  const std::size_t left = m_bytes.size() - static_cast<std::size_t>(m_position);
  const std::size_t taken = std::min<std::size_t>(count, left);
  std::copy_n(m_bytes.data() + m_position, taken, static_cast<BYTE*>(buffer));
  m_position += taken;
  return static_cast<UINT>(taken);
}

void CMemFile::Write(const void* buffer, UINT count) {
  if (!count) return;
  const std::size_t at = static_cast<std::size_t>(m_position);
  if (m_bytes.size() < at + count) m_bytes.resize(at + count);
  std::copy_n(static_cast<const BYTE*>(buffer), count, m_bytes.data() + at);
  m_position += count;
}

void CMemFile::Close() {
  m_bytes.clear();
  m_position = 0;
}
