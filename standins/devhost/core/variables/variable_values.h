// Values of variables as text.
#pragma once

#include <string>

#include "devhost/core/variables/variables.h"
#include "gepnt3d.h"

namespace devhost {

std::wstring PointText(const AcGePoint3d& p);
std::wstring VectorText(const AcGeVector3d& v);
std::wstring RealText(double value);

// Sets the value of a variable that is computed from the state of the host; false
// for stored variables.
bool ComputedValue(const std::wstring& name, const Document* document, std::wstring* value);

}  // namespace devhost
