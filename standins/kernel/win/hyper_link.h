// A static text of a dialog that opens an address when it is pressed, through the shell's default
// handler. Put over a control by DDX_Control. It has no place in the tab order.
#pragma once

#include "afxwin.h"
#include "kernel/kernel_export.h"

class QVX_KERNEL CHyperLink : public CStatic {
  DECLARE_DYNAMIC(CHyperLink)
 public:
  CHyperLink();
  ~CHyperLink() override;

  // Where the link leads; until it is set, to what the control's text says.
  void SetURL(const wchar_t* address);
  CString GetURL() const;

  // Non-zero: underlined, and of another colour while the pointer is over it.
  void SetUnderAndOver(int on);

 protected:
  void PreSubclassWindow() override;
  afx_msg void OnPaint();
  afx_msg void OnLButtonUp(UINT flags, CPoint point);
  afx_msg void OnMouseMove(UINT flags, CPoint point);
  afx_msg BOOL OnSetCursor(CWnd* window, UINT hitTest, UINT message);
  afx_msg LRESULT OnMouseLeave(WPARAM wParam, LPARAM lParam);
  DECLARE_MESSAGE_MAP()

 private:
  void MakeFont();
  // The text's own place: the control may be wider.
  CRect TextRect(CDC& dc) const;
  bool IsOverText(CPoint point);
  void SetOver(bool over);

  CString m_address;
  CFont m_font;
  bool m_underAndOver = false;
  bool m_over = false;
};
