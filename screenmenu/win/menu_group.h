// One group of the screen menu: a column of rows, one for each line of a bar, with a nested group
// below each header. The whole tree is created hidden from a plan; folding shows and hides windows.
// Layout and scrolling are in menu_group_layout.cpp, clicks in menu_group_command.cpp.
#pragma once

#include "afxwin.h"
#include "frame/containers/tdptrlist.h"
#include "frame/containers/tpdlist.h"
#include "ground/win/guarded_window.h"
#include "screenmenu/group_layout.h"
#include "screenmenu/group_plan.h"
#include "screenmenu/win/menu_item_button.h"

class CMenuGroup : public qvx::GuardedWindow<CWnd>, public RowHolder {
  DECLARE_DYNAMIC(CMenuGroup)
 public:
  // Bar and owner outlive the group. Plans and creates the whole tree below the bar, hidden; the
  // caller shows the root afterwards. If a LISP function replaced the owner's menu meanwhile, the
  // group is empty and may only be deleted.
  CMenuGroup(TMenuBar* bar, const CRect& rect, CWnd* parent, UINT id, bool limitHeight,
             GroupOwner* owner);
  ~CMenuGroup() override;

  // Opens the group of a header and folds the one open before, or folds it when it is the open one.
  void ToggleSubMenu(unsigned index);
  // Reads the state of every switch line, in hidden groups too. Never enables or disables a row.
  void RefreshSwitches();
  // Shows captions and icons that a pop-up copied into switch lines, in hidden groups too.
  void ShowLineStates();
  // Loads the bitmaps of all rows again.
  void ReloadImages();

  void LayoutGroup();
  void ScrollGroup(UINT code, int position);
  // For callers that read window rectangles; changes nothing visible.
  void SettleRows() override;
  int WheelGroup(UINT flags, short delta, CPoint point);  // 1 if it scrolled
  void RevealRect(const CRect& rect);

  int ContentHeight();
  CMenuGroup* ScrollHostOf();
  CMenuGroup* ParentGroup() const;
  CMenuGroup* OpenChild();
  int OpenIndex() const { return m_children.GetCur(); }

  bool LimitHeight() const { return m_bLimitHeight; }
  int RowsHeight() const { return m_nContentHeight; }
  int ClientHeight() const;
  int Depth() const { return m_nDepth; }
  bool HasScrollBar() const { return m_scrollBar.GetSafeHwnd() != nullptr; }
  CScrollBar& ScrollBar() { return m_scrollBar; }

  int RowCount() const { return m_items.Length(); }
  CSMenuItem* Row(int index) const { return m_items.At(index); }
  CMenuGroup* Child(int index);  // null for a line without sub-menu

  BOOL OnCommand(WPARAM wParam, LPARAM lParam) override;

 protected:
  afx_msg void OnPaint();
  afx_msg void OnSize(UINT type, int cx, int cy);
  afx_msg void OnVScroll(UINT code, UINT position, CScrollBar* bar);
  DECLARE_MESSAGE_MAP()

 private:
  CMenuGroup(const qvx::GroupPlan& plan, const CRect& rect, CWnd* parent, UINT id,
             GroupOwner* owner);
  void Build(const qvx::GroupPlan& plan, const CRect& rect, CWnd* parent, UINT id);
  void BuildRows(const qvx::GroupPlan& plan, const CRect& rect);
  void ClipCoveredRows(const qvx::LayoutPlan& plan);

  qvx::LayoutRequest RequestLayout(const CRect& client, const std::vector<int>& heights);
  void CarryScroll(const qvx::ScrollPlan& plan);
  void SetScroll(int top, int pos);
  CRect PlaceOf(CWnd& child) const;  // in this group's client coordinates
  // Both add the area to redraw to `changed`.
  void PlaceRow(CSMenuItem& row, const CRect& place, CRect& changed);
  void PlaceChild(CMenuGroup& child, const CRect& place, CRect& changed);
  static void MoveUnseen(CWnd& child, const CRect& place);
  void BringNear(const CRect& zone, const CRect& view);
  qvx::LayoutPlan PlanNow(const CRect& client);
  void ShowOpenChild(bool show);
  int FindRow(UINT ctrlId) const;  // -1 when no button of this group has it
  void ClickSwitch(CSMenuItem& row);
  void RefreshWatched(const qvx::LineSources& lines);
  void RefreshSwitch(CSMenuItem& row, const qvx::LineSources& lines);

  TMenuBar* m_pBar;                // not owned
  TDPtrList<CSMenuItem> m_items;   // one for each line, in line order
  TPDList<CMenuGroup> m_children;  // one slot for each line; its cursor is the open index
  bool m_bLimitHeight = false;
  int m_nContentHeight = 0;  // row heights plus the margin
  short m_nDepth = 0;
  bool m_isScrolledPast = false;  // rows far from the view may be misplaced
  CScrollBar m_scrollBar;         // its window exists only while it is needed
  GroupOwner* m_pOwner;           // not owned
};
