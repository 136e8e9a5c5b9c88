// The frame around the plan of one storey on a sheet that holds several.
#pragma once

#include "kernel/entities/qvx_entity.h"

class QVX_KERNEL TDbFloorRect : public QvxDbEntity {  // start, end the corners; label the storey
 public:
  ACRX_DECLARE_MEMBERS(TDbFloorRect);
  bool subWorldDraw(AcGiWorldDraw* draw) const override;
};
