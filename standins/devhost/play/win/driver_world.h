// Implements PlayWorld: steps become real input, queries run on the main thread through UiPort.
// Used on the play driver's thread.
#pragma once

#include <atomic>

#include "devhost/play/play_world.h"
#include "devhost/play/ui_port.h"
#include "devhost/play/win/input_sender.h"

namespace devhost {

class DriverWorld : public PlayWorld {
 public:
  explicit DriverWorld(UiPort& port);

  std::string Perform(const Step& step) override;
  bool IsIdle() override;
  bool IsMenuOpen() override;
  bool IsPopupOpen() override;
  void WaitForTimers() override;
  std::string ShellState() override;
  bool Variable(const std::string& name, std::string* value) override;
  bool Setting(const std::string& name, std::string* value) override;
  std::vector<std::string> HighlightedHandles() override;
  std::string TypedText() override;
  std::string TipText() override;
  bool DrawnTexts(const std::string& handle, std::vector<std::string>* texts) override;
  std::string PointerAway(const Target& target) override;
  Milliseconds Now() override;
  void Pause(Milliseconds time) override;
  void Print(const std::string& line) override;

  // From any thread: ends pauses; steps fail from now on.
  void Stop() { m_stopped = true; }
  bool IsStopped() const { return m_stopped; }
  void BringToFront();
  void CloseMenus();  // an open menu would prevent the program from ending
  HWND Frame();

 private:
  void Settle(Milliseconds time);  // pauses, then waits until input was processed
  // Calls on the main thread and returns the result, or a default if the program ends.
  template <class Result>
  Result Ask(const std::function<Result()>& question);
  std::string RunOnMainThread(const std::function<std::string()>& work);

  std::string Point(const Target& target, POINT* point);
  std::string PointOnMainThread(const Target& target, POINT* point);
  std::string PerformMouse(const Step& step);
  void SendMouse(const Step& step, POINT at, POINT end);
  std::string PerformHost(const Step& step);
  std::string PerformDump(const Step& step);
  std::string TypeCommand(const std::string& text);
  std::string TakeShot(const std::string& path);

  UiPort& m_port;
  std::atomic<bool> m_stopped{false};
  InputSender m_input;
};

}  // namespace devhost
