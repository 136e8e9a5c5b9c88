// CADDocTabBar: the strip of the host's drawings. There is one, a static object, whose reactor is
// registered from library load to its destruction.
#pragma once

#include "doctabs/win/mdi_tab_bar.h"

#include "acdocman.h"
#include "doctabs/host_drawings.h"
#include "doctabs/tab_menu.h"

class CADDocTabBar;

class CADDocTabReactor : public AcApDocManagerReactor {
 public:
  explicit CADDocTabReactor(CADDocTabBar* bar) : m_pBar(bar) {}

  void documentCreated(AcApDocument* document) override;
  void documentToBeDestroyed(AcApDocument* document) override;
  void documentActivated(AcApDocument* document) override;

  CADDocTabBar* m_pBar;
  AcApDocument* m_pCurDoc = nullptr;  // last seen as current; null after it went away
};

// The child frames of the host's frame.
class HostFrameWindows final : public MdiFrameWindows {
 protected:
  CMDIFrameWnd* MainFrame() override;
};

class CADDocTabBar : public CMDITabBar {
  DECLARE_DYNAMIC(CADDocTabBar)
 public:
  CADDocTabBar();
  ~CADDocTabBar() override;

  void OnTabActivated() override;

  void CreateIn(CWnd* parent, bool top);
  void Init();
  void StartCaptionTimer();
  DrawingStrip Drawings();
  CRect ScreenClient() const;

 protected:
  afx_msg void OnTimer(UINT_PTR timer);
  afx_msg void OnContextMenu(CWnd* window, CPoint point);
  afx_msg void OnDrawingCommand(UINT id);
  DECLARE_MESSAGE_MAP()

 private:
  void RefreshCaption();
  void ShowMenu(std::span<const TabMenuRow> rows, POINT at);

  HostFrameWindows m_hostFrames;
  HostDrawings m_drawings;
  CADDocTabReactor m_reactor{this};
  POINT m_menuPoint{};
  CFrameWnd* m_menuFrame = nullptr;  // whose menu was asked for; not owned, may be deleted
};

extern CADDocTabBar g_DocTabBar;
