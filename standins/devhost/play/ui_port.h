// The interface of the play driver (devhost/play/win) to the user interface (devhost/ui). Every
// call but OnMainThread is on the main thread.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "ground/plain_types.h"

namespace devhost {

class UiPort {
 public:
  virtual ~UiPort() = default;

  // Runs `work` on the main thread, also while a menu or dialog is open, and returns when it is
  // done. Called on the driver's thread. False if the host ends.
  virtual bool OnMainThread(const std::function<void()>& work) = 0;

  // True if no command text and no message waits and idle work had nothing to do since the last
  // input. Text that a running command will read does not count.
  virtual bool IsIdle() = 0;
  virtual bool IsMenuOpen() = 0;   // a native menu loop runs on the main thread
  virtual bool IsPopupOpen() = 0;  // and its window is visible

  virtual HWND Frame() = 0;
  virtual HWND CommandLine() = 0;  // the input edit
  virtual HWND ActiveView() = 0;   // null without a drawing

  // Points in screen coordinates. False if there is no active view or no such entity.
  virtual bool WorldToScreen(double x, double y, POINT* out) = 0;
  virtual bool ViewToScreen(int x, int y, POINT* out) = 0;
  virtual bool EntityToScreen(const std::string& handle, POINT* out) = 0;
  virtual bool ButtonToScreen(const std::wstring& label, POINT* out) = 0;  // in any visible window
  // In the focused edit control: the left end of a character, or the end of the text.
  virtual std::string CharacterToScreen(int position, POINT* out) = 0;        // returns the error
  virtual std::string PaneToScreen(const std::string& name, POINT* out) = 0;  // returns the error

  // Operations of the host. Paths are as in the script.
  virtual bool OpenDrawing(const std::wstring& path) = 0;
  virtual void NewDrawing() = 0;
  virtual bool ActivateDrawing(const std::wstring& name) = 0;  // file name without extension
  virtual void CloseDrawing() = 0;
  virtual bool SelectEntities(const std::vector<std::string>& handles) = 0;  // empty: select none
  virtual bool SetVariable(const std::wstring& name, const std::wstring& value) = 0;
  virtual bool GetVariable(const std::wstring& name, std::wstring* value) = 0;
  virtual bool SetSetting(const std::wstring& name, const std::wstring& value) = 0;
  virtual bool GetSetting(const std::wstring& name, std::wstring* value) = 0;
  virtual std::vector<std::string> HighlightedHandles() = 0;
  // The texts that an object draws. False: the active drawing has no such object.
  virtual bool DrawnTexts(const std::string& handle, std::vector<std::wstring>* texts) = 0;
  virtual std::wstring TypedText() = 0;  // in the input row of the command line

  virtual std::string DescribeShell() = 0;     // JSON of the module's windows; "{}" without module
  virtual std::string DescribeMenus() = 0;     // JSON of the native pop-up menus on the screen
  virtual std::string DescribeWindows() = 0;   // JSON: the tree of all windows
  virtual std::string DescribeDatabase() = 0;  // JSON: the active drawing's entities
  virtual void Quit(int exitCode) = 0;         // ends the program without prompts
};

}  // namespace devhost
