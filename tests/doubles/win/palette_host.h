// A host for palettes that a test can look into: a real frame with dock bars and an edit window as
// the drawing view, LISP functions from a table, texts sent and printed in a diary. Linked instead
// of the real host calls of the same names; only those that the palette makes are here.
#pragma once

#include <functional>
#include <map>
#include <string>
#include <vector>

#include "afxwin.h"

struct PaletteHost {
  CMDIFrameWnd* frame = nullptr;  // made by OpenFrame
  CWnd view;
  int releaseMajor = 24, releaseMinor = 0;
  bool hasDatabase = true;
  int documents = 1;
  int commandActive = 0;
  std::wstring commandNames;
  // What a LISP function answers as a short integer; one that is missing fails.
  std::map<std::wstring, std::function<int()>> functions;
  std::vector<std::wstring> diary;

  void OpenFrame();
  void CloseFrame();
  // Handles all waiting messages, then the idle work of the frame, as the host's pump does.
  void Pump();
};

PaletteHost& ThePaletteHost();
