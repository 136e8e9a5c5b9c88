// The class library without windows: run-time classes, strings, exceptions, files, archives and
// collections. Builds on every platform; afxwin.h is based on it.
#pragma once

#define __AFX_H__

#include "afxv_w32.h"

#include <cstdint>
#include <cstring>
#include <memory>
#include <vector>

#include "afxstr.h"

#ifndef _WIN32
using LONGLONG = long long;
using ULONGLONG = unsigned long long;
using UINT_PTR = std::uintptr_t;
using INT_PTR = std::intptr_t;
using DWORD_PTR = std::uintptr_t;
using LONG_PTR = std::intptr_t;
using LPVOID = void*;
using LPCVOID = const void*;
#ifndef __int64
#define __int64 long long
#endif
#endif

#ifndef AFXAPI
#define AFXAPI
#endif
#ifndef AFX_CDECL
#define AFX_CDECL
#endif
#define AFX_DATADEF
#define AFX_EXT_CLASS
#define BASED_CODE
#define afx_msg

// Checks of program invariants. They stop a debug build and are removed from others; VERIFY
// always evaluates its argument.
#ifndef ASSERT
#ifdef _DEBUG
#define ASSERT(condition) \
  ((condition) ? (void)0 : AfxAssertFailedLine(#condition, __FILE__, __LINE__))
#define VERIFY(condition) ASSERT(condition)
#else
#define ASSERT(condition) ((void)0)
#define VERIFY(condition) ((void)(condition))
#endif
#endif
#define ASSERT_VALID(object) ASSERT((object) != nullptr)
#define ASSERT_KINDOF(class_name, object) ASSERT((object)->IsKindOf(RUNTIME_CLASS(class_name)))
#ifndef TRACE
#define TRACE(...) ((void)0)
#define TRACE0(...) ((void)0)
#define TRACE1(...) ((void)0)
#define TRACE2(...) ((void)0)
#define TRACE3(...) ((void)0)
#endif
[[noreturn]] void AfxAssertFailedLine(const char* condition, const char* file, int line);

class CObject;
class CArchive;
class CDumpContext;
class CFile;

// ---- run-time classes

struct CRuntimeClass {
  const char* m_lpszClassName;
  int m_nObjectSize;
  UINT m_wSchema;
  CObject* (*m_pfnCreateObject)();        // null when the class can't be created by name
  CRuntimeClass* (*m_pfnGetBaseClass)();  // null at the root
  CRuntimeClass* m_pNextClass = nullptr;

  CObject* CreateObject();
  BOOL IsDerivedFrom(const CRuntimeClass* base) const;
};

#define RUNTIME_CLASS(class_name) (class_name::GetThisClass())

// clang-format off
#define DECLARE_DYNAMIC(class_name)                            \
 public:                                                       \
  static CRuntimeClass class##class_name;                      \
  static CRuntimeClass* GetThisClass();                        \
  CRuntimeClass* GetRuntimeClass() const override;
#define DECLARE_DYNCREATE(class_name)                          \
  DECLARE_DYNAMIC(class_name)                                  \
  static CObject* CreateObject();
// Objects of a serial class are written member by member; archives have no object table.
#define DECLARE_SERIAL(class_name) DECLARE_DYNCREATE(class_name)

#define AFX_IMPLEMENT_RUNTIMECLASS(class_name, base_name, schema, create)                       \
  CRuntimeClass class_name::class##class_name = {#class_name,        int{sizeof(class_name)},   \
                                                 schema,             create,                    \
                                                 &base_name::GetThisClass, nullptr};            \
  CRuntimeClass* class_name::GetThisClass() { return &class_name::class##class_name; }          \
  CRuntimeClass* class_name::GetRuntimeClass() const { return &class_name::class##class_name; }
#define IMPLEMENT_DYNAMIC(class_name, base_name) \
  AFX_IMPLEMENT_RUNTIMECLASS(class_name, base_name, 0xFFFF, nullptr)
#define IMPLEMENT_DYNCREATE(class_name, base_name)                     \
  CObject* class_name::CreateObject() { return new class_name; }       \
  AFX_IMPLEMENT_RUNTIMECLASS(class_name, base_name, 0xFFFF, &class_name::CreateObject)
#define IMPLEMENT_SERIAL(class_name, base_name, schema)                \
  CObject* class_name::CreateObject() { return new class_name; }       \
  AFX_IMPLEMENT_RUNTIMECLASS(class_name, base_name, schema, &class_name::CreateObject)
// clang-format on

// The root class. Its five virtual functions have the published order.
class CObject {
 public:
  virtual CRuntimeClass* GetRuntimeClass() const;
  virtual ~CObject() = default;
  virtual void Serialize(CArchive& archive);
  virtual void AssertValid() const;
  virtual void Dump(CDumpContext& context) const;

  BOOL IsKindOf(const CRuntimeClass* base) const;
  BOOL IsSerializable() const;

  static CRuntimeClass classCObject;
  static CRuntimeClass* GetThisClass();

 protected:
  CObject() = default;

 private:
  CObject(const CObject&) = delete;
  CObject& operator=(const CObject&) = delete;
};

CObject* AfxDynamicDownCast(CRuntimeClass* wanted, CObject* object);
#define DYNAMIC_DOWNCAST(class_name, object) \
  (static_cast<class_name*>(AfxDynamicDownCast(RUNTIME_CLASS(class_name), object)))
#define STATIC_DOWNCAST(class_name, object) (static_cast<class_name*>(object))

// ---- exceptions: thrown as pointers, caught as pointers, ended by Delete()

class CException : public CObject {
  DECLARE_DYNAMIC(CException)
 public:
  explicit CException(BOOL autoDelete = TRUE) : m_bAutoDelete(autoDelete) {}
  // Frees the object unless the library owns it.
  void Delete();
  // A short text for the user. FALSE and an empty text if the exception has none.
  virtual BOOL GetErrorMessage(LPTSTR text, UINT capacity, UINT* helpContext = nullptr) const;

 protected:
  BOOL m_bAutoDelete;
};

class CSimpleException : public CException {
  DECLARE_DYNAMIC(CSimpleException)
 public:
  using CException::CException;
};

#define AFX_DECLARE_SIMPLE_EXCEPTION(class_name) \
  class class_name : public CSimpleException {   \
    DECLARE_DYNAMIC(class_name)                  \
   public:                                       \
    using CSimpleException::CSimpleException;    \
  };
AFX_DECLARE_SIMPLE_EXCEPTION(CMemoryException)
AFX_DECLARE_SIMPLE_EXCEPTION(CNotSupportedException)
AFX_DECLARE_SIMPLE_EXCEPTION(CResourceException)
AFX_DECLARE_SIMPLE_EXCEPTION(CUserException)
AFX_DECLARE_SIMPLE_EXCEPTION(CInvalidArgException)
#undef AFX_DECLARE_SIMPLE_EXCEPTION

class CFileException : public CException {
  DECLARE_DYNAMIC(CFileException)
 public:
  enum {
    none,
    genericException,
    fileNotFound,
    badPath,
    tooManyOpenFiles,
    accessDenied,
    invalidFile,
    removeCurrentDir,
    directoryFull,
    badSeek,
    hardIO,
    sharingViolation,
    lockViolation,
    diskFull,
    endOfFile
  };
  explicit CFileException(int cause = none, LONG osError = -1, LPCTSTR fileName = nullptr)
      : m_cause(cause), m_lOsError(osError), m_strFileName(fileName) {}

  static int OsErrorToException(LONG osError);
  [[noreturn]] static void ThrowOsError(LONG osError, LPCTSTR fileName = nullptr);

  int m_cause;
  LONG m_lOsError;  // system error number: GetLastError on Windows, errno elsewhere
  CString m_strFileName;
};

class CArchiveException : public CException {
  DECLARE_DYNAMIC(CArchiveException)
 public:
  enum {
    none,
    genericException,
    readOnly,
    endOfFile,
    writeOnly,
    badIndex,
    badClass,
    badSchema,
    bufferFull
  };
  explicit CArchiveException(int cause = none, LPCTSTR archiveName = nullptr)
      : m_cause(cause), m_strFileName(archiveName) {}

  int m_cause;
  CString m_strFileName;
};

[[noreturn]] void AfxThrowMemoryException();
[[noreturn]] void AfxThrowNotSupportedException();
[[noreturn]] void AfxThrowResourceException();
[[noreturn]] void AfxThrowUserException();
[[noreturn]] void AfxThrowInvalidArgException();
[[noreturn]] void AfxThrowFileException(int cause, LONG osError = -1, LPCTSTR fileName = nullptr);
[[noreturn]] void AfxThrowArchiveException(int cause, LPCTSTR archiveName = nullptr);

// ---- files

class CFile : public CObject {
  DECLARE_DYNAMIC(CFile)
 public:
  enum OpenFlags : UINT {
    modeRead = 0x0,
    modeWrite = 0x1,
    modeReadWrite = 0x2,
    shareCompat = 0x0,
    shareExclusive = 0x10,
    shareDenyWrite = 0x20,
    shareDenyRead = 0x30,
    shareDenyNone = 0x40,
    modeNoInherit = 0x80,
    modeCreate = 0x1000,
    modeNoTruncate = 0x2000,
    typeText = 0x4000,
    typeBinary = 0x8000
  };
  enum SeekPosition : UINT { begin = 0, current = 1, end = 2 };
#ifdef _WIN32
  using Handle = HANDLE;
#else
  using Handle = INT_PTR;
#endif
  static const Handle hFileNull;

  CFile() = default;
  CFile(LPCTSTR path, UINT openFlags);  // throws CFileException
  ~CFile() override;

  // FALSE if the file can't be opened; `error`, if given, receives the reason.
  virtual BOOL Open(LPCTSTR path, UINT openFlags, CFileException* error = nullptr);
  virtual ULONGLONG GetPosition() const;
  virtual ULONGLONG Seek(LONGLONG offset, UINT from);
  virtual void SetLength(ULONGLONG length);
  virtual ULONGLONG GetLength() const;
  virtual UINT Read(void* buffer, UINT count);  // fewer at the end of the file
  virtual void Write(const void* buffer, UINT count);
  virtual void Flush();
  virtual void Close();
  virtual void Abort();  // closes without throwing
  virtual CString GetFilePath() const { return m_strFileName; }
  virtual CString GetFileName() const;

  void SeekToBegin() { Seek(0, begin); }
  ULONGLONG SeekToEnd() { return Seek(0, end); }

  static void Rename(LPCTSTR from, LPCTSTR to);
  static void Remove(LPCTSTR path);

  Handle m_hFile = hFileNull;

 protected:
  CString m_strFileName;
};

// A file in memory that grows as it is written. Attached bytes are copied.
class CMemFile : public CFile {
  DECLARE_DYNAMIC(CMemFile)
 public:
  explicit CMemFile(UINT growBytes = 1024);
  CMemFile(const BYTE* bytes, UINT count);

  ULONGLONG GetPosition() const override { return m_position; }
  ULONGLONG Seek(LONGLONG offset, UINT from) override;
  void SetLength(ULONGLONG length) override { m_bytes.resize(static_cast<std::size_t>(length)); }
  ULONGLONG GetLength() const override { return m_bytes.size(); }
  UINT Read(void* buffer, UINT count) override;
  void Write(const void* buffer, UINT count) override;
  void Flush() override {}
  void Close() override;
  void Abort() override { Close(); }
  const BYTE* GetBufferPtr() const { return m_bytes.data(); }

 private:
  std::vector<BYTE> m_bytes;
  ULONGLONG m_position = 0;
};

// Lines of narrow text. Reading removes the line end, LF or CR LF; writing in text
// mode converts LF to CR LF.
class CStdioFile : public CFile {
  DECLARE_DYNAMIC(CStdioFile)
 public:
  CStdioFile() = default;
  CStdioFile(LPCTSTR path, UINT openFlags);

  BOOL Open(LPCTSTR path, UINT openFlags, CFileException* error = nullptr) override;
  ULONGLONG GetPosition() const override;
  ULONGLONG Seek(LONGLONG offset, UINT from) override;
  UINT Read(void* buffer, UINT count) override;
  void Close() override;
  BOOL ReadString(CString& line);  // false at the end of the file
  void WriteString(LPCTSTR text);

 private:
  bool Fill();
  std::string m_ahead;  // read, not yet returned
  std::size_t m_taken = 0;
  bool m_text = true;
};

// ---- archives: a buffered little-endian stream, the same bytes on every build

class CArchive {
 public:
  enum Mode { store = 0, load = 1, bNoFlushOnDelete = 2, bNoByteSwap = 4 };

  // The file is not owned and must outlive the archive.
  CArchive(CFile* file, UINT mode, int bufferSize = 4096, void* buffer = nullptr);
  // Writes the rest of the buffer. Errors are ignored here: call Close first to receive them.
  ~CArchive();
  CArchive(const CArchive&) = delete;
  CArchive& operator=(const CArchive&) = delete;

  BOOL IsLoading() const { return (m_nMode & load) != 0; }
  BOOL IsStoring() const { return (m_nMode & load) == 0; }
  CFile* GetFile() const { return m_pFile; }

  UINT Read(void* buffer, UINT count);  // fewer at the end of the file
  void Write(const void* buffer, UINT count);
  void EnsureRead(void* buffer, UINT count);  // throws endOfFile when fewer are left
  ULONGLONG BytesLeft() const;                // in the file, while loading
  void Flush();
  void Close();
  void Abort();

  CArchive& operator<<(BYTE value);
  CArchive& operator<<(char value);
  CArchive& operator<<(bool value);
  CArchive& operator<<(short value);
  CArchive& operator<<(WORD value);
  CArchive& operator<<(wchar_t value);  // 16 bits
  CArchive& operator<<(int value);
  CArchive& operator<<(unsigned value);
  CArchive& operator<<(__int64 value);
  CArchive& operator<<(unsigned __int64 value);
  CArchive& operator<<(float value);
  CArchive& operator<<(double value);
  CArchive& operator<<(const CStringW& text);
  CArchive& operator<<(const CStringA& text);
  CArchive& operator>>(BYTE& value);
  CArchive& operator>>(char& value);
  CArchive& operator>>(bool& value);
  CArchive& operator>>(short& value);
  CArchive& operator>>(WORD& value);
  CArchive& operator>>(wchar_t& value);
  CArchive& operator>>(int& value);
  CArchive& operator>>(unsigned& value);
  CArchive& operator>>(__int64& value);
  CArchive& operator>>(unsigned __int64& value);
  CArchive& operator>>(float& value);
  CArchive& operator>>(double& value);
  CArchive& operator>>(CStringW& text);
  CArchive& operator>>(CStringA& text);
// LONG and DWORD are distinct types on Windows; elsewhere long has 64 bits and is not offered.
#ifdef _WIN32
  CArchive& operator<<(long value) { return *this << static_cast<int>(value); }
  CArchive& operator<<(unsigned long value) { return *this << static_cast<unsigned>(value); }
  CArchive& operator>>(long& value) { return *this >> reinterpret_cast<int&>(value); }
  CArchive& operator>>(unsigned long& value) { return *this >> reinterpret_cast<unsigned&>(value); }
#endif

  CString m_strFileName;

 private:
  template <class Number>
  CArchive& Put(Number value);
  template <class Number>
  CArchive& Get(Number& value);
  void PutStringHead(bool wide, std::size_t length);
  ULONGLONG GetStringHead(bool* wide);
  bool Fill();
  void RequireStoring() const;
  void RequireLoading() const;

  CFile* m_pFile;
  UINT m_nMode;
  std::size_t m_size;
  std::unique_ptr<BYTE[]> m_buffer;
  std::size_t m_at = 0;   // next byte to read or to write
  std::size_t m_end = 0;  // end of the data read
};

#include "afxcoll.h"
