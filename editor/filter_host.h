// What the message filter asks of the host, the kernel and the module's windows, and what it has
// them do. Each question is asked only when a decision depends on it: the filter sees every message
// of the host. Implemented over the real host in editor/win/.
//
// Points: "screen" and "view" are pixels, the latter of the client area of the current drawing
// view; "world" and "user" are coordinates of the drawing.
#pragma once

#include <memory>
#include <string>

#include "gepnt3d.h"
#include "ground/plain_types.h"
#include "kernel/tpickentset.h"
#include "kernel/twcstring.h"

class TSubText;

namespace qvx {

class ToggleObjects;
enum class ToggleSource;

enum class HelpCall {
  kTopic,          // opens the help file
  kKeywordLookup,  // with the index when the keyword is not found
  kIndex,          // the index at the keyword
};

class FilterHost {
 public:
  virtual ~FilterHost() = default;

  // Whether the filter may act at all.
  virtual bool HasCurrentDocument() = 0;
  virtual bool HasWorkingDatabase() = 0;
  virtual bool IsHostWindow(HWND window) = 0;  // frame, drawings, command line; no palette or bar
  virtual bool IsDrawingReady() = 0;           // false until the drawing is loaded

  // State of the host.
  virtual bool IsIdle() = 0;
  virtual bool IsCommandLineEmpty() = 0;
  virtual bool IsLispExpression() = 0;                 // half-typed in the command line
  virtual bool RunsCommand(const wchar_t* part) = 0;   // part of the running commands' names
  virtual int CommandActive() = 0;                     // CMDACTIVE
  virtual int ShortVariable(const wchar_t* name) = 0;  // 0 when it can't be read
  virtual bool IsKeyDown(int key) = 0;                 // as of the current message
  virtual TWCString CurrentCommand() = 0;              // of the current drawing
  virtual TWCString FullCommandName(const wchar_t* name) = 0;

  // Views.
  virtual bool HasCurrentView() = 0;
  virtual bool IsCurrentView(HWND window) = 0;
  virtual bool IsDrawingView(HWND window) = 0;
  virtual POINT ToView(POINT screen) = 0;
  virtual POINT ToScreen(POINT view) = 0;
  virtual RECT ViewOnScreen() = 0;
  virtual POINT CursorPosition() = 0;
  virtual void MoveCursor(POINT screen) = 0;
  virtual void SetEditCursor() = 0;
  virtual void SendKeyToView(int key) = 0;  // returns when the view has handled it
  virtual void RestartPreviewTimer() = 0;

  // Coordinates and zoom.
  virtual int ViewportAt(POINT view) = 0;
  virtual bool ViewportToWorld(int viewport, POINT view, AcGePoint3d& world) = 0;
  virtual AcGePoint3d ViewToWorld(POINT view) = 0;
  virtual bool WorldToViewport(int viewport, const AcGePoint3d& world, POINT& view) = 0;
  virtual AcGePoint3d WorldToUser(const AcGePoint3d& world) = 0;
  virtual AcGeVector3d UserYDirection() = 0;
  virtual void ZoomAt(const AcGePoint3d& world, double factor) = 0;

  // Dragging the border between viewports; true swallows the message.
  virtual bool ResizeOnMouseMove(UINT flags, POINT view) = 0;
  virtual bool ResizeOnButtonDown(UINT flags, POINT view) = 0;
  virtual bool ResizeOnButtonUp(UINT flags, POINT view) = 0;
  virtual void ResizeOnEscape() = 0;

  // Selection, with types as wild cards, null for every type. Each fills the set and returns the
  // number of objects; -1 when the host refused.
  virtual int SelectAt(const AcGePoint3d& user, const wchar_t* types, TPickEntSet& set) = 0;
  virtual int SelectFence(const AcGePoint3d& from, const AcGePoint3d& to, const wchar_t* types,
                          TPickEntSet& set) = 0;
  virtual int SelectImplied(const wchar_t* types, TPickEntSet& set) = 0;
  virtual void ClearSelection() = 0;
  // The piece of text at a point of one of the objects, owned by the caller; null for none.
  virtual TSubText* HitTestOnText(TPickEntSet& set, const AcGePoint3d& world) = 0;
  virtual bool IsFloorRectangle(const TPickEntSet& set) = 0;  // its only object
  virtual bool IsEditable(const TPickEntSet& set) = 0;
  virtual std::unique_ptr<ToggleObjects> ObjectsToToggle(ToggleSource source) = 0;

  // Operations.
  virtual void SendToHost(const wchar_t* text) = 0;
  virtual void PrintWithPrompt(const wchar_t* text) = 0;
  virtual void ClearKeyboardBuffer() = 0;
  virtual void ForwardChar(char code, int repeat, int flags) = 0;
  virtual void ToggleModelNumber() = 0;
  virtual bool FindFile(const wchar_t* name, TWCString& path) = 0;
  virtual bool FindHelpFile(TWCString& path) = 0;  // the help file of the product
  virtual bool ReadBytes(const wchar_t* path, std::string& bytes) = 0;
  virtual void ShowHelp(HelpCall call, const wchar_t* helpFile, const wchar_t* keyword) = 0;

  // The module's windows.
  virtual void CloseGripTip() = 0;  // does nothing when none is open
  virtual bool IsScreenMenuVisible() = 0;
  virtual void ShowScreenMenu(bool show) = 0;
  virtual void HideTabBar(bool hide) = 0;
  virtual bool IsInScreenMenu(POINT screen) = 0;
  // The group that the wheel scrolls: the open one below the root, or the root.
  virtual bool IsInWheelGroup(POINT screen) = 0;  // false also for a group without rows
  virtual void WheelGroup(int delta, POINT screen) = 0;
  virtual bool HasContextWindow() = 0;
  // True when a line of the menu was chosen; messages are handled meanwhile.
  virtual bool ShowContextMenu(POINT screen, bool force) = 0;
};

}  // namespace qvx
