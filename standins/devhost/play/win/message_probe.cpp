// Measuring message latency; see the header.
#include "devhost/play/win/message_probe.h"

namespace devhost {
namespace {

using namespace std::chrono_literals;

constexpr UINT kProbe = WM_APP + 0x52;
constexpr auto kSendInterval = 20ms;
constexpr auto kPollInterval = 2ms;

}  // namespace

std::atomic<int> MessageProbe::s_answered{0};
std::atomic<MessageProbe::Clock::rep> MessageProbe::s_when{0};

MessageProbe::MessageProbe(OnMainThread onMainThread, std::function<int()> step)
    : m_onMainThread(std::move(onMainThread)), m_step(std::move(step)) {
  m_onMainThread([this] {
    m_window = CreateWindowExW(0, L"STATIC", nullptr, 0, 0, 0, 0, 0, HWND_MESSAGE, nullptr,
                               GetModuleHandleW(nullptr), nullptr);
    SetWindowLongPtrW(m_window, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(&MessageProbe::Answer));
  });
  if (m_window) m_thread = std::thread([this] { Measure(); });
}

LongestWait MessageProbe::Stop() {
  m_stop = true;
  if (m_thread.joinable()) m_thread.join();
  if (m_window) m_onMainThread([this] { DestroyWindow(m_window); });
  m_window = nullptr;
  return m_longest;
}

LRESULT CALLBACK MessageProbe::Answer(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
  if (message != kProbe) return DefWindowProcW(window, message, wParam, lParam);
  s_when = Clock::now().time_since_epoch().count();
  s_answered = static_cast<int>(wParam);
  return 0;
}

void MessageProbe::Measure() {
  // Numbers continue from an earlier play of this process.
  for (int number = s_answered + 1; !m_stop; ++number) {
    MeasureOnce(number);
    std::this_thread::sleep_for(kSendInterval);
  }
}

void MessageProbe::MeasureOnce(int number) {
  const int step = m_step();
  const Clock::time_point sent = Clock::now();
  if (!SendNotifyMessageW(m_window, kProbe, static_cast<WPARAM>(number), 0)) return;
  while (s_answered != number && !m_stop) std::this_thread::sleep_for(kPollInterval);
  const Clock::time_point answered =
      s_answered == number ? Clock::time_point(Clock::duration(s_when.load())) : Clock::now();
  m_longest.Note(std::chrono::duration_cast<std::chrono::microseconds>(answered - sent), step);
}

}  // namespace devhost
