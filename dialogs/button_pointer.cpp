// See button_pointer.h.
#include "dialogs/button_pointer.h"

namespace qvx {

PointerStep StepOnMove(int& mouseOn, int isFlat, const PointerFacts& facts) {
  PointerStep step;
  if ((facts.leftDown && !mouseOn) || !isFlat) return step;
  if (!facts.hasCapture && facts.hasOwner) {
    mouseOn = 1;
    step.enter = step.invalidate = true;
    return step;
  }
  if (facts.inside) return step;
  if (mouseOn == 1) {
    mouseOn = 0;
    step.invalidate = true;
  }
  step.releaseCapture = !facts.leftDown;
  return step;
}

PointerStep StepOnFocusLost(int& mouseOn, int isFlat) {
  PointerStep step;
  if (!isFlat || mouseOn != 1) return step;
  mouseOn = 0;
  step.invalidate = true;
  return step;
}

PointerStep StepOnCaptureLost(int mouseOn) {
  PointerStep step;
  step.releaseCapture = step.invalidate = mouseOn == 1;
  return step;
}

}  // namespace qvx
