#include "tests/fuzz/filter_fuzz_preview.h"

#include "kernel/globals.h"
#include "tests/fuzz/filter_fuzz_checks.h"

namespace filterfuzz {
namespace {

constexpr double kFirstHostWithPreview = 16.11;

TEntitySet Object(long id) {
  const ads_name name = {id, 0};
  return id ? TEntitySet(name) : TEntitySet();
}

}  // namespace

struct FuzzPreview::Selection : qvx::SelectedObjects {
  explicit Selection(FuzzPreview& host) : host(host) { ++host.m_liveSelections; }
  ~Selection() override { --host.m_liveSelections; }
  bool Includes(const TEntitySet& entity) override {
    return host.m_selected.count(entity.Name()[0]) != 0;
  }
  FuzzPreview& host;
};

std::optional<int> FuzzPreview::CurrentViewport() {
  if (m_input.Seldom()) return {};
  return 2;
}

std::unique_ptr<qvx::SelectedObjects> FuzzPreview::Selected() {
  if (m_input.Seldom()) return nullptr;
  m_readsSelection = true;
  return std::make_unique<Selection>(*this);
}

TEntitySet FuzzPreview::HitTest() {
  ++m_hitTests;
  m_ticks += m_duration;  // wraps like the system's clock
  ++m_samples;
  m_total += m_duration;
  return Object(m_under);
}

void FuzzPreview::Highlight(const TEntitySet& entity, bool on) {
  Require(!entity.IsEmpty(), "an object is highlighted");
  if (on) return Require(entity == Object(m_under), "the object under the pointer is highlighted");
  Require(entity == m_mouseOn, "the object that the pointer left is unhighlighted");
  Require(!m_readsSelection || !m_selected.count(entity.Name()[0]), "unless it is selected");
}

void FuzzPreview::TurnOffInDrawing() {
  Require(m_locks == 1, "the drawing is locked while its setting is written");
  ++m_turnOffs;
  m_isOff |= m_hasSettings;
}

void FuzzPreview::PrintWithPrompt(const wchar_t*) { ++m_prints; }

void FuzzPreview::Step(POINT pointer) {
  const int turnOffs = m_turnOffs, prints = m_prints;
  const bool wasOff = m_isOff || !g_bEnableSelectPreview || g_dHostVersion >= kFirstHostWithPreview;
  m_hitTests = 0;
  m_readsSelection = false;
  m_preview.Step(*this, pointer);
  Require(m_locks == 0 && m_liveSelections == 0, "locks and the host's sets are released");
  Require(m_hitTests <= (wasOff ? 0 : 1), "one hit test, and none while the preview is off");
  if (m_samples == 5) {
    Require((m_turnOffs > turnOffs) == (m_total / 5 > 60), "only a slow block turns it off");
    m_samples = 0, m_total = 0;
  } else {
    Require(m_turnOffs == turnOffs, "nothing is decided before the block is complete");
  }
  Require(m_prints - prints == m_turnOffs - turnOffs, "the turning off is reported");
  if (m_hitTests == 1)
    Require(m_mouseOn == Object(m_turnOffs > turnOffs ? 0 : m_under), "the hit is remembered");
}

void FuzzPreview::Change() {
  constexpr unsigned kDurations[] = {0, 1, 59, 60, 61, 300, 301, 305, 100000};
  m_under = static_cast<long>(m_input.Byte() % 4);
  m_duration = kDurations[m_input.Byte() % std::size(kDurations)];
  m_hasSettings = !m_input.Seldom();
  if (m_input.Seldom()) m_ticks = 0xFFFFFFF0;
  if (m_input.Flag()) m_isOff = false;  // the user turns it on again
  if (!m_selected.erase(m_under)) m_selected.insert(m_under);
}

void FuzzPreview::ActivateDrawing() {
  m_preview.ResetCounters();
  m_samples = 0, m_total = 0;
}

}  // namespace filterfuzz
