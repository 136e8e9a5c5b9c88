// The table of the exported settings: name, type, place in the registry, default and meaning.
// Defaults, the registry and access by name use this table. A new setting needs a row in it and a
// line in globals.h and globals.cpp.
//
// Stored settings are values of the same name under GetRegLocation() + "\Settings" of the user's
// root: numbers and colours as integers, reals and texts as strings, arrays as name[0], name[1] ...
// g_nProductId and g_nVersion are one key higher, under the host release, because the location
// depends on them.
#pragma once

#include "kernel/kernel_export.h"
#include "kernel/twcstring.h"

enum class SettingType {
  kInt,     // int
  kColor,   // COLORREF, element of an array or alone
  kReal,    // double
  kText,    // CString
  kBuffer,  // wchar_t[count]
  kHandle,  // pointer or handle: shown, never set or stored
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
  const wchar_t* defaultText;  // elements of an array separated by blanks
  const wchar_t* meaning;
};

QVX_KERNEL const Setting* Settings(int* count);

QVX_KERNEL void ResetSettings();  // every one to its default, handles to null
QVX_KERNEL void LoadSettings();   // defaults, then the values in the registry

// One element to text and back; false for an invalid text or index.
bool SettingText(const Setting& setting, int index, TWCString& text);
bool SetSettingText(const Setting& setting, int index, const wchar_t* text);

// "Software\...\R24.0", the key of a host release.
TWCString ReleaseKey(double release);
// The key of a product under it.
TWCString ProductKey(double release, int productId);
// The release number in the host's version text ("24.0s (LMS Tech)"), 0 when there is none.
QVX_KERNEL double ReleaseOfVersionText(const wchar_t* text);
