// The window part of the class library: windows, message maps, menus, device contexts,
// controls, dialogs, the application object and frames. The parts have headers of their own;
// include only this one. Windows only.
//
// Not offered: documents and views, printing, OLE, help, per-class extra data, per-module states.
// The process has one state; the objects of each thread are separate.
#pragma once

#define __AFXWIN_H__

#include "afx.h"
#include <commdlg.h>
#include <shellapi.h>

// Windows defines it as a macro, which would hide the member function.
#undef GetNextWindow
// One message for all colour queries of controls.
#define WM_CTLCOLOR 0x0019

#include "afxres.h"
#include "atltypes.h"

class CWnd;
class CDialog;
class CFrameWnd;
class CMDIFrameWnd;
class CMDIChildWnd;
class CControlBar;
class CDC;
class CMenu;
class CScrollBar;
class CToolTipCtrl;
class CWinThread;
class CWinApp;
class CDataExchange;
class CCmdTarget;
class CCmdUI;

#include "afxwin_cmd.h"   // CCmdTarget, CCmdUI, the message map tables
#include "afxwin_gdi.h"   // CGdiObject and its kinds, CDC and its kinds
#include "afxwin_menu.h"  // CMenu
#include "afxwin_wnd.h"   // CWnd
#include "afxmsg_.h"      // the ON_ macros
#include "afxwin_ctl.h"   // CStatic, CButton, CListBox, CComboBox, CEdit, CScrollBar
#include "afxwin_dlg.h"   // CDialog, CDataExchange
#include "afxdd_.h"       // DDX_ and DDV_
#include "afxwin_app.h"   // CWinThread, CWinApp, Afx functions, module pieces
#include "afxframe.h"     // CFrameWnd, CMDIFrameWnd, CMDIChildWnd, CControlBar
