// CStdioFile: lines over CFile with a small read-ahead. Narrow text has the ANSI code page.
#include "afx.h"

#include <algorithm>

IMPLEMENT_DYNAMIC(CStdioFile, CFile)

static constexpr UINT kAhead = 4096;

CStdioFile::CStdioFile(LPCTSTR path, UINT openFlags) : CFile(path, openFlags) {
  m_text = !(openFlags & typeBinary);
}

BOOL CStdioFile::Open(LPCTSTR path, UINT openFlags, CFileException* error) {
  m_text = !(openFlags & typeBinary);
  m_ahead.clear();
  m_taken = 0;
  return CFile::Open(path, openFlags, error);
}

// False when nothing is left in the file.
bool CStdioFile::Fill() {
  m_ahead.resize(kAhead);
  m_ahead.resize(CFile::Read(m_ahead.data(), kAhead));
  m_taken = 0;
  return !m_ahead.empty();
}

ULONGLONG CStdioFile::GetPosition() const {
  return CFile::GetPosition() - (m_ahead.size() - m_taken);
}

ULONGLONG CStdioFile::Seek(LONGLONG offset, UINT from) {
  if (from == current) offset -= static_cast<LONGLONG>(m_ahead.size() - m_taken);
  m_ahead.clear();
  m_taken = 0;
  return CFile::Seek(offset, from);
}

UINT CStdioFile::Read(void* buffer, UINT count) {
  UINT done = 0;
  while (done < count && (m_taken < m_ahead.size() || Fill())) {
    const std::size_t part = std::min<std::size_t>(count - done, m_ahead.size() - m_taken);
    std::copy_n(m_ahead.data() + m_taken, part, static_cast<char*>(buffer) + done);
    m_taken += part;
    done += static_cast<UINT>(part);
  }
  return done;
}

void CStdioFile::Close() {
  m_ahead.clear();
  m_taken = 0;
  CFile::Close();
}

BOOL CStdioFile::ReadString(CString& line) {
  std::string narrow;
  bool any = false;
  while (m_taken < m_ahead.size() || Fill()) {
    any = true;
    const char character = m_ahead[m_taken++];
    if (character == '\n') break;
    narrow += character;
  }
  if (narrow.ends_with('\r')) narrow.pop_back();
  line = CString(narrow.data(), static_cast<int>(narrow.size()));
  return any;
}

void CStdioFile::WriteString(LPCTSTR text) {
  CStringA narrow(text);
  if (m_text) narrow.Replace("\n", "\r\n");
  CFile::Write(narrow.GetString(), static_cast<UINT>(narrow.GetLength()));
}
