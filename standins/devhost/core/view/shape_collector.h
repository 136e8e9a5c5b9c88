// Receives the drawing calls of entities and stores them as shapes in world coordinates. Transforms
// of enclosing blocks are applied; colours and line types are resolved.
#pragma once

#include <vector>

#include "devhost/core/view/layer_look.h"
#include "devhost/core/view/shape.h"

namespace devhost {

class ShapeCollector : public AcGiWorldDraw, AcGiWorldGeometry, AcGiSubEntityTraits {
 public:
  ShapeCollector(const LayerStyles& looks, double pixelsPerUnit, std::vector<Shape>& out)
      : m_looks(looks), m_pixels(pixelsPerUnit > 0 ? pixelsPerUnit : 1), m_out(out) {}

  void DrawEntity(AcDbEntity& entity);  // an entity that is in no block

 private:
  struct Frame {
    int color;
    bool dashed, filled;
  };

  AcGiSubEntityTraits& subEntityTraits() override { return *this; }
  AcGiWorldGeometry& geometry() override { return *this; }
  void setColor(short index) override;
  void setFilled(bool filled) override { m_frame.filled = filled; }
  bool polyline(unsigned count, const AcGePoint3d* points) override;
  bool polygon(unsigned count, const AcGePoint3d* points) override;
  bool circle(const AcGePoint3d& center, double radius, const AcGeVector3d& normal) override;
  bool circularArc(const AcGePoint3d& center, double radius, const AcGeVector3d& normal,
                   const AcGeVector3d& start, double sweep) override;
  bool text(const AcGePoint3d& position, const AcGeVector3d& normal, const AcGeVector3d& direction,
            double height, double width, double oblique, const ACHAR* text) override;
  bool pushModelTransform(const AcGeMatrix3d& matrix) override;
  bool popModelTransform() override;
  bool draw(const AcDbEntity* part) override;

  void Draw(const AcDbEntity& entity);
  bool Add(Shape::Kind kind, unsigned count, const AcGePoint3d* points);
  bool IsFull() const;
  const AcGeMatrix3d& Matrix() const { return m_matrices.back(); }

  const LayerStyles& m_looks;
  double m_pixels;
  std::vector<Shape>& m_out;
  AcDbObject* m_entity = nullptr;
  int m_depth = 0, m_layerColor = 7, m_blockColor = 7;
  Frame m_frame{7, false, false};
  std::vector<AcGeMatrix3d> m_matrices{AcGeMatrix3d()};
};

}  // namespace devhost
