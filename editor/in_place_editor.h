// The in-place text editor without its window: which piece of text is edited, the opening, commit
// and cancel of the box, keys, mouse and menu commands. CInPlaceEdit owns one and implements
// EditControl; it also has the fields m_font and m_brush. Each border of the module calls one
// operation here.
//
// Every call of the host, of the control or of a fragment may run foreign code, which can end the
// edit or unload the module: such a call is followed by a question to a watch. While the box
// closes, nested calls do not open, commit or close it.
#pragma once

#include <memory>
#include <string>

#include "editor/edit_control.h"
#include "editor/edit_fragment.h"
#include "editor/edit_host.h"
#include "editor/text_drag.h"

namespace qvx {

class BlockReferences;
class EditClosing;
struct ClosingCommand;
struct EditState;
struct TextChange;
struct TextPlace;

constexpr UINT kRepositionMessage = 1025;  // WM_USER + 1, which the message filter posts
constexpr int kFirstEditCommand = 5001, kLastEditCommand = 6000;

class InPlaceEditor {
 public:
  // All outlive the editor.
  InPlaceEditor(EditHost& host, EditControl& control, BlockReferences& blocks);
  ~InPlaceEditor();
  InPlaceEditor(const InPlaceEditor&) = delete;
  InPlaceEditor& operator=(const InPlaceEditor&) = delete;

  bool IsEditing() const { return m_pSubText != nullptr; }
  // The object whose text is edited; null when the editor is idle.
  AcDbObjectId EditedObject() const {
    return m_pSubText ? m_pSubText->GetObjectId() : AcDbObjectId();
  }

  // `toWorld` carries the corners of the text from their own space to the world.
  void BeginEdit(std::unique_ptr<EditFragment> text, const AcGeMatrix3d& toWorld);
  void EndEdit(bool unhighlight);
  void CancelEdit();
  // Opens the neighbour; nothing at the end of the chain. A transform is not kept.
  void GotoNextText(bool vertical, bool backward);
  void AdjustEditSize();
  // Moves the box over its text when the view has changed.
  void RepositionEdit();

  // Messages of the control before it handles them; true consumes the message.
  bool PreTranslateMessage(const MSG& message);
  // Messages that the control has handled.
  void AfterButtonDown();
  void AfterMouseMove();
  void OnChange();
  // While an input method composes, all keys are the composition's.
  void OnComposition(bool runs) { m_isComposing = runs; }

  // True when the fragment has a menu; it was tracked.
  bool ShowInPlaceMenu(POINT screen);
  void OnMenuSelect(UINT id, UINT flags);
  void OnExitMenuLoop();
  void OnMenuReplaced() { m_pMenuBar = nullptr; }  // another menu is in force
  void OnMenuCommand(int command);

  // Notifications of the host.
  void OnDrawingDeactivated(const AcApDocument* document);
  void OnDrawingDestroyed(const AcApDocument* document);

  const TextDrag& Drag() const { return m_drag; }
  bool IsMultiLine() const { return m_pSubText && m_pSubText->IsMultiLine(); }
  bool IsWrapped() const { return m_bWrapped; }
  bool IsInSubDialog() const { return m_bInSubDialog; }

 private:
  // Opening.
  bool IsOpen(const EditFragment& text) const;
  bool MakeCurrent(std::unique_ptr<EditFragment> text);
  void OpenBox(const AcGeMatrix3d& toWorld);
  void ResetForBox();
  void PlaceFirstBox(POINT centre, const TextPlace& place, bool isEmpty);
  void FillBox(const std::wstring& text);
  void SelectAndSize();
  void FinishOpening(const TextPlace& place);
  TextPlace FindPlace(const AcGeMatrix3d& toWorld);
  // Closing.
  void WriteBack(bool unhighlight, const EditClosing& closing);
  bool WriteText(EditFragment& fragment, const EditClosing& closing);
  void ReleaseFragment();
  // Input.
  bool OnKey(WPARAM key);
  bool LeavesBox(WPARAM key);
  bool OnArrow(WPARAM key);
  bool OnEnter();
  void OnButtonUp();
  void OnReposition();
  bool IsOneLine() const { return !m_pSubText->IsMultiLine(); }
  // Menu commands.
  void Close(const ClosingCommand& command);
  void ChangeText(const TextChange& change);
  void InsertByDialog(bool isWord);

  // The editor holds it; nested calls hold it a little longer.
  std::shared_ptr<EditFragment> m_pSubText;
  bool m_bCentreGrow = false;
  bool m_bInSubDialog = false;
  TextDrag m_drag;
  bool m_bWrapped = false;
  TMenuBar* m_pMenuBar = nullptr;
  bool m_bStatusText = false;

  bool m_isComposing = false;
  const AcApDocument* m_document = nullptr;  // of the last edit; compared only
  std::shared_ptr<EditState> m_state;
  EditHost& m_host;
  EditControl& m_control;
  BlockReferences& m_blocks;
};

}  // namespace qvx
