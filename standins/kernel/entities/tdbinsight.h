// Symbols of interior views: a circle with the number of a view on up to four sides. Emptying a
// number removes it, so that all after it move up by one index.
#pragma once

#include "kernel/entities/qvx_entity.h"

class QVX_KERNEL TDbInSight : public QvxEditable<TDbEntity> {
 public:
  ACRX_DECLARE_MEMBERS(TDbInSight);
  // start the middle; width the radius; cells the numbers: right, above, left, below, further ones
  // in a row below.
  std::vector<QvxTextPlace> TextPlaces() const override;
  void ChangeText(int index, const std::wstring& text) override;
  EditFunction GetEditFunction() const override;
  bool subWorldDraw(AcGiWorldDraw* draw) const override;
};
