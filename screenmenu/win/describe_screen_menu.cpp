// See describe_screen_menu.h.
#include "screenmenu/win/describe_screen_menu.h"

#include "screenmenu/win/screen_menu.h"
#include "screenmenu/shell_json.h"

namespace {

std::wstring TextOf(const CWnd& window) {
  CString text;
  window.GetWindowText(text);
  return std::wstring(static_cast<const wchar_t*>(text));
}

RECT PlaceOf(const CWnd& window) {
  RECT place{};
  window.GetWindowRect(&place);
  return place;
}

const char* KindOf(const TMenuItem& line) {
  if (line.m_pSubMenu) return "header";
  if (line.m_pSwitch) return "switch";
  return line.IsSeparator() ? "separator" : "command";
}

std::vector<qvx::ShellRow> DescribeRows(CMenuGroup& group);

// A header is open when its group's window is shown, whether or not the enclosing groups are.
qvx::ShellRow DescribeRow(CMenuGroup& group, int index) {
  const CSMenuItem& item = *group.Row(index);
  qvx::ShellRow row;
  row.kind = KindOf(*item.Line());
  row.depth = group.Depth();
  if (item.GetSafeHwnd()) {
    row.label = TextOf(item);
    row.enabled = item.IsWindowEnabled() != FALSE;
    row.visible = item.IsWindowVisible() != FALSE;
    row.rect = PlaceOf(item);
  }
  CMenuGroup* child = group.Child(index);
  if (!child) return row;
  row.open = child->GetSafeHwnd() && (child->GetStyle() & WS_VISIBLE);
  row.rows = DescribeRows(*child);
  return row;
}

std::vector<qvx::ShellRow> DescribeRows(CMenuGroup& group) {
  group.SettleRows();
  std::vector<qvx::ShellRow> rows;
  for (int i = 0; i < group.RowCount(); ++i) rows.push_back(DescribeRow(group, i));
  return rows;
}

// The active scroll bar: the root's, or that of its open group when the root's height is limited.
std::optional<qvx::ShellScroll> DescribeScroll(CMenuGroup& root) {
  CMenuGroup* group = root.LimitHeight() ? root.OpenChild() : &root;
  if (!group || !group->HasScrollBar()) return std::nullopt;
  CScrollBar& bar = group->ScrollBar();
  qvx::ShellScroll scroll{};
  bar.GetScrollRange(&scroll.min, &scroll.max);
  scroll.pos = bar.GetScrollPos();
  const RECT place = PlaceOf(bar);
  scroll.width = static_cast<int>(place.right - place.left);
  return scroll;
}

const char* DockOf(const CScreenMenu& palette) {
  if (palette.IsFloating()) return "none";
  switch (::GetDlgCtrlID(::GetParent(palette.m_hWnd))) {
    case AFX_IDW_DOCKBAR_LEFT:
      return "left";
    case AFX_IDW_DOCKBAR_RIGHT:
      return "right";
    default:
      return "none";
  }
}

}  // namespace

std::string DescribeScreenMenu() {
  qvx::ShellScreenMenu menu;
  if (!g_pScreenMenu || !g_pScreenMenu->GetSafeHwnd()) return qvx::ToJson(menu);
  menu.exists = true;
  menu.visible = g_pScreenMenu->IsWindowVisible() != FALSE;
  menu.enabled = g_pScreenMenu->IsWindowEnabled() != FALSE;
  menu.floating = g_pScreenMenu->IsFloating() != FALSE;
  menu.dock = DockOf(*g_pScreenMenu);
  menu.title = TextOf(*g_pScreenMenu);
  menu.rect = PlaceOf(*g_pScreenMenu);
  CMenuGroup* root = g_pScreenMenu->RootGroup();
  if (root && root->GetSafeHwnd()) {
    menu.scroll = DescribeScroll(*root);
    menu.rows = DescribeRows(*root);
  }
  return qvx::ToJson(menu);
}
