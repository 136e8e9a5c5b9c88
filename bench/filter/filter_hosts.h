// Hosts for measuring the message filter: one that answers with constants, so that only the
// filter's own work is measured, and the core of the development host, asked as the module asks it.
#pragma once

#include "kernel/tentityset.h"
#include "tests/doubles/silent_ui.h"
#include "tests/editor/filter_double.h"

// The questions that most messages and pointer moves come to. An idle host in model space.
class ConstantHost : public editortest::FilterDouble {
 public:
  using FilterDouble::FilterDouble;

  long variables = 0;      // of the host that were read
  long timerRestarts = 0;  // by pointer moves

  bool HasCurrentDocument() override { return true; }
  bool HasWorkingDatabase() override { return true; }
  bool IsHostWindow(HWND) override { return true; }
  bool IsDrawingReady() override { return true; }
  bool RunsCommand(const wchar_t*) override {
    ++variables;
    return false;
  }
  bool IsIdle() override { return true; }
  bool HasCurrentView() override { return true; }
  bool IsCommandLineEmpty() override { return true; }
  int ShortVariable(const wchar_t*) override {
    ++variables;
    return 1;
  }
  bool IsCurrentView(HWND) override { return true; }
  bool IsDrawingView(HWND) override { return true; }
  bool ResizeOnMouseMove(UINT, POINT) override { return false; }
  void RestartPreviewTimer() override { ++timerRestarts; }
};

// Asks the core of the development host for everything that has no window.
class CoreHost : public ConstantHost {
 public:
  using ConstantHost::ConstantHost;

  bool HasCurrentDocument() override;
  bool HasWorkingDatabase() override;
  bool IsDrawingReady() override;
  bool RunsCommand(const wchar_t* part) override;
  bool IsIdle() override;
  bool IsCommandLineEmpty() override;
  int ShortVariable(const wchar_t* name) override;
};

// The core with one drawing, ready, until the end of the scope.
class OpenDrawing {
 public:
  OpenDrawing();
  ~OpenDrawing();

 private:
  SilentUi m_ui;
};
