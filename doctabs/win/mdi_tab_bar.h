// CMDITabBar: a strip with a tab for each child frame of the main window. It learns of frames only
// from its caller.
#pragma once

#include "doctabs/frame_tabs.h"
#include "doctabs/win/tab_bar.h"

// The child frames of an MDI frame.
class MdiFrameWindows : public FrameWindows {
 public:
  CFrameWnd* Active() override;
  CString TitleOf(CFrameWnd* frame) override;
  void Activate(CFrameWnd* frame) override;

 protected:
  virtual CMDIFrameWnd* MainFrame();  // the thread's main window; null when it is no such frame

 private:
  HWND WindowOf(CFrameWnd* frame);
};

class CMDITabBar : public CTabBar {
  DECLARE_DYNAMIC(CMDITabBar)
 public:
  explicit CMDITabBar(FrameWindows& windows) : m_frames(m_strip, windows), m_windows(windows) {}

  INT_PTR OnToolHitTest(CPoint point, TOOLINFO* pTI) const override;
  void OnTabActivated() override;

  void AddFrame(CFrameWnd* pFrame, void* key) { m_frames.AddFrame(pFrame, key); }
  void RefreshTabName(CFrameWnd* pFrame) { m_frames.RefreshTabName(pFrame); }
  void SyncActiveTab() { m_frames.SyncActiveTab(); }
  void RemoveActiveTab() { m_frames.RemoveActiveTab(); }
  void RemoveKeyTab(void* key) { m_frames.RemoveKeyTab(key); }
  void InitFromActiveFrame() { m_frames.InitFromActiveFrame(); }

  FrameTabs m_frames;  // frames and keys

 protected:
  afx_msg void OnHide();
  afx_msg void OnShowAlways();
  afx_msg void OnShowAutomatically();
  afx_msg void OnMoveToBottom();
  afx_msg void OnContextMenu(CWnd*, CPoint) {}
  DECLARE_MESSAGE_MAP()

  FrameWindows& m_windows;

 private:
  INT_PTR FillTip(CPoint point, TOOLINFO& info) const;
};
