// The strip over the host's drawings: what it does when drawings come, go and become active, and
// the steps of its commands. The host is reached through DrawingHost (host_drawings.h implements
// it), so that each order of steps is tested without one.
#pragma once

#include <optional>
#include <vector>

#include "doctabs/frame_tabs.h"

class AcApDocument;

// The host's open drawings. A document that Documents() no longer lists must not be passed.
class DrawingHost {
 public:
  virtual ~DrawingHost() = default;
  virtual AcApDocument* Current() = 0;    // null without one
  virtual AcApDocument* MdiActive() = 0;  // null without one
  virtual int Count() = 0;
  virtual std::vector<AcApDocument*> Documents() = 0;  // empty when the host gives no list
  virtual CString FileName(AcApDocument* document) = 0;
  // Objects in model space whose class is not exactly the block reference's; nothing when model
  // space can't be read.
  virtual std::optional<int> CountOtherThanBlocks(AcApDocument* document) = 0;
  virtual void ClearModified(AcApDocument* document) = 0;
  virtual void Close(AcApDocument* document) = 0;
  virtual void Activate(AcApDocument* document) = 0;
  virtual void Post(const wchar_t* text) = 0;  // to the current drawing; nothing without one
  virtual CString FullCommandName(const wchar_t* name) = 0;
};

// The parts of one strip, as the functions below use them.
struct DrawingStrip {
  TabStrip& strip;
  FrameTabs& frames;
  FrameWindows& windows;
  DrawingHost& host;
  AcApDocument*& current;  // last seen as current; null after it went away. May be a deleted object
};

void InitDrawingStrip(DrawingStrip tabs);

// Notifications of the host.
void OnDrawingCreated(DrawingStrip tabs, AcApDocument* document);
void OnDrawingToBeDestroyed(DrawingStrip tabs, AcApDocument* document);
void OnDrawingActivated(DrawingStrip tabs, AcApDocument* document);

// Closes the untouched drawing of the start when another one has been opened from a file.
void CloseUntouchedStartDrawing(DrawingStrip tabs);

// The user has made another tab active.
void ActivateDrawingOfTab(DrawingStrip tabs);

// The title of the active tab's frame may have changed; then the layout.
void RefreshActiveTabName(DrawingStrip tabs);

// Posts QSAVE in each drawing, then activates the one that was current. Drawings that close
// meanwhile are left out.
void SaveAllDrawings(DrawingHost& host);

// Runs a command of the drawing menus (tab_menu.h); false for any other identifier.
bool RunDrawingCommand(DrawingHost& host, unsigned id);
