// The frame window; see the header.
#include "devhost/ui/frame/main_frame.h"

#include <commdlg.h>
#include <shellapi.h>

#include "devhost/ui/frame/host_actions.h"
#include "devhost/ui/frame/host_ui_impl.h"
#include "devhost/ui/frame/main_menu.h"
#include "devhost/ui/view/drawing_child.h"

namespace devhost {
namespace {

MainFrame* g_frame = nullptr;

DrawingView* ActiveView() {
  DrawingChild* child = TheHostUi().ActiveChild();
  return child ? &child->View() : nullptr;
}

void ZoomAtCentre(double factor) {
  DrawingView* view = ActiveView();
  if (!view) return;
  RECT client{};
  ::GetClientRect(view->m_hWnd, &client);
  view->ZoomAt({client.right / 2, client.bottom / 2}, factor);
}

std::wstring PathOfDropped(HDROP drop, UINT index) {
  std::wstring path(::DragQueryFileW(drop, index, nullptr, 0) + 1, L'\0');
  path.resize(::DragQueryFileW(drop, index, path.data(), static_cast<UINT>(path.size())));
  return path;
}

}  // namespace

MainFrame* TheFrame() { return g_frame; }

MainFrame::MainFrame() = default;

MainFrame::~MainFrame() {
  if (m_keys) ::DestroyAcceleratorTable(m_keys);
}

bool MainFrame::CreateAndShow(const std::wstring& title) {
  RECT area{};
  ::SystemParametersInfoW(SPI_GETWORKAREA, 0, &area, 0);
  if (!Create(nullptr, title.c_str(), WS_OVERLAPPEDWINDOW | WS_CLIPCHILDREN,
              CRect(area.left, area.top, area.right, area.bottom)))
    return false;
  g_frame = this;
  SetIcon(MakeProgramIcon(32), TRUE);
  SetIcon(MakeProgramIcon(16), FALSE);
  const MainMenu menu = MakeMainMenu();
  m_windowMenu = menu.windowMenu;
  ::SetMenu(m_hWnd, menu.bar);
  m_hMenuDefault = menu.bar;
  ::SendMessageW(m_hWndMDIClient, WM_MDISETMENU, reinterpret_cast<WPARAM>(menu.bar),
                 reinterpret_cast<LPARAM>(menu.windowMenu));
  // Set again after the MDI client exists: from now on the frame appends the title of
  // a maximized child.
  ::SetWindowTextW(m_hWnd, title.c_str());
  m_keys = MakeMainKeys();
  if (!m_status.CreateIn(this) || !m_commands.CreateIn(this, TheHostUi().CommandListener()))
    return false;
  EnableDocking(CBRS_ALIGN_ANY);
  ::DragAcceptFiles(m_hWnd, TRUE);
  ShowWindow(SW_SHOWMAXIMIZED);
  RecalcLayout();
  ::UpdateWindow(m_hWnd);
  return true;
}

void MainFrame::AskAndOpen() {
  wchar_t path[1024] = L"";
  OPENFILENAMEW ask{};
  ask.lStructSize = sizeof ask;
  ask.hwndOwner = m_hWnd;
  ask.lpstrFilter = L"图形 (*.dxf)\0*.dxf\0";
  ask.lpstrFile = path;
  ask.nMaxFile = 1024;
  ask.Flags = OFN_FILEMUSTEXIST | OFN_NOCHANGEDIR | OFN_HIDEREADONLY;
  if (::GetOpenFileNameW(&ask)) OpenDrawingFile(path);
}

void MainFrame::OpenDropped(HDROP drop) {
  const UINT count = ::DragQueryFileW(drop, 0xFFFFFFFF, nullptr, 0);
  for (UINT i = 0; i < count; ++i) OpenDrawingFile(PathOfDropped(drop, i));
  ::DragFinish(drop);
}

bool MainFrame::RunWindowCommand(UINT id) {
  switch (id) {
    case kWindowCascade:
      ::SendMessageW(m_hWndMDIClient, WM_MDICASCADE, 0, 0);
      return true;
    case kWindowTileHorizontal:
      ::SendMessageW(m_hWndMDIClient, WM_MDITILE, MDITILE_HORIZONTAL, 0);
      return true;
    case kWindowTileVertical:
      ::SendMessageW(m_hWndMDIClient, WM_MDITILE, MDITILE_VERTICAL, 0);
      return true;
    case kWindowArrange:
      ::SendMessageW(m_hWndMDIClient, WM_MDIICONARRANGE, 0, 0);
      return true;
    case kWindowMinimize:
      if (DrawingChild* child = TheHostUi().ActiveChild())
        ::SendMessageW(child->m_hWnd, WM_SYSCOMMAND, SC_MINIMIZE, 0);
      return true;
  }
  // The MDI client's own rows: the list of its children.
  return id >= AFX_IDM_FIRST_MDICHILD && !TheHostUi().MayChangeDrawing();
}

bool MainFrame::RunMenuCommand(UINT id) {
  switch (id) {
    case kFileNew:
      MakeNewDrawing();
      return true;
    case kFileOpen:
      AskAndOpen();
      return true;
    case kFileClose:
      RunHostCommand(L"CLOSE");
      return true;
    case kFileCloseAll:
      RunHostCommand(L"CLOSEALL");
      return true;
    case kFileSave:
      RunHostCommand(L"QSAVE");
      return true;
    case kFileSaveAs:
      RunHostCommand(L"SAVEAS");
      return true;
    case kFileQuit:
      ::PostMessageW(m_hWnd, WM_CLOSE, 0, 0);
      return true;
    case kViewZoomIn:
      ZoomAtCentre(1.5);
      return true;
    case kViewZoomOut:
      ZoomAtCentre(1 / 1.5);
      return true;
    case kViewExtents:
      if (DrawingView* view = ActiveView()) view->ZoomExtents();
      return true;
    case kViewRedraw:
      if (DrawingView* view = ActiveView()) view->PictureChanged();
      return true;
    case kHelpTopics:
      ShowHostHelp();
      return true;
    case kToggleGrid:
      if (DrawingChild* child = TheHostUi().ActiveChild()) child->View().Model().ToggleGrid();
      return true;
  }
  return false;
}

BOOL MainFrame::OnCommand(WPARAM wParam, LPARAM lParam) {
  if (lParam == 0 && (RunMenuCommand(LOWORD(wParam)) || RunWindowCommand(LOWORD(wParam))))
    return TRUE;
  return CMDIFrameWnd::OnCommand(wParam, lParam);
}

BOOL MainFrame::PreTranslateMessage(MSG* message) {
  if (m_keys && ::TranslateAcceleratorW(m_hWnd, m_keys, message)) return TRUE;
  return CMDIFrameWnd::PreTranslateMessage(message);
}

LRESULT MainFrame::WindowProc(UINT message, WPARAM wParam, LPARAM lParam) {
  switch (message) {
    case WM_CLOSE:
      RunHostCommand(L"QUIT");
      return 0;
    case WM_INITMENUPOPUP: {
      const LRESULT result = CMDIFrameWnd::WindowProc(message, wParam, lParam);
      EnableMainMenu(::GetMenu(m_hWnd), TheHostUi().ActiveChild() != nullptr);
      return result;
    }
    case WM_DROPFILES:
      OpenDropped(reinterpret_cast<HDROP>(wParam));
      return 0;
    case WM_SETFOCUS:
      if (DrawingView* view = ActiveView()) {
        ::SetFocus(view->m_hWnd);
        return 0;
      }
      ::SetFocus(m_commands.EditWindow());
      return 0;
    case WM_DESTROY:
      g_frame = nullptr;
      break;
  }
  return CMDIFrameWnd::WindowProc(message, wParam, lParam);
}

}  // namespace devhost
