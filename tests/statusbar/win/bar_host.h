// The module's panes on the bar of the real development host: a frame, drawings, a journal of
// printed and sent texts, and helpers that operate a menu or a dialog while its modal loop runs
// on the test's own thread.
#pragma once

#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <vector>

#include "afxext.h"

#include "acstatusbar.h"
#include "devhost/core/documents/document.h"
#include "statusbar/win/cad_status_pane.h"

struct MenuLine {
  std::wstring text;  // empty for a separator
  UINT command;
  bool grey, checked;
  bool operator==(const MenuLine&) const = default;
};
std::vector<MenuLine> LinesOf(HMENU popup);

// Calls `step` from timer messages, which modal loops dispatch too, until it returns true.
class ModalGuest {
 public:
  explicit ModalGuest(std::function<bool()> step);
  ~ModalGuest();
  bool IsDone() const { return m_done; }

 private:
  static void CALLBACK OnTimer(HWND, UINT, UINT_PTR, DWORD);
  std::function<bool()> m_step;
  UINT_PTR m_timer;
  bool m_done = false;
};

// A visible dialog of this thread other than `known`; null if there is none.
HWND VisibleDialog(HWND known = nullptr);
HWND OpenMenuWindow(HMENU* menu);

class BarTest : public ::testing::Test {
 protected:
  void SetUp() override;
  void TearDown() override;

  static AcApStatusBar& Bar();
  static devhost::Document& NewDrawing();
  static devhost::Document& Drawing();  // the active one
  static void BeginCommand();
  static void EndCommand();
  static void SetVariable(const wchar_t* name, const wchar_t* value);
  static std::wstring Variable(const wchar_t* name);
  static void Select(const std::vector<AcDbEntity*>& entities);
  static void AddToDrawing(AcDbEntity* entity);
  static double ScaleOfDrawing();
  void StartJournal();  // forgets the entries so far
  // Journal entries of this test.
  std::vector<std::string> Journal(const char* event) const;
  static bool ViewWaitsForPaint();  // validates the view too

 private:
  int m_journalStart = 0;
};

// A pane that records its calls with its state at each call, and returns
// set results from its menus.
template <class Pane>
class Probe : public Pane {
 public:
  ~Probe() override {
    if (AcApStatusBar* bar = acedGetApplicationStatusBar()) bar->Remove(this, TRUE);
  }
  BOOL SetIcon(HICON icon) override {
    icons.push_back({icon, this->IsOn()});
    return Pane::SetIcon(icon);
  }
  UINT DisplayContextMenu(CMenu& menu, CPoint) override {
    lines = LinesOf(::GetSubMenu(menu.m_hMenu, 0));
    shown = menu.m_hMenu;
    return choice;
  }
  struct IconCall {
    HICON icon;
    bool wasOn;  // the state when the icon was set
  };
  std::vector<IconCall> icons;
  std::vector<MenuLine> lines;
  HMENU shown = nullptr;
  UINT choice = 0;
};
