// Real input through SendInput.
#include "devhost/play/win/input_sender.h"

#include <cstdlib>
#include <iterator>
#include <utility>

namespace devhost {
namespace {

// Quick hands. Long enough for the program to take each message by itself, short enough for two
// presses to be a double click.
constexpr int kBetween = 20;    // ms
constexpr int kAfter = 60;      // ms, after the last message of a step
constexpr int kDragSteps = 12;  // places that a drag passes on its way

constexpr DWORD kDown[] = {MOUSEEVENTF_LEFTDOWN, MOUSEEVENTF_RIGHTDOWN};
constexpr DWORD kUp[] = {MOUSEEVENTF_LEFTUP, MOUSEEVENTF_RIGHTUP};

// A pixel's middle in the 65536 parts that the virtual desktop is divided into.
LONG Part(LONG at, int first, int count) {
  return count > 0 ? static_cast<LONG>((static_cast<LONGLONG>(at - first) * 65536 + 32768) / count)
                   : 0;
}

// Every event carries its place: between two of them the pointer may have been reported elsewhere,
// and a press would go there.
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

// The pointer itself goes along, so that whatever the window system reports of it meanwhile, say
// because a window came up under it, names the same place.
void InputSender::Move(POINT to) {
  SetCursorPos(to.x, to.y);
  Mouse(to, 0);
}

void InputSender::Mouse(POINT at, DWORD flags, DWORD data) {
  KeepHeld();
  INPUT input = MouseInput(at, flags, data);
  SendInput(1, &input, sizeof input);
  m_pause(kBetween);
}

// When the keyboard or the pointer comes to a window, the window system asks the display which keys
// are down, perhaps late; the display knows nothing of ours, and a key that is held would be up.
void InputSender::KeepHeld() {
  for (const auto& [key, held] : {std::pair(VK_CONTROL, m_ctrlHeld), {VK_SHIFT, m_shiftHeld}})
    if (held && GetAsyncKeyState(key) >= 0) Key(key, false, false);
}

void InputSender::Click(POINT at, Button button, int times) {
  Move(at);
  KeepApart(at);
  for (; times > 0; --times) {
    Mouse(at, kDown[static_cast<int>(button)]);
    Mouse(at, kUp[static_cast<int>(button)]);
  }
  m_pause(kAfter);
}

void InputSender::ClickBoth(POINT first, POINT second) {
  Move(first);
  KeepApart(first);
  INPUT all[] = {MouseInput(first, MOUSEEVENTF_LEFTDOWN), MouseInput(first, MOUSEEVENTF_LEFTUP),
                 MouseInput(second, 0), MouseInput(second, MOUSEEVENTF_LEFTDOWN),
                 MouseInput(second, MOUSEEVENTF_LEFTUP)};
  SendInput(static_cast<UINT>(std::size(all)), all, sizeof *all);
  KeepApart(second);
  m_pause(kAfter);
}

// Two click steps at one place are two clicks; only a double click step makes a double click.
void InputSender::KeepApart(POINT at) {
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

void InputSender::Drag(POINT from, POINT to) {
  Move(from);
  Mouse(from, MOUSEEVENTF_LEFTDOWN);
  for (int step = 1; step <= kDragSteps; ++step)
    Move({from.x + (to.x - from.x) * step / kDragSteps,
          from.y + (to.y - from.y) * step / kDragSteps});
  Mouse(to, MOUSEEVENTF_LEFTUP);
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

// A character that the keyboard has is typed by its key, so that whoever looks at keys sees it; any
// other comes as an input method would bring it.
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

InputSender::Held::Held(InputSender& sender, bool ctrl, bool shift)
    : m_sender(sender), m_ctrl(ctrl), m_shift(shift) {
  m_sender.m_ctrlHeld = ctrl;
  m_sender.m_shiftHeld = shift;
  if (m_ctrl) m_sender.Key(VK_CONTROL, false, false);
  if (m_shift) m_sender.Key(VK_SHIFT, false, false);
}

InputSender::Held::~Held() {
  m_sender.m_ctrlHeld = m_sender.m_shiftHeld = false;
  if (m_shift) m_sender.Key(VK_SHIFT, false, true);
  if (m_ctrl) m_sender.Key(VK_CONTROL, false, true);
}

}  // namespace devhost
