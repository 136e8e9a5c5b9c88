// Named values under a key of the user's or the machine's settings store: the registry on Windows,
// a file in the native build. A missing key or value is no error: the caller's variable keeps what
// it held, which is how every default in the product works. Nothing is cached.
#pragma once

#include "afx.h"
#include "kernel/kernel_export.h"
#include "ground/plain_types.h"

// Where a value lies: a root and a key path below it.
class QVX_KERNEL TRegObject {
 public:
  virtual ~TRegObject();
  void SetTopRootKey(HKEY root) { m_root = root; }
  HKEY TopRootKey() const { return m_root; }
  const CString& KeyPath() const { return m_path; }

 protected:
  // Either part may be empty and may hold sub-keys; a backslash is put between them as needed.
  TRegObject(const wchar_t* path, const wchar_t* folder);

  HKEY m_root = HKEY_CURRENT_USER;
  CString m_path;
};

class QVX_KERNEL TRegProperty : public TRegObject {
 public:
  TRegProperty(const wchar_t* path, const wchar_t* folder) : TRegObject(path, folder) {}

  // True when a value of this name and of the asked kind exists. A text that is a decimal number
  // also serves as an integer. The flag, when given, says whether the value was there at all, of
  // any kind.
  bool GetValue(const wchar_t* name, int& value) const;
  bool GetValue(const wchar_t* name, CString& value, bool* exists = nullptr) const;

  // Creates the key as needed; false when the store refuses. The flag keeps environment names
  // between percent signs expandable.
  bool SetValue(const wchar_t* name, int value);
  bool SetValue(const wchar_t* name, const wchar_t* text, bool expandable = false);
};
