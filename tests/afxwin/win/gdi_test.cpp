// Graphics objects and device contexts: owners, selection and the drawing functions of the library.
#include "test_app.h"

namespace {
// A small memory bitmap with access to its pixels.
class Canvas {
 public:
  Canvas() {
    CClientDC screen(nullptr);
    dc.CreateCompatibleDC(&screen);
    bitmap.CreateCompatibleBitmap(&screen, 20, 20);
    old = dc.SelectObject(&bitmap);
    dc.FillSolidRect(0, 0, 20, 20, RGB(255, 255, 255));
  }
  ~Canvas() { dc.SelectObject(old); }
  CDC dc;
  CBitmap bitmap;
  CBitmap* old;
};
constexpr COLORREF kWhite = RGB(255, 255, 255), kRed = RGB(255, 0, 0), kBlue = RGB(0, 0, 255);
}  // namespace

TEST(GdiObject, IsDeletedWithItsOwner) {
  HGDIOBJ handle;
  {
    CPen pen(PS_SOLID, 1, kRed);
    handle = pen.m_hObject;
    EXPECT_EQ(&pen, CPen::FromHandle(pen));
    EXPECT_EQ(DWORD(OBJ_PEN), ::GetObjectType(handle));
  }
  EXPECT_EQ(0u, ::GetObjectType(handle));
}

TEST(GdiObject, AFailedCreationLeavesItEmpty) {
  CBitmap bitmap;
  EXPECT_FALSE(bitmap.LoadBitmap(UINT(31999)));
  EXPECT_EQ(nullptr, bitmap.m_hObject);
  EXPECT_FALSE(bitmap.DeleteObject());
}

TEST(GdiObject, TemporaryObjectsHaveTheHandlesTypeAndDeleteNothing) {
  HBRUSH brush = ::CreateSolidBrush(kRed);
  CGdiObject* object = CGdiObject::FromHandle(brush);
  EXPECT_TRUE(object->IsKindOf(RUNTIME_CLASS(CBrush)));
  App().OnIdle(1);
  EXPECT_EQ(DWORD(OBJ_BRUSH), ::GetObjectType(brush));
  ::DeleteObject(brush);
}

TEST(GdiObject, AFontReturnsItsDescription) {
  CFont stock;
  ASSERT_TRUE(stock.CreateStockObject(DEFAULT_GUI_FONT));
  LOGFONT font{};
  ASSERT_GT(stock.GetLogFont(&font), 0);
  font.lfHeight = -20;
  CFont larger;
  ASSERT_TRUE(larger.CreateFontIndirect(&font));
  CClientDC dc(nullptr);
  CFont* old = dc.SelectObject(&stock);
  int small = dc.GetTextExtent(CString(L"墙体")).cy;
  EXPECT_EQ(&stock, dc.SelectObject(&larger));
  EXPECT_GT(dc.GetTextExtent(L"墙体", 2).cy, small);
  dc.SelectObject(old);
}

TEST(DeviceContext, SelectObjectReturnsThePreviousObject) {
  Canvas c;
  CBrush brush(kRed);
  CBrush* before = c.dc.SelectObject(&brush);
  EXPECT_NE(&brush, before);
  EXPECT_EQ(&brush, c.dc.GetCurrentBrush());
  EXPECT_EQ(&brush, c.dc.SelectObject(before));
  EXPECT_EQ(&c.bitmap, c.dc.GetCurrentBitmap());
}

TEST(DeviceContext, FillSolidRectKeepsTheBackgroundColour) {
  Canvas c;
  c.dc.SetBkColor(kBlue);
  c.dc.FillSolidRect(CRect(2, 3, 5, 6), kRed);
  EXPECT_EQ(kBlue, c.dc.GetBkColor());
  EXPECT_EQ(kRed, c.dc.GetPixel(2, 3));
  EXPECT_EQ(kRed, c.dc.GetPixel(4, 5));
  EXPECT_EQ(kWhite, c.dc.GetPixel(5, 5));
  EXPECT_EQ(kWhite, c.dc.GetPixel(4, 6));
}

TEST(DeviceContext, Draw3dRectUsesTheSecondColourForTheMixedCorners) {
  Canvas c;
  c.dc.Draw3dRect(CRect(2, 2, 10, 8), kRed, kBlue);
  EXPECT_EQ(kRed, c.dc.GetPixel(2, 2));
  EXPECT_EQ(kRed, c.dc.GetPixel(8, 2));
  EXPECT_EQ(kRed, c.dc.GetPixel(2, 6));
  EXPECT_EQ(kBlue, c.dc.GetPixel(9, 2));
  EXPECT_EQ(kBlue, c.dc.GetPixel(2, 7));
  EXPECT_EQ(kBlue, c.dc.GetPixel(9, 7));
  EXPECT_EQ(kWhite, c.dc.GetPixel(3, 3));
  EXPECT_EQ(kWhite, c.dc.GetPixel(10, 7));
}

TEST(DeviceContext, TheViewportOriginOffsetsTheDrawing) {
  Canvas c;
  CPoint before = c.dc.SetViewportOrg(5, 0);
  EXPECT_TRUE(before == CPoint(0, 0));
  c.dc.FillSolidRect(0, 0, 1, 1, kRed);
  c.dc.SetViewportOrg(before);
  EXPECT_EQ(kRed, c.dc.GetPixel(5, 0));
}

TEST(DeviceContext, TransparentBltLeavesOutOneColour) {
  Canvas target, source;
  source.dc.FillSolidRect(0, 0, 20, 20, kBlue);
  source.dc.FillSolidRect(0, 0, 4, 4, kRed);
  target.dc.TransparentBlt(0, 0, 8, 8, &source.dc, 0, 0, 8, 8, kBlue);
  EXPECT_EQ(kRed, target.dc.GetPixel(3, 3));
  EXPECT_EQ(kWhite, target.dc.GetPixel(5, 5));
}

TEST(DeviceContext, DrawingADragRectangleTwiceErasesIt) {
  Canvas c;
  CRect rect(2, 2, 18, 18);
  c.dc.DrawDragRect(rect, CSize(2, 2), nullptr, CSize(0, 0));
  bool changed = c.dc.GetPixel(2, 2) != kWhite || c.dc.GetPixel(3, 2) != kWhite;
  EXPECT_TRUE(changed);
  EXPECT_EQ(kWhite, c.dc.GetPixel(9, 9));
  c.dc.DrawDragRect(rect, CSize(2, 2), nullptr, CSize(0, 0));
  for (int i = 0; i < 20; ++i) EXPECT_EQ(kWhite, c.dc.GetPixel(i, 2)) << i;
}

TEST(DeviceContext, OfAWindowIsReleased) {
  TestWindow w;
  ASSERT_TRUE(w.Make(WS_OVERLAPPEDWINDOW | WS_VISIBLE));
  HDC handle;
  {
    CClientDC dc(&w);
    handle = dc.m_hDC;
    EXPECT_EQ(&dc, CDC::FromHandle(handle));
    EXPECT_EQ(&w, dc.GetWindow());
  }
  EXPECT_NE(&w, CWnd::FromHandlePermanent(::WindowFromDC(handle)));
}

TEST(DeviceContext, OfAPaintingValidatesTheWindow) {
  TestWindow w;
  ASSERT_TRUE(w.Make(WS_OVERLAPPEDWINDOW | WS_VISIBLE));
  PumpQueue();
  w.Invalidate();
  EXPECT_TRUE(w.GetUpdateRect(nullptr));
  {
    CPaintDC dc(&w);
    EXPECT_FALSE(CRect(dc.m_ps.rcPaint).IsRectEmpty());
  }
  EXPECT_FALSE(w.GetUpdateRect(nullptr));
}

TEST(Region, CombinesAndTests) {
  CRgn a, b;
  a.CreateRectRgn(0, 0, 10, 10);
  b.CreateRectRgn(5, 0, 15, 10);
  EXPECT_EQ(SIMPLEREGION, a.CombineRgn(&a, &b, RGN_AND));
  EXPECT_TRUE(a.PtInRegion(CPoint(7, 3)));
  EXPECT_FALSE(a.PtInRegion(CPoint(3, 3)));
}
