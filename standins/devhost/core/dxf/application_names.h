// The names of applications with extended data in a drawing. Other programs reject extended data
// whose application is not in the APPID table, so the writer registers all of them.
#pragma once

#include <string>
#include <vector>

#include "devhost/core/drawing/database_body.h"

namespace devhost {

// Each name once, ignoring case, in the order of the objects. Erased objects are skipped; groups
// that the host stores unread are included.
std::vector<std::wstring> ApplicationsInUse(const AcDbDatabase::Body& body);

// Whether stored groups have a table of that name.
bool HasTable(const std::vector<KeptGroup>& tables, const std::wstring& name);

// The names that have no APPID record in a table of stored groups.
std::vector<std::wstring> MissingNames(const std::vector<KeptGroup>& tables,
                                       const std::vector<std::wstring>& names);

}  // namespace devhost
