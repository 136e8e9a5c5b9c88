// The host's windows for modules: frame, drawing view, command line, and the mapping between pixels
// of the view and world points. For the main thread.
#pragma once

#ifndef __AFXWIN_H__
#error "include afxwin.h first"
#endif

#include "adsdef.h"

CMDIFrameWnd* acedGetAcadFrame();  // null when no frame is up
CWnd* acedGetAcadDwgView();        // the view of the active drawing; null without one
CWnd* acedGetAcadDockCmdLine();    // the docked command line bar
CWinApp* acedGetAcadWinApp();
HWND adsw_acadMainWnd();
HWND adsw_acadDocWnd();  // the active drawing's MDI child

// A filter receives each message of the main thread before it is processed, the newest
// filter first; TRUE discards the message. The functions return FALSE if it is registered
// already, or not registered.
typedef BOOL (*AcedFilterWinMsgFn)(MSG* message);
BOOL acedRegisterFilterWinMsg(AcedFilterWinMsgFn filter);
BOOL acedRemoveFilterWinMsg(AcedFilterWinMsgFn filter);

// Client pixels of the active view. The functions with a viewport number return 0 if that viewport
// is not on screen; without a drawing the points are unchanged.
int acedGetWinNum(int x, int y);  // number of the viewport at the pixel, 0 outside the view
void acedCoordFromPixelToWorld(const CPoint& pixel, ads_point world);
int acedCoordFromPixelToWorld(int viewport, const CPoint& pixel, ads_point world);
int acedCoordFromWorldToPixel(int viewport, const ads_point world, CPoint& pixel);

void acedRestoreStatusBar();  // restores the text that was shown before SetMessageText
