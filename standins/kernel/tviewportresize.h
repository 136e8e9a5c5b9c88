// Dragging the border between tiled viewports of model space. A press near a border begins, moves
// show where it would come to lie, the release sends the command C:TDragVp, which gives all
// viewports at the border their new size in the context of the drawing; Escape gives up.
//
// Points are client pixels of the current view. True: the message is taken and must not reach the
// host. Nothing is taken while the view has one viewport.
#pragma once

#include "atltypes.h"
#include "kernel/kernel_export.h"

class QVX_KERNEL TViewportResize {
 public:
  static bool OnMouseMove(UINT flags, CPoint point);  // flags: MK_ values
  static bool OnLButtonDown(UINT flags, CPoint point);
  static bool OnLButtonUp(UINT flags, CPoint point);
  static void OnEscape();

  // Carries out the drag that ended last, once. Nothing happens without one, nor when the viewports
  // have changed since.
  static void ApplyChange();
};
