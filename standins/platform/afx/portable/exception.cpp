// The exception classes and the functions that throw them.
#include "afx.h"

#include <algorithm>

IMPLEMENT_DYNAMIC(CException, CObject)
IMPLEMENT_DYNAMIC(CSimpleException, CException)
IMPLEMENT_DYNAMIC(CMemoryException, CSimpleException)
IMPLEMENT_DYNAMIC(CNotSupportedException, CSimpleException)
IMPLEMENT_DYNAMIC(CResourceException, CSimpleException)
IMPLEMENT_DYNAMIC(CUserException, CSimpleException)
IMPLEMENT_DYNAMIC(CInvalidArgException, CSimpleException)
IMPLEMENT_DYNAMIC(CFileException, CException)
IMPLEMENT_DYNAMIC(CArchiveException, CException)

void CException::Delete() {
  if (m_bAutoDelete) delete this;
}

BOOL CException::GetErrorMessage(LPTSTR text, UINT capacity, UINT* helpContext) const {
  if (helpContext) *helpContext = 0;
  if (!text || capacity == 0) return FALSE;
  const CString name(GetRuntimeClass()->m_lpszClassName);
  const int length = std::min(name.GetLength(), static_cast<int>(capacity) - 1);
  std::copy_n(name.GetString(), length, text);
  text[length] = 0;
  return TRUE;
}

// Static objects owned by the library: throwing one for lack of memory allocates none.
template <class Exception>
[[noreturn]] static void ThrowOwned() {
  static Exception exception(FALSE);
  throw &exception;
}

void AfxThrowMemoryException() { ThrowOwned<CMemoryException>(); }
void AfxThrowNotSupportedException() { ThrowOwned<CNotSupportedException>(); }
void AfxThrowResourceException() { ThrowOwned<CResourceException>(); }
void AfxThrowUserException() { ThrowOwned<CUserException>(); }
void AfxThrowInvalidArgException() { ThrowOwned<CInvalidArgException>(); }

void AfxThrowFileException(int cause, LONG osError, LPCTSTR fileName) {
  throw new CFileException(cause, osError, fileName);
}

void AfxThrowArchiveException(int cause, LPCTSTR archiveName) {
  throw new CArchiveException(cause, archiveName);
}

void CFileException::ThrowOsError(LONG osError, LPCTSTR fileName) {
  AfxThrowFileException(OsErrorToException(osError), osError, fileName);
}
