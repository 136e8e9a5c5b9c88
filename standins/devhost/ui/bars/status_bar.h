// The status bar of the frame: coordinates, message text, panes. Implements AcApStatusBar. Clicks
// are passed to the panes, which own their state.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "afxext.h"

#include "acstatusbar.h"
#include "devhost/ui/bars/pane_layout.h"
#include "devhost/ui/painting/gdi.h"

namespace devhost {

class StatusBar : public CControlBar, public AcApStatusBar {
 public:
  static constexpr UINT kId = 0xE801;  // identifier of the bar that shows a frame's messages

  bool CreateIn(CFrameWnd* frame);
  void ShowCoordinates(const std::wstring& text);
  // Restores the text from before the first message since the last call.
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
  HWND m_toolTip = nullptr;  // destroyed with the frame
  CString m_toolText;
  int m_toolCount = 0;
};

StatusBar* TheStatusBar();  // null before creation and after destruction

}  // namespace devhost
