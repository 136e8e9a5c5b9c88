// The window of one drawing: paints it, zooms and pans, converts clicks to points for a command or
// to a selection, and passes keys to the command line. Hit tests, selection and view transform are
// the core's.
#pragma once

#include <optional>

#include "afxwin.h"
#include "devhost/ui/painting/gdi.h"
#include "devhost/ui/view/view_model.h"
#include "devhost/ui/view/view_overlay.h"

namespace devhost {

class DrawingView : public CWnd {
 public:
  explicit DrawingView(Document& document) : m_model(document) {}

  bool CreateIn(CWnd* parent);
  void PictureChanged();    // database or view transform changed: repaint
  void SelectionChanged();  // only the overlay changed
  void HighlightChanged();  // other objects are selected or highlighted
  void ZoomAt(POINT pixel, double factor);
  void ZoomExtents();
  ViewModel& Model() { return m_model; }

 protected:
  LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;

 private:
  bool OnMouse(UINT message, WPARAM keys, POINT at);
  void OnMove(WPARAM keys, POINT at);
  void OnPress(WPARAM keys, POINT at);
  void OnRelease(WPARAM keys, POINT at);
  void OnWheel(int delta, POINT screen);
  void OnResize(int width, int height);
  void OnKey(WPARAM key);
  template <class F>
  void ChangeView(F change);
  bool OnPressElsewhere(POINT at);
  bool BeginOrbit(POINT at);
  void EndOrbit();
  void ShowPointer();
  void OnDoubleClick(WPARAM keys, POINT at);
  void BeginPan(POINT at);
  void EndPan();
  void PickBox(WPARAM keys, POINT from, POINT to);
  void MoveCursor(std::optional<POINT> at);
  ViewOverlay Overlay() const;
  void Paint();
  void PaintScene(HDC like, const RECT& client);

  ViewModel m_model;
  Bitmap m_scene;  // the drawing without the overlay
  SIZE m_sceneSize{};
  bool m_sceneDirty = true;
  bool m_sized = false;
  std::optional<POINT> m_cursor, m_press, m_boxFrom, m_panFrom, m_orbitFrom;
  int m_panViewport = 0;             // in which the pan began
  std::optional<POINT> m_gripPress;  // the grip that the button is held on
};

}  // namespace devhost
