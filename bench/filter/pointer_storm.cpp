#include "bench/filter/pointer_storm.h"

#include <random>

#include "bench/filter/filter_hosts.h"
#include "editor/message_filter.h"
#include "editor/preview_host.h"
#include "editor/selection_preview.h"
#include "kernel/globals.h"

namespace {

constexpr long kTimerTime = 1000;  // microseconds

// The preview's timer as the context window has it.
class StormHost : public ConstantHost {
 public:
  using ConstantHost::ConstantHost;

  long now = 0;
  long due = -1;  // -1: not set

  void RestartPreviewTimer() override { due = now + kTimerTime; }
};

class EmptyDrawing : public qvx::PreviewHost {
 public:
  int hitTests = 0;

  bool HasCurrentView() override { return true; }
  int CommandActive() override { return 0; }
  std::optional<int> CurrentViewport() override { return 2; }
  bool RunsAnyCommand() override { return false; }
  std::unique_ptr<qvx::SelectedObjects> Selected() override {
    struct None : qvx::SelectedObjects {
      bool Includes(const TEntitySet&) override { return false; }
    };
    return std::make_unique<None>();
  }
  int ViewportAt(POINT) override { return 2; }
  bool IsOffInDrawing() override { return false; }
  unsigned Ticks() override { return 0; }
  TEntitySet HitTest() override {
    ++hitTests;
    return {};
  }
  TEntitySet MouseOn() override { return {}; }
  void SetMouseOn(const TEntitySet&) override {}
  void Highlight(const TEntitySet&, bool) override {}
  void LockForWrite() override {}
  void Unlock() override {}
  void TurnOffInDrawing() override {}
  void PrintWithPrompt(const wchar_t*) override {}
};

}  // namespace

StormResult RunPointerStorm(int moves, int pauseEvery) {
  g_dHostVersion = 16.1;
  g_bEnableSelectPreview = 1;
  editortest::Diary diary;
  diary.isOn = false;
  StormHost host(diary);
  editortest::EditDouble edit(diary);
  qvx::MessageFilter filter(host, edit);
  qvx::SelectionPreview preview;
  EmptyDrawing drawing;
  std::mt19937 random(1);
  StormResult result;
  for (int i = 1; i <= moves; ++i) {
    const POINT at{static_cast<LONG>(i % 1000), static_cast<LONG>(i / 1000)};
    filter.Filter({editortest::kView, WM_MOUSEMOVE, 0, 0, 0, at});
    ++result.moves;
    const bool isPause = i == moves || (pauseEvery && i % pauseEvery == 0);
    host.now += isPause ? 1000 + static_cast<long>(random() % 49000)
                        : 10 + static_cast<long>(random() % 490);
    result.pauses += isPause;
    if (host.due < 0 || host.due > host.now) continue;  // the next move is there first
    host.due = -1;
    ++result.steps;
    preview.Step(drawing, at);
  }
  result.hitTests = drawing.hitTests;
  return result;
}
