// A double of the host for palettes: a real frame with dock bars and an edit window as the drawing
// view, LISP functions from a table, and a record of sent and printed texts. Linked instead of the
// real functions of the same names; offers only those that the palette calls.
#pragma once

#include <functional>
#include <map>
#include <string>
#include <vector>

#include "afxwin.h"

struct PaletteHost {
  CMDIFrameWnd* frame = nullptr;  // created by OpenFrame
  CWnd view;
  int releaseMajor = 24, releaseMinor = 0;
  bool hasDatabase = true;
  int documents = 1;
  int commandActive = 0;
  std::wstring commandNames;
  // The result of a LISP function as a short integer; a function without an entry fails.
  std::map<std::wstring, std::function<int()>> functions;
  std::vector<std::wstring> diary;

  void OpenFrame();
  void CloseFrame();
  // Processes all waiting messages, then the idle work of the frame, as the host's pump does.
  void Pump();
};

PaletteHost& ThePaletteHost();
