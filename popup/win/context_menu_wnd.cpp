#include "popup/win/context_menu_wnd.h"

#include <memory>

#include "afxwin.h"

#include "acdocman.h"
#include "aced.h"
#include "editor/editor_door.h"
#include "kernel/globals.h"
#include "popup/win/block_popup_door.h"
#include "rxmfcapi.h"
#include "screenmenu/screen_menu_door.h"

namespace {

constexpr UINT kReadinessPeriod = 10;

std::unique_ptr<CContextMenuWnd> g_window;

}  // namespace

BEGIN_MESSAGE_MAP(CContextMenuWnd, CWnd)
ON_WM_TIMER()
ON_WM_MEASUREITEM()
ON_WM_MENUCHAR()
ON_WM_MENUSELECT()
ON_WM_EXITMENULOOP()
END_MESSAGE_MAP()

CContextMenuWnd::CContextMenuWnd(void (*onReadiness)()) : m_onReadiness(onReadiness) {
  m_menuSystem.m_recent.SetSources(this);
  SetMenuInForce(this);
}

// Empties the lists here: a line of the menu may show the recent list, which TMenuSystem's own
// destruction would destroy before the line.
CContextMenuWnd::~CContextMenuWnd() {
  SetMenuInForce(nullptr);
  BlockPopup::ForgetLines();
  m_isShowing = false;
  ResetPopups();
  m_menuSystem.EmptyLists();
}

BOOL CContextMenuWnd::CreateIn(CWnd* frame) {
  const RECT onePixel = {0, 0, 1, 1};
  if (!Create(nullptr, nullptr, WS_CHILD | WS_VISIBLE, onePixel, frame, kControlId)) return FALSE;
  SetTimer(kReadinessTimer, kReadinessPeriod, nullptr);
  return TRUE;
}

void CContextMenuWnd::ReopenDrawings(const TWCStringList& files) {
  for (int i = 0; i < files.Length(); ++i) m_openQueue.Append(new CString(files[i]));
  m_opening.Start();
}

BOOL CContextMenuWnd::PreTranslateMessage(MSG* message) {
  return qvx::GuardedOr(FALSE, [&] {
    if (message->message != kOpenRequestMessage) return CWnd::PreTranslateMessage(message);
    m_opening.RequestOpen();
    return TRUE;
  });
}

void CContextMenuWnd::OnTimer(UINT_PTR id) {
  if (id == kReadinessTimer)
    m_onReadiness();
  else if (id == kPreviewTimer)
    OnPreviewTimer();
  else if (!m_opening.OnTimer(id))
    CWnd::OnTimer(id);
}

// Nothing follows the step: it can run for long in the host.
void CContextMenuWnd::OnPreviewTimer() {
  KillTimer(kPreviewTimer);
  StepSelectionPreview();
}

qvx::LineSources CContextMenuWnd::Lines() {
  return {&m_lisp, &m_menuSystem, g_hQvxDll != nullptr, m_menuLife.Watch()};
}

bool CContextMenuWnd::IsRunMode() { return g_nRunMode != 0; }

TMenuBar* CContextMenuWnd::ScreenRoot() { return ScreenMenuRootBar(); }

void InitContextWindow(bool create, void (*onReadiness)()) {
  if (create) {
    if (g_window || !onReadiness) return;
    g_window = std::make_unique<CContextMenuWnd>(onReadiness);
    g_window->CreateIn(acedGetAcadFrame());
    g_pContextMenu = g_window.get();
    return;
  }
  if (!g_window) return;
  if (::IsWindow(g_window->m_hWnd)) g_window->DestroyWindow();
  g_window.reset();
  g_pContextMenu = nullptr;
}

void StopReadinessTimer() {
  if (g_window) g_window->StopReadinessTimer();
}

void ReopenDrawings(const TWCStringList& files) {
  if (g_window) g_window->ReopenDrawings(files);
}

CContextMenuWnd* TheContextWindow() { return g_window.get(); }
