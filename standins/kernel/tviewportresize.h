// Dragging the border between tiled viewports of model space. A press near a border begins the
// drag, moves show the new position, the release sends the command C:TDragVp, which resizes the
// viewports in document context; Escape cancels.
//
// Points are client pixels of the current view. True: the message is consumed and must not reach
// the host. With one viewport nothing is consumed.
#pragma once

#include "atltypes.h"
#include "kernel/kernel_export.h"

class QVX_KERNEL TViewportResize {
 public:
  static bool OnMouseMove(UINT flags, CPoint point);  // flags: MK_ values
  static bool OnLButtonDown(UINT flags, CPoint point);
  static bool OnLButtonUp(UINT flags, CPoint point);
  static void OnEscape();

  // Applies the last completed drag, once. No effect without one, or when the viewports have
  // changed since.
  static void ApplyChange();
};
