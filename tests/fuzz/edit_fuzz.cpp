// The records of the in-place editor's fuzzer.
#include <algorithm>

#include "kernel/globals.h"
#include "tests/fuzz/edit_fuzz_session.h"

namespace editfuzz {
namespace {

constexpr int kMostDepth = 3;  // of records within operations
constexpr int kMostNestedRecords = 4;
constexpr double kReleases[] = {17.2, 18.11, 21, 24.1};
constexpr WPARAM kArrows[] = {0x25, 0x26, 0x27, 0x28};  // left, up, right, down

}  // namespace

using fuzz::Require;

Session::Session(const std::string& bytes) : m_input(bytes) {
  m_objects.resize(4);
  m_objects[0].texts = {L"Kitchen"};
  m_objects[1].texts = {L"a", L"b", L"cc", L"d", L"", L"f", L"ggg", L"h"};
  m_objects[1].columns = 4;
  m_objects[2].texts = {L"one\r\ntwo", L"three\n"};
  m_objects[2].isMultiLine = true;
  m_objects[3].texts = {L"x", L"y", L"z", L"w"};
  m_objects[3].isInSight = true;
  for (size_t i = 0; i < m_objects.size(); ++i) {
    m_objects[i].number = i + 1;
    m_objects[i].menuType = static_cast<int>(i);
    m_model.objects.push_back({m_objects[i].texts, static_cast<long>(m_objects[i].columns),
                               m_objects[i].isMultiLine, m_objects[i].isInSight});
  }
  m_host.inSight = {4};
  m_host.menus[L"INPLACE"] = {{5007, L"degree"}};
  m_host.menus[L"INPLACE2"] = {};
  m_host.screenWidth = 1600;
  g_dHostVersion = 24.1;
  m_diary.onNote = [this](const std::string& entry) { OnNote(entry); };
  m_editor = std::make_unique<qvx::InPlaceEditor>(m_host, m_control, m_blocks);
}

Session::~Session() {
  m_diary.onNote = nullptr;
  m_editor.reset();
  for (const edittest::TextObject& object : m_objects)
    Require(object.live == 0, "every fragment has been deleted");
  g_dHostVersion = 24.1;
}

EditFuzzRun Session::Run() {
  while (!m_input.IsEmpty()) Record();
  return m_run;
}

// Foreign code runs in the middle of the operation that an armed countdown reaches, unless it is
// one of those that run none.
void Session::OnNote(const std::string& entry) {
  const std::string word = entry.substr(0, entry.find(' '));
  ++m_run.operations[word];
  if (entry.starts_with("highlight ")) m_highlighted.insert(entry.substr(10));
  if (entry.starts_with("unhighlight ")) m_highlighted.erase(entry.substr(12));
  m_locks += entry == "lock" ? 1 : entry == "unlock" ? -1 : 0;
  if (entry.starts_with("update ")) Require(m_locks == 1, "a write needs the lock");
  static const std::set<std::string> quiet{"measured",   "index",      "menu",  "modified",
                                           "unmodified", "invalidate", "wheel", "cursor"};
  if (quiet.count(word) || entry == "text cursor" || entry.ends_with(" caret")) return;
  if (m_countdown < 0 || m_countdown-- > 0 || m_depth >= kMostDepth) return;
  m_isDisturbed = true;
  ++m_depth;
  for (unsigned left = 1 + m_input.Byte() % kMostNestedRecords; left; --left) Record();
  --m_depth;
  m_isDisturbed = true;
}

void Session::Record() {
  ++m_run.records;
  m_run.nested += m_depth > 0;
  if (!m_editor && m_depth == 0)
    m_editor = std::make_unique<qvx::InPlaceEditor>(m_host, m_control, m_blocks);
  if (!m_editor) return;
  if (m_depth == 0) m_isDisturbed = false;
  if (m_depth > 0) Guess();
  m_diary.entries.clear();
  void (Session::*const records[])() = {
      &Session::Change,  &Session::Begin,   &Session::Begin,  &Session::Type, &Session::Type,
      &Session::Select,  &Session::Key,     &Session::Arrow,  &Session::Drag, &Session::Drag,
      &Session::Command, &Session::Command, &Session::Notify, &Session::View, &Session::Arm};
  (this->*records[m_input.Byte() % std::size(records)])();
  if (m_depth > 0) return;
  CheckAlways();
  if (m_isDisturbed || m_isWindowLost) Follow();
}

void Session::Arm() { m_countdown = Below(12); }

void Session::Change() {
  const double screens[] = {1600, 100, 0, 4801, 60};
  m_host.screenWidth = screens[Below(std::size(screens))];
  m_host.canLock = m_model.canLock = !m_input.Seldom();
  m_references.canLock = !m_input.Seldom();
  m_host.hasView = !m_input.Seldom();
  m_host.isCtrlDown = m_input.Flag();
  m_host.hasDialog = !m_input.Seldom();
  m_host.chooses = !m_input.Seldom();
  m_host.choice = std::wstring(m_input.Byte() % 4 + 1, L'#');
  m_control.canCreate = !m_input.Seldom();
  const LONG heights[] = {20, 0, 1, 1000, -1};
  m_control.letterHeight = heights[Below(std::size(heights))];
  m_control.letterWidth = static_cast<LONG>(m_input.Byte() % 16);
  m_control.parent = m_input.Seldom() ? RECT{0, 0, 20, 12} : RECT{0, 0, 800, 600};
  g_dHostVersion = kReleases[Below(std::size(kReleases))];
}

std::unique_ptr<qvx::EditFragment> Session::Piece(size_t object, size_t piece) {
  return std::make_unique<edittest::FragmentDouble>(m_diary, m_objects[object], piece);
}

void Session::Begin() {
  const auto object = static_cast<size_t>(Below(m_objects.size()));
  if (m_objects[object].texts.empty()) return;
  const auto piece = static_cast<size_t>(Below(m_objects[object].texts.size()));
  const ModelBox before = m_model.box;
  const bool isOpen =
      m_model.isEditing && before.object == object && before.piece == piece && !m_isWindowLost;
  if (m_host.hasView) m_model.Open(object, piece);
  const std::wstring whole = m_model.box.text;
  m_editor->BeginEdit(Piece(object, piece), AcGeMatrix3d());
  if (m_isDisturbed || m_isWindowLost || m_depth > 0) return;
  if (m_host.hasView && !isOpen) {
    m_model.isEditing = m_control.canCreate;
    if (m_model.isEditing) CheckOpened(whole);
    m_isComposing = false;
  }
  Check("begin");
}

void Session::Type() {
  if (!m_editor->IsEditing() || !m_control.exists) return;
  ModelBox& box = m_model.box;
  const std::wstring typed(m_input.Byte() % 8, static_cast<wchar_t>(L'A' + m_input.Byte() % 26));
  const qvx::TextRange at = m_control.selection;
  m_control.text.replace(static_cast<size_t>(at.start), static_cast<size_t>(at.end - at.start),
                         typed);
  const int caret = at.start + static_cast<int>(typed.size());
  m_control.selection = {caret, caret};
  m_control.isModified = true;
  box.text = m_control.text;
  box.start = box.end = caret;
  box.isModified = true;
  m_editor->OnChange();
  Check("type");
}

void Session::Select() {
  if (!m_editor->IsEditing() || !m_control.exists) return;
  const int a = Position(), b = Position();
  m_control.selection = {std::min(a, b), std::max(a, b)};
  m_model.box.start = std::min(a, b);
  m_model.box.end = std::max(a, b);
}

bool Session::Send(UINT number, WPARAM wParam) {
  return m_editor && m_editor->PreTranslateMessage({nullptr, number, wParam, 1, 0, {0, 0}});
}

// The model opens the neighbour, if there is one and a view to show it.
void Session::ExpectNext(bool vertical, bool backward) {
  const ModelBox before = m_model.box;
  if (!m_host.hasView || !m_model.OpenNext(vertical, backward)) return;
  if (m_model.box.object == before.object && m_model.box.piece == before.piece &&
      m_model.box.text == before.text)
    return;
  m_model.isEditing = m_control.canCreate;
}

void Session::Key() {
  if (!m_editor->IsEditing() || !m_control.exists) return;
  const WPARAM keys[] = {VK_RETURN, VK_ESCAPE, VK_TAB, VK_TAB, VK_F4, 'A', VK_DELETE};
  const WPARAM key = keys[Below(std::size(keys))];
  const bool isCommit = key == VK_RETURN && m_model.IsOneLine() && !m_model.box.isWrapped;
  bool consumed = key == VK_TAB || key == VK_ESCAPE || isCommit;
  if (key == VK_F4) {
    const auto name = L"INPLACE" + std::to_wstring(m_model.box.object);
    consumed = m_host.menus.count(m_model.box.object == 0 ? L"INPLACE" : name) != 0;
  }
  bool isOpened = false;
  std::wstring whole;
  if (m_isComposing) {
    consumed = false;
  } else if (isCommit) {
    m_model.Commit();
  } else if (key == VK_ESCAPE) {
    m_model.Cancel();
  } else if (key == VK_TAB) {
    const ModelBox before = m_model.box;
    ExpectNext(false, false);
    isOpened =
        m_model.isEditing && (m_model.box.piece != before.piece || m_model.box.text != before.text);
    whole = m_model.box.text;
  }
  const bool wasConsumed = Send(WM_KEYDOWN, key);
  if (m_isDisturbed || m_depth > 0) return;
  Require(wasConsumed == consumed, "a key is consumed as the table says");
  if (isOpened) CheckOpened(whole);
  if (isOpened) m_isComposing = false;
  if (key == VK_RETURN && !consumed) {
    m_control.isModified = m_model.box.isModified = true;
    m_control.text.insert(static_cast<size_t>(m_control.selection.start), L"\r\n");
    m_control.selection = {0, 0};
    m_model.box.text = m_control.text;
    m_model.box.start = m_model.box.end = 0;
  }
  Check("key");
}

void Session::Arrow() {
  if (!m_editor->IsEditing() || !m_control.exists) return;
  const int which = Below(std::size(kArrows));
  const ModelBox before = m_model.box;
  const int lines = LineOf(before.text, static_cast<int>(before.text.size()));
  const bool at[] = {before.end == 0, m_model.IsOneLine() || LineOf(before.text, before.start) == 0,
                     before.end == static_cast<int>(before.text.size()),
                     m_model.IsOneLine() || LineOf(before.text, before.end) == lines};
  const bool leaves = at[which] && !m_isComposing;
  bool isOpened = false;
  if (leaves) {
    ExpectNext(which == 1 || which == 3, which == 0 || which == 1);
    isOpened =
        m_model.isEditing && (m_model.box.piece != before.piece || m_model.box.text != before.text);
  }
  const std::wstring whole = m_model.box.text;
  const bool consumed = Send(WM_KEYDOWN, kArrows[which]);
  if (m_isDisturbed || m_depth > 0) return;
  Require(consumed == leaves, "an arrow leaves at the edge of the text only");
  if (isOpened) CheckOpened(whole);
  Check("arrow");
}

void Session::Drag() {
  if (!m_editor->IsEditing() || !m_control.exists) return;
  ModelBox& box = m_model.box;
  const int a = box.start, b = box.end, press = Position();
  const bool drags = !box.isFresh && a != b;
  const bool copies = m_host.isCtrlDown;
  box.isFresh = false;
  Send(WM_LBUTTONDOWN);
  m_control.selection = {press, press};
  m_editor->AfterButtonDown();
  if (!m_editor) return;
  int drop = press != 0 ? press : m_dropPos, moves = Below(4);
  for (int left = moves; left > 0; --left) {
    const int to = Position();
    if (drags) m_control.selection = to < a ? qvx::TextRange{to, b} : qvx::TextRange{a, to};
    if (to < a || to > b) drop = to;
    m_editor->AfterMouseMove();
    if (!m_editor) return;
  }
  Send(WM_LBUTTONUP);
  // The position of a box before may be beyond this text.
  drop = std::min(drop, static_cast<int>(box.text.size()));
  if (m_isDisturbed || m_depth > 0) return;
  if (drags && moves > 0) {
    const std::wstring moved = MovedText(box.text, a, b, drop, copies);
    const bool isDropped = drop < a || drop > b;
    box.text = moved;
    box.isModified |= isDropped;
    if (isDropped) {
      m_dropPos = drop > b && !copies ? drop - (b - a) : drop;
      Require(m_control.text.substr(static_cast<size_t>(m_control.selection.start),
                                    static_cast<size_t>(b - a)) ==
                  moved.substr(static_cast<size_t>(m_dropPos), static_cast<size_t>(b - a)),
              "the dropped text is selected");
    }
  }
  if (drags && moves == 0)
    Require(m_control.selection == qvx::TextRange{drop, drop},
            "a plain click collapses the selection");
  m_dropPos = m_editor->Drag().m_nDropPos;
  box.start = m_control.selection.start;
  box.end = m_control.selection.end;
  Require(m_control.caretHides == 0, "the caret is shown as often as it was hidden");
  Check("drag");
}

void Session::Command() {
  if (!m_editor->IsEditing() || !m_control.exists) return;
  const int command = 5000 + Below(28);
  ModelBox& box = m_model.box;
  const bool isDialog = command == 5015 || command == 5016;
  std::wstring text;
  int caret = 0;
  if (isDialog && (!m_host.hasDialog || !m_host.chooses)) {
    // Nothing changes.
  } else if (CommandText(command, box, m_host.choice, text, caret)) {
    box.text = text;
    box.start = box.end = caret;
    box.isModified = true;
  } else if (command == 5018 || command == 5023) {
    box.text = command == 5018 ? box.text + L"<" : L"";
    box.isModified = true;
    m_model.Commit();
  } else if (command == 5001 || command == 5019 || command == 5020) {
    m_model.Commit();
  } else if (command == 5002 || command == 5003 || command == 5021 || command == 5022) {
    m_model.Cancel();
  }
  m_editor->OnMenuCommand(command);
  Check("command");
}

void Session::Close(bool commits) {
  if (commits)
    m_model.Commit();
  else
    m_model.Cancel();
}

void Session::Notify() {
  switch (m_input.Byte() % 8) {
    case 0:
    case 1:
      Close(true);
      m_editor->EndEdit(true);
      break;
    case 2:
      Close(true);
      m_editor->OnDrawingDeactivated(m_host.document);
      break;
    case 3:
      Close(false);
      m_editor->OnDrawingDestroyed(m_host.document);
      break;
    case 4:
      m_editor->OnDrawingDestroyed(edittest::Document(7));
      m_editor->OnDrawingDeactivated(edittest::Document(7));
      break;
    case 5:
      m_isComposing = m_editor->IsEditing() && m_input.Flag();
      m_editor->OnComposition(m_isComposing);
      break;
    case 6:
      if (m_depth > 0) {
        m_editor.reset();
        ++m_run.unloads;
      }
      return;
    default:
      if (!m_editor->IsEditing() || !m_control.exists) return;
      m_control.exists = false;
      m_isWindowLost = true;
      return;
  }
  if (m_editor && !m_editor->IsEditing()) m_isComposing = false;
  Check("notify");
}

void Session::View() {
  const bool isEditing = m_editor->IsEditing() && m_control.exists;
  const RECT before = m_control.box;
  const auto shift = static_cast<double>(m_input.Byte()) * 8 - 800;
  for (edittest::TextObject& object : m_objects) {
    object.lower = {100 + shift, 50, 0};
    object.upper = {180 + shift, 70, 0};
  }
  Send(m_input.Flag() ? 1025 : UINT{WM_MOUSEWHEEL});
  if (isEditing && !m_isDisturbed && m_depth == 0)
    Require(m_control.box.right - m_control.box.left >= before.right - before.left,
            "the box does not shrink");
  Check("view");
}

}  // namespace editfuzz

void EditFuzzRun::Add(const EditFuzzRun& other) {
  for (const auto& [name, count] : other.operations) operations[name] += count;
  for (const auto& [name, count] : other.checked) checked[name] += count;
  records += other.records;
  nested += other.nested;
  unloads += other.unloads;
}

EditFuzzRun FuzzInPlaceEdit(const std::string& bytes) { return editfuzz::Session(bytes).Run(); }
