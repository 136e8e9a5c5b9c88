// Panes of the status bar and their menus. The bar paints panes and passes clicks to
// them; see status_bar.
#include "afxext.h"

#include "acstatusbar.h"

#include <utility>

AcStatusBarItem::AcStatusBarItem(const AcStatusBarItem& other)
    : CObject(),
      m_icon(other.m_icon),
      m_toolTip(other.m_toolTip),
      m_enabled(other.m_enabled),
      m_visible(other.m_visible) {}

AcStatusBarItem& AcStatusBarItem::operator=(const AcStatusBarItem& other) {
  m_icon = other.m_icon;
  m_toolTip = other.m_toolTip;
  m_enabled = other.m_enabled;
  m_visible = other.m_visible;
  return *this;
}

AcStatusBarItem::~AcStatusBarItem() = default;

BOOL AcStatusBarItem::Enable(BOOL enable) {
  m_enabled = enable;
  return TRUE;
}

BOOL AcStatusBarItem::IsEnabled() const { return m_enabled; }

BOOL AcStatusBarItem::SetIcon(HICON icon) {
  m_icon = icon;
  return TRUE;
}

HICON AcStatusBarItem::GetIcon() const { return m_icon; }

BOOL AcStatusBarItem::SetToolTipText(LPCTSTR text) {
  m_toolTip = text;
  return TRUE;
}

BOOL AcStatusBarItem::GetToolTipText(CString& text) const {
  text = m_toolTip;
  return TRUE;
}

BOOL AcStatusBarItem::SetVisible(BOOL visible) {
  m_visible = visible;
  return TRUE;
}

BOOL AcStatusBarItem::IsVisible() const { return m_visible; }

UINT AcStatusBarItem::DisplayContextMenu(CMenu& menu, CPoint point) {
  AcApStatusBar* bar = acedGetApplicationStatusBar();
  if (!bar) return 0;
  POINT at = {point.x, point.y};
  ::ClientToScreen(bar->GetWindow(), &at);
  // In a menu resource the pop-up is the only entry; a menu made in code is the pop-up itself.
  HMENU popup = ::GetSubMenu(menu.m_hMenu, 0);
  if (!popup || ::GetMenuItemCount(menu.m_hMenu) > 1) popup = menu.m_hMenu;
  return ::TrackPopupMenu(popup, TPM_RETURNCMD | TPM_BOTTOMALIGN | TPM_LEFTALIGN | TPM_RIGHTBUTTON,
                          at.x, at.y, 0, bar->GetWindow(), nullptr);
}

void AcStatusBarItem::OnLButtonDown(UINT, CPoint) {}
void AcStatusBarItem::OnLButtonDblClk(UINT, CPoint) {}
void AcStatusBarItem::OnRButtonDown(UINT, CPoint) {}
void AcStatusBarItem::OnDelete() {}

// A pane that a module destroys without removing it must not stay on the bar.
AcPane::~AcPane() {
  if (AcApStatusBar* bar = acedGetApplicationStatusBar()) bar->Remove(this, TRUE);
}

int AcPane::GetMinWidth() const { return m_minWidth; }
int AcPane::SetMinWidth(int width) { return std::exchange(m_minWidth, width); }
int AcPane::GetMaxWidth() const { return m_maxWidth; }
int AcPane::SetMaxWidth(int width) { return std::exchange(m_maxWidth, width); }

BOOL AcPane::GetText(CString& text) const {
  text = m_text;
  return TRUE;
}

BOOL AcPane::SetText(LPCTSTR text) {
  m_text = text;
  return TRUE;
}

int AcPane::GetStyle() const { return m_style; }

BOOL AcPane::SetStyle(int style) {
  m_style = style;
  return TRUE;
}

UINT AcPane::DisplayPopupPaneMenu(CMenu& menu) {
  AcApStatusBar* bar = acedGetApplicationStatusBar();
  RECT rect{};
  if (!bar || !bar->GetRect(this, rect)) return 0;
  return DisplayContextMenu(menu, CPoint(rect.left, rect.top));
}
