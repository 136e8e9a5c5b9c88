// CScreenMenu: right clicks on rows and on the palette, the actions of lines chosen there, help for
// a line. The popup folder shows the pop-ups.
#include "afxwin.h"

#include "ground/support_files.h"
#include "kernel/globals.h"
#include "kernel/qvxexport.h"
#include "popup/popup_door.h"
#include "rxmfcapi.h"
#include "screenmenu/win/screen_menu.h"
#include "screenmenu/tail_menu.h"

#include <htmlhelp.h>

namespace {

// Set by the frame once for each load, before any palette is created; used by all later palettes.
TWCString& HelpFile() {
  static TWCString s_name;
  return s_name;
}

}  // namespace

void SetScreenMenuHelpFile(const wchar_t* name) { HelpFile() = name; }

// The lines of the last tail menu are freed only when no pop-up refers to them: a pop-up that is
// shown, or whose command is still posted, uses them.
void CScreenMenu::ShowTail(TMenuItem* clicked, bool withHelp, CPoint at) {
  if (!PrepareBlockMenu()) return;
  if (clicked) m_pClickedItem = clicked;
  m_pTailMenu = qvx::BuildTailMenu({withHelp, g_bLimitHeight != 0, RootBar(), LoadedMenu(),
                                    QvxExport::GetFullCmdName(L"TCustomize")});
  ShowBlockMenu(*m_pTailMenu, at.x, at.y, 0);
}

void CScreenMenu::ShowLineMenu(TMenuItem& line, CPoint at) { ShowTail(&line, g_nRunMode == 0, at); }

// Shows a header's lines as a pop-up, without unfolding, on the side farther from the frame's edge.
void CScreenMenu::ShowHeaderMenu(TMenuBar& bar, const CRect& button, CPoint at) {
  CWnd* frame = acedGetAcadFrame();
  if (!frame) return;
  CRect frameRect;
  frame->GetWindowRect(&frameRect);
  ShowBlockMenu(bar, qvx::HeaderPopupX(button, frameRect), at.y, 0);
}

void CScreenMenu::RestoreStatusBar() { acedRestoreStatusBar(); }

void CScreenMenu::OnContextMenu(CWnd*, CPoint point) {
  if (!LoadedMenu()) return;
  RestoreStatusBar();
  // The keyboard gives no position: the pop-up then opens below the caption, as below a row.
  if (IsFromKeyboard(point)) {
    CRect used;
    GetUsedRect(used);
    ClientToScreen(&used);
    point = used.TopLeft();
  }
  ShowTail(nullptr, false, point);
}

void TailCommand(const wchar_t* text) {
  if (g_pScreenMenu) g_pScreenMenu->TailCommand(text);
}

void CScreenMenu::TailCommand(const wchar_t* text) {
  const qvx::TailChoice choice = qvx::DecideTail(text, m_bar);
  if (choice.kind == qvx::TailChoice::Kind::kHelp && m_pClickedItem) ShowHelpFor(*m_pClickedItem);
  if (choice.kind == qvx::TailChoice::Kind::kToggle && m_pRootGroup)
    m_pRootGroup->ToggleSubMenu(static_cast<unsigned>(choice.index));
}

// Opens the help file at the label as a keyword, or at its index.
void CScreenMenu::ShowHelpFor(const TMenuItem& line) {
  TWCString path;
  if (!qvx::FindFile(HelpFile(), path)) return;
  const TWCString label(line.m_strLabel);
  ::HtmlHelpW(nullptr, path, HH_DISPLAY_TOPIC, 0);
  HH_AKLINK link{};
  link.cbStruct = sizeof link;
  link.pszKeywords = label;
  link.fIndexOnFail = TRUE;
  ::HtmlHelpW(nullptr, path, HH_KEYWORD_LOOKUP, reinterpret_cast<DWORD_PTR>(&link));
  ::HtmlHelpW(nullptr, path, HH_DISPLAY_INDEX, reinterpret_cast<DWORD_PTR>(link.pszKeywords));
}
