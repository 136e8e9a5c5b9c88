// The object at a point inside block references.
#pragma once

#include <vector>

#include "dbmain.h"

namespace devhost {

class Document;

struct NestedHit {
  AcDbEntity* entity = nullptr;         // null: nothing is there
  AcGeMatrix3d toWorld;                 // from the space of the object
  std::vector<AcDbEntity*> references;  // around it, the innermost first
};

// Of the objects in the current space the nearest within reach of a pick; if it is a block
// reference, the nearest of the objects that it is drawn with. A reference whose own parts are all
// out of reach, such as one with a caption, is the hit itself.
NestedHit NestedEntityAt(Document& document, const AcGePoint3d& at);

// Sets ERRNO and returns RTERROR: the only way to distinguish a point without an object from Enter.
enum class PickError { kMissed = 7, kNullResponse = 52 };
int FailPick(PickError reason);

}  // namespace devhost
