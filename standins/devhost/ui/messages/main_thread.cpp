// A message-only window that runs functions; see the header.
#include "devhost/ui/messages/main_thread.h"

namespace devhost {
namespace {

constexpr UINT kRun = WM_APP + 0x51;
constexpr wchar_t kClass[] = L"DevHostMainThread";

}  // namespace

MainThread::MainThread() : m_id(::GetCurrentThreadId()) {
  WNDCLASSW windowClass{};
  windowClass.lpfnWndProc = &MainThread::OnMessage;
  windowClass.hInstance = ::GetModuleHandleW(nullptr);
  windowClass.lpszClassName = kClass;
  ::RegisterClassW(&windowClass);
  m_window = ::CreateWindowExW(0, kClass, nullptr, 0, 0, 0, 0, 0, HWND_MESSAGE, nullptr,
                               windowClass.hInstance, nullptr);
}

MainThread::~MainThread() {
  ::DestroyWindow(m_window);
  ::UnregisterClassW(kClass, ::GetModuleHandleW(nullptr));
}

LRESULT CALLBACK MainThread::OnMessage(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
  if (message != kRun) return ::DefWindowProcW(window, message, wParam, lParam);
  const auto* self = reinterpret_cast<const MainThread*>(wParam);
  if (self->m_rejecting) return 0;
  (*reinterpret_cast<const std::function<void()>*>(lParam))();
  // Sent messages do not wake the pump; the work may have created idle work.
  ::PostMessageW(window, WM_NULL, 0, 0);
  return kRun;
}

bool MainThread::Run(const std::function<void()>& work) {
  return ::SendMessageW(m_window, kRun, reinterpret_cast<WPARAM>(this),
                        reinterpret_cast<LPARAM>(&work)) == kRun;
}

}  // namespace devhost
