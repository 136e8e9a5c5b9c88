#include "popup/win/context_menu_wnd.h"

#include <memory>

#include "afxwin.h"

#include "acdocman.h"
#include "aced.h"
#include "kernel/globals.h"
#include "kernel/qvxexport.h"
#include "rxmfcapi.h"

namespace {

constexpr UINT kStartPeriod = 10;  // also of the recent files
constexpr UINT kOpenRequestPeriod = 150;

std::unique_ptr<CContextMenuWnd> g_window;

class HostOpener : public DocumentOpener {
 public:
  explicit HostOpener(CWnd& window) : m_window(window) {}
  bool IsApplicationContext() override {
    AcApDocManager* documents = acDocManagerPtr();
    return documents && documents->isApplicationContext();
  }
  void OpenDocument(const wchar_t* path) override {
    acDocManagerPtr()->appContextOpenDocument(path);
  }
  void StopTimer(int id) override { m_window.KillTimer(static_cast<UINT_PTR>(id)); }
  void PostCommand(const wchar_t* text) override { QvxExport::PostCommand(text, 0); }

 private:
  CWnd& m_window;
};

}  // namespace

BEGIN_MESSAGE_MAP(CContextMenuWnd, CWnd)
ON_WM_TIMER()
ON_WM_MEASUREITEM()
ON_WM_MENUCHAR()
ON_WM_MENUSELECT()
ON_WM_EXITMENULOOP()
END_MESSAGE_MAP()

// A line of the menu may show the recent list, which would go before the line does.
CContextMenuWnd::~CContextMenuWnd() {
  m_isShowing = false;
  ResetPopups();
  m_menuSystem.EmptyLists();
}

BOOL CContextMenuWnd::CreateIn(CWnd* frame) {
  const RECT onePixel = {0, 0, 1, 1};
  if (!Create(nullptr, nullptr, WS_CHILD | WS_VISIBLE, onePixel, frame, kControlId)) return FALSE;
  SetTimer(kReadinessTimer, kStartPeriod, nullptr);
  return TRUE;
}

void CContextMenuWnd::StartOpening() {
  if (!m_openQueue.IsEmpty()) SetTimer(kRecentFilesTimer, kStartPeriod, nullptr);
}

BOOL CContextMenuWnd::PreTranslateMessage(MSG* message) {
  if (message->message != kOpenRequestMessage) return CWnd::PreTranslateMessage(message);
  SetTimer(kOpenRequestTimer, kOpenRequestPeriod, nullptr);
  return TRUE;
}

void CContextMenuWnd::OnTimer(UINT_PTR id) {
  HostOpener opener(*this);
  if (id == kReadinessTimer)
    m_steps.OnMenuReadiness();
  else if (id == kRecentFilesTimer)
    m_recentOpening.Step(m_openQueue, opener);
  else if (id == kOpenRequestTimer)
    OpenRequestedFile(g_szFileNameToOpen, g_szInitCmdStr, opener);
  else
    CWnd::OnTimer(id);
}

void InitContextWindow(bool create, StartupSteps* steps) {
  if (create) {
    if (g_window || !steps) return;
    g_window = std::make_unique<CContextMenuWnd>(*steps);
    g_window->CreateIn(acedGetAcadFrame());
    g_pContextMenu = g_window.get();
    return;
  }
  if (!g_window) return;
  if (::IsWindow(g_window->m_hWnd)) g_window->DestroyWindow();
  g_window.reset();
  g_pContextMenu = nullptr;
}

CContextMenuWnd* TheContextWindow() { return g_window.get(); }
