// What a play script needs of the running user interface. devhost/ui implements it, the play driver
// (devhost/play/win) calls it. Every call but OnMainThread runs on the host's main thread.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "ground/plain_types.h"

namespace devhost {

class UiPort {
 public:
  virtual ~UiPort() = default;

  // Runs `work` on the main thread and returns when it is done. Called from the driver's thread;
  // it also gets through while a menu or a dialog is up. False when the host is going down.
  virtual bool OnMainThread(const std::function<void()>& work) = 0;

  // True when no command text waits, no message waits, and the pump has found nothing to do since
  // the last input. Text that a command in progress is still reading does not count as waiting.
  virtual bool IsIdle() = 0;
  virtual bool IsMenuOpen() = 0;   // a native menu or pop-up is being tracked on the main thread
  virtual bool IsPopupOpen() = 0;  // and one of its windows stands on the screen

  virtual HWND Frame() = 0;
  virtual HWND CommandLine() = 0;  // the edit control for typing
  virtual HWND ActiveView() = 0;   // null with no drawing

  // Screen points; false when there is no active view or no such entity.
  virtual bool WorldToScreen(double x, double y, POINT* out) = 0;
  virtual bool ViewToScreen(int x, int y, POINT* out) = 0;
  virtual bool EntityToScreen(const std::string& handle, POINT* out) = 0;
  virtual bool ButtonToScreen(const std::wstring& label, POINT* out) = 0;  // in any visible window
  virtual std::string PaneToScreen(const std::string& name, POINT* out) = 0;  // gives what is wrong

  // Host operations that a script asks for by name. The path is as in the script.
  virtual bool OpenDrawing(const std::wstring& path) = 0;
  virtual void NewDrawing() = 0;
  virtual bool ActivateDrawing(const std::wstring& name) = 0;  // file name without extension
  virtual void CloseDrawing() = 0;
  virtual bool SelectEntities(const std::vector<std::string>& handles) = 0;  // empty: select none
  virtual bool SetVariable(const std::wstring& name, const std::wstring& value) = 0;
  virtual bool GetVariable(const std::wstring& name, std::wstring* value) = 0;
  virtual bool SetSetting(const std::wstring& name, const std::wstring& value) = 0;

  virtual std::string DescribeShell() = 0;     // JSON of the module's live windows; "{}" without it
  virtual std::string DescribeMenus() = 0;     // JSON of the native pop-up menus on the screen
  virtual std::string DescribeWindows() = 0;   // JSON: every window of the process, as a tree
  virtual std::string DescribeDatabase() = 0;  // JSON: the active drawing's entities
  virtual void Quit(int exitCode) = 0;         // ends the program, without questions
};

}  // namespace devhost
