// What happens to the objects of a class when the module that brings it comes or goes. A drawing
// that was read without the module holds them as opaque entities; they become real when the class
// is made known, and opaque again before its code goes. Handles stay; ids of the objects don't.
#pragma once

class AcRxClass;

namespace devhost {

void BindOpaqueEntities();  // in all open drawings
void MakeEntitiesOpaque(const AcRxClass& cls);

}  // namespace devhost
