// The host of the selection preview in the message filter's fuzzer, and the preview's invariants.
#pragma once

#include <set>

#include "editor/preview_host.h"
#include "editor/selection_preview.h"
#include "tests/fuzz/filter_fuzz_host.h"

namespace filterfuzz {

class FuzzPreview : private qvx::PreviewHost {
 public:
  explicit FuzzPreview(Input& input) : m_input(input) {}

  void Step(POINT pointer);  // checks the invariants of one step
  void Change();             // what is under the pointer, what is selected, what the drawing keeps
  void ActivateDrawing();    // the hit tests so far no longer count

  int TurnOffs() const { return m_turnOffs; }

 private:
  struct Selection;

  bool HasCurrentView() override { return !m_input.Seldom(); }
  int CommandActive() override { return m_input.Seldom(); }
  std::optional<int> CurrentViewport() override;
  bool RunsAnyCommand() override { return m_input.Seldom(); }
  std::unique_ptr<qvx::SelectedObjects> Selected() override;
  int ViewportAt(POINT) override { return m_input.Seldom() ? 3 : 2; }
  bool IsOffInDrawing() override { return m_isOff; }
  unsigned Ticks() override { return m_ticks; }
  TEntitySet HitTest() override;
  TEntitySet MouseOn() override { return m_mouseOn; }
  void SetMouseOn(const TEntitySet& entity) override { m_mouseOn = entity; }
  void Highlight(const TEntitySet& entity, bool on) override;
  void LockForWrite() override { ++m_locks; }
  void Unlock() override { --m_locks; }
  void TurnOffInDrawing() override;
  void PrintWithPrompt(const wchar_t*) override;

  Input& m_input;
  qvx::SelectionPreview m_preview;
  std::set<long> m_selected;
  long m_under = 0;
  TEntitySet m_mouseOn;
  bool m_isOff = false, m_hasSettings = true;
  unsigned m_ticks = 0, m_duration = 0;
  int m_locks = 0, m_liveSelections = 0, m_hitTests = 0, m_turnOffs = 0, m_prints = 0;
  bool m_readsSelection = false;
  // The block of the lag test, kept beside the preview's own.
  int m_samples = 0;
  std::uint64_t m_total = 0;
};

}  // namespace filterfuzz
