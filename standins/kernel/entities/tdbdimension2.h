// Dimensions: the distance of two points along a line (kind 0), or the angle between two directions
// as an arc (kind 1). Symbols and text are scaled with the object; the distance of the line is a
// length in the drawing, which the caller changes with the scale.
#pragma once

#include "kernel/entities/qvx_entity.h"

class QVX_KERNEL TDbDimension2 : public QvxEditable<TDbEntity> {
 public:
  ACRX_DECLARE_MEMBERS(TDbDimension2);
  enum Kind { kLinear = 0, kAngular = 1 };
  enum Flag {
    kTextAside = 1,  // the text is beyond the end
    kTextAbove = 2,  // the text is one row higher
  };

  TDbDimension2() { size = 10; }

  // Linear: start and end measured; width the distance of the line to the left.
  // Angular: start the corner, end a point on the first direction; angle the sweep; width the
  // radius. Both: size the distance on paper between the line and what is measured.
  bool IsAngular() const { return kind == kAngular; }
  double GetDimRadius() const { return width; }
  void SetDimRadius(double radius) { width = radius; }
  double GetDist2DimLine(double scale) const { return size * scale; }

  // Places the text: on the line; when it is wider than the measured length, beyond the end
  // (`aside`) or that many rows higher. `gap` is the space on both sides in quarters of the text's
  // height.
  void AdjustDim(bool aside, int rows, int gap);

  // One text: the label, or the measured value without one.
  std::vector<QvxTextPlace> TextPlaces() const override;
  void ChangeText(int index, const std::wstring& text) override;
  bool subWorldDraw(AcGiWorldDraw* draw) const override;

 private:
  std::wstring MeasuredText() const;
  std::wstring Text() const { return label.empty() ? MeasuredText() : label; }
  double TextHeight() const { return 250 * ScaleFactor(); }
  double TextWidth() const;
  double MeasuredLength() const;
  void DrawLinear(AcGiWorldDraw* draw) const;
  void DrawAngular(AcGiWorldDraw* draw) const;
  QvxTextPlace LinearText() const;
  QvxTextPlace AngularText() const;
  QvxTextPlace PlaceText(const AcGePoint3d& middle, const AcGePoint3d& beyond,
                         const AcGeVector3d& along) const;
};
