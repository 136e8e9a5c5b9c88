// Replaces objects when the module of their class is loaded or unloaded. Drawings hold objects of
// unknown classes as opaque entities. They become real objects when the class is registered, and
// opaque entities again before its module is unloaded. Handles are kept; object ids change.
#pragma once

class AcRxClass;

namespace devhost {

void BindOpaqueEntities();  // in all open drawings
void MakeEntitiesOpaque(const AcRxClass& cls);

}  // namespace devhost
