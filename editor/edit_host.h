// What the in-place editor requires of the host, the kernel and the menu in force. Implemented over
// them in editor/win/. An operation that is not const may run foreign code, which can end the edit,
// close the drawing or unload the module; those of the pointer and of the wheel do not.
#pragma once

#include <memory>
#include <string>

#include "ground/plain_types.h"
#include "dbmain.h"
#include "editor/document_lock.h"
#include "gepnt3d.h"

class AcApDocument;
class TMenuBar;

namespace qvx {

// Dialogs of a module that need not be loaded; each gives a text to insert.
enum class TextDialog { kSpecialCharacter, kWord };

class EditHost {
 public:
  virtual ~EditHost() = default;

  // Drawing and view.
  virtual AcApDocument* CurrentDocument() const = 0;  // null without one
  virtual bool HasView() const = 0;
  virtual int CurrentViewport() const = 0;  // CVPORT; 0 when it is no short integer
  virtual double ScreenWidth() const = 0;   // x of SCREENSIZE; 0 when it can't be read
  virtual POINT WorldToPixel(int viewport, const AcGePoint3d& world) const = 0;
  virtual POINT ViewToFrame(POINT view) const = 0;        // client areas, through the screen
  virtual bool IsInSight(AcDbObjectId object) const = 0;  // the class derives from TDbInSight
  // Mode AcAp::kWrite on the current document; null when it fails.
  virtual std::unique_ptr<DocumentLock> LockCurrentDocument() = 0;
  virtual void PostWheelToView(WPARAM wParam, LPARAM lParam) = 0;  // nothing without a view

  // Pointer and keys.
  virtual POINT CursorPosition() const = 0;  // on the screen
  virtual void MoveCursor(POINT screen) = 0;
  virtual void SetTextCursor() = 0;
  virtual bool IsCtrlDown() const = 0;

  // Menus.
  virtual TMenuBar* FindMenu(const wchar_t* name) const = 0;     // a block of the menu in force
  virtual void TrackMenu(TMenuBar& menu, POINT screen) = 0;      // messages are handled meanwhile
  virtual std::wstring TipOf(TMenuBar& menu, int id) const = 0;  // empty without one
  virtual void ShowStatusText(const std::wstring& text) = 0;
  virtual void RestoreStatusText() = 0;

  // Dialogs: whether one can be shown, and whether the user has chosen a text in it.
  virtual bool HasDialog(TextDialog dialog) const = 0;
  virtual bool RunDialog(TextDialog dialog, std::wstring& choice) = 0;

  // Commands.
  virtual void SelectOnly(AcDbObjectId object) = 0;  // makes it the pick-first set
  virtual std::wstring FullCommandName(const wchar_t* name) const = 0;
  virtual void Post(const std::wstring& text) = 0;  // nothing without a current document
};

}  // namespace qvx
