// Begin, commit and cancel of an edit. The opening of the box is in in_place_opening.cpp, input in
// in_place_input.cpp, the menu in in_place_menu.cpp.
#include "editor/in_place_editor.h"

#include <utility>

#include "editor/block_references.h"
#include "editor/edit_state.h"
#include "editor/text_wrap.h"

namespace qvx {

InPlaceEditor::InPlaceEditor(EditHost& host, EditControl& control, BlockReferences& blocks)
    : m_state(std::make_shared<EditState>()), m_host(host), m_control(control), m_blocks(blocks) {}

InPlaceEditor::~InPlaceEditor() { m_state->isAlive = false; }

void InPlaceEditor::BeginEdit(std::unique_ptr<EditFragment> text, const AcGeMatrix3d& toWorld) {
  if (!text || m_state->isClosing || IsOpen(*text) || !m_host.HasView()) return;
  if (MakeCurrent(std::move(text))) OpenBox(toWorld);
}

bool InPlaceEditor::IsOpen(const EditFragment& text) const {
  return m_pSubText && m_pSubText->GetObjectId() == text.GetObjectId() &&
         m_pSubText->GetIndex() == text.GetIndex();
}

// Closes what is open. False when the edit can't go on; the fragment is deleted then.
bool InPlaceEditor::MakeCurrent(std::unique_ptr<EditFragment> text) {
  const AcApDocument* const document = m_host.CurrentDocument();
  const bool isSame = m_pSubText && m_pSubText->GetObjectId() == text->GetObjectId();
  if (isSame && m_control.Exists() && m_control.IsModified() && m_control.TextLength() == 0 &&
      m_host.IsInSight(text->GetObjectId()) && text->GetIndex() > m_pSubText->GetIndex())
    text->SetIndex(text->GetIndex() - 1);  // the emptied fragment will be removed
  const EditWatch before(m_state);
  EndEdit(!isSame);
  if (before.IsEditorGone() || before.HasDrawingGone() || m_host.CurrentDocument() != document)
    return false;
  m_pSubText = std::move(text);
  m_document = document;
  ++m_state->edits;
  if (isSame) return true;
  const EditWatch watch(m_state);
  const std::shared_ptr<EditFragment> fragment = m_pSubText;
  fragment->Highlight(true);
  return !watch.IsGone();
}

void InPlaceEditor::EndEdit(bool unhighlight) {
  if (!m_pSubText || m_state->isClosing) return;
  if (!m_control.Exists()) return ReleaseFragment();
  const EditClosing closing(m_state);
  WriteBack(unhighlight, closing);
  if (closing.IsEditorGone()) return;
  ReleaseFragment();
  if (closing.IsEditorGone()) return;
  m_control.Destroy();
  if (!closing.MayGoOn()) return;
  m_blocks.ReportSameNameBlocks();
  if (!closing.MayGoOn()) return;
  m_blocks.UpdateDynBlock();
}

void InPlaceEditor::WriteBack(bool unhighlight, const EditClosing& closing) {
  const std::shared_ptr<EditFragment> fragment = m_pSubText;
  if (unhighlight) fragment->Highlight(false);
  if (!closing.MayGoOn() || !m_control.Exists() || !m_control.IsModified()) return;
  const bool isWritten = WriteText(*fragment, closing);
  if (isWritten && closing.MayGoOn() && !unhighlight) fragment->Highlight(true);
}

// Inside one lock of the document. False when it could not be locked.
bool InPlaceEditor::WriteText(EditFragment& fragment, const EditClosing& closing) {
  std::wstring text = m_control.Text();
  if (m_bWrapped) text = UnwrapText(text);
  const std::unique_ptr<DocumentLock> lock = m_host.LockCurrentDocument();
  if (!lock || !closing.MayGoOn()) return false;
  fragment.Update(text);
  return true;
}

void InPlaceEditor::CancelEdit() {
  if (m_state->isClosing) {
    m_state->isAbandoned = true;
    return;
  }
  const EditClosing closing(m_state);
  if (m_pSubText) {
    const std::shared_ptr<EditFragment> fragment = m_pSubText;
    fragment->Highlight(false);
    if (closing.IsEditorGone()) return;
    ReleaseFragment();
  }
  if (closing.IsEditorGone()) return;
  if (m_control.Exists()) m_control.Destroy();
}

// The editor is not used once the fragment is deleted.
void InPlaceEditor::ReleaseFragment() {
  const std::shared_ptr<EditFragment> fragment = std::move(m_pSubText);
  m_bCentreGrow = m_bInSubDialog = m_isComposing = false;
  ++m_state->edits;
}

void InPlaceEditor::GotoNextText(bool vertical, bool backward) {
  if (!m_pSubText) return;
  const EditWatch watch(m_state);
  std::shared_ptr<EditFragment> fragment = m_pSubText;
  std::unique_ptr<EditFragment> next = fragment->GetNext(vertical, backward);
  fragment.reset();
  if (next && !watch.IsGone()) BeginEdit(std::move(next), AcGeMatrix3d());
}

void InPlaceEditor::OnDrawingDeactivated(const AcApDocument* document) {
  if (document == m_document) EndEdit(true);
}

void InPlaceEditor::OnDrawingDestroyed(const AcApDocument* document) {
  ++m_state->destroyed;
  if (!document || document != m_document) return;
  m_document = nullptr;
  if (m_pSubText || m_state->isClosing) CancelEdit();
}

}  // namespace qvx
