// The drawing's objects as the message filter needs them, by host and kernel calls without a
// window.
#pragma once

#include <memory>

#include "editor/control_toggle.h"
#include "gepnt3d.h"
#include "kernel/tpickentset.h"

namespace qvx {

// Each fills the set and returns the number of objects; -1 when the host refused. `types`: wild
// cards, null for every type. Points are in the user's coordinate system.
int SelectAtPoint(const AcGePoint3d& at, const wchar_t* types, TPickEntSet& set);
int SelectAlongFence(const AcGePoint3d& from, const AcGePoint3d& to, const wchar_t* types,
                     TPickEntSet& set);
int SelectImpliedObjects(const wchar_t* types, TPickEntSet& set);

// Of the first object of the set.
bool IsFloorRectangle(const TPickEntSet& set);
bool IsEditableObject(const TPickEntSet& set);

std::unique_ptr<ToggleObjects> OpenToggleObjects(ToggleSource source);

}  // namespace qvx
