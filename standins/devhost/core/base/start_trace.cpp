// Recording and writing the trace; see the header.
#include "devhost/core/base/start_trace.h"

#include <chrono>
#include <cmath>

#include "devhost/core/base/json.h"

namespace devhost {
namespace {

long long SteadyMicroseconds() {
  return std::chrono::duration_cast<std::chrono::microseconds>(
             std::chrono::steady_clock::now().time_since_epoch())
      .count();
}

double Rounded(double milliseconds) { return std::round(milliseconds * 1000) / 1000; }

Json TimeOrNull(double milliseconds) {
  return milliseconds < 0 ? Json(nullptr) : Json(Rounded(milliseconds));
}

}  // namespace

StartTrace::StartTrace(Microseconds clock) : m_clock(clock ? clock : SteadyMicroseconds) {}

double StartTrace::Now() const { return static_cast<double>(m_clock() - m_from) / 1000; }

void StartTrace::Begin(const std::string& module) {
  if (m_state == State::Armed) {
    m_state = State::Running;
    m_from = m_clock();
    m_module = module;
  }
  if (IsRunning()) m_steps.push_back({Now(), "kInitAppMsg", module, 1});
}

void StartTrace::Step(const char* name, const std::string& detail) {
  if (!IsRunning()) return;
  if (!m_steps.empty() && m_steps.back().name == name) {
    ++m_steps.back().times;
    return;
  }
  m_steps.push_back({Now(), name, detail, 1});
}

void StartTrace::MarkPaletteShown() {
  if (!IsRunning() || IsPaletteShown()) return;
  m_shown = Now();
  Step("palette shown");
}

void StartTrace::MarkIdle() {
  if (!IsRunning()) return;
  Step("idle");
  if (!IsPaletteShown()) return;
  m_idle = m_steps.back().milliseconds;
  m_state = State::Ended;
}

std::string StartTrace::Json() const {
  devhost::Json steps = devhost::Json::array();
  for (std::size_t i = 0; i < m_steps.size(); ++i) {
    const StartStep& step = m_steps[i];
    const double end = i + 1 < m_steps.size() ? m_steps[i + 1].milliseconds : step.milliseconds;
    devhost::Json out = {{"ms", Rounded(step.milliseconds)},
                         {"took", Rounded(end - step.milliseconds)},
                         {"step", step.name}};
    if (!step.detail.empty()) out["detail"] = step.detail;
    if (step.times > 1) out["times"] = step.times;
    steps.push_back(std::move(out));
  }
  const devhost::Json trace = {{"module", m_module},
                               {"palette_shown_ms", TimeOrNull(m_shown)},
                               {"idle_ms", TimeOrNull(m_idle)},
                               {"steps", steps}};
  return JsonText(trace, 1);
}

StartTrace& TheStartTrace() {
  static StartTrace trace;
  return trace;
}

}  // namespace devhost
