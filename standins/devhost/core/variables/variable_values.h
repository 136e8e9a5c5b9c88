// Values of variables as the table stores them: text, numbers in decimal.
#pragma once

#include <string>

#include "devhost/core/variables/variables.h"
#include "gepnt3d.h"

namespace devhost {

std::wstring PointText(const AcGePoint3d& p);
std::wstring RealText(double value);

// Variables whose value is the state itself; false for the stored ones.
bool Computed(const std::wstring& name, const Document* document, std::wstring* value);

}  // namespace devhost
