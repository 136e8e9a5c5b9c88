#include "tests/fuzz/filter_fuzz.h"

#include <algorithm>
#include <memory>
#include <utility>

#include "editor/command_help.h"
#include "editor/message_filter.h"
#include "kernel/globals.h"
#include "tests/fuzz/filter_fuzz_checks.h"
#include "tests/fuzz/filter_fuzz_preview.h"

namespace {

using namespace filterfuzz;
using editortest::kFrame;
using editortest::kOtherView;
using editortest::kView;

constexpr int kMostDepth = 4;           // of messages within messages
constexpr int kMostNestedRecords = 12;  // of one menu
constexpr unsigned kKinds = 16;         // of records

constexpr UINT kNumbers[] = {WM_KEYDOWN,
                             WM_KEYDOWN,
                             WM_KEYDOWN,
                             WM_KEYUP,
                             WM_KEYUP,
                             WM_CHAR,
                             WM_MOUSEMOVE,
                             WM_MOUSEMOVE,
                             WM_LBUTTONUP,
                             WM_TIMER,
                             WM_LBUTTONDOWN,
                             WM_LBUTTONDBLCLK,
                             WM_RBUTTONDOWN,
                             WM_RBUTTONDOWN,
                             WM_RBUTTONUP,
                             WM_RBUTTONUP,
                             WM_RBUTTONUP,
                             WM_MBUTTONDOWN,
                             WM_RBUTTONDBLCLK,
                             WM_MBUTTONUP,
                             WM_MOUSEWHEEL,
                             0x400,
                             0};
constexpr WPARAM kKeys[] = {VK_TAB,    VK_RETURN, VK_SHIFT, VK_CONTROL, VK_CONTROL,
                            VK_ESCAPE, VK_F1,     VK_SPACE, VK_F12,     VK_OEM_PLUS,
                            VK_OEM_3,  VK_F7,     VK_F1,    'A',        VK_OEM_MINUS};
constexpr POINT kPoints[] = {{200, 150}, {200, 150}, {101, 51}, {499, 349},
                             {100, 150}, {500, 150}, {200, 50}, {200, 350}};
constexpr double kReleases[] = {15.0, 15.01, 16.0, 16.1, 16.11, 24.0};

void SetDefaults() {
  g_bDisableHook = g_nCustomFlag = g_bShiftToggle = 0;
  g_bZoomKey = g_bDwgTabBar = g_bDblClkEditObj = g_nProductId = g_bEnableSelectPreview = 1;
  g_nSpeedMenu = 3;
  g_nRBtnMenuTime = 250;
  g_dHostVersion = 16.1;
}

class Session {
 public:
  explicit Session(const std::string& bytes) : m_input(bytes) {
    m_host.helpFile = L"C:\\s\\qvx.chm";
    m_host.files = {L"qvxcmd.txt"};
  }

  FilterFuzzRun Run() {
    while (!m_input.IsEmpty()) Record();
    m_run.previewTurnOffs = m_preview.TurnOffs();
    return m_run;
  }

 private:
  void Record();
  void Feed(const MSG& message);
  void Enter(Loop loop);
  MSG NextMessage();
  WPARAM NextParameter(UINT number, unsigned how);
  Before Look() const;
  void Count(const Filtered& filtered);
  void ChangeAcceptance();
  void ChangeState();
  void ChangeWindows();
  void ChangeSettings();
  void ChangeFiles();
  void ChangeObjects();
  void Pause();
  void Load();

  Input m_input;
  editortest::Diary m_diary;
  FuzzHost m_host{m_input, m_diary, [this](Loop loop) { Enter(loop); }};
  FuzzEdit m_edit{m_diary, [this](Loop loop) { Enter(loop); }};
  std::unique_ptr<qvx::MessageFilter> m_filter =
      std::make_unique<qvx::MessageFilter>(m_host, m_edit);
  FuzzPreview m_preview{m_input};
  Memory m_memory;
  DWORD m_time = 1000;
  int m_depth = 0, m_menus = 0;  // loops that run, and those of menus
  bool m_isTimerSet = false;
  FilterFuzzRun m_run;
};

void Session::Record() {
  switch (m_input.Byte() % kKinds) {
    case 0:
      return ChangeAcceptance();
    case 1:
      return ChangeState();
    case 2:
      return ChangeWindows();
    case 3:
      return ChangeSettings();
    case 4:
      return ChangeFiles();
    case 5:
      return ChangeObjects();
    case 6:
      return Pause();
    case 7:
      return Load();
    default:
      return Feed(NextMessage());
  }
}

Before Session::Look() const {
  Before before;
  before.isAccepted =
      m_host.hasDocument && m_host.hasDatabase && m_host.isHostWindow && m_host.isReady;
  before.isDisabled = g_bDisableHook != 0;
  before.isOrbit = m_host.running.find(L"3DORBIT") != std::wstring::npos;
  before.resizeTakes = m_host.resizeTakes;
  before.isIdle = m_host.isIdle;
  before.isTyped = m_host.isTyped;
  before.isEditing = m_edit.isVisible;
  before.hasText = m_host.hasText;
  before.isCtrlDown = m_host.keysDown.count(VK_CONTROL) != 0;
  before.firstActive = m_host.nextActive.empty() ? m_host.active : m_host.nextActive.front();
  before.customFlag = g_nCustomFlag;
  before.mode = g_nSpeedMenu;
  before.menuTime = g_nRBtnMenuTime;
  before.objects = m_host.objects;
  return before;
}

void Session::Feed(const MSG& message) {
  if (!m_filter) return;  // unloaded
  ++m_run.messages;
  m_run.nested += m_depth > 0;
  Filtered filtered{message, Look(), m_memory, {}, false};
  m_memory.Note(message, filtered.before);
  filtered.diary = std::exchange(m_diary.entries, {});  // the outer message's, meanwhile
  filtered.isSwallowed = m_filter.get()->Filter(message);
  std::swap(filtered.diary, m_diary.entries);
  CheckInvariants(filtered);
  Count(filtered);
}

void Session::Count(const Filtered& filtered) {
  m_run.swallowed += filtered.isSwallowed;
  for (const std::string& entry : filtered.diary) {
    if (entry.back() == '?') continue;
    ++m_run.operations[entry.substr(0, entry.find(' '))];
    m_isTimerSet |= entry == "restart timer";
  }
}

// The message loop of a menu or of help: more records of the stream.
void Session::Enter(Loop loop) {
  if (m_depth >= kMostDepth) return;
  ++m_depth;
  m_menus += loop == Loop::kMenu;
  for (unsigned left = m_input.Byte() % kMostNestedRecords; left && !m_input.IsEmpty(); --left)
    Record();
  m_menus -= loop == Loop::kMenu;
  --m_depth;
}

// A line of a menu may unload the module; it may be loaded again at any time.
void Session::Load() {
  if (!m_filter) {
    m_filter = std::make_unique<qvx::MessageFilter>(m_host, m_edit);
  } else if (m_depth > 0 && m_menus == m_depth) {
    m_filter.reset();
    m_memory = {};
    ++m_run.unloads;
  } else if (m_input.Flag()) {
    m_preview.ActivateDrawing();
  }
}

MSG Session::NextMessage() {
  MSG message{};
  const unsigned number = m_input.Byte(), how = m_input.Byte();
  message.message = number < 240 ? kNumbers[number % std::size(kNumbers)] : m_input.Word();
  message.wParam = NextParameter(message.message, how);
  message.lParam = how & 1 ? static_cast<LPARAM>(m_input.Word()) : 1;
  m_time += how & 2 ? m_input.Byte() * 16 : how & 4 ? m_input.Word() : 100;
  message.time = m_time;
  if ((how & 0x38) == 0x38)
    message.pt = {m_input.Pixel(), m_input.Pixel()};
  else
    message.pt = kPoints[how >> 3 & 7];
  const HWND windows[] = {kView, kView, kView, kView, kView, kOtherView, kFrame, nullptr};
  message.hwnd = windows[m_input.Byte() % std::size(windows)];
  if (message.message == WM_KEYDOWN) m_host.keysDown.insert(static_cast<int>(message.wParam));
  if (message.message == WM_KEYUP) m_host.keysDown.erase(static_cast<int>(message.wParam));
  return message;
}

WPARAM Session::NextParameter(UINT number, unsigned how) {
  if (how & 0x80) return WPARAM{m_input.Word()};
  if (number == WM_KEYDOWN || number == WM_KEYUP) return kKeys[m_input.Byte() % std::size(kKeys)];
  if (number == WM_MOUSEWHEEL) return WPARAM{m_input.Word()};
  return how & 0x40 ? m_input.Byte() : 0u;
}

void Session::ChangeAcceptance() {
  m_host.hasDocument = !m_input.Seldom();
  m_host.hasDatabase = !m_input.Seldom();
  m_host.isHostWindow = !m_input.Seldom();
  m_host.isReady = !m_input.Seldom();
}

void Session::ChangeState() {
  m_host.isIdle = !m_input.Seldom();
  m_host.isTyped = m_input.Flag();
  m_host.isLisp = m_input.Flag();
  m_host.active = m_input.Seldom();
  const unsigned answers = m_input.Byte() % 3;
  m_host.nextActive.assign(answers, static_cast<int>(m_input.Byte() % 2));
  m_host.resizeTakes = m_input.Flag();
  m_host.hasText = m_input.Flag();
  m_host.running.clear();
  if (!m_input.Flag()) return;
  m_host.running.assign(m_input.Byte() * 16, L'X');
  m_host.running += m_input.Flag() ? L"3DORBIT" : L"3DORBI";
  m_host.running.append(m_input.Byte(), L'T');
}

void Session::ChangeWindows() {
  m_host.hasView = !m_input.Seldom();
  m_host.hasContextWindow = !m_input.Seldom();
  m_host.isMenuVisible = m_input.Flag();
  m_host.isInMenu = m_input.Seldom();
  m_host.isInGroup = m_input.Flag();
  m_host.cursor = {m_input.Pixel(), m_input.Pixel()};
  m_edit.isVisible = m_input.Seldom();
  m_host.canConvertBack = !m_input.Seldom();
  m_host.viewport = static_cast<int>(m_input.Byte() % 4);
  m_host.keysDown.clear();
}

void Session::ChangeSettings() {
  g_bDisableHook = m_input.Seldom();
  g_nCustomFlag = static_cast<int>(m_input.Byte());
  g_bZoomKey = m_input.Flag();
  g_nSpeedMenu = static_cast<int>(m_input.Byte() % 6) - 1;
  g_nRBtnMenuTime = m_input.Seldom() ? static_cast<int>(m_input.Word()) : 250;
  g_bDblClkEditObj = m_input.Flag();
  g_nProductId = static_cast<int>(m_input.Byte() % 19);
  g_dHostVersion = kReleases[m_input.Byte() % std::size(kReleases)];
  g_bEnableSelectPreview = !m_input.Seldom();
  for (const wchar_t* name : {L"TILEMODE", L"CVPORT", L"GRIDMODE"})
    m_host.variables[name] =
        m_input.Seldom() ? static_cast<int>(m_input.Word()) : static_cast<int>(m_input.Byte() % 3);
}

void Session::ChangeFiles() {
  m_host.helpFile = m_input.Seldom() ? L"" : L"C:\\s\\qvx.chm";
  m_host.files.clear();
  if (!m_input.Seldom()) m_host.files.insert(L"qvxcmd.txt");
  m_host.canRead = !m_input.Seldom();
  m_host.command = m_input.Flag() ? L"LINE" : L"TWALL";
  m_host.bytes = m_input.Text(m_input.Byte());
  if (m_input.Flag()) m_host.bytes += "\nwalls TWall\nlines line\n";
}

void Session::ChangeObjects() {
  m_host.objects.clear();
  for (unsigned left = m_input.Byte() % 6; left; --left)
    m_host.objects.push_back({!m_input.Seldom(), static_cast<long>(m_input.Byte() % 3)});
  m_host.command = m_input.Flag() ? L"GRIP_STRETCH" : L"";
  m_host.isFloor = m_input.Seldom();
  m_host.isEditable = !m_input.Seldom();
}

// The pointer moves and rests, several times: the timer fires if a move has set it.
void Session::Pause() {
  m_preview.Change();
  for (unsigned left = m_input.Byte() % 8; left; --left) {
    Feed({kView, WM_MOUSEMOVE, 0, 0, m_time, {200, 150}});
    if (!std::exchange(m_isTimerSet, false)) continue;
    ++m_run.previewSteps;
    m_preview.Step({static_cast<LONG>(m_input.Byte() % 4), static_cast<LONG>(m_input.Byte() % 4)});
  }
}

bool IsFoundIn(const std::string& bytes, const std::string& word) {
  const auto fold = [](char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c + 32) : c; };
  const auto isSame = [&](char a, char b) { return fold(a) == fold(b); };
  return std::search(bytes.begin(), bytes.end(), word.begin(), word.end(), isSame) != bytes.end();
}

}  // namespace

void FilterFuzzRun::Add(const FilterFuzzRun& other) {
  for (const auto& [name, count] : other.operations) operations[name] += count;
  messages += other.messages;
  swallowed += other.swallowed;
  nested += other.nested;
  unloads += other.unloads;
  previewSteps += other.previewSteps;
  previewTurnOffs += other.previewTurnOffs;
}

FilterFuzzRun FuzzMessageFilter(const std::string& bytes) {
  SetDefaults();
  const FilterFuzzRun run = Session(bytes).Run();
  SetDefaults();
  return run;
}

bool FuzzHelpMap(const std::string& bytes) {
  bool found = false;
  Require(qvx::FindHelpKeyword(bytes, L"").IsEmpty(), "no command, no keyword");
  for (const char* command : {"TWALL", "a", "line2"}) {
    const std::wstring wide(command, command + std::char_traits<char>::length(command));
    const TWCString keyword = qvx::FindHelpKeyword(bytes, wide.c_str());
    if (keyword.IsEmpty()) continue;
    found = true;
    Require(keyword.Length() <= 255, "a keyword is at most as long as a line");
    Require(IsFoundIn(bytes, command), "only a command of the file has a keyword");
  }
  return found;
}
