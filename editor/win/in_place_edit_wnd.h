// CInPlaceEdit: the edit control over a text of the drawing. There is one, a static object, whose
// reactors are registered from library load to its destruction. The decisions are in
// editor/in_place_editor.h; this class is the control and its messages.
#pragma once

#include "afxwin.h"

#include "acdocman.h"
#include "aced.h"
#include "editor/in_place_editor.h"
#include "editor/live_text_objects.h"
#include "editor/win/live_edit_host.h"
#include "ground/win/accessible_object.h"
#include "ground/win/guarded_window.h"

class CInPlaceEdit;

// The operations of the control.
class InPlaceBox final : public qvx::EditControl {
 public:
  explicit InPlaceBox(CInPlaceEdit& edit) : m_edit(edit) {}

  std::vector<SIZE> MeasureAll(const std::vector<std::wstring_view>& texts,
                               qvx::MeasureFont font) override;
  std::vector<int> PrefixWidths(const std::wstring& text) override;
  bool Create(qvx::BoxParent parent) override;
  bool Exists() override;
  void Destroy() override;
  void SetFont(int height) override;
  std::wstring Text() override;
  void SetText(const std::wstring& text) override;
  int TextLength() override;
  bool IsModified() override;
  void SetModified(bool modified) override;
  qvx::TextRange Selection() override;
  void Select(qvx::TextRange range) override;
  void SelectAll() override;
  void ScrollToCaret() override;
  int LineOf(int position) override;
  int LineCount() override;
  RECT ParentClient() override;
  RECT Box() override;
  RECT BoxOnScreen() override;
  POINT ScreenToParent(POINT screen) override;
  void Move(const RECT& box) override;
  void Show(bool show) override;
  void TakeFocus() override;
  void BringToTop() override;
  void Invalidate() override;
  void HideCaret() override;
  void ShowCaret() override;

 private:
  CInPlaceEdit& m_edit;
};

// Drawings that are left commit the open text; drawings that close cancel it.
class EditedDrawings final : public AcApDocManagerReactor {
 public:
  explicit EditedDrawings(CInPlaceEdit& edit) : m_edit(edit) {}
  void documentToBeDeactivated(AcApDocument* document) override;
  void documentToBeDestroyed(AcApDocument* document) override;

 private:
  CInPlaceEdit& m_edit;
};

// Opens the editor for the commands.
class InPlaceOpener final : public qvx::TextEditOpener {
 public:
  explicit InPlaceOpener(qvx::InPlaceEditor& editor) : m_editor(editor) {}

  void BeginEdit(std::unique_ptr<qvx::EditFragment> text, const AcGeMatrix3d& toWorld) override;
  const qvx::Lifetime& LifeOfDrawings() const override { return *m_drawings; }
  void OnDrawingDestroyed() { m_drawings = std::make_unique<qvx::Lifetime>(); }

 private:
  qvx::InPlaceEditor& m_editor;
  std::unique_ptr<qvx::Lifetime> m_drawings = std::make_unique<qvx::Lifetime>();
};

class CInPlaceEdit : public qvx::GuardedWindow<CEdit>, public AcEditorReactor {
  DECLARE_DYNAMIC(CInPlaceEdit)
 public:
  CInPlaceEdit();
  ~CInPlaceEdit() override;

  void commandWillStart(const ACHAR* name) override;
  void lispWillStart(const ACHAR* line) override;

  BOOL PreTranslateMessage(MSG* message) override;

  qvx::InPlaceEditor& Editor() { return m_editor; }
  void EditPickedText();
  void EditTextInBlock();
  void CommitForUnload();
  void OnDrawingDestroyed(AcApDocument* document);

 protected:
  afx_msg void OnLButtonDown(UINT flags, CPoint point);
  afx_msg void OnMouseMove(UINT flags, CPoint point);
  afx_msg void OnChange();
  afx_msg HBRUSH CtlColor(CDC* dc, UINT control);
  afx_msg void OnMeasureItem(int control, LPMEASUREITEMSTRUCT item);
  afx_msg LRESULT OnMenuChar(UINT character, UINT flags, CMenu* menu);
  afx_msg void OnMenuSelect(UINT id, UINT flags, HMENU menu);
  afx_msg void OnExitMenuLoop(BOOL isShortcut);
  afx_msg void OnMenuCommand(UINT id);
  afx_msg LRESULT OnStartComposition(WPARAM wParam, LPARAM lParam);
  afx_msg LRESULT OnComposition(WPARAM wParam, LPARAM lParam);
  afx_msg LRESULT OnEndComposition(WPARAM wParam, LPARAM lParam);
  afx_msg LRESULT OnGetObject(WPARAM wParam, LPARAM lParam);
  afx_msg void OnDestroy();
  DECLARE_MESSAGE_MAP()

 private:
  friend class InPlaceBox;

  CFont m_font;
  CBrush m_brush;
  qvx::AccessibleHolder m_access;
  EditedDrawings m_reactor{*this};
  qvx::LiveReferenceHost m_referenceHost;
  qvx::BlockReferences m_blocks{m_referenceHost};
  LiveEditHost m_host{*this};
  InPlaceBox m_box{*this};
  qvx::InPlaceEditor m_editor{m_host, m_box, m_blocks};
  InPlaceOpener m_opener{m_editor};
};

extern CInPlaceEdit g_InPlaceEdit;
