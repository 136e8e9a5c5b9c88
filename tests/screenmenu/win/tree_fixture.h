// A tree of groups in a plain window that records the calls of the palette. For the tests of groups
// and rows as real windows.
#pragma once

#include <gtest/gtest.h>

#include "afxcmn.h"
#include "afxwin.h"
#include "kernel/globals.h"
#include "../menu_fixture.h"
#include "screenmenu/menu_colors.h"
#include "screenmenu/win/menu_group.h"
#include "screenmenu/palette_settings.h"

namespace fixture {

class Diary : public GroupOwner {
 public:
  qvx::LineSources Lines() override { return {&lisp, &system, g_hQvxDll != nullptr, life.Watch()}; }
  HBITMAP Arrow(int depth, bool open) override {
    arrowsAsked.emplace_back(depth, open);
    return reinterpret_cast<HBITMAP>(
        static_cast<UINT_PTR>(qvx::ArrowBitmap(depth, open)));  // compared, not drawn
  }
  HBITMAP Icon(const wchar_t* name) override {
    Note(L"icon " + std::wstring(name));
    return nullptr;
  }
  void ArmCommand(const TWCString& command) override { Note(L"arm " + Text(command)); }
  bool IsHostBusy() override { return busy; }
  void ReportBusy() override { Note(L"busy"); }
  void SwitchWasFlipped() override { Note(L"flipped"); }
  void ShowHeaderMenu(TMenuBar& bar, const CRect&, CPoint) override {
    Note(L"header menu " + std::to_wstring(bar.Length()));
  }
  void ShowLineMenu(TMenuItem& line, CPoint at) override {
    menuAt = at;
    Note(L"line menu " + Text(line.m_strLabel));
  }
  void RestoreStatusBar() override {}

  static std::wstring Text(const TWCString& text) { return std::wstring(text); }
  void Note(const std::wstring& what) { notes.push_back(what); }

  FakeLisp lisp;
  qvx::MenuLife life;
  TMenuSystem system;
  bool busy = false;
  CPoint menuAt;
  std::vector<std::wstring> notes;
  std::vector<std::pair<int, bool>> arrowsAsked;
};

class TreeWindows : public testing::Test {
 protected:
  TreeWindows() {
    g_iMenuRowHeight = 25;
    g_bDefaultOpenFirst = g_bLimitHeight = g_bScrollBar = 0;
    qvx::SaveActiveSubMenu(-1);
    palette.CreateEx(WS_EX_TOOLWINDOW, AfxRegisterWndClass(0), L"", WS_POPUP,
                     CRect(50, 50, 250, 350), nullptr, 0);
  }
  ~TreeWindows() override {
    root.reset();
    palette.DestroyWindow();
  }

  CMenuGroup& Build(int height = 300, bool limit = false) {
    root =
        std::make_unique<CMenuGroup>(&bar, CRect(0, 0, 120, height), &palette, 5000, limit, &owner);
    palette.ShowWindow(SW_SHOWNA);
    root->ShowWindow(SW_SHOW);
    return *root;
  }
  static CRect PlaceOf(CWnd* window) {
    CRect place;
    window->GetWindowRect(&place);
    ::MapWindowPoints(nullptr, ::GetParent(window->m_hWnd), reinterpret_cast<POINT*>(&place), 2);
    return place;
  }
  // The text of a row's tip, empty without one.
  static std::wstring TipOf(const CSMenuItem& row) {
    struct Search {
      HWND row;
      std::wstring text;
    } search{row.m_hWnd, L""};
    ::EnumThreadWindows(
        ::GetCurrentThreadId(),
        [](HWND window, LPARAM parameter) -> BOOL {
          auto& found = *reinterpret_cast<Search*>(parameter);
          wchar_t text[256] = L"", name[32] = L"";
          ::GetClassNameW(window, name, 32);
          if (_wcsicmp(name, TOOLTIPS_CLASSW)) return TRUE;
          TOOLINFOW tool{};
          tool.cbSize = sizeof tool;
          if (!::SendMessageW(window, TTM_ENUMTOOLSW, 0, reinterpret_cast<LPARAM>(&tool)))
            return TRUE;
          if (tool.hwnd != found.row && reinterpret_cast<HWND>(tool.uId) != found.row) return TRUE;
          tool.lpszText = text;
          ::SendMessageW(window, TTM_GETTEXTW, 256, reinterpret_cast<LPARAM>(&tool));
          found.text = text;
          return FALSE;
        },
        reinterpret_cast<LPARAM>(&search));
    return search.text;
  }
  static void Click(CMenuGroup& group, int row) { group.Row(row)->SendMessage(BM_CLICK); }
  void Fill(int lines) {
    for (int i = 0; i < lines; ++i) AddLine(bar, L"行", L"TLine\n");
  }

  CWnd palette;
  TMenuBar bar;
  Diary owner;
  std::unique_ptr<CMenuGroup> root;
};

}  // namespace fixture
