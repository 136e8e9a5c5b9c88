// The messages of the control and the reactors. Its operations are in in_place_box.cpp.
#include "editor/win/in_place_edit_wnd.h"

#include <imm.h>

#include "editor/edited_kind.h"
#include "editor/editor_door.h"
#include "editor/in_place_edit.h"
#include "editor/kernel_fragment.h"
#include "ground/guard.h"
#include "ground/json_text.h"
#include "kernel/globals.h"
#include "rxdict.h"

CInPlaceEdit g_InPlaceEdit;

IMPLEMENT_DYNAMIC(CInPlaceEdit, CEdit)

BEGIN_MESSAGE_MAP(CInPlaceEdit, CEdit)
ON_WM_LBUTTONDOWN()
ON_WM_MOUSEMOVE()
ON_CONTROL_REFLECT(EN_CHANGE, OnChange)
ON_WM_CTLCOLOR_REFLECT()
ON_WM_MEASUREITEM()
ON_WM_MENUCHAR()
ON_WM_MENUSELECT()
ON_WM_EXITMENULOOP()
ON_COMMAND_RANGE(qvx::kFirstEditCommand, qvx::kLastEditCommand, OnMenuCommand)
ON_MESSAGE(WM_IME_STARTCOMPOSITION, OnStartComposition)
ON_MESSAGE(WM_IME_COMPOSITION, OnComposition)
ON_MESSAGE(WM_IME_ENDCOMPOSITION, OnEndComposition)
ON_MESSAGE(WM_GETOBJECT, OnGetObject)
ON_WM_DESTROY()
END_MESSAGE_MAP()

namespace {

AcEditor* HostEditor() {
  AcRxDictionary* registry = acrxSysRegistry();
  return registry ? AcEditor::cast(registry->at(ACED_EDITOR_OBJ)) : nullptr;
}

// Puts the window of the input method at the caret.
void MoveCompositionToCaret(HWND window) {
  COMPOSITIONFORM form{};
  form.dwStyle = CFS_POINT;
  const HIMC context = ::ImmGetContext(window);
  if (!context) return;
  if (::GetCaretPos(&form.ptCurrentPos)) ::ImmSetCompositionWindow(context, &form);
  ::ImmReleaseContext(window, context);
}

// The control with the name of what is edited.
class NamedBox final : public qvx::AccessibleObject {
 public:
  NamedBox(IAccessible* standard, std::wstring name)
      : AccessibleObject(standard), m_name(std::move(name)) {}

  void OnDisconnect() override { m_name.clear(); }
  STDMETHODIMP get_accName(VARIANT child, BSTR* name) override {
    return qvx::GuardedOr(HRESULT{E_OUTOFMEMORY}, [&]() -> HRESULT {
      if (m_name.empty() || !qvx::IsSelf(child)) return Standard().get_accName(child, name);
      return qvx::GiveText(m_name, name);
    });
  }

 private:
  std::wstring m_name;  // empty when the box is gone
};

}  // namespace

CInPlaceEdit::CInPlaceEdit() {
  qvx::Guarded([this] {
    if (AcEditor* editor = HostEditor()) editor->addReactor(this);
    if (acDocManager) acDocManager->addReactor(&m_reactor);
  });
}

// Runs after the kernel was unloaded: no edit is open then.
CInPlaceEdit::~CInPlaceEdit() {
  qvx::Guarded([this] {
    if (acDocManager) acDocManager->removeReactor(&m_reactor);
    if (AcEditor* editor = HostEditor()) editor->removeReactor(this);
    DestroyWindow();
  });
}

void CInPlaceEdit::commandWillStart(const ACHAR*) {
  qvx::Guarded([this] { m_editor.EndEdit(true); });
}

void CInPlaceEdit::lispWillStart(const ACHAR*) {
  qvx::Guarded([this] { m_editor.EndEdit(true); });
}

BOOL CInPlaceEdit::PreTranslateMessage(MSG* message) {
  return qvx::GuardedOr(FALSE, [&] {
    if (m_editor.PreTranslateMessage(*message)) return TRUE;
    return CEdit::PreTranslateMessage(message);
  });
}

void InPlaceOpener::BeginEdit(std::unique_ptr<qvx::EditFragment> text,
                              const AcGeMatrix3d& toWorld) {
  m_editor.BeginEdit(std::move(text), toWorld);
}

void CInPlaceEdit::EditPickedText() {
  qvx::LiveTextCommandHost host(m_opener);
  qvx::EditPickedText(host);
}

void CInPlaceEdit::EditTextInBlock() {
  qvx::LiveBlockTextHost host(m_opener);
  qvx::EditTextInBlock(host, m_blocks);
}

// What a cancelled edit left must not outlive the kernel.
void CInPlaceEdit::CommitForUnload() {
  m_editor.EndEdit(true);
  m_blocks.NoteSameName(nullptr);
  m_blocks.ForgetDynamicBlock();
}

void CInPlaceEdit::OnDrawingDestroyed(AcApDocument* document) {
  m_opener.OnDrawingDestroyed();
  m_editor.OnDrawingDestroyed(document);
  m_blocks.OnDrawingDestroyed(document);
}

// ---- messages

void CInPlaceEdit::OnLButtonDown(UINT flags, CPoint point) {
  CEdit::OnLButtonDown(flags, point);
  m_editor.AfterButtonDown();
}

void CInPlaceEdit::OnMouseMove(UINT flags, CPoint point) {
  CEdit::OnMouseMove(flags, point);
  m_editor.AfterMouseMove();
}

void CInPlaceEdit::OnChange() { m_editor.OnChange(); }

HBRUSH CInPlaceEdit::CtlColor(CDC* dc, UINT) {
  m_brush.DeleteObject();
  m_brush.CreateSolidBrush(g_colorInPlaceGround);
  dc->SetTextColor(g_colorInPlaceText);
  dc->SetBkColor(g_colorInPlaceGround);
  return m_brush;
}

void CInPlaceEdit::OnMeasureItem(int control, LPMEASUREITEMSTRUCT item) {
  if (!m_host.Popup().Measure(*item)) CEdit::OnMeasureItem(control, item);
}

LRESULT CInPlaceEdit::OnMenuChar(UINT character, UINT flags, CMenu* menu) {
  const CBitmapMenu* ours = m_host.Popup().Find(menu);
  return ours ? ours->MenuCharSearch(character, flags) : CEdit::OnMenuChar(character, flags, menu);
}

void CInPlaceEdit::OnMenuSelect(UINT id, UINT flags, HMENU menu) {
  CEdit::OnMenuSelect(id, flags, menu);
  if (m_host.IsMenuGone()) m_editor.OnMenuReplaced();
  m_editor.OnMenuSelect(id, flags);
}

void CInPlaceEdit::OnExitMenuLoop(BOOL isShortcut) {
  CEdit::OnExitMenuLoop(isShortcut);
  m_editor.OnExitMenuLoop();
}

void CInPlaceEdit::OnMenuCommand(UINT id) { m_editor.OnMenuCommand(static_cast<int>(id)); }

LRESULT CInPlaceEdit::OnStartComposition(WPARAM, LPARAM) {
  m_editor.OnComposition(true);
  MoveCompositionToCaret(m_hWnd);
  return Default();
}

// A part of the text may be done, which moves the caret.
LRESULT CInPlaceEdit::OnComposition(WPARAM, LPARAM) {
  const LRESULT result = Default();
  if (m_hWnd) MoveCompositionToCaret(m_hWnd);
  return result;
}

LRESULT CInPlaceEdit::OnEndComposition(WPARAM, LPARAM) {
  m_editor.OnComposition(false);
  return Default();
}

// The window system's own object has everything but the name.
LRESULT CInPlaceEdit::OnGetObject(WPARAM wParam, LPARAM lParam) {
  if (static_cast<LONG>(lParam) != OBJID_CLIENT) return Default();
  return m_access.Answer(m_hWnd, wParam, [this](IAccessible* standard) {
    return new NamedBox(standard, qvx::KindOfText(LiveEditHost::TypeOf(m_editor.EditedObject())));
  });
}

// The menu of the box closes with it.
void CInPlaceEdit::OnDestroy() {
  m_access.Disconnect();
  m_host.CloseMenu();
  m_editor.OnExitMenuLoop();
  CEdit::OnDestroy();
}

// ---- the reactor of drawings

void EditedDrawings::documentToBeDeactivated(AcApDocument* document) {
  qvx::Guarded([&] { m_edit.Editor().OnDrawingDeactivated(document); });
}

void EditedDrawings::documentToBeDestroyed(AcApDocument* document) {
  qvx::Guarded([&] { m_edit.OnDrawingDestroyed(document); });
}

// ---- the message filter's view of the editor, and the door

namespace {

class FilterEdit final : public InPlaceEdit {
 public:
  bool IsVisible() override { return g_InPlaceEdit.m_hWnd && g_InPlaceEdit.IsWindowVisible(); }
  void BeginEdit(TSubText* fragment, const AcGeMatrix3d& toWorld) override {
    g_InPlaceEdit.Editor().BeginEdit(qvx::MakeFragment(fragment), toWorld);
  }
  void EndEdit(bool unhighlight) override { g_InPlaceEdit.Editor().EndEdit(unhighlight); }
  bool ShowInPlaceMenu(POINT at) override { return g_InPlaceEdit.Editor().ShowInPlaceMenu(at); }
  void HideCaret() override {
    if (g_InPlaceEdit.m_hWnd) ::HideCaret(g_InPlaceEdit.m_hWnd);
  }
  void PostMove() override {
    if (g_InPlaceEdit.m_hWnd) g_InPlaceEdit.PostMessage(qvx::kRepositionMessage);
  }
};

}  // namespace

InPlaceEdit& TheInPlaceEdit() {
  static FilterEdit edit;
  return edit;
}

void CommitInPlaceEdit() { g_InPlaceEdit.CommitForUnload(); }
void RunInPlaceEdit() { g_InPlaceEdit.EditPickedText(); }
void RunTextEditInBlock() { g_InPlaceEdit.EditTextInBlock(); }

std::string DescribeInPlaceEdit() {
  const qvx::InPlaceEditor& editor = g_InPlaceEdit.Editor();
  if (!editor.IsEditing() || !g_InPlaceEdit.m_hWnd) return "{\"open\":false}";
  InPlaceBox box(g_InPlaceEdit);
  const qvx::TextRange selection = box.Selection();
  return "{\"open\":true,\"rect\":" + qvx::JsonRect(box.BoxOnScreen()) +
         ",\"text\":" + qvx::JsonString(box.Text()) + ",\"selection\":[" +
         std::to_string(selection.start) + "," + std::to_string(selection.end) + "]" +
         ",\"wrapped\":" + qvx::JsonWord(editor.IsWrapped()) +
         ",\"multiline\":" + qvx::JsonWord(editor.IsMultiLine()) + "}";
}
