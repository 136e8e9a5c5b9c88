// Keys and mouse of the in-place editor's box.
#include "editor/in_place_editor.h"

#include "editor/edit_box.h"
#include "editor/edit_state.h"
#include "kernel/globals.h"

namespace qvx {
namespace {

constexpr WPARAM kKeyLeft = 0x25, kKeyUp = 0x26, kKeyRight = 0x27, kKeyDown = 0x28;

}  // namespace

bool InPlaceEditor::PreTranslateMessage(const MSG& message) {
  if (!m_pSubText || !m_control.Exists()) return false;
  switch (message.message) {
    case WM_KEYDOWN:
      return OnKey(message.wParam);
    case WM_LBUTTONDOWN:
      m_drag.OnPress(m_control.Selection());
      return false;
    case WM_LBUTTONUP:
      OnButtonUp();
      return false;
    case WM_MOUSEWHEEL:
      m_host.PostWheelToView(message.wParam, message.lParam);
      return false;
    case kRepositionMessage:
      OnReposition();
      return false;
    default:
      return false;
  }
}

// In later hosts the box keeps its place, but the filter has hidden its caret.
void InPlaceEditor::OnReposition() {
  if (g_dHostVersion < kLastHostWithMovingBox)
    RepositionEdit();
  else
    m_control.ShowCaret();
}

bool InPlaceEditor::OnKey(WPARAM key) {
  if (m_isComposing) return false;
  switch (key) {
    case VK_RETURN:
      return OnEnter();
    case VK_F4:
      return ShowInPlaceMenu(m_host.CursorPosition());
    case VK_ESCAPE:
      CancelEdit();
      return true;
    case VK_TAB:
      GotoNextText(false, false);
      return true;
    default:
      return OnArrow(key);
  }
}

// An arrow at the edge of the text leaves the box. Deliberate: the text of a fresh box is all
// selected, so Right leaves it at once.
bool InPlaceEditor::LeavesBox(WPARAM key) {
  switch (key) {
    case kKeyRight:
      return m_control.Selection().end == m_control.TextLength();
    case kKeyLeft:
      return m_control.Selection().end == 0;
    case kKeyUp:
      return IsOneLine() || m_control.LineOf(m_control.Selection().start) == 0;
    case kKeyDown:
      return IsOneLine() ||
             m_control.LineOf(m_control.Selection().end) == m_control.LineCount() - 1;
    default:
      return false;
  }
}

bool InPlaceEditor::OnArrow(WPARAM key) {
  if (!LeavesBox(key)) return false;
  GotoNextText(key == kKeyUp || key == kKeyDown, key == kKeyLeft || key == kKeyUp);
  return true;
}

bool InPlaceEditor::OnEnter() {
  if (IsOneLine() && !m_bWrapped) {
    EndEdit(true);
    return true;
  }
  const int letter = m_control.Measure(L"a", MeasureFont::kBox).cy;
  if (const auto box = BoxWithLineMore(m_control.Box(), letter, m_control.ParentClient()))
    m_control.Move(*box);
  return false;
}

void InPlaceEditor::AfterButtonDown() {
  if (!m_pSubText || !m_control.Exists()) return;
  const auto restored = m_drag.AfterPress(m_control.Selection());
  if (!restored) return;
  const EditWatch watch(m_state);
  watch.Run([&] { m_control.Select(*restored); }, [&] { m_control.ScrollToCaret(); });
}

void InPlaceEditor::AfterMouseMove() {
  if (!m_pSubText || !m_drag.Follows() || !m_control.Exists()) return;
  const TextRange restored = m_drag.AfterMove(m_control.Selection());
  const EditWatch watch(m_state);
  watch.Run([&] { m_control.Select(restored); }, [&] { m_control.ScrollToCaret(); },
            [&] { m_control.HideCaret(); });
}

void InPlaceEditor::OnButtonUp() {
  const bool drops = m_drag.IsDropping();
  const DropResult drop =
      m_drag.OnRelease(drops ? m_control.Text() : std::wstring(), drops && m_host.IsCtrlDown());
  const EditWatch watch(m_state);
  if (drop.text) {
    const bool lasts =
        watch.Run([&] { m_control.SetText(*drop.text); }, [&] { AdjustEditSize(); },
                  [&] { m_control.Select(*drop.selection); }, [&] { m_control.ScrollToCaret(); },
                  [&] { m_control.SetModified(true); });
    if (!lasts) return;
  } else if (drop.selection) {
    m_control.Select(*drop.selection);
    return;
  }
  for (int left = drop.caretHides; left > 0; --left) m_control.ShowCaret();
}

void InPlaceEditor::OnChange() {
  if (!m_pSubText || m_bCentreGrow) return;  // the opening sizes the box itself
  const EditWatch watch(m_state);
  watch.Run([&] { AdjustEditSize(); }, [&] { m_host.SetTextCursor(); });
}

}  // namespace qvx
