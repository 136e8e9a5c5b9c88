// Performing steps with real input and host operations; see the header.
#include "devhost/play/win/driver_world.h"

#include <cstdio>
#include <cstdlib>
#include <thread>

#include "devhost/core/base/utf8.h"
#include "devhost/play/state_path.h"
#include "devhost/play/win/screen_capture.h"
#include "devhost/play/win/timer_barrier.h"
#include "devhost/play/win/tip_text.h"

namespace devhost {
namespace {

constexpr char kProgramEnds[] = "the program is going down";
// Painting reaches the screen with a delay.
constexpr std::chrono::milliseconds kScreenDelay{150};
constexpr std::chrono::milliseconds kSlice{10};
constexpr int kMaxMenuTries = 50;
constexpr std::chrono::milliseconds kTargetTimeout{3000};
// How long a step waits until its input is processed. Dialogs do not report that they are idle, so
// every click in a dialog takes this time.
constexpr std::chrono::milliseconds kInputTimeout{400};

void WriteLine(std::FILE* stream, const std::string& line) {
  std::fwrite(line.data(), 1, line.size(), stream);
  std::fputc('\n', stream);
  std::fflush(stream);
}

}  // namespace

DriverWorld::DriverWorld(UiPort& port)
    : m_port(port), m_input([this](int time) { Settle(Milliseconds(time)); }) {}

template <class Result>
Result DriverWorld::Ask(const std::function<Result()>& question) {
  Result result{};
  if (!m_stopped) m_port.OnMainThread([&] { result = question(); });
  return result;
}

std::string DriverWorld::RunOnMainThread(const std::function<std::string()>& work) {
  std::string problem = kProgramEnds;
  if (!m_stopped) m_port.OnMainThread([&] { problem = work(); });
  return problem;
}

std::string DriverWorld::Perform(const Step& step) {
  if (m_stopped) return kProgramEnds;
  switch (step.kind) {
    case StepKind::Click:
    case StepKind::ClickTwo:
    case StepKind::RightClick:
    case StepKind::DoubleClick:
    case StepKind::MiddleClick:
    case StepKind::Hold:
    case StepKind::ButtonDown:
    case StepKind::ButtonUp:
    case StepKind::Move:
    case StepKind::Wheel:
    case StepKind::Drag:
    case StepKind::MiddleDrag:
      return PerformMouse(step);
    case StepKind::Command:
      return TypeCommand(step.text);
    case StepKind::Type:
      m_input.Type(Wide(step.text));
      return {};
    case StepKind::Press:
      m_input.Press(step.chord);
      return {};
    case StepKind::Shot:
      return TakeShot(step.text);
    case StepKind::DumpShell:
    case StepKind::DumpWindows:
    case StepKind::DumpDatabase:
      return PerformDump(step);
    default:
      return RunOnMainThread([&] { return PerformHost(step); });
  }
}

std::string DriverWorld::PointOnMainThread(const Target& target, POINT* point) {
  const auto problem = [](bool found, const std::string& text) { return found ? "" : text; };
  const auto placed = [point](const RowPlace& place) {
    *point = place.point;
    return place.problem;
  };
  switch (target.kind) {
    case TargetKind::Row:
      return placed(
          PlaceOfScreenMenuRow(Json::parse(m_port.DescribeShell(), nullptr, false), target.text));
    case TargetKind::Popup:
      return placed(
          PlaceOfPopupRow(Json::parse(m_port.DescribeMenus(), nullptr, false), target.text));
    case TargetKind::Tab:
      return placed(PlaceOfTab(Json::parse(m_port.DescribeShell(), nullptr, false), target.text));
    case TargetKind::Strip:
      return placed(
          PlaceOfStripPart(Json::parse(m_port.DescribeShell(), nullptr, false), target.text));
    case TargetKind::Pane:
      return m_port.PaneToScreen(target.text, point);
    case TargetKind::Character:
      return m_port.CharacterToScreen(target.position, point);
    case TargetKind::Button:
      return problem(m_port.ButtonToScreen(Wide(target.text), point),
                     "there is no visible button " + QuotedForScript(target.text));
    case TargetKind::Entity:
      return problem(m_port.EntityToScreen(target.text, point),
                     "there is no entity " + target.text + " in the active drawing");
    case TargetKind::World:
      return problem(m_port.WorldToScreen(target.x, target.y, point), "no drawing is active");
    case TargetKind::View:
      return problem(
          m_port.ViewToScreen(static_cast<int>(target.x), static_cast<int>(target.y), point),
          "no drawing is active");
    default:
      return "the step has no target";
  }
}

std::string DriverWorld::Point(const Target& target, POINT* point) {
  // The target may still appear: a message box of a command, a row of a group that is opening.
  const Milliseconds end = Now() + kTargetTimeout;
  std::string problem;
  do {
    problem = RunOnMainThread([&] { return PointOnMainThread(target, point); });
    if (!problem.empty()) Pause(kSlice);
  } while (!problem.empty() && !m_stopped && Now() < end);
  if (!problem.empty()) return problem;
  const RECT screen = {GetSystemMetrics(SM_XVIRTUALSCREEN), GetSystemMetrics(SM_YVIRTUALSCREEN),
                       GetSystemMetrics(SM_XVIRTUALSCREEN) + GetSystemMetrics(SM_CXVIRTUALSCREEN),
                       GetSystemMetrics(SM_YVIRTUALSCREEN) + GetSystemMetrics(SM_CYVIRTUALSCREEN)};
  if (PtInRect(&screen, *point)) return {};
  return "the target lies outside the screen, at " + std::to_string(point->x) + ", " +
         std::to_string(point->y);
}

std::string DriverWorld::PerformMouse(const Step& step) {
  POINT at = {}, end = {};
  std::string problem = Point(step.target, &at);
  const bool hasSecond = step.kind == StepKind::Drag || step.kind == StepKind::MiddleDrag ||
                         step.kind == StepKind::ClickTwo;
  if (problem.empty() && hasSecond) problem = Point(step.target2, &end);
  if (!problem.empty()) return problem;
  // Moved before keys are pressed: they may be released when the pointer enters a window.
  m_input.Move(at);
  const InputSender::HeldKeys held(m_input, step.ctrl, step.shift);
  SendMouse(step, at, end);
  return {};
}

void DriverWorld::SendMouse(const Step& step, POINT at, POINT end) {
  using Button = InputSender::Button;
  const Button button = step.button == MouseButton::Left    ? Button::Left
                        : step.button == MouseButton::Right ? Button::Right
                                                            : Button::Middle;
  switch (step.kind) {
    case StepKind::Click:
      return m_input.Click(at, Button::Left, 1);
    case StepKind::ClickTwo:
      return m_input.ClickTwo(at, end);
    case StepKind::RightClick:
      return m_input.Click(at, Button::Right, 1);
    case StepKind::MiddleClick:
      return m_input.Click(at, Button::Middle, 1);
    case StepKind::DoubleClick:
      return m_input.Click(at, Button::Left, 2);
    case StepKind::Hold:
      return m_input.Hold(at, Button::Right, step.number);
    case StepKind::ButtonDown:
      return m_input.Press(at, button);
    case StepKind::ButtonUp:
      return m_input.Release(at, button);
    case StepKind::Wheel:
      return m_input.Wheel(at, step.number);
    case StepKind::Drag:
      return m_input.Drag(at, end);
    case StepKind::MiddleDrag:
      return m_input.Drag(at, end, Button::Middle);
    default:
      return m_input.Move(at);
  }
}

std::string DriverWorld::PerformHost(const Step& step) {
  const auto problem = [](bool done, const std::string& text) { return done ? "" : text; };
  const std::wstring text = Wide(step.text), value = Wide(step.value.text);
  switch (step.kind) {
    case StepKind::Open:
      return problem(m_port.OpenDrawing(text), "can't open " + QuotedForScript(step.text));
    case StepKind::New:
      m_port.NewDrawing();
      return {};
    case StepKind::Activate:
      return problem(m_port.ActivateDrawing(text),
                     "no drawing is called " + QuotedForScript(step.text));
    case StepKind::Close:
      m_port.CloseDrawing();
      return {};
    case StepKind::Select:
      return problem(m_port.SelectEntities(step.handles),
                     "not every handle is in the active drawing");
    case StepKind::SetVar:
      return problem(m_port.SetVariable(text, value), "the host refuses variable " + step.text);
    case StepKind::Setting:
      return problem(m_port.SetSetting(text, value), "there is no setting " + step.text);
    default:
      return "this step is not built";
  }
}

std::string DriverWorld::PerformDump(const Step& step) {
  const std::string text = Ask<std::string>([&] {
    if (step.kind == StepKind::DumpShell) return m_port.DescribeShell();
    return step.kind == StepKind::DumpWindows ? m_port.DescribeWindows()
                                              : m_port.DescribeDatabase();
  });
  WriteLine(stdout, text);
  return text.empty() ? "there is nothing to dump" : "";
}

// Focuses the command line first; with a dialog open that fails.
std::string DriverWorld::TypeCommand(const std::string& text) {
  const std::string problem = RunOnMainThread([&]() -> std::string {
    const HWND line = m_port.CommandLine();
    SetFocus(line);
    if (line && GetFocus() == line && IsWindowEnabled(GetAncestor(line, GA_ROOT))) return {};
    return "the command line can't take the keyboard; is a dialog open?";
  });
  if (!problem.empty()) return problem;
  m_input.Type(Wide(text) + L"\n");
  return {};
}

std::string DriverWorld::TakeShot(const std::string& path) {
  Pause(kScreenDelay);
  return SavePng(CaptureScreen(), Wide(path));
}

bool DriverWorld::IsIdle() {
  return Ask<bool>([this] { return m_port.IsIdle(); });
}

bool DriverWorld::IsMenuOpen() {
  return Ask<bool>([this] { return m_port.IsMenuOpen(); });
}

bool DriverWorld::IsPopupOpen() {
  return Ask<bool>([this] { return m_port.IsPopupOpen(); });
}

void DriverWorld::WaitForTimers() {
  const auto turn = TimerBarrier::Begin(m_port);
  while (turn && !m_stopped && !turn->IsOver()) Pause(kSlice);
}

std::string DriverWorld::ShellState() {
  return Ask<std::string>([this] { return m_port.DescribeShell(); });
}

bool DriverWorld::Variable(const std::string& name, std::string* value) {
  std::wstring wide;
  const bool known = Ask<bool>([&] { return m_port.GetVariable(Wide(name), &wide); });
  *value = Utf8(wide);
  return known;
}

bool DriverWorld::Setting(const std::string& name, std::string* value) {
  std::wstring wide;
  const bool known = Ask<bool>([&] { return m_port.GetSetting(Wide(name), &wide); });
  *value = Utf8(wide);
  return known;
}

std::vector<std::string> DriverWorld::HighlightedHandles() {
  return Ask<std::vector<std::string>>([this] { return m_port.HighlightedHandles(); });
}

std::string DriverWorld::TypedText() {
  return Ask<std::string>([this] { return Utf8(m_port.TypedText()); });
}

std::string DriverWorld::TipText() {
  return Ask<std::string>([] { return Utf8(ShownTipText()); });
}

bool DriverWorld::DrawnTexts(const std::string& handle, std::vector<std::string>* texts) {
  return Ask<bool>([&] {
    std::vector<std::wstring> drawn;
    if (!m_port.DrawnTexts(handle, &drawn)) return false;
    for (const std::wstring& text : drawn) texts->push_back(Utf8(text));
    return true;
  });
}

std::string DriverWorld::PointerAway(const Target& target) {
  POINT wanted = {}, at = {};
  const std::string problem = RunOnMainThread([&] { return PointOnMainThread(target, &wanted); });
  if (!problem.empty()) return problem;
  GetCursorPos(&at);
  if (std::abs(at.x - wanted.x) <= 1 && std::abs(at.y - wanted.y) <= 1) return {};
  return "it is at " + std::to_string(at.x) + ", " + std::to_string(at.y) + ", the target at " +
         std::to_string(wanted.x) + ", " + std::to_string(wanted.y);
}

PlayWorld::Milliseconds DriverWorld::Now() {
  return std::chrono::duration_cast<Milliseconds>(
      std::chrono::steady_clock::now().time_since_epoch());
}

void DriverWorld::Pause(Milliseconds time) {
  const Milliseconds end = Now() + time;
  for (Milliseconds left = time; left > Milliseconds(0) && !m_stopped; left = end - Now())
    std::this_thread::sleep_for(std::min(left, kSlice));
}

// As with a user, the next input follows after this one was processed, on a slow machine too.
void DriverWorld::Settle(Milliseconds time) {
  Pause(time);
  const Milliseconds end = Now() + kInputTimeout;
  while (!m_stopped && Now() < end && !IsMenuOpen() && !IsIdle()) Pause(kSlice);
}

void DriverWorld::Print(const std::string& line) { WriteLine(stderr, line); }

void DriverWorld::BringToFront() {
  RunOnMainThread([this]() -> std::string {
    SetForegroundWindow(GetLastActivePopup(m_port.Frame()));  // a modal dialog stays in front
    return {};
  });
}

void DriverWorld::CloseMenus() {
  for (int tries = 0; tries < kMaxMenuTries && IsMenuOpen(); ++tries) {
    RunOnMainThread([]() -> std::string {
      EndMenu();
      return {};
    });
    Pause(kSlice);
  }
}

HWND DriverWorld::Frame() {
  return Ask<HWND>([this] { return m_port.Frame(); });
}

}  // namespace devhost
