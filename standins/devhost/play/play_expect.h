// Checks the expectations of a script against journal, variables, settings, highlighted objects,
// texts of objects, pointer, typed text, tool tip and shell state. An expectation waits for events
// that are still to come; a failure names the actual value.
//
// Consecutive expectations examine the journal from the first acting step after the previous group.
// Each match advances its own kind (sent, printed, help), so two expectations never match one
// entry.
#pragma once

#include "devhost/core/base/journal.h"
#include "devhost/play/play_world.h"

namespace devhost {

class PlayExpectations {
 public:
  PlayExpectations(const Journal& journal, PlayWorld& world);

  // Call before each acting step.
  void BeginStep();

  // Returns the failure, or nothing.
  std::string Check(const Step& step);

  // How long an expectation waits, and how often it checks.
  static constexpr std::chrono::milliseconds kTimeout{5000};
  static constexpr std::chrono::milliseconds kPollInterval{20};

 private:
  std::string Sent(const std::string& text);
  std::string NothingSent();
  std::string Printed(const std::string& text);
  std::string Help(const Step& step);
  std::string Value(const Step& step);
  std::string Highlighted(const Step& step);
  std::string Pointer(const Step& step);
  std::string Typed(const std::string& text);
  std::string Tip(const std::string& text);
  std::string Text(const Step& step);
  std::string State(const Step& step);
  bool WaitUntilIdle();

  const Journal& m_journal;
  PlayWorld& m_world;
  bool m_expecting = false;  // an expectation was checked after the last acting step
  int m_sentFrom = 0;        // number of the last entry that is not examined
  int m_printedFrom = 0;
  int m_helpFrom = 0;
};

}  // namespace devhost
