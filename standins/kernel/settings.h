// The one table of the exported settings: name, type, where it is kept, default and meaning.
// Defaults, the registry, and access by name all walk this table; a new setting is one line here,
// one in globals.h and one in globals.cpp.
//
// Kept settings are values of the same name under GetRegLocation() + "\Settings" of the user's
// root: numbers and colours as integers, reals and texts as strings, arrays as name[0], name[1] ...
// g_nProductId and g_nVersion lie one key higher, under the host release, because they are part of
// what makes up the location itself.
#pragma once

#include "kernel/kernel_export.h"
#include "kernel/twcstring.h"

enum class SettingType {
  kInt,     // int
  kColor,   // COLORREF, element of an array or alone
  kReal,    // double
  kText,    // CString
  kBuffer,  // wchar_t[count]
  kHandle,  // pointer or handle: shown, never set or kept
};

enum class SettingHome {
  kUser,     // under the location's "\Settings"
  kRelease,  // under the host release's key
  kSession,  // of this run only
};

struct Setting {
  const wchar_t* name;
  SettingType type;
  SettingHome home;
  void* data;
  int count;                   // elements of an array, units of a buffer, otherwise 1
  const wchar_t* defaultText;  // elements of an array parted by blanks
  const wchar_t* meaning;
};

QVX_KERNEL const Setting* Settings(int* count);

QVX_KERNEL void ResetSettings();  // every one to its default, handles to null
QVX_KERNEL void LoadSettings();   // defaults, then what the registry keeps

// Text of one element, and back; false for text that is no value of the type or an index outside.
bool SettingText(const Setting& setting, int index, TWCString& text);
bool SetSettingText(const Setting& setting, int index, const wchar_t* text);

// "Software\...\R24.0", the key of a host release.
TWCString ReleaseKey(double release);
// The key of a product under it.
TWCString ProductKey(double release, int productId);
// The release number out of the host's version text ("24.0s (LMS Tech)"), 0 when there is none.
QVX_KERNEL double ReleaseOfVersionText(const wchar_t* text);
