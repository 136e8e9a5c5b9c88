// One row of the screen menu: an owner-drawn button for one line, with its appearance and mouse
// handling. Clicks reach the group as WM_COMMAND and are handled there.
#pragma once

#include "dialogs/win/button_st.h"
#include "screenmenu/win/group_owner.h"
#include "screenmenu/win/row_accessible.h"
#include "screenmenu/row_look.h"
#include "screenmenu/row_plan.h"

// Whether WM_CONTEXTMENU came from the keyboard, which gives no position.
inline bool IsFromKeyboard(CPoint point) { return point.x == -1 && point.y == -1; }

class CSMenuItem : public CButtonST, public AccessibleRow {
  DECLARE_DYNAMIC(CSMenuItem)
 public:
  // Line and owner outlive the row.
  CSMenuItem(TMenuItem* line, int ctrlId, int depth, GroupOwner* owner);
  ~CSMenuItem() override;

  // Creates the button at its place in the layout. If creation fails, the row stays empty.
  bool CreateRow(const qvx::RowPlan& plan, const CRect& place, CWnd* group);

  void DrawItem(LPDRAWITEMSTRUCT item) override;

  TMenuItem* Line() const { return m_pMenuItem; }
  int CtrlId() const { return m_nCtrlId; }
  int RowHeight() const { return m_nRowHeight; }

  void ShowArrow(bool open);
  void ShowCheckMark();
  // Loads a bitmap of the icon library; an empty name clears the image.
  void ShowIcon(const wchar_t* bitmap);
  // Shows caption and icon of a switch line after its state changed.
  void ShowState();
  // Loads the shown bitmap again and takes the system's colours, after they changed.
  void ReloadImage();
  void ReleaseMouse();

  // For screen readers.
  qvx::RowFacts Facts() const override;
  std::wstring Help() const override;
  void SettlePlace() const override;

 protected:
  void OnMouseEnter() override;
  afx_msg BOOL OnEraseBkgnd(CDC* dc);
  afx_msg LRESULT OnGetObject(WPARAM wParam, LPARAM lParam);
  afx_msg void OnContextMenu(CWnd* window, CPoint point);
  afx_msg void OnCaptureChanged(CWnd* next);
  afx_msg void OnTimer(UINT_PTR timer);
  DECLARE_MESSAGE_MAP()

 private:
  void ShowImage(const qvx::RowPlan& plan);
  void PaintFace(CDC& dc, const qvx::RowLook& look);
  void PaintImage(CDC& dc, const qvx::RowLook& look);
  void PaintText(CDC& dc, const qvx::RowLook& look, const CString& text);

  TMenuItem* m_pMenuItem;  // not owned
  int m_nCtrlId;
  int m_nDepth;  // of the group that holds this row
  int m_nRowHeight = 0;
  bool m_bOpen = false;     // of a header: shows the arrow of an open group
  bool m_bChecked = false;  // shows the check mark
  GroupOwner* m_pOwner;     // not owned
  RowAccess m_access;
};

// The colour band of a group and of its idle rows.
COLORREF MenuColor(int depth);
