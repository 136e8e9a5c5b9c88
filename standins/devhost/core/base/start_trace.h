// The trace of a module's start (--trace-start): the calls between host and module, with
// milliseconds since the first kInitAppMsg. Recorded on the host's side of the calls. Until it is
// armed nothing is stored and a call costs one comparison. Main thread only.
#pragma once

#include <functional>
#include <string>
#include <vector>

namespace devhost {

struct StartStep {
  double milliseconds;  // since kInitAppMsg
  std::string name;
  std::string detail;  // of the first call, where consecutive calls of one name are one step
  int times = 1;
};

class StartTrace {
 public:
  using Microseconds = std::function<long long()>;  // a clock; the steady clock if empty

  explicit StartTrace(Microseconds clock = nullptr);

  void Arm() { m_state = State::Armed; }
  bool IsRunning() const { return m_state == State::Running; }

  // Before kInitAppMsg is sent; starts the trace if it is armed.
  void Begin(const std::string& module);
  void Step(const char* name, const std::string& detail = {});
  void MarkPaletteShown();  // the first call counts
  void MarkIdle();  // the program waits for input; ends the trace once the palette was shown

  bool IsPaletteShown() const { return m_shown >= 0; }
  const std::vector<StartStep>& Steps() const { return m_steps; }
  // {"module","palette_shown_ms","idle_ms","steps":[{"ms","took","step","detail","times"}]}. Times
  // that were not reached are null. "took" is the time to the next step.
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
