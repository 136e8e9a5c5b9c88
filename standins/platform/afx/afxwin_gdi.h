// Owners of graphics objects and device contexts. A CGdiObject deletes its handle, a CDC its
// context; CClientDC, CWindowDC and CPaintDC release theirs to the window. SelectObject
// returns the object selected before, a temporary one if no permanent object owns the
// handle. Included by afxwin.h.
#pragma once

class CGdiObject : public CObject {
  DECLARE_DYNCREATE(CGdiObject)
 public:
  HGDIOBJ m_hObject = nullptr;

  CGdiObject() = default;
  ~CGdiObject() override { DeleteObject(); }
  CGdiObject(const CGdiObject&) = delete;
  CGdiObject& operator=(const CGdiObject&) = delete;

  operator HGDIOBJ() const { return m_hObject; }
  HGDIOBJ GetSafeHandle() const { return m_hObject; }
  // The permanent object of the handle, or a temporary one of the handle's type.
  static CGdiObject* FromHandle(HGDIOBJ hObject);
  static CGdiObject* FromHandlePermanent(HGDIOBJ hObject);
  static void DeleteTempMap();
  // FALSE for a null handle, so a failed creation leaves the object empty.
  BOOL Attach(HGDIOBJ hObject);
  HGDIOBJ Detach();
  BOOL DeleteObject();
  int GetObject(int nCount, LPVOID lpObject) const {
    return ::GetObject(m_hObject, nCount, lpObject);
  }
  UINT GetObjectType() const { return ::GetObjectType(m_hObject); }
  BOOL CreateStockObject(int nIndex) { return Attach(::GetStockObject(nIndex)); }
  BOOL UnrealizeObject() { return ::UnrealizeObject(m_hObject); }
  BOOL operator==(const CGdiObject& other) const { return other.m_hObject == m_hObject; }
};

class CPen : public CGdiObject {
  DECLARE_DYNAMIC(CPen)
 public:
  CPen() = default;
  CPen(int nPenStyle, int nWidth, COLORREF crColor);  // throws CResourceException
  BOOL CreatePen(int nPenStyle, int nWidth, COLORREF crColor) {
    return Attach(::CreatePen(nPenStyle, nWidth, crColor));
  }
  operator HPEN() const { return static_cast<HPEN>(m_hObject); }
  static CPen* FromHandle(HPEN hPen) { return static_cast<CPen*>(CGdiObject::FromHandle(hPen)); }
};

class CBrush : public CGdiObject {
  DECLARE_DYNAMIC(CBrush)
 public:
  CBrush() = default;
  explicit CBrush(COLORREF crColor);  // throws CResourceException
  BOOL CreateSolidBrush(COLORREF crColor) { return Attach(::CreateSolidBrush(crColor)); }
  BOOL CreateSysColorBrush(int nIndex) { return CreateSolidBrush(::GetSysColor(nIndex)); }
  inline BOOL CreatePatternBrush(class CBitmap* pBitmap);
  operator HBRUSH() const { return static_cast<HBRUSH>(m_hObject); }
  static CBrush* FromHandle(HBRUSH hBrush) {
    return static_cast<CBrush*>(CGdiObject::FromHandle(hBrush));
  }
};

class CFont : public CGdiObject {
  DECLARE_DYNAMIC(CFont)
 public:
  CFont() = default;
  BOOL CreateFontIndirect(const LOGFONT* lpLogFont) {
    return Attach(::CreateFontIndirect(lpLogFont));
  }
  // nPointSize: tenths of a point on the given context, or on the screen.
  BOOL CreatePointFont(int nPointSize, LPCTSTR lpszFaceName, CDC* pDC = nullptr);
  int GetLogFont(LOGFONT* pLogFont) { return ::GetObject(m_hObject, sizeof(LOGFONT), pLogFont); }
  operator HFONT() const { return static_cast<HFONT>(m_hObject); }
  static CFont* FromHandle(HFONT hFont) {
    return static_cast<CFont*>(CGdiObject::FromHandle(hFont));
  }
};

class CBitmap : public CGdiObject {
  DECLARE_DYNAMIC(CBitmap)
 public:
  CBitmap() = default;
  BOOL LoadBitmap(LPCTSTR lpszResourceName);
  BOOL LoadBitmap(UINT nIDResource) { return LoadBitmap(MAKEINTRESOURCE(nIDResource)); }
  BOOL CreateBitmap(int nWidth, int nHeight, UINT nPlanes, UINT nBitcount, const void* lpBits) {
    return Attach(::CreateBitmap(nWidth, nHeight, nPlanes, nBitcount, lpBits));
  }
  inline BOOL CreateCompatibleBitmap(CDC* pDC, int nWidth, int nHeight);
  int GetBitmap(BITMAP* pBitMap) { return ::GetObject(m_hObject, sizeof(BITMAP), pBitMap); }
  CSize GetBitmapDimension() const;
  operator HBITMAP() const { return static_cast<HBITMAP>(m_hObject); }
  static CBitmap* FromHandle(HBITMAP hBitmap) {
    return static_cast<CBitmap*>(CGdiObject::FromHandle(hBitmap));
  }
};

class CRgn : public CGdiObject {
  DECLARE_DYNAMIC(CRgn)
 public:
  CRgn() = default;
  BOOL CreateRectRgn(int x1, int y1, int x2, int y2) {
    return Attach(::CreateRectRgn(x1, y1, x2, y2));
  }
  BOOL CreateRectRgnIndirect(LPCRECT lpRect) { return Attach(::CreateRectRgnIndirect(lpRect)); }
  void SetRectRgn(LPCRECT r) { ::SetRectRgn(*this, r->left, r->top, r->right, r->bottom); }
  int CombineRgn(const CRgn* pRgn1, const CRgn* pRgn2, int nCombineMode) {
    return ::CombineRgn(*this, pRgn1 ? HRGN(*pRgn1) : nullptr, pRgn2 ? HRGN(*pRgn2) : nullptr,
                        nCombineMode);
  }
  int CopyRgn(const CRgn* pRgnSrc) { return CombineRgn(pRgnSrc, nullptr, RGN_COPY); }
  int OffsetRgn(int x, int y) { return ::OffsetRgn(*this, x, y); }
  int GetRgnBox(LPRECT lpRect) const { return ::GetRgnBox(*this, lpRect); }
  BOOL PtInRegion(POINT point) const { return ::PtInRegion(*this, point.x, point.y); }
  operator HRGN() const { return static_cast<HRGN>(m_hObject); }
  static CRgn* FromHandle(HRGN hRgn) { return static_cast<CRgn*>(CGdiObject::FromHandle(hRgn)); }
};

// m_hDC is used for output, m_hAttribDC for queries. They are always the same context here; code
// that makes them differ (a print preview) is not supported.
class CDC : public CObject {
  DECLARE_DYNCREATE(CDC)
 public:
  HDC m_hDC = nullptr;
  HDC m_hAttribDC = nullptr;
  BOOL m_bPrinting = FALSE;

  CDC() = default;
  ~CDC() override;
  CDC(const CDC&) = delete;
  CDC& operator=(const CDC&) = delete;

  operator HDC() const { return m_hDC; }
  HDC GetSafeHdc() const { return m_hDC; }
  static CDC* FromHandle(HDC hDC);
  static void DeleteTempMap();
  BOOL Attach(HDC hDC);
  HDC Detach();
  virtual void SetAttribDC(HDC hDC) { m_hAttribDC = hDC; }
  virtual void ReleaseAttribDC() { m_hAttribDC = nullptr; }
  BOOL IsPrinting() const { return m_bPrinting; }
  CWnd* GetWindow() const;

  BOOL CreateCompatibleDC(CDC* pDC) {
    return Attach(::CreateCompatibleDC(pDC ? pDC->m_hDC : nullptr));
  }
  BOOL CreateDC(LPCTSTR lpszDriver, LPCTSTR lpszDevice, LPCTSTR lpszOutput,
                const void* lpInitData) {
    return Attach(
        ::CreateDC(lpszDriver, lpszDevice, lpszOutput, static_cast<const DEVMODE*>(lpInitData)));
  }
  BOOL DeleteDC();

  virtual int SaveDC() { return ::SaveDC(m_hDC); }
  virtual BOOL RestoreDC(int nSavedDC) { return ::RestoreDC(m_hDC, nSavedDC); }
  int GetDeviceCaps(int nIndex) const { return ::GetDeviceCaps(m_hAttribDC, nIndex); }

  // Selection.
  CPen* SelectObject(CPen* pPen) {
    return static_cast<CPen*>(SelectGdiObject(m_hDC, Handle(pPen)));
  }
  CBrush* SelectObject(CBrush* pBrush) {
    return static_cast<CBrush*>(SelectGdiObject(m_hDC, Handle(pBrush)));
  }
  virtual CFont* SelectObject(CFont* pFont) {
    return static_cast<CFont*>(SelectGdiObject(m_hDC, Handle(pFont)));
  }
  CBitmap* SelectObject(CBitmap* pBitmap) {
    return static_cast<CBitmap*>(SelectGdiObject(m_hDC, Handle(pBitmap)));
  }
  int SelectObject(CRgn* pRgn) { return ::SelectClipRgn(m_hDC, *pRgn); }
  // Without this overload an object of the base type would be converted to a handle.
  CGdiObject* SelectObject(CGdiObject* pObject) { return SelectGdiObject(m_hDC, Handle(pObject)); }
  HGDIOBJ SelectObject(HGDIOBJ hObject) { return ::SelectObject(m_hDC, hObject); }
  virtual CGdiObject* SelectStockObject(int nIndex) {
    return SelectGdiObject(m_hDC, ::GetStockObject(nIndex));
  }
  CPen* GetCurrentPen() const;
  CBrush* GetCurrentBrush() const;
  CFont* GetCurrentFont() const;
  CBitmap* GetCurrentBitmap() const;

  // Colours and modes.
  COLORREF GetTextColor() const { return ::GetTextColor(m_hAttribDC); }
  virtual COLORREF SetTextColor(COLORREF crColor) { return ::SetTextColor(m_hDC, crColor); }
  COLORREF GetBkColor() const { return ::GetBkColor(m_hAttribDC); }
  virtual COLORREF SetBkColor(COLORREF crColor) { return ::SetBkColor(m_hDC, crColor); }
  int GetBkMode() const { return ::GetBkMode(m_hAttribDC); }
  int SetBkMode(int nBkMode) { return ::SetBkMode(m_hDC, nBkMode); }
  int SetROP2(int nDrawMode) { return ::SetROP2(m_hDC, nDrawMode); }
  int SetStretchBltMode(int nMode) { return ::SetStretchBltMode(m_hDC, nMode); }
  UINT SetTextAlign(UINT nFlags) { return ::SetTextAlign(m_hDC, nFlags); }
  virtual int SetMapMode(int nMapMode) { return ::SetMapMode(m_hDC, nMapMode); }
  CPoint SetBrushOrg(int x, int y) {
    CPoint old;
    ::SetBrushOrgEx(m_hDC, x, y, &old);
    return old;
  }

  // Origins and clipping.
  virtual CPoint SetViewportOrg(int x, int y);
  CPoint SetViewportOrg(POINT point) { return SetViewportOrg(point.x, point.y); }
  CPoint GetViewportOrg() const;
  CPoint SetWindowOrg(int x, int y);
  CPoint SetWindowOrg(POINT point) { return SetWindowOrg(point.x, point.y); }
  CPoint GetWindowOrg() const;
  void LPtoDP(LPPOINT lpPoints, int nCount = 1) const { ::LPtoDP(m_hAttribDC, lpPoints, nCount); }
  void DPtoLP(LPPOINT lpPoints, int nCount = 1) const { ::DPtoLP(m_hAttribDC, lpPoints, nCount); }
  virtual int GetClipBox(LPRECT lpRect) const { return ::GetClipBox(m_hDC, lpRect); }
  int SelectClipRgn(CRgn* pRgn) { return ::SelectClipRgn(m_hDC, pRgn ? HRGN(*pRgn) : nullptr); }
  int IntersectClipRect(int x1, int y1, int x2, int y2) {
    return ::IntersectClipRect(m_hDC, x1, y1, x2, y2);
  }
  int IntersectClipRect(LPCRECT r) {
    return IntersectClipRect(r->left, r->top, r->right, r->bottom);
  }
  int ExcludeClipRect(int x1, int y1, int x2, int y2) {
    return ::ExcludeClipRect(m_hDC, x1, y1, x2, y2);
  }
  int ExcludeClipRect(LPCRECT r) { return ExcludeClipRect(r->left, r->top, r->right, r->bottom); }
  BOOL RectVisible(LPCRECT lpRect) const { return ::RectVisible(m_hDC, lpRect); }

  // Lines and areas.
  CPoint MoveTo(int x, int y) {
    CPoint old;
    ::MoveToEx(m_hDC, x, y, &old);
    return old;
  }
  CPoint MoveTo(POINT point) { return MoveTo(point.x, point.y); }
  BOOL LineTo(int x, int y) { return ::LineTo(m_hDC, x, y); }
  BOOL LineTo(POINT point) { return LineTo(point.x, point.y); }
  BOOL Polyline(const POINT* lpPoints, int nCount) { return ::Polyline(m_hDC, lpPoints, nCount); }
  BOOL Polygon(const POINT* lpPoints, int nCount) { return ::Polygon(m_hDC, lpPoints, nCount); }
  BOOL Rectangle(int x1, int y1, int x2, int y2) { return ::Rectangle(m_hDC, x1, y1, x2, y2); }
  BOOL Rectangle(LPCRECT r) { return Rectangle(r->left, r->top, r->right, r->bottom); }
  BOOL Ellipse(int x1, int y1, int x2, int y2) { return ::Ellipse(m_hDC, x1, y1, x2, y2); }
  BOOL Ellipse(LPCRECT r) { return Ellipse(r->left, r->top, r->right, r->bottom); }
  BOOL Arc(int x1, int y1, int x2, int y2, int x3, int y3, int x4, int y4) {
    return ::Arc(m_hDC, x1, y1, x2, y2, x3, y3, x4, y4);
  }
  COLORREF SetPixel(int x, int y, COLORREF crColor) { return ::SetPixel(m_hDC, x, y, crColor); }
  COLORREF GetPixel(int x, int y) const { return ::GetPixel(m_hDC, x, y); }
  void FillRect(LPCRECT lpRect, CBrush* pBrush) { ::FillRect(m_hDC, lpRect, *pBrush); }
  void FrameRect(LPCRECT lpRect, CBrush* pBrush) { ::FrameRect(m_hDC, lpRect, *pBrush); }
  void InvertRect(LPCRECT lpRect) { ::InvertRect(m_hDC, lpRect); }
  BOOL PatBlt(int x, int y, int nWidth, int nHeight, DWORD dwRop) {
    return ::PatBlt(m_hDC, x, y, nWidth, nHeight, dwRop);
  }
  // Filled by ExtTextOut with the background colour, without a brush. The
  // background colour is restored.
  void FillSolidRect(LPCRECT lpRect, COLORREF clr);
  void FillSolidRect(int x, int y, int cx, int cy, COLORREF clr);
  // A frame one pixel wide: first colour left and top, second right and bottom.
  void Draw3dRect(LPCRECT lpRect, COLORREF clrTopLeft, COLORREF clrBottomRight);
  void Draw3dRect(int x, int y, int cx, int cy, COLORREF clrTopLeft, COLORREF clrBottomRight);
  // The frame of a drag: erases the last one (null: none) and draws the new one.
  void DrawDragRect(LPCRECT lpRect, SIZE size, LPCRECT lpRectLast, SIZE sizeLast,
                    CBrush* pBrush = nullptr, CBrush* pBrushLast = nullptr);
  BOOL DrawEdge(LPRECT lpRect, UINT nEdge, UINT nFlags) {
    return ::DrawEdge(m_hDC, lpRect, nEdge, nFlags);
  }
  BOOL DrawFrameControl(LPRECT lpRect, UINT nType, UINT nState) {
    return ::DrawFrameControl(m_hDC, lpRect, nType, nState);
  }
  void DrawFocusRect(LPCRECT lpRect) { ::DrawFocusRect(m_hDC, lpRect); }
  // A grey checkerboard owned by the library: select it, do not delete it.
  static CBrush* GetHalftoneBrush();

  // Bitmaps and icons.
  BOOL BitBlt(int x, int y, int nWidth, int nHeight, CDC* pSrcDC, int xSrc, int ySrc, DWORD dwRop) {
    return ::BitBlt(m_hDC, x, y, nWidth, nHeight, pSrcDC ? pSrcDC->m_hDC : nullptr, xSrc, ySrc,
                    dwRop);
  }
  BOOL StretchBlt(int x, int y, int nWidth, int nHeight, CDC* pSrcDC, int xSrc, int ySrc,
                  int nSrcWidth, int nSrcHeight, DWORD dwRop) {
    return ::StretchBlt(m_hDC, x, y, nWidth, nHeight, pSrcDC ? pSrcDC->m_hDC : nullptr, xSrc, ySrc,
                        nSrcWidth, nSrcHeight, dwRop);
  }
  BOOL TransparentBlt(int xDest, int yDest, int nDestWidth, int nDestHeight, CDC* pSrcDC, int xSrc,
                      int ySrc, int nSrcWidth, int nSrcHeight, UINT clrTransparent) {
    return ::TransparentBlt(m_hDC, xDest, yDest, nDestWidth, nDestHeight,
                            pSrcDC ? pSrcDC->m_hDC : nullptr, xSrc, ySrc, nSrcWidth, nSrcHeight,
                            clrTransparent);
  }
  BOOL DrawIcon(int x, int y, HICON hIcon) { return ::DrawIcon(m_hDC, x, y, hIcon); }
  BOOL DrawState(CPoint pt, CSize size, HBITMAP hBitmap, UINT nFlags, HBRUSH hBrush = nullptr) {
    return ::DrawState(m_hDC, hBrush, nullptr, reinterpret_cast<LPARAM>(hBitmap), 0, pt.x, pt.y,
                       size.cx, size.cy, nFlags | DST_BITMAP);
  }
  BOOL DrawState(CPoint pt, CSize size, LPCTSTR lpszText, UINT nFlags, BOOL bPrefixText = TRUE,
                 int nTextLen = 0, HBRUSH hBrush = nullptr) {
    return ::DrawState(m_hDC, hBrush, nullptr, reinterpret_cast<LPARAM>(lpszText), nTextLen, pt.x,
                       pt.y, size.cx, size.cy, nFlags | (bPrefixText ? DST_PREFIXTEXT : DST_TEXT));
  }

  // Text.
  virtual BOOL TextOut(int x, int y, LPCTSTR lpszString, int nCount) {
    return ::TextOut(m_hDC, x, y, lpszString, nCount);
  }
  BOOL TextOut(int x, int y, const CString& str) {
    return TextOut(x, y, static_cast<LPCTSTR>(str), str.GetLength());
  }
  BOOL ExtTextOut(int x, int y, UINT nOptions, LPCRECT lpRect, LPCTSTR lpszString, UINT nCount,
                  const INT* lpDxWidths) {
    return ::ExtTextOut(m_hDC, x, y, nOptions, lpRect, lpszString, nCount, lpDxWidths);
  }
  virtual int DrawText(LPCTSTR lpszString, int nCount, LPRECT lpRect, UINT nFormat) {
    return ::DrawText(m_hDC, lpszString, nCount, lpRect, nFormat);
  }
  int DrawText(const CString& str, LPRECT lpRect, UINT nFormat) {
    return DrawText(static_cast<LPCTSTR>(str), str.GetLength(), lpRect, nFormat);
  }
  CSize GetTextExtent(LPCTSTR lpszString, int nCount) const;
  CSize GetTextExtent(const CString& str) const {
    return GetTextExtent(static_cast<LPCTSTR>(str), str.GetLength());
  }
  BOOL GetTextMetrics(LPTEXTMETRIC lpMetrics) const {
    return ::GetTextMetrics(m_hAttribDC, lpMetrics);
  }

 protected:
  static CGdiObject* SelectGdiObject(HDC hDC, HGDIOBJ h);

 private:
  static HGDIOBJ Handle(const CGdiObject* object) { return object ? object->m_hObject : nullptr; }
};

inline BOOL CBrush::CreatePatternBrush(CBitmap* pBitmap) {
  return Attach(::CreatePatternBrush(*pBitmap));
}
inline BOOL CBitmap::CreateCompatibleBitmap(CDC* pDC, int nWidth, int nHeight) {
  return Attach(::CreateCompatibleBitmap(pDC->m_hDC, nWidth, nHeight));
}

// All three throw CResourceException when Windows gives no context.
class CClientDC : public CDC {
  DECLARE_DYNAMIC(CClientDC)
 public:
  explicit CClientDC(CWnd* pWnd);  // null: the screen
  ~CClientDC() override;

 protected:
  HWND m_hWnd;
};

class CWindowDC : public CDC {
  DECLARE_DYNAMIC(CWindowDC)
 public:
  explicit CWindowDC(CWnd* pWnd);
  ~CWindowDC() override;

 protected:
  HWND m_hWnd;
};

class CPaintDC : public CDC {
  DECLARE_DYNAMIC(CPaintDC)
 public:
  explicit CPaintDC(CWnd* pWnd);
  ~CPaintDC() override;
  PAINTSTRUCT m_ps;

 protected:
  HWND m_hWnd;
};
