// Describes what a right click applies to, read from the host: the implied selection, or with
// selection preview on the object under the pointer. Uses host calls, no window.
#pragma once

#include "kernel/tpickentset.h"
#include "popup/object_match.h"

// Fills the set with the implied selection. If that is empty and preview is on, with the object
// under the pointer, which is also stored as the drawing's mouse-on object.
void ReadSelection(TPickEntSet& set);

// The set outlives the description: groups other than type and layer are read from its objects when
// a mask needs them.
SelectionDescription DescribeSelection(const TPickEntSet& set);

// LayerResolver with the kernel's logical layers.
bool ResolveLayer(std::wstring_view key, std::wstring& layer);

// Index of the block to show; -1 for none. With nothing selected and `speedMenu` 2 or more there is
// none, unless forced.
int ChooseBlock(const TMenuSystem& system, const SelectionDescription& selection, int speedMenu,
                bool force);
