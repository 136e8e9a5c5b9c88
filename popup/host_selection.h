// The description of what a right click is about, read from the host: the implied selection, or the
// object under the pointer where selection preview is on. Needs the host's calls and no window.
// Called by ShowContextMenu.
#pragma once

#include "kernel/tpickentset.h"
#include "popup/object_match.h"

// What decides whether the object under the pointer counts as selected.
struct PreviewState {
  double hostVersion = 0;
  bool isEnabled = false;       // the user's setting
  int hostVariable = 0;         // SELECTIONPREVIEW; read by hosts that preview themselves
  bool isOffInDrawing = false;  // by the drawing's own setting
};
// Hosts from 16.11 on preview themselves and are asked; before that the drawing can turn it off.
bool IsPreviewAllowed(const PreviewState& state);
PreviewState ReadPreviewState();

// Fills the set with the implied selection; without one, and with preview on, with the object under
// the pointer, which is kept as the drawing's mouse-on object.
void ReadSelection(TPickEntSet& set);

// The set outlives the description: groups beside type and layer are read from its objects when a
// mask asks for them.
SelectionDescription DescribeSelection(const TPickEntSet& set);

// By the kernel's logical layers.
bool ResolveLayer(std::wstring_view key, std::wstring& layer);

// The block that a right click shows; -1 for none. With nothing selected a click shows no menu when
// `speedMenu` is 2 or more, unless it is forced.
int ChooseBlock(const TMenuSystem& system, const SelectionDescription& selection, int speedMenu,
                bool force);
