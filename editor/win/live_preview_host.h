// The selection preview's questions over the real host and kernel.
#pragma once

#include "editor/preview_host.h"

class LivePreviewHost : public qvx::PreviewHost {
 public:
  bool HasCurrentView() override;
  int CommandActive() override;
  std::optional<int> CurrentViewport() override;
  bool RunsAnyCommand() override;
  std::unique_ptr<qvx::SelectedObjects> Selected() override;
  int ViewportAt(POINT screen) override;
  bool IsOffInDrawing() override;
  unsigned Ticks() override;
  TEntitySet HitTest() override;
  TEntitySet MouseOn() override;
  void SetMouseOn(const TEntitySet& entity) override;
  void Highlight(const TEntitySet& entity, bool on) override;
  void LockForWrite() override;
  void Unlock() override;
  void TurnOffInDrawing() override;
  void PrintWithPrompt(const wchar_t* text) override;

 private:
  class AcApDocument* m_locked = nullptr;
};
