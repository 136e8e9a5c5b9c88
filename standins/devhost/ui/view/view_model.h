// All calls of the drawing view to the host core, in pixels: view transform, hit tests, selection,
// input requests.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "devhost/core/host/host.h"
#include "devhost/core/view/scene.h"
#include "devhost/ui/view/view_overlay.h"

namespace devhost {

class ViewModel {
 public:
  explicit ViewModel(Document& document) : m_document(document) {}

  void Resize(int width, int height);
  // In the viewport at the pixel, which need not be current.
  void ZoomAt(POINT pixel, double factor);  // keeps the world point under the pixel
  void PanBy(int viewport, int dx, int dy);
  void ZoomExtents();            // the current viewport
  void OrbitBy(int dx, int dy);  // the current viewport
  int ViewportAt(POINT pixel) const { return m_document.viewports.At(pixel); }  // 0: none
  bool IsInCurrent(POINT pixel) const;
  bool MakeCurrentAt(POINT pixel);  // false: that viewport is current already, or none is there
  RECT CurrentPixels() const { return m_document.view.Pixels(); }
  void PaintScene(HDC dc);  // all viewports, with grids and borders
  void EntitiesChanged() { m_shapesStale = m_highlightStale = true; }

  std::optional<POINT> PixelOf(double x, double y) const;
  std::optional<POINT> PixelOnEntity(const std::string& handle) const;  // where a click picks it
  // The texts that an object draws, in their order. False: there is no such object.
  bool DrawnTexts(const std::string& handle, std::vector<std::wstring>* texts) const;
  AcGePoint3d WorldAt(POINT pixel) const { return m_document.view.ToWorld(pixel); }
  std::wstring CoordinatesAt(POINT pixel) const;  // in the user's system
  AxisMark Axes() const;                          // of the user's system
  void ToggleGrid();

  bool WaitsForPoint() const;
  bool CommandIsActive() const;
  bool WaitsForView() const;                     // a drag turns the direction of view
  bool WaitsForCorner() const;                   // the rubber band is a box, not a line
  std::optional<POINT> RubberBandStart() const;  // start of the rubber band
  void EnterPoint(POINT pixel);

  std::vector<POINT> Grips() const;       // none if very many entities are selected
  bool PressGrip(POINT pixel);            // starts GRIP_STRETCH; false: no grip there
  bool EditTextAt(POINT pixel);           // starts TEXTEDIT; false: no text there
  bool PickAt(POINT pixel, bool remove);  // false: nothing there
  void PreviewAt(POINT pixel);            // the host's own highlight of what a click would pick
  void EndPreview();

  // Few highlighted objects are painted over the picture, so that a preview does not repaint it;
  // many are part of it. True if the picture must be painted again.
  bool HighlightChanged();
  void PaintHighlights(HDC dc);
  void PickIn(const RECT& box, bool crossing, bool remove);

 private:
  struct Grip {
    AcDbEntity* entity;
    AcGePoint3d at;
  };
  void BuildShapes();
  void PaintGrid(HDC dc, const ViewTransform& view) const;
  std::wstring VariableText(const wchar_t* name) const;  // of this drawing
  UserSystem System() const;                             // the user's, of this drawing
  bool IsHighlightInScene() const;
  std::vector<Grip> GripPlaces() const;
  AcDbEntity* EntityUnder(POINT pixel) const;
  bool IsPicked(const AcDbObject* entity) const;
  void TakePicked(const std::vector<AcDbEntity*>& entities, bool remove);

  Document& m_document;
  std::vector<Shape> m_shapes;  // of the current space, built for m_shapesScale
  double m_shapesScale = 0;
  bool m_shapesStale = true;
  std::vector<Shape> m_highlight;  // shapes of the highlighted objects
  double m_highlightScale = 0;
  bool m_highlightStale = true;
  bool m_highlightInScene = false;
};

}  // namespace devhost
