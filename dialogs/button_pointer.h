// Mouse rules of a hover-aware button as a state machine without a window. Input: the
// facts of a message; output: the steps that CButtonST carries out. Capture, tips and
// drawing are the window's.
#pragma once

namespace qvx {

struct PointerFacts {
  bool leftDown;    // state of the left button when the move was sent
  bool hasCapture;  // this button has the mouse capture
  bool hasOwner;    // an owner window exists, or a parent if there is none
  bool inside;      // the point is in the client rectangle
};

// Carried out in this order: enter, invalidate, releaseCapture.
struct PointerStep {
  bool enter = false;  // run OnMouseEnter, whose base takes the capture
  bool invalidate = false;
  bool releaseCapture = false;

  bool operator==(const PointerStep&) const = default;
};

// Changes `mouseOn`, the button's flag. A press that began elsewhere and is dragged over the button
// does not light it; a press dragged off the button keeps the capture.
PointerStep StepOnMove(int& mouseOn, int isFlat, const PointerFacts& facts);

PointerStep StepOnFocusLost(int& mouseOn, int isFlat);

// Leaves the flag unchanged: a button that loses the capture while lit stays lit until the pointer
// moves over it again or it loses the focus.
PointerStep StepOnCaptureLost(int mouseOn);

}  // namespace qvx
