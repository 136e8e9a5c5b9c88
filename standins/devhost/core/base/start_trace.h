// The trace of a module's start (--trace-start): every step that crosses the seam between host and
// module, with milliseconds from the first kInitAppMsg on. The host's side of the calls tells the
// steps; a module knows nothing of it. Nothing is kept, and a call costs a test, until it is armed.
// Main thread only.
#pragma once

#include <chrono>
#include <functional>
#include <string>
#include <vector>

namespace devhost {

struct StartStep {
  double milliseconds;  // since kInitAppMsg
  std::string name;
  std::string detail;  // of the first one, where several of a name in a row are one step
  int times = 1;
};

class StartTrace {
 public:
  using Microseconds = std::function<long long()>;  // a clock; the steady one where none is given

  explicit StartTrace(Microseconds clock = nullptr);

  void Arm() { m_state = State::Armed; }
  bool Runs() const { return m_state == State::Running; }

  void Begin(const std::string& module);  // kInitAppMsg is about to be sent; counts when armed
  void Step(const char* name, const std::string& detail = {});
  void PaletteShown();  // the first time counts
  void Quiet();         // the program waits for input; behind the palette that ends the trace

  bool Shown() const { return m_shown >= 0; }
  const std::vector<StartStep>& Steps() const { return m_steps; }
  // {"module","palette_shown_ms","idle_ms","steps":[{"ms","took","step","detail","times"}]}; what
  // was not reached is null. "took" is the time up to the next step.
  std::string Json() const;

 private:
  enum class State { Off, Armed, Running, Ended };
  double Now() const;

  Microseconds m_clock;
  State m_state = State::Off;
  long long m_from = 0;
  std::string m_module;
  std::vector<StartStep> m_steps;
  double m_shown = -1, m_idle = -1;
};

StartTrace& TheStartTrace();

}  // namespace devhost
