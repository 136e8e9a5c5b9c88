// The host's windows as modules see them: frame, drawing view, command line, and the road between
// pixels of the view and world points. Everything here is for the main thread.
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

// A filter sees each message of the main thread before anything else; TRUE swallows it. The newest
// filter is asked first. FALSE from the calls: registered already, or not registered.
typedef BOOL (*AcedFilterWinMsgFn)(MSG* message);
BOOL acedRegisterFilterWinMsg(AcedFilterWinMsgFn filter);
BOOL acedRemoveFilterWinMsg(AcedFilterWinMsgFn filter);

// Client pixels of the active view. The forms with a viewport number fail (0) when that viewport is
// not on screen; without a drawing the points are left as they were.
int acedGetWinNum(int x, int y);  // number of the viewport at the pixel, 0 outside the view
void acedCoordFromPixelToWorld(const CPoint& pixel, ads_point world);
int acedCoordFromPixelToWorld(int viewport, const CPoint& pixel, ads_point world);
int acedCoordFromWorldToPixel(int viewport, const ads_point world, CPoint& pixel);

void acedRestoreStatusBar();  // the text shown before SetMessageText comes back
