#include "tests/fuzz/filter_fuzz_checks.h"

#include <algorithm>
#include <string_view>

namespace filterfuzz {
namespace {

using Entries = std::vector<std::string>;

long CountOf(const Filtered& f, std::string_view start) {
  return std::ranges::count_if(f.diary, [&](const std::string& e) { return e.starts_with(start); });
}
bool Has(const Filtered& f, std::string_view start) { return CountOf(f, start) != 0; }

bool IsIgnored(const Before& before) { return !before.isAccepted || before.isDisabled; }
bool IsResized(const Filtered& f) {
  return f.before.resizeTakes &&
         (Has(f, "resize move") || Has(f, "resize down") || Has(f, "resize up"));
}
bool IsDispatched(const Filtered& f) {
  return !IsIgnored(f.before) && !IsResized(f) && !f.before.isOrbit;
}

bool IsPressCaptured(const MSG& message, const Before& before) {
  return before.firstActive == 0 && before.isIdle && before.mode >= 1 &&
         !(message.wParam & MK_SHIFT);
}

void CheckFirstSteps(const Filtered& f) {
  if (IsIgnored(f.before)) {
    Require(!f.isSwallowed, "what is not accepted, or disabled, passes");
    Require(f.diary.size() <= 4, "only the acceptance questions are asked");
    for (const std::string& entry : f.diary) Require(entry.back() == '?', "nothing is done");
    return;
  }
  if (f.before.customFlag & 0x10) Require(!Has(f, "resize"), "the resize step is off");
  if (IsResized(f)) {
    Require(f.isSwallowed, "the resize step takes the message");
    Require(!Has(f, "CMDNAMES?"), "ahead of the running commands");
    return;
  }
  Require(CountOf(f, "CMDNAMES?") == 1, "the running commands are read once");
  if (!f.before.isOrbit) return;
  Require(!f.isSwallowed, "while the orbit runs only the resize step swallows");
  Require(f.diary.back() == "CMDNAMES?", "nothing follows");
}

void CheckNumber(const Filtered& f) {
  if (!IsDispatched(f)) return;
  switch (f.message.message) {
    case WM_KEYDOWN:
    case WM_KEYUP:
    case WM_LBUTTONDOWN:
    case WM_LBUTTONDBLCLK:
    case WM_RBUTTONDOWN:
    case WM_RBUTTONUP:
    case WM_MOUSEWHEEL:
      return;
    case WM_MOUSEMOVE:
    case WM_LBUTTONUP:
    case WM_CHAR:
    case WM_MBUTTONDOWN:
    case WM_MBUTTONUP:
      return Require(!f.isSwallowed, "this message always passes");
    default:
      Require(!f.isSwallowed, "a message that no step names passes");
      Require(f.diary.size() == 5, "and costs one host variable");
  }
}

void CheckPointer(const Filtered& f) {
  const long restarts = CountOf(f, "restart timer");
  if (f.message.message != WM_MOUSEMOVE) return Require(restarts == 0, "only moves restart it");
  Require(restarts <= 1, "a move restarts the timer once");
  Require(!Has(f, "select") && !Has(f, "fence"), "a move selects nothing");
  if (restarts) Require(f.before.isIdle && !f.before.isEditing, "only in an idle host");
}

void CheckPress(const Filtered& f) {
  if (f.message.message != WM_RBUTTONDOWN || !IsDispatched(f)) return;
  Require(f.isSwallowed == IsPressCaptured(f.message, f.before), "a press is kept or passes");
}

// The module's menu opens only inside the view, for a captured press.
void CheckMenu(const Filtered& f, const std::string& entry) {
  const MSG& m = f.message;
  Require(m.message == WM_RBUTTONUP && m.hwnd == editortest::kView, "the view's release opens it");
  Require(m.pt.x > 100 && m.pt.x < 500 && m.pt.y > 50 && m.pt.y < 350, "strictly inside the view");
  Require(!(m.wParam & MK_SHIFT) && f.before.isIdle && !f.before.isTyped, "in the idle host");
  bool isForced = (m.wParam & MK_CONTROL) != 0;
  if (f.before.mode == 3) {
    const auto held = static_cast<std::uint32_t>(m.time - f.memory.pressTime);
    isForced = held < 3000 && static_cast<long long>(held) > f.before.menuTime;
  }
  Require(entry.ends_with(" forced") == isForced, "the length or Ctrl forces it");
}

void CheckRelease(const Filtered& f) {
  for (const std::string& entry : f.diary)
    if (entry.starts_with("menu ") && entry != "menu visible?") CheckMenu(f, entry);
  if (f.message.message != WM_RBUTTONUP || !IsDispatched(f)) return;
  const bool isOurs = f.memory.isPressed && f.before.firstActive == 0;
  if (f.isSwallowed) Require(isOurs, "a release without a captured press passes");
  if (isOurs && f.before.isEditing) Require(f.isSwallowed, "the editor shows its menu");
  if (!f.before.isEditing && f.before.mode < 1)
    Require(!f.isSwallowed, "in mode 0 the button is the host's");
}

void CheckOrder(const Filtered& f) {
  const auto typed = std::ranges::find(f.diary, "typed?");
  if (typed != f.diary.end())
    Require(f.before.isIdle && std::find(f.diary.begin(), typed, "idle?") != typed,
            "only an idle host is asked for the command line");
  const auto moved = std::ranges::find_if(
      f.diary, [](const std::string& e) { return e.starts_with("move cursor"); });
  if (moved != f.diary.end())
    Require(std::any_of(f.diary.begin(), moved,
                        [](const std::string& e) { return e.starts_with("zoom at"); }),
            "the cursor moves only after a zoom");
}

void CheckTip(const Filtered& f) {
  const UINT number = f.message.message;
  if (!IsDispatched(f)) return;
  if (number == WM_KEYDOWN || number == WM_CHAR || number == WM_LBUTTONDOWN ||
      number == WM_RBUTTONDOWN)
    Require(f.diary.back() == "close tip", "an open tip closes last");
}

void CheckText(const Filtered& f) {
  const long begun = CountOf(f, "begin edit");
  Require(begun == (f.before.hasText ? CountOf(f, "text at") : 0), "each text found has an owner");
  if (f.message.message != WM_LBUTTONDOWN || !IsDispatched(f) || !f.before.isEditing) return;
  Require(f.isSwallowed, "a click during an edit never reaches the host");
  Require(begun + CountOf(f, "end edit") == 1, "it begins another edit or ends this one");
}

void CheckHelp(const Filtered& f) {
  const long topics = CountOf(f, "help topic");
  Require(topics <= 1 && CountOf(f, "help keyword") == topics && CountOf(f, "help index") == topics,
          "help is called three times or not at all");
  const bool isAsked =
      f.message.message == WM_KEYDOWN && f.message.wParam == VK_F1 && IsDispatched(f);
  if (isAsked) Require(f.isSwallowed == (topics == 1), "F1 is the host's unless help was shown");
  if (!isAsked) Require(topics == 0, "only F1 shows help");
}

void CheckToggle(const Filtered& f) {
  const bool isAlone = f.message.message == WM_KEYUP && f.message.wParam == VK_CONTROL &&
                       IsDispatched(f) && !f.memory.isCtrlUsed;
  Entries toggled, expected;
  for (const std::string& entry : f.diary)
    if (entry.starts_with("toggle ")) toggled.push_back(entry);
  std::vector<long> keys;
  for (size_t i = 0; isAlone && i < f.before.objects.size(); ++i) {
    const editortest::GroupedObject& object = f.before.objects[i];
    if (!object.hasState || std::ranges::count(keys, object.key)) continue;
    keys.push_back(object.key);
    expected.push_back("toggle " + std::to_string(i));
  }
  Require(toggled == expected, "a lone Ctrl flips each group once");
}

}  // namespace

void Memory::Note(const MSG& message, const Before& before) {
  if (IsIgnored(before) || before.isOrbit) return;
  if (message.message == WM_RBUTTONDOWN) {
    isPressed = IsPressCaptured(message, before) && message.time != 0xFFFFFFFF;
    pressTime = message.time;
  }
  if (message.message == WM_KEYDOWN) {
    if (message.wParam == VK_CONTROL)
      isCtrlUsed = false;
    else if (before.isCtrlDown)
      isCtrlUsed = true;
  }
  if (message.message == WM_KEYUP && message.wParam == VK_CONTROL) isCtrlUsed = false;
}

void CheckInvariants(const Filtered& filtered) {
  for (const auto check : {CheckFirstSteps, CheckNumber, CheckPointer, CheckPress, CheckRelease,
                           CheckOrder, CheckTip, CheckText, CheckHelp, CheckToggle})
    check(filtered);
}

}  // namespace filterfuzz
