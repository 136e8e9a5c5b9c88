// A static text that opens an address with the shell's default handler when it is clicked. Attached
// to a control by DDX_Control. Not in the tab order.
#pragma once

#include "afxwin.h"
#include "kernel/kernel_export.h"

class QVX_KERNEL CHyperLink : public CStatic {
  DECLARE_DYNAMIC(CHyperLink)
 public:
  CHyperLink();
  ~CHyperLink() override;

  // The address; by default the control's text.
  void SetURL(const wchar_t* address);
  CString GetURL() const;

  // Non-zero: underlined, and in another colour while the pointer is over it.
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
  // The rectangle of the text: the control may be wider.
  CRect TextRect(CDC& dc) const;
  bool IsOverText(CPoint point);
  void SetOver(bool over);

  CString m_address;
  CFont m_font;
  bool m_underAndOver = false;
  bool m_over = false;
};
