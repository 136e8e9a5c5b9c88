// See mem_dc.h.
#include "dialogs/win/mem_dc.h"

CMemDC::CMemDC(CDC* target) : m_pTarget(target), m_bMemDC(!target->IsPrinting()) {
  if (!m_bMemDC) {
    m_hDC = target->m_hDC;
    m_hAttribDC = target->m_hAttribDC;
    return;
  }
  target->GetClipBox(&m_rcClip);
  CreateCompatibleDC(target);
  m_bitmap.CreateCompatibleBitmap(target, m_rcClip.Width(), m_rcClip.Height());
  m_pOldBitmap = SelectObject(&m_bitmap);
  SetWindowOrg(m_rcClip.left, m_rcClip.top);
}

CMemDC::~CMemDC() {
  if (!m_bMemDC) {
    m_hDC = m_hAttribDC = nullptr;  // owned by the target
    return;
  }
  m_pTarget->BitBlt(m_rcClip.left, m_rcClip.top, m_rcClip.Width(), m_rcClip.Height(), this,
                    m_rcClip.left, m_rcClip.top, SRCCOPY);
  SelectObject(m_pOldBitmap);
}
