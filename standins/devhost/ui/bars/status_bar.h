// The status bar of the frame: coordinates, message text, the modules' panes. It is the window
// behind AcApStatusBar. It decides nothing about a pane's state; a click goes to the pane.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "acstatusbar.h"
#include "afxext.h"
#include "devhost/ui/bars/pane_layout.h"
#include "devhost/ui/painting/gdi.h"

namespace devhost {

class StatusBar : public CControlBar, public AcApStatusBar {
 public:
  static constexpr UINT kId = 0xE801;  // where a frame looks for the bar that shows its messages

  bool CreateIn(CFrameWnd* frame);
  void ShowCoordinates(const std::wstring& text);
  // The text that stood there before the first message since the last call.
  void RestoreMessage();

  BOOL Insert(int index, AcPane* pane, BOOL update) override;
  BOOL Add(AcPane* pane, BOOL update) override;
  BOOL Remove(AcPane* pane, BOOL update) override;
  BOOL Remove(int index, BOOL update) override;
  BOOL RemoveAllPanes(BOOL update) override;
  int GetPaneCount() const override;
  AcPane* GetPane(int index) const override;
  int GetIndex(AcPane* pane) const override;
  BOOL GetRect(AcPane* pane, RECT& rect) const override;
  HWND GetWindow() const override;
  void Update() override;

  CSize CalcFixedLayout(BOOL stretch, BOOL horizontal) override;
  void OnUpdateCmdUI(CFrameWnd*, BOOL) override {}

 protected:
  LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;

 private:
  StatusLayout Layout() const;
  int MeasurePane(HDC dc, AcPane& pane) const;
  int Height() const;
  void Paint();
  void PaintPane(HDC dc, AcPane& pane, RECT rect) const;
  void PaintText(HDC dc, const std::wstring& text, RECT rect) const;
  void SetMessage(const std::wstring& text);
  void PassMouse(UINT message, UINT flags, POINT point);
  void FillToolTip(NMHDR* header);
  void RefreshToolTips();

  std::vector<AcPane*> m_panes;  // not owned
  std::wstring m_coordinates, m_message;
  std::optional<std::wstring> m_messageBefore;
  Font m_font;
  HWND m_toolTip = nullptr;  // goes with the frame
  CString m_toolText;
  int m_toolCount = 0;
};

StatusBar* TheStatusBar();  // null before creation and after the window went

}  // namespace devhost
