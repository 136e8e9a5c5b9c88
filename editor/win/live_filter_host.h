// The message filter's questions over the real host, kernel and windows. Files:
// live_filter_host.cpp state, operations and the module's windows; live_filter_view.cpp the drawing
// view: points, coordinates, zoom, cursor.
#pragma once

#include "editor/filter_host.h"

class LiveFilterHost : public qvx::FilterHost {
 public:
  // The help file's name from the product file.
  void SetHelpFile(const wchar_t* name) { m_helpFile = name; }

  bool HasCurrentDocument() override;
  bool HasWorkingDatabase() override;
  bool IsHostWindow(HWND window) override;
  bool IsDrawingReady() override;
  bool IsIdle() override;
  bool IsCommandLineEmpty() override;
  bool IsLispExpression() override;
  bool RunsCommand(const wchar_t* part) override;
  int CommandActive() override;
  int ShortVariable(const wchar_t* name) override;
  bool IsKeyDown(int key) override;
  TWCString CurrentCommand() override;
  TWCString FullCommandName(const wchar_t* name) override;

  bool HasCurrentView() override;
  bool IsCurrentView(HWND window) override;
  bool IsDrawingView(HWND window) override;
  POINT ToView(POINT screen) override;
  POINT ToScreen(POINT view) override;
  RECT ViewOnScreen() override;
  POINT CursorPosition() override;
  void MoveCursor(POINT screen) override;
  void SetEditCursor() override;
  void SendKeyToView(int key) override;
  void RestartPreviewTimer() override;
  int ViewportAt(POINT view) override;
  bool ViewportToWorld(int viewport, POINT view, AcGePoint3d& world) override;
  AcGePoint3d ViewToWorld(POINT view) override;
  bool WorldToViewport(int viewport, const AcGePoint3d& world, POINT& view) override;
  AcGePoint3d WorldToUser(const AcGePoint3d& world) override;
  AcGeVector3d UserYDirection() override;
  void ZoomAt(const AcGePoint3d& world, double factor) override;
  bool ResizeOnMouseMove(UINT flags, POINT view) override;
  bool ResizeOnButtonDown(UINT flags, POINT view) override;
  bool ResizeOnButtonUp(UINT flags, POINT view) override;
  void ResizeOnEscape() override;

  int SelectAt(const AcGePoint3d& user, const wchar_t* types, TPickEntSet& set) override;
  int SelectFence(const AcGePoint3d& from, const AcGePoint3d& to, const wchar_t* types,
                  TPickEntSet& set) override;
  int SelectImplied(const wchar_t* types, TPickEntSet& set) override;
  void ClearSelection() override;
  TSubText* HitTestOnText(TPickEntSet& set, const AcGePoint3d& world) override;
  bool IsFloorRectangle(const TPickEntSet& set) override;
  bool IsEditable(const TPickEntSet& set) override;
  std::unique_ptr<qvx::ToggleObjects> ObjectsToToggle(qvx::ToggleSource source) override;
  void SendToHost(const wchar_t* text) override;
  void PrintWithPrompt(const wchar_t* text) override;
  void ClearKeyboardBuffer() override;
  void ForwardChar(char code, int repeat, int flags) override;
  void ToggleModelNumber() override;
  bool FindFile(const wchar_t* name, TWCString& path) override;
  bool FindHelpFile(TWCString& path) override;
  bool ReadBytes(const wchar_t* path, std::string& bytes) override;
  void ShowHelp(qvx::HelpCall call, const wchar_t* helpFile, const wchar_t* keyword) override;
  void CloseGripTip() override;
  bool IsScreenMenuVisible() override;
  void ShowScreenMenu(bool show) override;
  void HideTabBar(bool hide) override;
  bool IsInScreenMenu(POINT screen) override;
  bool IsInWheelGroup(POINT screen) override;
  void WheelGroup(int delta, POINT screen) override;
  bool HasContextWindow() override;
  bool ShowContextMenu(POINT screen, bool force) override;

 private:
  TWCString m_helpFile;
};
