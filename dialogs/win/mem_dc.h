// A device context that draws into a bitmap; its destructor copies the result to the target at
// once, which avoids flicker. For a printing target it uses the target's handles directly.
// Used by CButtonST::DrawItem.
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
  BOOL m_bMemDC;  // false: uses the target's handles
};
