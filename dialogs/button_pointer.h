// The mouse rules of a hover-aware button as a state machine without a window: what happened goes
// in, what the window has to do comes out. CButtonST carries the answers out; the tests walk the
// rules without a screen. Capture, tips and drawing are the window's.
#pragma once

namespace qvx {

struct PointerFacts {
  bool leftDown;    // the left button was down when the move was sent
  bool hasCapture;  // this button holds the mouse
  bool hasOwner;    // there is an owner window, or a parent in its place
  bool inside;      // the point lies in the client rectangle
};

// To be carried out in this order: enter, invalidate, releaseCapture.
struct PointerStep {
  bool enter = false;  // run the hover operation, whose base takes the capture
  bool invalidate = false;
  bool releaseCapture = false;

  bool operator==(const PointerStep&) const = default;
};

// `mouseOn` is the button's flag and is changed here. A press that began elsewhere and is dragged
// over the button does not light it; a press carried off the button keeps the capture.
PointerStep StepOnMove(int& mouseOn, int isFlat, const PointerFacts& facts);

PointerStep StepOnFocusLost(int& mouseOn, int isFlat);

// The flag stays as it is: a button that lost the mouse while lit stays lit until the pointer moves
// over it again or the focus goes.
PointerStep StepOnCaptureLost(int mouseOn);

}  // namespace qvx
