// Output of an entity's drawing: traits and geometry in world coordinates. An entity draws curves
// that are not offered here as polylines.
#pragma once

#include "adsdef.h"
#include "gepnt3d.h"

class AcDbEntity;

class AcGiSubEntityTraits {
 public:
  virtual ~AcGiSubEntityTraits() = default;
  virtual void setColor(short index) = 0;   // 1 to 255, 256 by layer, 0 by block
  virtual void setFilled(bool filled) = 0;  // applies to the polygons that follow
};

class AcGiWorldGeometry {
 public:
  virtual ~AcGiWorldGeometry() = default;
  virtual bool polyline(unsigned count, const AcGePoint3d* points) = 0;
  virtual bool polygon(unsigned count, const AcGePoint3d* points) = 0;
  virtual bool circle(const AcGePoint3d& center, double radius, const AcGeVector3d& normal) = 0;
  // Counter-clockwise from `start` over `sweep` radians.
  virtual bool circularArc(const AcGePoint3d& center, double radius, const AcGeVector3d& normal,
                           const AcGeVector3d& start, double sweep) = 0;
  // `position` is the lower left corner of the text; `direction` gives its rotation.
  virtual bool text(const AcGePoint3d& position, const AcGeVector3d& normal,
                    const AcGeVector3d& direction, double height, double width, double oblique,
                    const ACHAR* text) = 0;
  virtual bool pushModelTransform(const AcGeMatrix3d& matrix) = 0;
  virtual bool popModelTransform() = 0;
  virtual bool draw(const AcDbEntity* part) = 0;  // another entity, as a part of this one
};

class AcGiWorldDraw {
 public:
  virtual ~AcGiWorldDraw() = default;
  virtual AcGiSubEntityTraits& subEntityTraits() = 0;
  virtual AcGiWorldGeometry& geometry() = 0;
};
