// The play driver's interface to the windows; see the header. Host operations are in host_actions.
#include "devhost/ui/port/ui_port_impl.h"

#include "devhost/ui/bars/pane_place.h"
#include "devhost/ui/frame/host_actions.h"
#include "devhost/ui/frame/host_ui_impl.h"
#include "devhost/ui/frame/main_frame.h"
#include "devhost/ui/messages/message_pump.h"
#include "devhost/ui/port/character_place.h"
#include "devhost/ui/port/live_menus.h"
#include "devhost/ui/port/window_tree.h"
#include "devhost/ui/view/drawing_child.h"

namespace devhost {
namespace {

DrawingView* View() {
  DrawingChild* child = TheHostUi().ActiveChild();
  return child ? &child->View() : nullptr;
}

bool OnScreen(std::optional<POINT> pixel, POINT* out) {
  if (!pixel) return false;
  *out = *pixel;
  return ::ClientToScreen(View()->m_hWnd, out) != FALSE;
}

bool Waits(UINT kinds) { return HIWORD(::GetQueueStatus(kinds)) & kinds; }

// Looked up by name: the host is not linked to the kernel module.
template <class Function>
Function KernelFunction(const char* name) {
  const HMODULE kernel = ::GetModuleHandleW(L"qvx_kernal.arx");
  return kernel
             ? reinterpret_cast<Function>(reinterpret_cast<void*>(::GetProcAddress(kernel, name)))
             : nullptr;
}

}  // namespace

UiPortImpl::UiPortImpl() : m_ready(::CreateEventW(nullptr, TRUE, FALSE, nullptr)) {
  ThePump().SetIdleCallback([this] { ::SetEvent(m_ready); });
}

UiPortImpl::~UiPortImpl() {
  ThePump().SetIdleCallback(nullptr);
  ::CloseHandle(m_ready);
}

bool UiPortImpl::OnMainThread(const std::function<void()>& work) {
  ::WaitForSingleObject(m_ready, INFINITE);
  return m_thread.Run(work);
}

void UiPortImpl::RejectCalls() {
  m_thread.RejectCalls();
  ::SetEvent(m_ready);
}

bool UiPortImpl::IsIdle() {
  return ThePump().IsIdle() && !TheHostUi().HasPendingInput() &&
         !Waits(QS_INPUT | QS_POSTMESSAGE | QS_PAINT);
}

bool UiPortImpl::IsMenuOpen() {
  GUITHREADINFO info{};
  info.cbSize = sizeof info;
  ::GetGUIThreadInfo(m_thread.Id(), &info);
  return (info.flags & (GUI_INMENUMODE | GUI_POPUPMENUMODE)) != 0;
}

bool UiPortImpl::IsPopupOpen() { return IsPopupMenuOpen(m_thread.Id()); }

HWND UiPortImpl::Frame() { return TheFrame() ? TheFrame()->m_hWnd : nullptr; }

HWND UiPortImpl::CommandLine() {
  return TheFrame() ? TheFrame()->Commands().EditWindow() : nullptr;
}

HWND UiPortImpl::ActiveView() { return View() ? View()->m_hWnd : nullptr; }

bool UiPortImpl::WorldToScreen(double x, double y, POINT* out) {
  return View() && OnScreen(View()->Model().PixelOf(x, y), out);
}

bool UiPortImpl::ViewToScreen(int x, int y, POINT* out) {
  return View() && OnScreen(POINT{x, y}, out);
}

bool UiPortImpl::EntityToScreen(const std::string& handle, POINT* out) {
  return View() && OnScreen(View()->Model().PixelOnEntity(handle), out);
}

bool UiPortImpl::ButtonToScreen(const std::wstring& label, POINT* out) {
  const HWND button = FindButton(m_thread.Id(), label);
  RECT r{};
  if (!button || !::GetWindowRect(button, &r)) return false;
  *out = {(r.left + r.right) / 2, (r.top + r.bottom) / 2};
  return true;
}

std::string UiPortImpl::CharacterToScreen(int position, POINT* out) {
  return FindCharacterPoint(m_thread.Id(), position, out);
}

std::string UiPortImpl::PaneToScreen(const std::string& name, POINT* out) {
  return FindPanePoint(name, out);
}

bool UiPortImpl::OpenDrawing(const std::wstring& path) { return OpenDrawingFile(path); }
void UiPortImpl::NewDrawing() { MakeNewDrawing(); }
bool UiPortImpl::ActivateDrawing(const std::wstring& name) { return ActivateDrawingNamed(name); }
void UiPortImpl::CloseDrawing() { CloseActiveDrawing(); }

bool UiPortImpl::SelectEntities(const std::vector<std::string>& handles) {
  return SelectByHandles(handles);
}

bool UiPortImpl::SetVariable(const std::wstring& name, const std::wstring& value) {
  return SetVariableText(name, value);
}

bool UiPortImpl::GetVariable(const std::wstring& name, std::wstring* value) {
  return GetVariableText(name, value);
}

bool UiPortImpl::SetSetting(const std::wstring& name, const std::wstring& value) {
  using SetFn = int (*)(const wchar_t*, const wchar_t*);
  const auto set = KernelFunction<SetFn>("QvxSetSetting");
  return set && set(name.c_str(), value.c_str()) != 0;
}

bool UiPortImpl::GetSetting(const std::wstring& name, std::wstring* value) {
  using GetFn = int (*)(const wchar_t*, wchar_t*, int);
  const auto get = KernelFunction<GetFn>("QvxGetSetting");
  wchar_t text[1024] = L"";
  if (!get || get(name.c_str(), text, 1024) == 0) return false;
  *value = text;
  return true;
}

std::vector<std::string> UiPortImpl::HighlightedHandles() { return devhost::HighlightedHandles(); }

bool UiPortImpl::DrawnTexts(const std::string& handle, std::vector<std::wstring>* texts) {
  return View() && View()->Model().DrawnTexts(handle, texts);
}

std::wstring UiPortImpl::TypedText() {
  return TheFrame() ? TheFrame()->Commands().InputText() : std::wstring();
}

std::string UiPortImpl::DescribeShell() {
  using DescribeFn = const char* (*)();
  const HMODULE shell = ::GetModuleHandleW(L"qvx_initstart.arx");
  const auto describe = shell ? reinterpret_cast<DescribeFn>(reinterpret_cast<void*>(
                                    ::GetProcAddress(shell, "QvxDescribeShell")))
                              : nullptr;
  const char* text = describe ? describe() : nullptr;
  return text ? text : "{}";
}

std::string UiPortImpl::DescribeMenus() { return JsonText(DescribeLiveMenus(m_thread.Id())); }

std::string UiPortImpl::DescribeWindows() { return JsonText(DescribeWindowsOf(m_thread.Id()), 1); }

std::string UiPortImpl::DescribeDatabase() { return DescribeActiveDatabase(); }

void UiPortImpl::Quit(int exitCode) { ::PostQuitMessage(exitCode); }

}  // namespace devhost
