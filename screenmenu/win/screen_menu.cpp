// CScreenMenu: attaching a menu, layout of the tree, wheel, closing, saving the settings.
#include "screenmenu/win/screen_menu.h"

#include "afxwin.h"

#include <utility>

#include "aced.h"
#include "adslib.h"
#include "ground/command_line.h"
#include "kernel/globals.h"
#include "rxmfcapi.h"
#include "ground/win/module_handle.h"
#include "screenmenu/palette_settings.h"

namespace {

constexpr UINT kRootGroupId = 5000;

}  // namespace

IMPLEMENT_DYNAMIC(CScreenMenu, CAdUiPaletteSet)

BEGIN_MESSAGE_MAP(CScreenMenu, CAdUiPaletteSet)
ON_WM_WINDOWPOSCHANGED()
ON_WM_TIMER()
ON_WM_DESTROY()
ON_WM_SYSCOLORCHANGE()
ON_WM_CONTEXTMENU()
ON_WM_MOUSEWHEEL()
END_MESSAGE_MAP()

CScreenMenu::CScreenMenu() = default;

CScreenMenu::~CScreenMenu() {
  ForgetMenuLines();
  m_pTailMenu.reset();
  m_pRootGroup.reset();
  if (::IsWindow(m_hDockBar)) RestoreDockBar();
}

// With a second menu the palette keeps the rows of the first, since a tree is never rebuilt in
// place; the lines that they show have to stay alive. If there are no rows yet, because a LISP
// function loads the second menu while the rows of the first are planned, the second replaces it.
void CScreenMenu::TakeScreenBar(std::unique_ptr<TMenuBar> bar, const wchar_t* title) {
  if (m_pRootGroup && m_rootItem.m_pSubMenu) {
    m_pastBars.emplace_back(m_rootItem.m_pSubMenu);
  } else {
    m_bar.Clear();
    TMenuBar::Delete(m_rootItem.m_pSubMenu);
  }
  m_rootItem.m_strLabel = title;
  m_rootItem.m_pSubMenu = bar.release();
  m_bar.BackTo(&m_rootItem);
  EnsureRootGroup();
}

void AttachScreenBar(TMenuSystem& system) {
  std::unique_ptr<TMenuBar> bar = qvx::DetachScreenBar(system);
  ForgetMenuLines();
  if (g_pScreenMenu) g_pScreenMenu->MenuWasLoaded();
  if (bar && g_pScreenMenu) g_pScreenMenu->TakeScreenBar(std::move(bar), qvx::RootTitle(system));
}

TMenuBar* ScreenMenuRootBar() { return g_pScreenMenu ? g_pScreenMenu->RootBar() : nullptr; }

void CScreenMenu::MenuWasLoaded() {
  if (m_rootItem.m_pSubMenu) qvx::DropSwitches(*m_rootItem.m_pSubMenu);
}

// Builds the tree hidden and shows it once. A LISP function of the menu may load another menu or
// destroy the palette meanwhile: the unfinished tree is dropped then, and this object may be gone.
void CScreenMenu::EnsureRootGroup() {
  CRect used;
  GetUsedRect(used);
  if (m_pRootGroup) return;
  const CRect place(qvx::FirstRootGroup(used, IsFloating() != FALSE));
  const qvx::MenuWatch watch = Lines().watch;
  std::unique_ptr<CMenuGroup> tree(
      new CMenuGroup(&m_bar, place, this, kRootGroupId, g_bLimitHeight == 1, this));
  if (watch.IsGone()) return;
  m_pRootGroup = std::move(tree);
  if (m_pRootGroup->GetSafeHwnd()) m_pRootGroup->ShowWindow(SW_SHOW);
}

int CScreenMenu::StepBack() {
  TMenuItem* line = m_bar.StackTop();
  if (!line) return 0;
  m_bar.BackTo(line);
  EnsureRootGroup();
  return 1;
}

// Six bitmaps serve all headers.
HBITMAP CScreenMenu::Arrow(int depth, bool open) {
  qvx::OwnedBitmap& arrow = m_arrows[depth % qvx::kArrowKinds][open];
  if (!arrow)
    arrow.Reset(static_cast<HBITMAP>(::LoadImageW(qvx::ThisModule(),
                                                  MAKEINTRESOURCEW(qvx::ArrowBitmap(depth, open)),
                                                  IMAGE_BITMAP, 0, 0, LR_LOADMAP3DCOLORS)));
  return arrow.Get();
}

// The library stays loaded for as long as a palette shows its menu.
HBITMAP CScreenMenu::Icon(const wchar_t* name) {
  const auto [icon, isNew] = m_icons.try_emplace(name);
  if (isNew)
    icon->second.Reset(static_cast<HBITMAP>(
        ::LoadImageW(g_hQvxDll, name, IMAGE_BITMAP, 0, 0, LR_LOADMAP3DCOLORS)));
  return icon->second.Get();
}

// The bitmaps were loaded with the face colour in place of their grey, which is drawn as
// transparent. The rows show the old ones until all are replaced.
void CScreenMenu::OnSysColorChange() {
  CAdUiPaletteSet::OnSysColorChange();
  qvx::OwnedBitmap arrows[qvx::kArrowKinds][2];
  std::swap(arrows, m_arrows);
  const auto icons = std::exchange(m_icons, {});
  if (!m_pRootGroup || !m_pRootGroup->GetSafeHwnd()) return;
  m_pRootGroup->ReloadImages();
  m_pRootGroup->RedrawWindow(nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_ALLCHILDREN);
}

void CScreenMenu::OnWindowPosChanged(WINDOWPOS* position) {
  CAdUiPaletteSet::OnWindowPosChanged(position);
  if (m_pRootGroup && m_pRootGroup->GetSafeHwnd()) FitGroup();
}

void CScreenMenu::FitGroup() {
  CRect used, window;
  GetUsedRect(used);
  GetWindowRect(&window);
  ScreenToClient(&window);
  const CRect fit(qvx::FitRootGroup(used, IsFloating() != FALSE, window.bottom));
  CRect present;
  m_pRootGroup->GetWindowRect(&present);
  ScreenToClient(&present);
  if (!present.EqualRect(&fit)) m_pRootGroup->MoveWindow(&fit, TRUE);
}

// When the root's height is limited, only its open group scrolls. Every message counts as handled.
BOOL CScreenMenu::OnMouseWheel(UINT flags, short delta, CPoint point) {
  CMenuGroup* target = m_pRootGroup.get();
  if (target && target->LimitHeight()) target = target->OpenChild();
  if (target && target->HasScrollBar()) target->WheelGroup(flags, delta, point);
  return TRUE;
}

// F4 steps back while a line is entered; otherwise the host handles it.
BOOL CScreenMenu::PreTranslateMessage(MSG* message) {
  return qvx::GuardedOr(FALSE, [&]() -> BOOL {
    if (message->message == WM_KEYDOWN && message->wParam == VK_F4) return StepBack();
    return CAdUiPaletteSet::PreTranslateMessage(message);
  });
}

void CScreenMenu::GetFloatingMinSize(long* width, long* height) {
  *width = qvx::kPaletteLeastWidth;
  *height = qvx::kPaletteLeastHeight;
}

void CScreenMenu::DropHover() {
  CWnd* holder = CWnd::FromHandlePermanent(::GetCapture());
  auto* row = holder ? DYNAMIC_DOWNCAST(CSMenuItem, holder) : nullptr;
  if (!row) return;
  row->ClearHover();
  row->ReleaseMouse();
}

void CScreenMenu::CloseSilently() {
  m_bCloseHint = 0;
  OnClosing();
}

// A close by the user prints the hot key that shows the palette again. A close by the program
// prints nothing and re-enables the hint.
bool CScreenMenu::OnClosing() {
  return qvx::GuardedOr(true, [this] {
    if (m_bCloseHint) {
      acutPrintf(L"热键<Ctrl +>显示屏幕菜单\n");
      qvx::PostPrompt();
    }
    m_bCloseHint = 1;
    return CAdUiPaletteSet::OnClosing();
  });
}

// Visibility is saved here because the window system hides a window before WM_DESTROY. This is not
// called for a palette that is destroyed with its frame, which is still visible in OnDestroy.
BOOL CScreenMenu::DestroyWindow() {
  m_bShownAtEnd = IsScreenMenuVisible();
  return CAdUiPaletteSet::DestroyWindow();
}

void CScreenMenu::OnDestroy() {
  TrackCancel();
  CRect window, frameClient;
  GetWindowRect(&window);
  const CSize size = window.Size();
  if (CWnd* frame = acedGetAcadFrame()) {
    frame->GetClientRect(&frameClient);
    frame->ScreenToClient(&window);
  }
  qvx::SavePaletteState({m_bShownAtEnd || IsScreenMenuVisible(),
                         qvx::AlignmentOf(window, frameClient), size, g_bLimitHeight,
                         g_bDefaultOpenFirst, g_bScrollBar});
  if (m_pRootGroup) {
    qvx::SaveActiveSubMenu(m_pRootGroup->OpenIndex());
    m_pRootGroup->DestroyWindow();
  }
  CAdUiPaletteSet::OnDestroy();
}
