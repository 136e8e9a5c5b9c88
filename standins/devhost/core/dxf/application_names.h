// The names of applications that have extended data in a drawing. A reader of other make refuses
// extended data whose application stands in no APPID table, so the writer registers them all.
#pragma once

#include <string>
#include <vector>

#include "devhost/core/drawing/database_body.h"

namespace devhost {

// Each name once, whatever its case, in the order in which the objects came; those of erased
// objects are left out. Parts of the file that are kept as they came count too.
std::vector<std::wstring> ApplicationsInUse(const AcDbDatabase::Body& body);

// Those of them that a table of kept groups does not name yet.
std::vector<std::wstring> Unregistered(const std::vector<KeptGroup>& tables,
                                       const std::vector<std::wstring>& names);

}  // namespace devhost
