// Flat push button that lights up under the pointer and draws itself. Base of every row of the
// screen menu, which uses its mouse tracking, image and colour members and tip, and replaces the
// drawing. The mouse rules are in button_pointer.h.
#pragma once

#include <memory>

#include "afxcmn.h"
#include "afxwin.h"
#include "dialogs/button_pointer.h"
#include "ground/win/guarded_window.h"
#include "ground/win/owned_handle.h"

// A bitmap on a button: owned by the button, or shared by many buttons.
class CButtonImage {
 public:
  void Own(HBITMAP bitmap) {
    m_own.Reset(bitmap);
    m_shown = bitmap;
  }
  void Borrow(HBITMAP bitmap) {
    m_own.Reset();
    m_shown = bitmap;
  }
  HBITMAP Get() const { return m_shown; }

 private:
  qvx::OwnedBitmap m_own;
  HBITMAP m_shown = nullptr;
};

class CButtonST : public qvx::GuardedWindow<CButton> {
  DECLARE_DYNAMIC(CButtonST)
 public:
  CButtonST();
  ~CButtonST() override;

  // Takes ownership of both bitmaps, either of which may be null, frees the previous two and
  // repaints at once. Sizes have 8 bits: 255 pixels at most.
  void SetBitmaps(HBITMAP image, HBITMAP overlay, BYTE width, BYTE height);
  // Shows a bitmap that the caller keeps alive while the button shows it. No
  // repaint if it is shown already.
  void ShareBitmap(HBITMAP image, BYTE width, BYTE height);

  // Only the first call has an effect: later texts are ignored.
  void SetTooltipText(const wchar_t* text);
  void ActivateTooltip(BOOL active);

  BOOL SetBtnCursor(int resource);  // -1: no cursor
  void SetDrawBorder(int draw) { m_bDrawBorder = draw; }
  void SetFlat(int flat) { m_bIsFlat = flat; }

  // Each resets one colour to the system colour that the button starts with.
  void SetDefaultInactiveBg(BOOL repaint) { SetDefault(m_crInactiveBg, COLOR_BTNFACE, repaint); }
  void SetDefaultInactiveFg(BOOL repaint) { SetDefault(m_crInactiveFg, COLOR_BTNTEXT, repaint); }
  void SetDefaultActiveBg(BOOL repaint) { SetDefault(m_crActiveBg, COLOR_BTNFACE, repaint); }
  void SetDefaultActiveFg(BOOL repaint) { SetDefault(m_crActiveFg, COLOR_BTNTEXT, repaint); }
  COLORREF GetInactiveBg() const { return m_crInactiveBg; }
  COLORREF GetInactiveFg() const { return m_crInactiveFg; }
  COLORREF GetActiveBg() const { return m_crActiveBg; }
  COLORREF GetActiveFg() const { return m_crActiveFg; }

  bool IsMouseOn() const { return m_bMouseOn != 0; }
  HBITMAP ShownBitmap() const { return m_image.Get(); }
  // Resets the button to its idle look, wherever the pointer is.
  void ClearHover();

  void PreSubclassWindow() override;
  BOOL PreTranslateMessage(MSG* message) override;
  void DrawItem(LPDRAWITEMSTRUCT item) override;

 protected:
  virtual void OnMouseEnter();  // the base class takes the capture

  afx_msg void OnMouseMove(UINT flags, CPoint point);
  afx_msg void OnKillFocus(CWnd* next);
  afx_msg void OnCaptureChanged(CWnd* next);
  afx_msg BOOL OnSetCursor(CWnd* window, UINT hit, UINT message);
  DECLARE_MESSAGE_MAP()

  int m_nAlign = 0;  // image left of the text (0), above it (1), or at the corner
  int m_bShowText = 1;
  int m_bDrawBorder = 1;
  int m_bIsFlat = 1;  // only flat buttons follow the mouse
  int m_bMouseOn = 0;
  int m_bDrawFlatFocus = 0;
  qvx::OwnedCursor m_hCursor;
  CButtonImage m_image;
  qvx::OwnedBitmap m_hOverlay;
  BYTE m_cyImage = 0;
  BYTE m_cxImage = 0;
  COLORREF m_crInactiveBg, m_crInactiveFg;
  COLORREF m_crActiveBg, m_crActiveFg;
  std::unique_ptr<CToolTipCtrl> m_pToolTip;  // created by the first SetTooltipText

 private:
  void SetDefault(COLORREF& color, int systemColor, BOOL repaint);
  void Carry(const qvx::PointerStep& step);
  void DrawFrame(CDC& dc, const CRect& item, UINT state);
  void DrawFlatFrame(CDC& dc, CRect item, UINT state);
  void DrawRaisedFrame(CDC& dc, CRect item, UINT state);
  CRect DrawImages(CDC& dc, const CRect& item, const CRect& caption, UINT state, bool withText);
  void DrawCaption(CDC& dc, CRect caption, UINT state, const CString& text);
};
