// What the in-place editor requires, over the host, the kernel and the menu in force.
#pragma once

#include "afxwin.h"

#include "editor/edit_host.h"
#include "menu/menu_watch.h"
#include "popup/win/block_popup_door.h"

class LiveEditHost final : public qvx::EditHost {
 public:
  explicit LiveEditHost(CWnd& editor) : m_editor(editor) {}  // owner of menus and dialogs

  AcApDocument* CurrentDocument() const override;
  bool HasView() const override;
  int CurrentViewport() const override;
  double ScreenWidth() const override;
  POINT WorldToPixel(int viewport, const AcGePoint3d& world) const override;
  POINT ViewToFrame(POINT view) const override;
  bool IsInSight(AcDbObjectId object) const override;
  std::unique_ptr<qvx::DocumentLock> LockCurrentDocument() override;
  void PostWheelToView(WPARAM wParam, LPARAM lParam) override;

  POINT CursorPosition() const override;
  void MoveCursor(POINT screen) override;
  void SetTextCursor() override;
  bool IsCtrlDown() const override;

  TMenuBar* FindMenu(const wchar_t* name) const override;
  void TrackMenu(TMenuBar& menu, POINT screen) override;
  std::wstring TipOf(TMenuBar& menu, int id) const override;
  void ShowStatusText(const std::wstring& text) override;
  void RestoreStatusText() override;

  bool HasDialog(qvx::TextDialog dialog) const override;
  bool RunDialog(qvx::TextDialog dialog, std::wstring& choice) override;

  void SelectOnly(AcDbObjectId object) override;
  std::wstring FullCommandName(const wchar_t* name) const override;
  void Post(const std::wstring& text) override;

  // The name that drawing files have for the object's class; empty when it is erased.
  static std::wstring TypeOf(AcDbObjectId object);
  const BlockPopup& Popup() const { return m_popup; }
  void CloseMenu() { m_popup.Close(); }
  bool IsMenuGone() const { return m_menu.IsGone(); }  // the lines of the menu last tracked

 private:
  CWnd& m_editor;
  BlockPopup m_popup;
  qvx::MenuWatch m_menu;
};
