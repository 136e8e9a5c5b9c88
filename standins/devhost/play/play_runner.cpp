// Playing the steps; see the header.
#include "devhost/play/play_runner.h"

namespace devhost {
namespace {

// `wait idle`, `wait menu` and `wait popup` fail before the watchdog ends the program, with a
// better message.
constexpr std::chrono::milliseconds kReadyTimeout{20000};

}  // namespace

PlayRunner::PlayRunner(std::string file, std::vector<Step> steps, const Journal& journal,
                       PlayWorld& world)
    : m_file(std::move(file)),
      m_steps(std::move(steps)),
      m_world(world),
      m_expectations(journal, world) {}

std::string PlayRunner::Place(int stepNumber) const {
  if (stepNumber < 0 || stepNumber >= static_cast<int>(m_steps.size())) return m_file;
  const Step& step = m_steps[static_cast<std::size_t>(stepNumber)];
  return m_file + ":" + std::to_string(step.line) + ": " + step.source;
}

int PlayRunner::Line(int stepNumber) const {
  if (stepNumber < 0 || stepNumber >= static_cast<int>(m_steps.size())) return 0;
  return m_steps[static_cast<std::size_t>(stepNumber)].line;
}

std::chrono::milliseconds PlayRunner::PlannedTime(int stepNumber) const {
  if (stepNumber < 0 || stepNumber >= static_cast<int>(m_steps.size())) return {};
  const Step& step = m_steps[static_cast<std::size_t>(stepNumber)];
  const bool waits = step.kind == StepKind::Wait || step.kind == StepKind::Hold;
  return std::chrono::milliseconds(waits ? step.number : 0);
}

int PlayRunner::Play() {
  for (m_step = 0; m_step < static_cast<int>(m_steps.size()); ++m_step) {
    const Step& step = m_steps[static_cast<std::size_t>(m_step)];
    if (step.kind == StepKind::Quit || step.kind == StepKind::Restart) return 0;
    const std::string failure = PlayStep(step);
    if (failure.empty()) continue;
    m_world.Print(Place(m_step) + "\n  " + failure);
    return 1;
  }
  return 0;
}

bool PlayRunner::EndedInRestart() const {
  const int step = m_step;
  return step < static_cast<int>(m_steps.size()) &&
         m_steps[static_cast<std::size_t>(step)].kind == StepKind::Restart;
}

std::string PlayRunner::PlayStep(const Step& step) {
  if (IsExpectation(step.kind)) return m_expectations.Check(step);
  switch (step.kind) {
    case StepKind::Wait:
      m_world.Pause(std::chrono::milliseconds(step.number));
      return {};
    case StepKind::WaitIdle:
      return WaitIdle();
    case StepKind::WaitMenu:
      return WaitUntil("a menu", &PlayRunner::IsMenuOpen);
    case StepKind::WaitPopup:
      return WaitUntil("a pop-up", &PlayRunner::IsPopupOpen);
    case StepKind::DumpShell:
    case StepKind::DumpWindows:
    case StepKind::DumpDatabase:
    case StepKind::Shot:
      return m_world.Perform(step);
    default:
      m_expectations.BeginStep();
      return m_world.Perform(step);
  }
}

std::string PlayRunner::WaitUntil(const char* what, bool (PlayRunner::*ready)()) {
  const auto end = m_world.Now() + kReadyTimeout;
  while (!(this->*ready)()) {
    if (m_world.Now() >= end)
      return std::string("waited ") + std::to_string(kReadyTimeout.count() / 1000) +
             " s in vain for " + what;
    m_world.Pause(PlayExpectations::kPollInterval);
  }
  return {};
}

// Pending short timers of the program must fire first: the menu is shown at the start by one, and a
// pressed row is sent by one.
std::string PlayRunner::WaitIdle() {
  constexpr char kWhat[] = "the program to be idle";
  std::string problem = WaitUntil(kWhat, &PlayRunner::IsIdle);
  if (!problem.empty()) return problem;
  m_world.WaitForTimers();
  return WaitUntil(kWhat, &PlayRunner::IsIdle);
}

}  // namespace devhost
