// The text of TEXT and MTEXT objects of the host, where the host draws it.
#pragma once

#include "kernel/text_place.h"

bool DrawnTextOf(const AcDbEntity& entity, QvxTextPlace& place);  // false: another class
void ChangeDrawnText(AcDbEntity& entity, const std::wstring& text);
