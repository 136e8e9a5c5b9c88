// Graphics objects and device contexts: handle maps, owners, and drawing functions
// that Windows does not offer.
#include "afximpl.h"

IMPLEMENT_DYNCREATE(CGdiObject, CObject)
IMPLEMENT_DYNAMIC(CPen, CGdiObject)
IMPLEMENT_DYNAMIC(CBrush, CGdiObject)
IMPLEMENT_DYNAMIC(CFont, CGdiObject)
IMPLEMENT_DYNAMIC(CBitmap, CGdiObject)
IMPLEMENT_DYNAMIC(CRgn, CGdiObject)
IMPLEMENT_DYNCREATE(CDC, CObject)
IMPLEMENT_DYNAMIC(CClientDC, CDC)
IMPLEMENT_DYNAMIC(CWindowDC, CDC)
IMPLEMENT_DYNAMIC(CPaintDC, CDC)

// ---- objects

CGdiObject* CGdiObject::FromHandle(HGDIOBJ hObject) {
  return AfxGetThreadState().objects.FromHandle(hObject);
}

CGdiObject* CGdiObject::FromHandlePermanent(HGDIOBJ hObject) {
  return AfxGetThreadState().objects.LookupPermanent(hObject);
}

void CGdiObject::DeleteTempMap() { AfxGetThreadState().objects.DeleteTemporary(); }

BOOL CGdiObject::Attach(HGDIOBJ hObject) {
  if (!hObject) return FALSE;
  AfxGetThreadState().objects.SetPermanent(m_hObject = hObject, this);
  return TRUE;
}

HGDIOBJ CGdiObject::Detach() {
  HGDIOBJ object = m_hObject;
  if (object) AfxGetThreadState().objects.Remove(object, this);
  m_hObject = nullptr;
  return object;
}

BOOL CGdiObject::DeleteObject() {
  HGDIOBJ object = Detach();
  return object && ::DeleteObject(object);
}

CPen::CPen(int nPenStyle, int nWidth, COLORREF crColor) {
  if (!CreatePen(nPenStyle, nWidth, crColor)) AfxThrowResourceException();
}

CBrush::CBrush(COLORREF crColor) {
  if (!CreateSolidBrush(crColor)) AfxThrowResourceException();
}

BOOL CFont::CreatePointFont(int nPointSize, LPCTSTR lpszFaceName, CDC* pDC) {
  HDC screen = pDC ? nullptr : ::GetDC(nullptr);
  LOGFONT font{};
  font.lfCharSet = DEFAULT_CHARSET;
  font.lfHeight =
      -::MulDiv(nPointSize, ::GetDeviceCaps(pDC ? pDC->m_hAttribDC : screen, LOGPIXELSY), 720);
  lstrcpyn(font.lfFaceName, lpszFaceName, LF_FACESIZE);
  if (screen) ::ReleaseDC(nullptr, screen);
  return CreateFontIndirect(&font);
}

BOOL CBitmap::LoadBitmap(LPCTSTR lpszResourceName) {
  return Attach(::LoadBitmap(AfxFindResourceHandle(lpszResourceName, RT_BITMAP), lpszResourceName));
}

CSize CBitmap::GetBitmapDimension() const {
  CSize size;
  ::GetBitmapDimensionEx(*this, &size);
  return size;
}

// ---- contexts

CDC::~CDC() {
  if (m_hDC) ::DeleteDC(Detach());
}

CDC* CDC::FromHandle(HDC hDC) { return AfxGetThreadState().contexts.FromHandle(hDC); }

void CDC::DeleteTempMap() { AfxGetThreadState().contexts.DeleteTemporary(); }

BOOL CDC::Attach(HDC hDC) {
  if (!hDC) return FALSE;
  AfxGetThreadState().contexts.SetPermanent(m_hDC = hDC, this);
  SetAttribDC(hDC);
  return TRUE;
}

HDC CDC::Detach() {
  HDC context = m_hDC;
  if (context) AfxGetThreadState().contexts.Remove(context, this);
  ReleaseAttribDC();
  m_hDC = nullptr;
  return context;
}

BOOL CDC::DeleteDC() {
  HDC context = Detach();
  return context && ::DeleteDC(context);
}

CWnd* CDC::GetWindow() const { return CWnd::FromHandle(::WindowFromDC(m_hDC)); }

CGdiObject* CDC::SelectGdiObject(HDC hDC, HGDIOBJ h) {
  return CGdiObject::FromHandle(::SelectObject(hDC, h));
}

CPen* CDC::GetCurrentPen() const {
  return static_cast<CPen*>(CGdiObject::FromHandle(::GetCurrentObject(m_hAttribDC, OBJ_PEN)));
}
CBrush* CDC::GetCurrentBrush() const {
  return static_cast<CBrush*>(CGdiObject::FromHandle(::GetCurrentObject(m_hAttribDC, OBJ_BRUSH)));
}
CFont* CDC::GetCurrentFont() const {
  return static_cast<CFont*>(CGdiObject::FromHandle(::GetCurrentObject(m_hAttribDC, OBJ_FONT)));
}
CBitmap* CDC::GetCurrentBitmap() const {
  return static_cast<CBitmap*>(CGdiObject::FromHandle(::GetCurrentObject(m_hAttribDC, OBJ_BITMAP)));
}

CPoint CDC::SetViewportOrg(int x, int y) {
  CPoint old;
  ::SetViewportOrgEx(m_hDC, x, y, &old);
  return old;
}
CPoint CDC::GetViewportOrg() const {
  CPoint origin;
  ::GetViewportOrgEx(m_hAttribDC, &origin);
  return origin;
}
CPoint CDC::SetWindowOrg(int x, int y) {
  CPoint old;
  ::SetWindowOrgEx(m_hDC, x, y, &old);
  return old;
}
CPoint CDC::GetWindowOrg() const {
  CPoint origin;
  ::GetWindowOrgEx(m_hAttribDC, &origin);
  return origin;
}

CSize CDC::GetTextExtent(LPCTSTR lpszString, int nCount) const {
  CSize size;
  ::GetTextExtentPoint32(m_hAttribDC, lpszString, nCount, &size);
  return size;
}

// ---- drawings

void CDC::FillSolidRect(LPCRECT lpRect, COLORREF clr) {
  COLORREF old = ::SetBkColor(m_hDC, clr);
  ::ExtTextOut(m_hDC, 0, 0, ETO_OPAQUE, lpRect, nullptr, 0, nullptr);
  ::SetBkColor(m_hDC, old);
}

void CDC::FillSolidRect(int x, int y, int cx, int cy, COLORREF clr) {
  FillSolidRect(CRect(x, y, x + cx, y + cy), clr);
}

// The corners at lower left and upper right have the second colour.
void CDC::Draw3dRect(int x, int y, int cx, int cy, COLORREF clrTopLeft, COLORREF clrBottomRight) {
  FillSolidRect(x, y, cx - 1, 1, clrTopLeft);
  FillSolidRect(x, y, 1, cy - 1, clrTopLeft);
  FillSolidRect(x + cx - 1, y, 1, cy, clrBottomRight);
  FillSolidRect(x, y + cy - 1, cx, 1, clrBottomRight);
}

void CDC::Draw3dRect(LPCRECT r, COLORREF clrTopLeft, COLORREF clrBottomRight) {
  Draw3dRect(r->left, r->top, r->right - r->left, r->bottom - r->top, clrTopLeft, clrBottomRight);
}

CBrush* CDC::GetHalftoneBrush() {
  static CBrush* const brush = [] {
    WORD rows[8];
    for (int i = 0; i < 8; ++i) rows[i] = WORD(0x5555 << (i & 1));
    CBitmap pattern;
    pattern.CreateBitmap(8, 8, 1, 1, rows);
    // Never freed: it may still be selected after the library's static objects are destroyed.
    auto* made = new CBrush;
    made->CreatePatternBrush(&pattern);
    return made;
  }();
  return brush;
}

namespace {
// The area between the rectangle and the one inside it by `size`.
void MakeFrameRegion(CRgn& frame, LPCRECT rect, SIZE size) {
  CRect inside(rect);
  inside.DeflateRect(size);
  inside.IntersectRect(inside, rect);
  CRgn hole;
  hole.CreateRectRgnIndirect(inside);
  frame.CreateRectRgnIndirect(rect);
  frame.CombineRgn(&frame, &hole, RGN_XOR);
}

void InvertRegion(CDC& dc, CRgn& region, CBrush* brush) {
  dc.SelectClipRgn(&region);
  CRect box;
  dc.GetClipBox(box);
  CBrush* old = dc.SelectObject(brush);
  dc.PatBlt(box.left, box.top, box.Width(), box.Height(), PATINVERT);
  dc.SelectObject(old);
  dc.SelectClipRgn(nullptr);
}
}  // namespace

void CDC::DrawDragRect(LPCRECT lpRect, SIZE size, LPCRECT lpRectLast, SIZE sizeLast, CBrush* pBrush,
                       CBrush* pBrushLast) {
  if (!pBrush) pBrush = GetHalftoneBrush();
  if (!pBrushLast) pBrushLast = pBrush;
  CRgn fresh;
  MakeFrameRegion(fresh, lpRect, size);
  if (lpRectLast) {
    CRgn last;
    MakeFrameRegion(last, lpRectLast, sizeLast);
    if (pBrush == pBrushLast) {  // keeps the overlap: no flicker
      fresh.CombineRgn(&fresh, &last, RGN_XOR);
    } else {
      InvertRegion(*this, last, pBrushLast);
    }
  }
  InvertRegion(*this, fresh, pBrush);
}

// ---- contexts of windows

CClientDC::CClientDC(CWnd* pWnd) : m_hWnd(AfxHandleOf(pWnd)) {
  if (!Attach(::GetDC(m_hWnd))) AfxThrowResourceException();
}
CClientDC::~CClientDC() { ::ReleaseDC(m_hWnd, Detach()); }

CWindowDC::CWindowDC(CWnd* pWnd) : m_hWnd(AfxHandleOf(pWnd)) {
  if (!Attach(::GetWindowDC(m_hWnd))) AfxThrowResourceException();
}
CWindowDC::~CWindowDC() { ::ReleaseDC(m_hWnd, Detach()); }

CPaintDC::CPaintDC(CWnd* pWnd) : m_hWnd(pWnd->m_hWnd) {
  if (!Attach(::BeginPaint(m_hWnd, &m_ps))) AfxThrowResourceException();
}
CPaintDC::~CPaintDC() {
  ::EndPaint(m_hWnd, &m_ps);
  Detach();
}
