// Splits a path into its four parts, as Windows does, in both builds: "C:" + "\dir\" + "name" +
// ".ext". Both slashes separate folders. The file need not exist.
#pragma once

#include "kernel/kernel_export.h"
#include "kernel/twcstring.h"

class QVX_KERNEL TSplitpathOperator {
 public:
  explicit TSplitpathOperator(const wchar_t* path);

  const wchar_t* Drive() const { return m_drive; }          // "C:" or empty
  const wchar_t* Folder() const { return m_folder; }        // with the slash at its end, or empty
  const wchar_t* Name() const { return m_name; }            // without extension
  const wchar_t* Extension() const { return m_extension; }  // with the dot, or empty

  TWCString FileName() const;  // name and extension
  TWCString Base() const;      // drive, folder and name: the path without its extension

 private:
  TWCString m_drive, m_folder, m_name, m_extension;
};
