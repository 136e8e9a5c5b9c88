#include "editor/selection_preview.h"

#include "editor/preview_allowed.h"
#include "editor/preview_host.h"
#include "kernel/globals.h"

namespace qvx {
namespace {

constexpr unsigned kSamples = 5;    // one slow hit test alone turns nothing off
constexpr unsigned kLagLimit = 60;  // milliseconds on average

class WriteLock {
 public:
  explicit WriteLock(PreviewHost& host) : m_host(host) { m_host.LockForWrite(); }
  ~WriteLock() { m_host.Unlock(); }
  WriteLock(const WriteLock&) = delete;
  WriteLock& operator=(const WriteLock&) = delete;

 private:
  PreviewHost& m_host;
};

bool IsOff(PreviewHost& host) {
  return g_dHostVersion >= kFirstHostWithPreview || !g_bEnableSelectPreview ||
         host.IsOffInDrawing();
}

// Removes the highlight of the previous object, unless the selection needs it.
void LeaveMouseOn(PreviewHost& host, const TEntitySet& mouseOn, SelectedObjects* selected) {
  if (mouseOn.IsEmpty() || (selected && selected->Includes(mouseOn))) return;
  host.Highlight(mouseOn, false);
}

void TurnOff(PreviewHost& host) {
  const WriteLock lock(host);
  host.TurnOffInDrawing();
  host.PrintWithPrompt(
      L"<检测到光标移动滞后情况，关闭本图选择预览特性，此特性可在自定义中重新设定>\n");
}

}  // namespace

bool LagTest::Add(unsigned ticks) {
  ++m_samples;
  m_totalTicks += ticks;
  if (m_samples < kSamples) return false;
  const bool isSlow = m_totalTicks / m_samples > kLagLimit;
  Reset();
  return isSlow;
}

SelectionPreview& ThePreview() {
  static SelectionPreview preview;
  return preview;
}

void SelectionPreview::Step(PreviewHost& host, POINT pointer) {
  if (!host.HasCurrentView() || host.CommandActive() != 0) return;
  if (pointer.x == m_lastPointer.x && pointer.y == m_lastPointer.y) return;
  const std::optional<int> viewport = host.CurrentViewport();
  if (!viewport) return;
  m_lastPointer = pointer;
  std::unique_ptr<SelectedObjects> selected;
  if (!host.RunsAnyCommand()) {
    selected = host.Selected();
    if (!selected) return;
  }
  const bool isInViewport = host.ViewportAt(pointer) == *viewport;
  // Deliberate: the highlight stays. It belongs to the host's own preview, or goes at the next
  // redraw.
  if (IsOff(host)) return host.SetMouseOn({});
  FollowPointer(host, isInViewport ? TimedHitTest(host) : TEntitySet(), selected.get());
}

// Empty also when the preview turned itself off.
TEntitySet SelectionPreview::TimedHitTest(PreviewHost& host) {
  const unsigned start = host.Ticks();
  const TEntitySet hit = host.HitTest();
  if (!m_lag.Add(host.Ticks() - start)) return hit;
  TurnOff(host);
  return {};
}

void StepPreviewUntimed(PreviewHost& host) {
  if (host.RunsAnyCommand()) return;
  const WriteLock lock(host);
  const std::unique_ptr<SelectedObjects> selected = host.Selected();
  if (selected) FollowPointer(host, host.HitTest(), selected.get());
}

void FollowPointer(PreviewHost& host, const TEntitySet& hit, SelectedObjects* selected) {
  const TEntitySet mouseOn = host.MouseOn();
  if (!hit.IsEmpty() && mouseOn == hit) return;
  LeaveMouseOn(host, mouseOn, selected);
  if (!hit.IsEmpty()) host.Highlight(hit, true);
  host.SetMouseOn(hit);
}

}  // namespace qvx
