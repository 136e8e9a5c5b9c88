// Selection sets and the pick-first set.
#pragma once

#include <vector>

#include "dbmain.h"

namespace devhost {

class Document;

// Highlights the objects that it adds and ends the highlight of those that it removes.
void SetPickFirst(Document& document, std::vector<AcDbObjectId> ids);

// Selection sets by name; a pointer is valid until acedSSFree.
std::vector<AcDbObjectId>* FindSet(const ads_name name);
void CreateSet(std::vector<AcDbObjectId> ids, ads_name name);
bool FreeSet(const ads_name name);

}  // namespace devhost
