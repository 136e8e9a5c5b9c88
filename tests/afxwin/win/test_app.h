// Shared by the tests of windows: one program object that records message boxes instead of showing
// them, a top-level window, and processing of the waiting messages.
#pragma once

#include "afxwin.h"
#include "afxcmn.h"
#include "afxpriv.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

class TestApp : public CWinApp {
 public:
  TestApp() : CWinApp(L"afxwin tests") {}
  int DoMessageBox(LPCTSTR lpszPrompt, UINT, UINT) override {
    boxes.push_back(lpszPrompt);
    return IDOK;
  }
  std::vector<std::wstring> boxes;
};

TestApp& App();

// A top-level window of the library's own class; hidden unless the test shows it.
class TestWindow : public CWnd {
 public:
  bool Make(DWORD style = WS_OVERLAPPEDWINDOW, LPCTSTR title = L"test") {
    return CreateEx(0, nullptr, title, style, 50, 60, 300, 200, nullptr, nullptr);
  }
};

void PumpQueue();
