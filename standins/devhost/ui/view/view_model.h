// What the window of a drawing asks of the host core, in pixels: where the view stands, what lies
// under the pointer, what is selected, whether a command waits for a point. The view itself thus
// calls nothing of the core, and everything that crosses is in one file.
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
  void ZoomAt(POINT pixel, double factor);  // the world point under the pixel stays there
  void ZoomExtents();
  void PanBy(int dx, int dy);
  void PaintScene(HDC dc, const RECT& client);
  void EntitiesChanged() { m_shapesStale = true; }

  std::optional<POINT> PixelOf(double x, double y) const;
  std::optional<POINT> PixelOnEntity(const std::string& handle) const;  // where a click finds it
  std::wstring CoordinatesAt(POINT pixel) const;
  std::optional<POINT> Origin() const;  // of the world, when it lies within reach of a pixel

  bool WaitsForPoint() const;
  bool CommandIsActive() const;
  bool WaitsForCorner() const;              // the band is a box, not a line
  std::optional<POINT> RubberFrom() const;  // where the band to the pointer begins
  void GivePoint(POINT pixel);

  std::vector<POINT> Grips() const;       // none when very many entities are selected
  bool PickAt(POINT pixel, bool remove);  // false: nothing lies there
  void PickIn(const RECT& box, bool crossing, bool remove);

 private:
  void BuildShapes();
  bool IsPicked(const AcDbObject* entity) const;
  void TakePicked(const std::vector<AcDbEntity*>& entities, bool remove);

  Document& m_document;
  std::vector<Shape> m_shapes;  // of the current space, for the scale at which they were built
  double m_shapesScale = 0;
  bool m_shapesStale = true;
};

}  // namespace devhost
