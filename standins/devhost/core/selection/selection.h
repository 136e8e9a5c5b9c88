// Selection sets and the pick-first set.
#pragma once

#include <vector>

#include "dbmain.h"

namespace devhost {

class Document;

void SetPickFirst(Document& document, std::vector<AcDbObjectId> ids);

// Selection sets by name; the vector lives until acedSSFree.
std::vector<AcDbObjectId>* SetOf(const ads_name name);
void NewSet(std::vector<AcDbObjectId> ids, ads_name name);
bool ForgetSet(const ads_name name);

}  // namespace devhost
