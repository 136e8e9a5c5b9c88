// CSMenuItem as a window: creation, images, tooltip, right click. menu_item_paint.cpp paints it.
#include "screenmenu/win/menu_item_button.h"

#include "kernel/globals.h"
#include "screenmenu/menu_colors.h"
#include "ground/win/module_handle.h"

namespace {

constexpr BYTE kImageSize = 16;

// WS_CHILD | WS_VISIBLE | WS_TABSTOP | BS_NOTIFY | BS_OWNERDRAW
constexpr DWORD kRowStyle = 0x5001400B;

}  // namespace

IMPLEMENT_DYNAMIC(CSMenuItem, CButtonST)

BEGIN_MESSAGE_MAP(CSMenuItem, CButtonST)
ON_WM_CONTEXTMENU()
ON_WM_CAPTURECHANGED()
ON_WM_TIMER()
ON_WM_ERASEBKGND()
ON_MESSAGE(WM_GETOBJECT, OnGetObject)
END_MESSAGE_MAP()

CSMenuItem::CSMenuItem(TMenuItem* line, int ctrlId, int depth, GroupOwner* owner)
    : m_pMenuItem(line), m_nCtrlId(ctrlId), m_nDepth(depth), m_pOwner(owner) {}

CSMenuItem::~CSMenuItem() = default;

bool CSMenuItem::CreateRow(const qvx::RowPlan& plan, const CRect& place, CWnd* group) {
  m_nRowHeight = plan.height;
  ShowImage(plan);  // before the window exists, so that nothing is repainted
  // Subclassed after creation: nothing here handles the creation messages, and it saves six of
  // fourteen requests to the window server.
  const HWND window = ::CreateWindowExW(
      0, L"BUTTON", plan.caption, kRowStyle | (plan.enabled ? 0 : WS_DISABLED), place.left,
      place.top, place.Width(), place.Height(), group->GetSafeHwnd(),
      reinterpret_cast<HMENU>(static_cast<INT_PTR>(m_nCtrlId)), AfxGetInstanceHandle(), nullptr);
  return window && SubclassWindow(window);
}

void CSMenuItem::ShowImage(const qvx::RowPlan& plan) {
  switch (plan.image) {
    case qvx::RowImage::kArrow:
      ShowArrow(false);
      break;
    case qvx::RowImage::kCheckMark:
      ShowCheckMark();
      break;
    case qvx::RowImage::kFromLibrary:
      ShowIcon(plan.bitmap);
      break;
    case qvx::RowImage::kNone:
      break;
  }
}

void CSMenuItem::ShowArrow(bool open) {
  m_bOpen = open;
  ShareBitmap(m_pOwner->Arrow(m_nDepth, open), kImageSize, kImageSize);
}

void CSMenuItem::ShowCheckMark() {
  m_bChecked = true;
  SetBitmaps(
      static_cast<HBITMAP>(::LoadImageW(qvx::ThisModule(), MAKEINTRESOURCEW(qvx::kCheckMarkBitmap),
                                        IMAGE_BITMAP, 0, 0, LR_LOADMAP3DCOLORS)),
      nullptr, kImageSize, kImageSize);
}

void CSMenuItem::ShowIcon(const wchar_t* bitmap) {
  ShareBitmap(*bitmap ? m_pOwner->Icon(bitmap) : nullptr, kImageSize, kImageSize);
}

void CSMenuItem::ReloadImage() {
  SetDefaultActiveBg(FALSE);
  SetDefaultActiveFg(FALSE);
  if (m_pMenuItem->m_pSubMenu)
    ShowArrow(m_bOpen);
  else if (m_bChecked)
    ShowCheckMark();
  else if (const wchar_t* bitmap = qvx::IconOfLine(*m_pMenuItem, m_pOwner->Lines()))
    ShowIcon(bitmap);
}

void CSMenuItem::ShowState() {
  CString shown;
  GetWindowText(shown);
  if (shown != static_cast<const wchar_t*>(m_pMenuItem->m_strLabel))
    SetWindowTextW(m_pMenuItem->m_strLabel);
  const wchar_t* bitmap = qvx::IconOfLine(*m_pMenuItem, m_pOwner->Lines());
  if (bitmap) ShowIcon(bitmap);
}

void CSMenuItem::ReleaseMouse() {
  if (::GetCapture() == m_hWnd) ::ReleaseCapture();
}

// The tooltip's text is set when the pointer first enters and never changes, even when a switch
// line shows another state later.
void CSMenuItem::OnMouseEnter() {
  const wchar_t* help = m_pMenuItem ? qvx::HelpOfLine(*m_pMenuItem, m_pOwner->Lines()) : nullptr;
  if (help && g_bShowMenuTip) {
    SetTooltipText(help);
    ActivateTooltip(TRUE);
  } else if (help) {
    ActivateTooltip(FALSE);
  }
  CButtonST::OnMouseEnter();
}

// The keyboard gives no position: the pop-up then opens below the row.
void CSMenuItem::OnContextMenu(CWnd*, CPoint point) {
  if (!m_pOwner->Lines().system || !m_pMenuItem) return;
  ReleaseMouse();
  m_pOwner->RestoreStatusBar();
  ClearHover();
  CRect button;
  GetWindowRect(&button);
  if (IsFromKeyboard(point)) point = CPoint(button.left, button.bottom);
  if (!m_pMenuItem->m_pSubMenu) {
    m_pOwner->ShowLineMenu(*m_pMenuItem, point);
    return;
  }
  m_pOwner->ShowHeaderMenu(*m_pMenuItem->m_pSubMenu, button, point);
}

void CSMenuItem::OnCaptureChanged(CWnd* next) {
  CButtonST::OnCaptureChanged(next);
  if (!IsMouseOn()) m_pOwner->RestoreStatusBar();
}

void CSMenuItem::OnTimer(UINT_PTR timer) { CButtonST::OnTimer(timer); }

qvx::RowFacts CSMenuItem::Facts() const {
  CString caption;
  GetWindowText(caption);
  const bool pressed = (::SendMessageW(m_hWnd, BM_GETSTATE, 0, 0) & BST_PUSHED) != 0;
  return {static_cast<const wchar_t*>(caption),
          m_pMenuItem->m_pSubMenu != nullptr,
          m_bOpen,
          caption.IsEmpty() != FALSE,
          m_bChecked,
          IsWindowEnabled() != FALSE,
          IsWindowVisible() != FALSE,
          ::GetFocus() == m_hWnd,
          IsMouseOn(),
          pressed};
}

std::wstring CSMenuItem::Help() const {
  const wchar_t* help = qvx::HelpOfLine(*m_pMenuItem, m_pOwner->Lines());
  return help ? help : L"";
}

void CSMenuItem::SettlePlace() const {
  for (HWND at = ::GetParent(m_hWnd); at; at = ::GetParent(at)) {
    auto* group = dynamic_cast<RowHolder*>(CWnd::FromHandlePermanent(at));
    if (!group) return;
    group->SettleRows();
  }
}

// Some screen readers read the rectangle from the window itself once they have its object.
LRESULT CSMenuItem::OnGetObject(WPARAM wParam, LPARAM lParam) {
  constexpr LONG kClientObject = -4;  // the published number of a window's client object
  if (static_cast<LONG>(lParam) != kClientObject) return Default();
  SettlePlace();
  return m_access.Answer(m_hWnd, wParam);
}
