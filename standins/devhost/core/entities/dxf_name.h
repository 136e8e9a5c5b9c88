// The name under which an entity is written to a drawing file.
#pragma once

#include "dbmain.h"

namespace devhost {

const ACHAR* DxfNameOf(const AcDbEntity& entity);

}  // namespace devhost
