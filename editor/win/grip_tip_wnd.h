// A small tip over the drawing. Nothing in the module opens one at present; the message filter
// closes an open one.
#pragma once

#include "afxwin.h"
#include "ground/win/guarded_window.h"

class CGripTipWnd : public qvx::GuardedWindow<CWnd> {
 public:
  // Child of the host frame, visible; the point is in the frame's client area.
  BOOL CreateTip(const wchar_t* text, CPoint at);

 protected:
  afx_msg void OnPaint();
  afx_msg void OnTimer(UINT_PTR id);
  DECLARE_MESSAGE_MAP()

 private:
  CSize MeasureText(CWnd& frame, const wchar_t* text);

  CFont m_font;
};

// Opens the module's one tip in place of an open one.
void OpenGripTip(const wchar_t* text, CPoint at);
void CloseGripTip();  // does nothing when none is open
