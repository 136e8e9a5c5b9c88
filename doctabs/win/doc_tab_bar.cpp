#include "doctabs/win/doc_tab_bar.h"

#include <utility>

#include "doctabs/doc_tab_bar_door.h"
#include "doctabs/tabs_json.h"
#include "kernel/globals.h"
#include "rxmfcapi.h"

namespace {

constexpr UINT kWindowId = 64;
constexpr DWORD kTopStyle = 0x2800;     // aligned top, border below
constexpr DWORD kBottomStyle = 0x8200;  // aligned bottom, border above
// A child that leaves its place to the frame's layout and draws no divider.
constexpr DWORD kWindowStyle = 0x4200004E;
constexpr int kCaptionDelay = 100;  // milliseconds: the host finishes the save first

}  // namespace

CADDocTabBar g_DocTabBar;

IMPLEMENT_DYNAMIC(CADDocTabBar, CMDITabBar)

BEGIN_MESSAGE_MAP(CADDocTabBar, CMDITabBar)
ON_WM_TIMER()
ON_WM_CONTEXTMENU()
ON_COMMAND_RANGE(kTabClose, kTabExport, OnDrawingCommand)
END_MESSAGE_MAP()

CADDocTabBar::CADDocTabBar() : CMDITabBar(m_hostFrames) {
  if (acDocManager) acDocManager->addReactor(&m_reactor);
}

// Runs after the kernel was unloaded.
CADDocTabBar::~CADDocTabBar() {
  qvx::Guarded([this] {
    m_strip.m_nShowMode = static_cast<int>(TabShowMode::kHidden);
    RecalcTabs(0, 0);
    if (acDocManager) acDocManager->removeReactor(&m_reactor);
  });
}

CRect CADDocTabBar::ScreenClient() const {
  CRect client;
  GetClientRect(client);
  ClientToScreen(client);
  return client;
}

DrawingStrip CADDocTabBar::Drawings() {
  return {m_strip, m_frames, m_hostFrames, m_drawings, m_reactor.m_pCurDoc};
}

void CADDocTabBar::CreateIn(CWnd* parent, bool top) {
  if (!parent || m_hWnd) return;
  if (!g_bDwgTabBar) m_strip.m_nShowMode = static_cast<int>(TabShowMode::kHidden);
  SetBarStyle(top ? kTopStyle : kBottomStyle);
  SetBorders(0, 0, 0, 0);
  const bool always = m_strip.m_nShowMode == static_cast<int>(TabShowMode::kAlways);
  Create(L"msctls_statusbar32", nullptr, kWindowStyle | (always ? WS_VISIBLE : 0),
         CRect(0, 0, 0, 0), parent, kWindowId);
}

void CADDocTabBar::Init() { InitDrawingStrip(Drawings()); }

void CADDocTabBar::StartCaptionTimer() {
  if (m_hWnd) SetTimer(kTabLayoutTimer, kCaptionDelay, nullptr);
}

void CADDocTabBar::OnTabActivated() { ActivateDrawingOfTab(Drawings()); }

// A timer of the layout and one of a save have the same number.
void CADDocTabBar::RefreshCaption() {
  KillTimer(kTabLayoutTimer);
  MSG message;
  while (::PeekMessageW(&message, m_hWnd, WM_TIMER, WM_TIMER, PM_REMOVE)) {
  }
  RefreshActiveTabName(Drawings());
}

void CADDocTabBar::OnTimer(UINT_PTR timer) {
  if (timer == static_cast<UINT_PTR>(kTabLayoutTimer)) return RefreshCaption();
  if (timer != static_cast<UINT_PTR>(kTabMenuTimer)) return CMDITabBar::OnTimer(timer);
  KillTimer(timer);
  // The drawing may have closed meanwhile: its commands would reach another one.
  if (m_menuFrame && m_menuFrame == m_frames.ActiveTabFrame()) ShowMenu(TabMenuRows(), m_menuPoint);
}

void CADDocTabBar::OnContextMenu(CWnd*, CPoint point) {
  const TabMenuPlan plan = PlanTabMenu(m_strip, {MayActivateDrawings(), point, ScreenClient()});
  m_menuFrame = nullptr;
  if (plan.answer == TabMenuAnswer::kStripMenu) return ShowMenu(StripMenuRows(), plan.screenPoint);
  if (plan.answer != TabMenuAnswer::kTabMenuLater) return;
  ActivateTab(plan.tab);
  if (!m_hWnd) return;
  m_menuFrame = m_frames.ActiveTabFrame();
  m_menuPoint = plan.screenPoint;
  SetTimer(kTabMenuTimer, kTabMenuDelay, nullptr);
}

// The command of the chosen row comes as a message, after the menu has closed.
void CADDocTabBar::ShowMenu(std::span<const TabMenuRow> rows, POINT at) {
  CMenu menu;
  if (!menu.CreatePopupMenu()) return;
  for (const TabMenuRow& row : rows)
    menu.AppendMenu(row.id ? MF_STRING : MF_SEPARATOR, row.id, row.text);
  menu.TrackPopupMenu(TPM_RIGHTBUTTON, at.x, at.y, this);
}

void CADDocTabBar::OnDrawingCommand(UINT id) {
  CFrameWnd* asked = std::exchange(m_menuFrame, nullptr);
  // The drawing of the menu closed while the menu was open.
  if (IsAboutOneDrawing(id) && asked && asked != m_frames.ActiveTabFrame()) return;
  RunDrawingCommand(m_drawings, id);
}

// ---- the reactor

void CADDocTabReactor::documentCreated(AcApDocument* document) {
  qvx::Guarded([&] { OnDrawingCreated(m_pBar->Drawings(), document); });
}

void CADDocTabReactor::documentToBeDestroyed(AcApDocument* document) {
  qvx::Guarded([&] { OnDrawingToBeDestroyed(m_pBar->Drawings(), document); });
}

void CADDocTabReactor::documentActivated(AcApDocument* document) {
  qvx::Guarded([&] { OnDrawingActivated(m_pBar->Drawings(), document); });
}

CMDIFrameWnd* HostFrameWindows::MainFrame() { return acedGetAcadFrame(); }

// ---- the door

void CreateDocTabBar(CWnd* parent, bool top, unsigned) { g_DocTabBar.CreateIn(parent, top); }

void InitDocTabBar() { g_DocTabBar.Init(); }

void DestroyDocTabBar() { g_DocTabBar.DestroyWindow(); }

void StartTabCaptionTimer() { g_DocTabBar.StartCaptionTimer(); }

void HideDocTabBar(int hide) { HideTabBar(g_DocTabBar.m_strip, hide, g_bDwgTabBar); }

std::string DescribeDocTabs() {
  if (!g_DocTabBar.m_hWnd) return "null";
  return TabsToJson(g_DocTabBar.m_strip, g_DocTabBar.IsWindowVisible(), g_DocTabBar.ScreenClient());
}
