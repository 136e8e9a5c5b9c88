// The kernel's file, ini, module and key helpers, under the one class name that sibling modules
// know. All run on the host's main thread; TypeOfCode and GetStringAtIndex touch nothing and run
// anywhere.
#pragma once

#include "kernel/kernel_export.h"
#include "kernel/twcstring.h"

class QVX_KERNEL QvxExport {
 public:
  static constexpr int kPathUnits = 260;  // room that FindFile and GetStringAtIndex expect in `out`

  // Looks for a file along the host's support path. Non-zero when found, with the full path in
  // `out` (kPathUnits wide characters); otherwise 0 and `out` untouched. A null `out` only asks.
  static int FindFile(const wchar_t* name, wchar_t* out);

  // Reads one section of an ini file in the ANSI code page. Non-zero when the section is there; the
  // buffer is then the caller's until FreeIniBuffer. Section and key names ignore case; the first
  // of two equal keys counts; a line that begins with ';' is a comment. Values are trimmed, and one
  // pair of double quotes around a value is taken off.
  static int GetIniFileToIniBufer(const wchar_t* path, const wchar_t* section, void** buffer);
  // Null when the key is missing; valid until FreeIniBuffer.
  static const wchar_t* GetIniBuferValueByKey(void* buffer, const wchar_t* key);
  static void FreeIniBuffer(void* buffer);

  // The index-th word of a line, counted from 1: words are parted by blanks and tabs, a word in
  // double quotes may hold both (and is given without the quotes; one that is not closed ends with
  // the line). Returns its length; 0 and an empty `out` when there is none. Cut at kPathUnits - 1
  // characters.
  static int GetStringAtIndex(const wchar_t* line, int index, wchar_t* out);

  // By file name, folder and case ignored; without an extension ".arx" is meant.
  static bool IsArxAppLoaded(const wchar_t* name);

  static wchar_t* WStrNew(const wchar_t* text);  // a malloc copy, freed with free; null gives null

  // Sends text to the current document's command line as it stands. Mode 0 sends only that; any
  // other mode first cancels what runs there. Nothing happens without a current document.
  static void PostCommand(const wchar_t* text, int mode);

  // The kind of value that a DXF group code carries: RTSHORT, RTREAL, RTSTR, RTLONG, or RTNONE for
  // a code that carries none.
  static short TypeOfCode(int dxfCode);

  static bool IsKeyPressed(int virtualKey);  // as of the message being handled

  // What has to be sent to run a command of the family by its own name. The family's commands carry
  // the same global and local name in every language of the host, so that is the name itself.
  static TWCString GetFullCmdName(const wchar_t* name);
};
