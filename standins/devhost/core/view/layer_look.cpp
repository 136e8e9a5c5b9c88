// Styles of layers; see the header.
#include "devhost/core/view/layer_look.h"

#include "dbsymtb.h"
#include "devhost/core/base/text_case.h"

namespace devhost {

LayerStyles LayerStylesOf(AcDbDatabase& database) {
  LayerStyles looks;
  const auto* table = AcDbLayerTable::cast(database.layerTableId().object());
  for (AcDbObjectId id : table->records()) {
    const auto* layer = id.isErased() ? nullptr : AcDbLayerTableRecord::cast(id.object());
    if (!layer) continue;
    const std::wstring type = UpperCase(layer->linetype());
    looks[UpperCase(layer->getName())] = {layer->colorIndex(),
                                          !layer->isOff() && !layer->isFrozen(),
                                          type != L"CONTINUOUS" && !type.empty()};
  }
  return looks;
}

}  // namespace devhost
