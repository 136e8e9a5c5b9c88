// Named values under a key of the user's or the machine's settings: the registry on Windows, a file
// in the native build. A missing key or value is not an error: the caller's variable keeps its
// value, which is the default. Nothing is cached.
#pragma once

#include "afx.h"
#include "kernel/kernel_export.h"
#include "ground/plain_types.h"

// A root and a key path below it.
class QVX_KERNEL TRegObject {
 public:
  virtual ~TRegObject();
  void SetTopRootKey(HKEY root) { m_root = root; }
  HKEY TopRootKey() const { return m_root; }
  const CString& KeyPath() const { return m_path; }

 protected:
  // Either part may be empty or contain sub-keys; a backslash is inserted as needed.
  TRegObject(const wchar_t* path, const wchar_t* folder);

  HKEY m_root = HKEY_CURRENT_USER;
  CString m_path;
};

class QVX_KERNEL TRegProperty : public TRegObject {
 public:
  TRegProperty(const wchar_t* path, const wchar_t* folder) : TRegObject(path, folder) {}

  // True when a value of this name and kind exists. A text that is a decimal number is also an
  // integer. The flag, if given, is set when a value of any kind exists.
  bool GetValue(const wchar_t* name, int& value) const;
  bool GetValue(const wchar_t* name, CString& value, bool* exists = nullptr) const;

  // Creates the key as needed; false when the write is refused. The flag makes environment names
  // between percent signs expandable.
  bool SetValue(const wchar_t* name, int value);
  bool SetValue(const wchar_t* name, const wchar_t* text, bool expandable = false);
};
