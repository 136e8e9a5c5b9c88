// Highlights the object under the pointer while no command runs and remembers it, so that a right
// click can act on it without a selection. Hosts from release 16.11 on do this themselves. In
// earlier ones the hit tests are timed: in a drawing where they are slow the preview turns itself
// off, or the pointer would lag.
#pragma once

#include "ground/plain_types.h"
#include "kernel/tentityset.h"

namespace qvx {

class PreviewHost;
class SelectedObjects;

// The mean duration of the hit tests, in blocks.
class LagTest {
 public:
  // One more hit test, in milliseconds. True when its block is complete and was too slow.
  bool Add(unsigned ticks);
  void Reset() { m_samples = m_totalTicks = 0; }

 private:
  unsigned m_samples = 0;
  unsigned m_totalTicks = 0;
};

class SelectionPreview {
 public:
  // One step, when the pointer has paused at a screen point.
  void Step(PreviewHost& host, POINT pointer);
  // For another drawing, which is not charged with the hit tests of this one.
  void ResetCounters() { m_lag.Reset(); }

 private:
  TEntitySet TimedHitTest(PreviewHost& host);

  POINT m_lastPointer{0, 0};  // of all drawings
  LagTest m_lag;
};

// One step without the lag test, inside one document lock: what a worker thread does. Nothing while
// a command runs.
void StepPreviewUntimed(PreviewHost& host);

SelectionPreview& ThePreview();  // the module's one

// The new object under the pointer, empty for none: highlights it and stores it as the mouse-on
// object. `selected` is null while a command runs. A selected object stays highlighted when the
// pointer leaves it.
void FollowPointer(PreviewHost& host, const TEntitySet& hit, SelectedObjects* selected);

}  // namespace qvx
