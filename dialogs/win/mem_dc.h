// A device context that draws into a bitmap and puts the result onto its target in one step when it
// goes, so that a button never shows half a drawing. A target that prints is not buffered: the
// context then only borrows the target's handles. Used by CButtonST::DrawItem.
#pragma once

#include "afxwin.h"

class CMemDC : public CDC {
 public:
  explicit CMemDC(CDC* target);
  ~CMemDC() override;

 private:
  CBitmap m_bitmap;
  CBitmap* m_pOldBitmap = nullptr;
  CDC* m_pTarget;
  CRect m_rcClip;
  BOOL m_bMemDC;  // false while the target's own handles are borrowed
};
