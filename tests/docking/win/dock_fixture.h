// A frame with docking, bars of plain colour and a pump, for the tests of frames and palettes. The
// application object lives as long as the test program.
#pragma once

#include <gtest/gtest.h>

#include "afxext.h"

#include "adui.h"
#include "afxpriv.h"

// Takes every message that waits, then the idle work, until nothing is left.
void PumpAll();
// Puts the pointer there and takes what the window system reports about it, old places included.
void MovePointer(CPoint screen);
// The windows of this thread, top level ones and all their descendants; those of the input method
// and of tool tips are Windows' own and don't count.
int CountWindows();

class PlainBar : public CControlBar {
 public:
  explicit PlainBar(CSize size) : m_size(size) {}
  BOOL CreateIn(CFrameWnd* frame, UINT id, DWORD style);
  CSize CalcFixedLayout(BOOL stretch, BOOL horizontal) override;
  void OnUpdateCmdUI(CFrameWnd*, BOOL) override { ++m_updates; }
  int Updates() const { return m_updates; }
  CSize m_size;

 private:
  int m_updates = 0;
};

class TestPalette : public CAdUiPaletteSet {
 public:
  ~TestPalette() override { DestroyWindow(); }
  BOOL CreateIn(CFrameWnd* frame, bool left, int width = 76);
  bool OnClosing() override {
    ++m_closings;
    return CAdUiPaletteSet::OnClosing();
  }
  void GetFloatingMinSize(long* width, long* height) override { *width = 74, *height = 200; }
  int m_closings = 0;
};

class TestFrame : public CFrameWnd {
 public:
  bool Open();
  int m_layouts = 0;
  void RecalcLayout(BOOL notify = TRUE) override;

 protected:
  BOOL OnCreateClient(LPCREATESTRUCT, void*) override;
};

// One frame, up and shown, with a pane in the middle.
class DockTest : public testing::Test {
 protected:
  void SetUp() override;
  void TearDown() override;
  CRect PaneRect() const;                  // client coordinates of the frame
  CRect RectOf(const CWnd& window) const;  // the same
  CRect DockBarRect(UINT id) const { return RectOf(*frame->GetDockBar(id)); }
  TestFrame* frame = nullptr;
};
