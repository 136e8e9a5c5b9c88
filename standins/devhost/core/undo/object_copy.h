// Copies the data of an object to another one of its class, as undo restores it: the groups that
// the class writes, layer, linetype, colour, extended data and shared groups. Not copied: whether
// it is erased, sub-objects, and lists of other objects (reactors, extension dictionary).
#pragma once

class AcDbObject;

namespace devhost {

void CopyData(const AcDbObject& from, AcDbObject& to);

}  // namespace devhost
