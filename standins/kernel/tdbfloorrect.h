// The frame around the plan of one storey on a sheet that holds several.
#pragma once

#include "kernel/entities/qvx_entity.h"

class QVX_KERNEL TDbFloorRect
    : public QvxEditable<TDbEntity> {  // start, end the corners; label the storey
 public:
  ACRX_DECLARE_MEMBERS(TDbFloorRect);
  std::vector<QvxTextPlace> TextPlaces() const override;
  bool subWorldDraw(AcGiWorldDraw* draw) const override;
};
