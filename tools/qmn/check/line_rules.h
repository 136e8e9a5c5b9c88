// The rules of menu lines, by what they look at.
#pragma once

#include "tools/qmn/check/line_view.h"

// The arrows of one block. `lines` are all its lines in the order of the file.
void CheckArrows(const CheckContext& context, const std::vector<LineView>& lines);
void CheckLabel(const LineView& line);
void CheckConditions(const LineView& line);
void CheckCommand(const LineView& line);
void CheckIconName(const LineView& line);
