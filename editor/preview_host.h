// What the selection preview asks of the host and the kernel, and what it has them do. Implemented
// over the real host in editor/win/.
#pragma once

#include <memory>
#include <optional>

#include "ground/plain_types.h"
#include "kernel/tentityset.h"

namespace qvx {

// The selected objects; frees the host's sets with itself.
class SelectedObjects {
 public:
  virtual ~SelectedObjects() = default;
  virtual bool Includes(const TEntitySet& entity) = 0;
};

class PreviewHost {
 public:
  virtual ~PreviewHost() = default;

  virtual bool HasCurrentView() = 0;
  virtual int CommandActive() = 0;                          // CMDACTIVE
  virtual std::optional<int> CurrentViewport() = 0;         // CVPORT
  virtual bool RunsAnyCommand() = 0;                        // CMDNAMES is not empty
  virtual std::unique_ptr<SelectedObjects> Selected() = 0;  // null when the host refused
  virtual int ViewportAt(POINT screen) = 0;
  virtual bool IsOffInDrawing() = 0;

  virtual unsigned Ticks() = 0;      // milliseconds
  virtual TEntitySet HitTest() = 0;  // the object under the pointer, which can take long
  virtual TEntitySet MouseOn() = 0;
  virtual void SetMouseOn(const TEntitySet& entity) = 0;
  virtual void Highlight(const TEntitySet& entity, bool on) = 0;

  virtual void LockForWrite() = 0;
  virtual void Unlock() = 0;
  virtual void TurnOffInDrawing() = 0;  // does nothing when the drawing keeps no settings
  virtual void PrintWithPrompt(const wchar_t* text) = 0;
};

}  // namespace qvx
