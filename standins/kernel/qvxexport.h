// The kernel's functions for files, ini files, modules and keys. Main thread only, except
// TypeOfCode and GetStringAtIndex.
#pragma once

#include "gepnt3d.h"
#include "ground/plain_types.h"
#include "kernel/kernel_export.h"
#include "kernel/twcstring.h"

class CWnd;

class QVX_KERNEL QvxExport {
 public:
  static constexpr int kPathUnits = 260;  // room that FindFile and GetStringAtIndex expect in `out`

  // Searches a file on the host's support path. Non-zero when found, with the full path in `out`
  // (kPathUnits wide characters, may be null); otherwise 0 with `out` unchanged.
  static int FindFile(const wchar_t* name, wchar_t* out);

  // Reads one section of an ini file in the ANSI code page. Non-zero when the section exists; the
  // caller frees the buffer with FreeIniBuffer. Section and key names ignore case; the first of
  // equal keys counts; a line that begins with ';' is a comment. Values are trimmed, and one pair
  // of enclosing double quotes is removed.
  static int GetIniFileToIniBufer(const wchar_t* path, const wchar_t* section, void** buffer);
  // Null when the key is missing; valid until FreeIniBuffer.
  static const wchar_t* GetIniBuferValueByKey(void* buffer, const wchar_t* key);
  static void FreeIniBuffer(void* buffer);

  // The index-th word of a line, counted from 1. Words are separated by blanks and tabs; a word in
  // double quotes may contain both and is returned without the quotes (a missing closing quote is
  // the end of the line). Returns its length, at most kPathUnits - 1; 0 and an empty `out` when
  // there is none.
  static int GetStringAtIndex(const wchar_t* line, int index, wchar_t* out);

  // By file name, folder and case ignored; without an extension ".arx" is meant.
  static bool IsArxAppLoaded(const wchar_t* name);

  static wchar_t* WStrNew(const wchar_t* text);  // a malloc copy, freed with free; null gives null

  // Sends the text unchanged to the current document's command line. A mode other than 0 first
  // cancels the running command. Does nothing without a current document.
  static void PostCommand(const wchar_t* text, int mode);

  // The kind of value of a DXF group code: RTSHORT, RTREAL, RTSTR, RTLONG, or RTNONE for none.
  static short TypeOfCode(int dxfCode);

  static bool IsKeyPressed(int virtualKey);  // at the time of the current message

  // The text that runs a command of the family. Global and local names of these commands are equal
  // in all languages of the host, so that it is the name itself.
  static TWCString GetFullCmdName(const wchar_t* name);

  // Whether messages of this window are filtered: true for the host's frame, its MDI client, the
  // drawings' frames with their views, and the input row of the command line; false for palettes,
  // tool strips, panes, dialogs, tips, windows of modules in a view, and invalid handles.
  static bool Tasdh1sh1ddhsj123(HWND window);

  static bool IsAcadDwgView(HWND window);  // the view of any drawing
  static bool IsCurDwgView(HWND window);   // the view of the active drawing
  static CWnd* GetCurDwgView();            // null without an active drawing

  // Scales the current viewport of the active drawing as ZOOM with the factor nX does, with `at` (a
  // point of the world) kept where it is on the screen: above 1 comes nearer. A factor that is not
  // above 0 does nothing.
  static void ArxZoomCursor(const AcGePoint3d& at, double factor);
};
