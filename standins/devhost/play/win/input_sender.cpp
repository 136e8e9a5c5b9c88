// Real input through SendInput.
#include "devhost/play/win/input_sender.h"

#include <cstdlib>
#include <iterator>
#include <utility>

namespace devhost {
namespace {

// Timing of a fast user: every message is processed separately, and two clicks can still be a
// double click.
constexpr int kBetween = 20;    // ms
constexpr int kAfter = 60;      // ms, after the last message of a step
constexpr int kDragSteps = 12;  // mouse positions of a drag

constexpr DWORD kDown[] = {MOUSEEVENTF_LEFTDOWN, MOUSEEVENTF_RIGHTDOWN, MOUSEEVENTF_MIDDLEDOWN};
constexpr DWORD kUp[] = {MOUSEEVENTF_LEFTUP, MOUSEEVENTF_RIGHTUP, MOUSEEVENTF_MIDDLEUP};

// The centre of a pixel in absolute coordinates, 65536 for the virtual desktop.
LONG Part(LONG at, int first, int count) {
  return count > 0 ? static_cast<LONG>((static_cast<LONGLONG>(at - first) * 65536 + 32768) / count)
                   : 0;
}

// Every event contains its position: the window system may report another pointer position between
// two events, and a click would go there.
INPUT MouseInput(POINT at, DWORD flags, DWORD data = 0) {
  INPUT input = {};
  input.type = INPUT_MOUSE;
  input.mi.dx =
      Part(at.x, GetSystemMetrics(SM_XVIRTUALSCREEN), GetSystemMetrics(SM_CXVIRTUALSCREEN));
  input.mi.dy =
      Part(at.y, GetSystemMetrics(SM_YVIRTUALSCREEN), GetSystemMetrics(SM_CYVIRTUALSCREEN));
  input.mi.dwFlags = flags | MOUSEEVENTF_MOVE | MOUSEEVENTF_ABSOLUTE | MOUSEEVENTF_VIRTUALDESK;
  input.mi.mouseData = data;
  return input;
}

}  // namespace

// Also sets the pointer, so that moves which the window system generates, for example for a new
// window, have the same position.
void InputSender::Move(POINT to) {
  SetCursorPos(to.x, to.y);
  Mouse(to, 0);
}

void InputSender::Mouse(POINT at, DWORD flags, DWORD data) {
  RestoreModifiers();
  INPUT input = MouseInput(at, flags, data);
  SendInput(1, &input, sizeof input);
  m_pause(kBetween);
}

// When a window gets focus or pointer, the window system reads the key state of the display,
// possibly late. The display does not know simulated keys, so held keys must be pressed again.
void InputSender::RestoreModifiers() {
  for (const auto& [key, held] : {std::pair(VK_CONTROL, m_ctrlHeld), {VK_SHIFT, m_shiftHeld}})
    if (held && GetAsyncKeyState(key) >= 0) Key(key, false, false);
}

void InputSender::Click(POINT at, Button button, int times) {
  Move(at);
  AvoidDoubleClick(at);
  for (; times > 0; --times) {
    Mouse(at, kDown[static_cast<int>(button)]);
    Mouse(at, kUp[static_cast<int>(button)]);
  }
  m_pause(kAfter);
}

void InputSender::ClickTwo(POINT first, POINT second) {
  Move(first);
  AvoidDoubleClick(first);
  INPUT all[] = {MouseInput(first, MOUSEEVENTF_LEFTDOWN), MouseInput(first, MOUSEEVENTF_LEFTUP),
                 MouseInput(second, 0), MouseInput(second, MOUSEEVENTF_LEFTDOWN),
                 MouseInput(second, MOUSEEVENTF_LEFTUP)};
  SendInput(static_cast<UINT>(std::size(all)), all, sizeof *all);
  AvoidDoubleClick(second);
  m_pause(kAfter);
}

// Two click steps at one place must not become a double click.
void InputSender::AvoidDoubleClick(POINT at) {
  const int left = static_cast<int>(m_lastClick + GetDoubleClickTime() + kBetween - GetTickCount());
  const bool same = std::abs(at.x - m_lastAt.x) <= GetSystemMetrics(SM_CXDOUBLECLK) &&
                    std::abs(at.y - m_lastAt.y) <= GetSystemMetrics(SM_CYDOUBLECLK);
  if (m_lastClick && same && left > 0) m_pause(left);
  m_lastClick = GetTickCount();
  m_lastAt = at;
}

void InputSender::Hold(POINT at, Button button, int milliseconds) {
  Move(at);
  Mouse(at, kDown[static_cast<int>(button)]);
  m_pause(milliseconds);
  Mouse(at, kUp[static_cast<int>(button)]);
  m_pause(kAfter);
}

void InputSender::Press(POINT at, Button button) {
  Move(at);
  AvoidDoubleClick(at);
  Mouse(at, kDown[static_cast<int>(button)]);
  m_pause(kAfter);
}

void InputSender::Release(POINT at, Button button) {
  Move(at);
  Mouse(at, kUp[static_cast<int>(button)]);
  m_pause(kAfter);
}

void InputSender::Drag(POINT from, POINT to, Button button) {
  Move(from);
  Mouse(from, kDown[static_cast<int>(button)]);
  for (int step = 1; step <= kDragSteps; ++step)
    Move({from.x + (to.x - from.x) * step / kDragSteps,
          from.y + (to.y - from.y) * step / kDragSteps});
  Mouse(to, kUp[static_cast<int>(button)]);
  m_pause(kAfter);
}

void InputSender::Wheel(POINT at, int delta) {
  Move(at);
  Mouse(at, MOUSEEVENTF_WHEEL, static_cast<DWORD>(delta));
  m_pause(kAfter);
}

void InputSender::Key(int key, bool extended, bool up) {
  INPUT input = {};
  input.type = INPUT_KEYBOARD;
  input.ki.wVk = static_cast<WORD>(key);
  input.ki.wScan = static_cast<WORD>(MapVirtualKeyW(static_cast<UINT>(key), MAPVK_VK_TO_VSC));
  input.ki.dwFlags = (extended ? KEYEVENTF_EXTENDEDKEY : 0) | (up ? KEYEVENTF_KEYUP : 0);
  SendInput(1, &input, sizeof input);
  m_pause(kBetween / 2);
}

void InputSender::Press(const KeyChord& chord) {
  const auto modifiers = [&](bool up) {
    if (chord.ctrl) Key(VK_CONTROL, false, up);
    if (chord.alt) Key(VK_MENU, false, up);
    if (chord.shift) Key(VK_SHIFT, false, up);
  };
  modifiers(false);
  Key(chord.key, chord.extended, false);
  Key(chord.key, chord.extended, true);
  modifiers(true);
  m_pause(kAfter);
}

void InputSender::PressKey(int key, bool shift) {
  if (shift) Key(VK_SHIFT, false, false);
  Key(key, false, false);
  Key(key, false, true);
  if (shift) Key(VK_SHIFT, false, true);
}

// Characters of the keyboard layout are sent as keys, for programs that handle keys; others as an
// input method sends them.
void InputSender::TypeUnit(wchar_t unit) {
  switch (unit) {
    case L'\n':
      return PressKey(VK_RETURN, false);
    case L'\t':
      return PressKey(VK_TAB, false);
    case 0x1B:
      return PressKey(VK_ESCAPE, false);
    default:
      break;
  }
  const SHORT key = unit < 0x80 ? VkKeyScanW(unit) : SHORT{-1};
  const int modifiers = key >> 8 & 0xFF;
  if (key != -1 && modifiers <= 1) return PressKey(key & 0xFF, modifiers == 1);
  for (const DWORD up : {DWORD{0}, DWORD{KEYEVENTF_KEYUP}}) {
    INPUT input = {};
    input.type = INPUT_KEYBOARD;
    input.ki.wScan = unit;
    input.ki.dwFlags = KEYEVENTF_UNICODE | up;
    SendInput(1, &input, sizeof input);
  }
  m_pause(kBetween / 2);
}

void InputSender::Type(const std::wstring& text) {
  for (const wchar_t unit : text) TypeUnit(unit);
  m_pause(kAfter);
}

InputSender::HeldKeys::HeldKeys(InputSender& sender, bool ctrl, bool shift)
    : m_sender(sender), m_ctrl(ctrl), m_shift(shift) {
  m_sender.m_ctrlHeld = ctrl;
  m_sender.m_shiftHeld = shift;
  if (m_ctrl) m_sender.Key(VK_CONTROL, false, false);
  if (m_shift) m_sender.Key(VK_SHIFT, false, false);
}

InputSender::HeldKeys::~HeldKeys() {
  m_sender.m_ctrlHeld = m_sender.m_shiftHeld = false;
  if (m_shift) m_sender.Key(VK_SHIFT, false, true);
  if (m_ctrl) m_sender.Key(VK_CONTROL, false, true);
}

}  // namespace devhost
