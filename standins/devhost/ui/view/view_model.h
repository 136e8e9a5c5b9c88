// All calls of the drawing view to the host core, in pixels: view transform, hit tests, selection,
// input requests.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "devhost/core/view/scene.h"
#include "ground/plain_types.h"

namespace devhost {

class Document;

class ViewModel {
 public:
  explicit ViewModel(Document& document) : m_document(document) {}

  void Resize(int width, int height);
  void ZoomAt(POINT pixel, double factor);  // keeps the world point under the pixel
  void ZoomExtents();
  void PanBy(int dx, int dy);
  void PaintScene(HDC dc, const RECT& client);
  void EntitiesChanged() { m_shapesStale = true; }

  std::optional<POINT> PixelOf(double x, double y) const;
  std::optional<POINT> PixelOnEntity(const std::string& handle) const;  // where a click picks it
  std::wstring CoordinatesAt(POINT pixel) const;
  POINT Origin() const;  // pixel of world 0,0

  bool WaitsForPoint() const;
  bool CommandIsActive() const;
  bool WaitsForCorner() const;                   // the rubber band is a box, not a line
  std::optional<POINT> RubberBandStart() const;  // start of the rubber band
  void EnterPoint(POINT pixel);

  std::vector<POINT> Grips() const;       // none if very many entities are selected
  bool PickAt(POINT pixel, bool remove);  // false: nothing there
  void PickIn(const RECT& box, bool crossing, bool remove);

 private:
  void BuildShapes();
  bool IsPicked(const AcDbObject* entity) const;
  void TakePicked(const std::vector<AcDbEntity*>& entities, bool remove);

  Document& m_document;
  std::vector<Shape> m_shapes;  // of the current space, built for m_shapesScale
  double m_shapesScale = 0;
  bool m_shapesStale = true;
};

}  // namespace devhost
