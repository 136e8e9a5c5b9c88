// The running program as the play runner sees it: steps become real input, questions go to the main
// thread through the UiPort. Lives on the play driver's thread.
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
  void LetTimersFire() override;
  std::string ShellState() override;
  bool Variable(const std::string& name, std::string* value) override;
  Milliseconds Now() override;
  void Pause(Milliseconds time) override;
  void Print(const std::string& line) override;

  // From any thread: pauses end at once and steps fail from now on.
  void Stop() { m_stopped = true; }
  bool IsStopped() const { return m_stopped; }
  void BringToFront();
  void CloseMenus();  // a menu that is up would keep the program from ending
  HWND Frame();

 private:
  void Settle(Milliseconds time);  // a pause, and then until the input has been taken
  // Runs on the main thread and gives what it gives, or a default when the program is going down.
  template <class Result>
  Result Ask(const std::function<Result()>& question);
  std::string Operate(const std::function<std::string()>& work);

  std::string Point(const Target& target, POINT* point);
  std::string PointOnMainThread(const Target& target, POINT* point);
  std::string PerformMouse(const Step& step);
  std::string PerformHost(const Step& step);
  std::string PerformDump(const Step& step);
  std::string TypeCommand(const std::string& text);
  std::string TakeShot(const std::string& path);

  UiPort& m_port;
  std::atomic<bool> m_stopped{false};
  InputSender m_input;
};

}  // namespace devhost
