// What a script expects of the program, checked against the journal, the variables and the shell
// state. An expectation waits for what is still on its way; one that isn't met says what came
// instead.
//
// Which entries count: expectations in a row look at the same stretch of the journal, which begins
// at the first acting step after the expectation before. Within it each match moves its own kind
// (sent, printed) forward, so two expectations never share one entry.
#pragma once

#include "devhost/core/base/journal.h"
#include "devhost/play/play_world.h"

namespace devhost {

class PlayExpectations {
 public:
  PlayExpectations(const Journal& journal, PlayWorld& world);

  // Before each step that acts.
  void StepBegins();

  // Gives the failure, or nothing.
  std::string Check(const Step& step);

  // How long an expectation waits for what is on its way.
  static constexpr std::chrono::milliseconds kPatience{5000};
  static constexpr std::chrono::milliseconds kPoll{20};

 private:
  std::string Sent(const std::string& text);
  std::string NothingSent();
  std::string Printed(const std::string& text);
  std::string Variable(const Step& step);
  std::string State(const Step& step);
  bool WaitUntilIdle();

  const Journal& m_journal;
  PlayWorld& m_world;
  bool m_expecting = false;  // an expectation was checked since the last acting step
  int m_sentFrom = 0;        // the last entry that doesn't count any more
  int m_printedFrom = 0;
};

}  // namespace devhost
