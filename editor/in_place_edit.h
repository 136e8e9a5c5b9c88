// The in-place text editor as the message filter uses it. There is one in the module.
#pragma once

#include "ground/plain_types.h"

class AcGeMatrix3d;
class TSubText;

class InPlaceEdit {
 public:
  virtual ~InPlaceEdit() = default;

  virtual bool IsVisible() = 0;
  // Takes ownership of the fragment. `toWorld` carries the corners of its text from their own space
  // to the world.
  virtual void BeginEdit(TSubText* fragment, const AcGeMatrix3d& toWorld) = 0;
  virtual void EndEdit(bool unhighlight) = 0;
  // Tracks the fragment's menu at a screen point; messages are handled meanwhile.
  virtual bool ShowInPlaceMenu(POINT at) = 0;
  virtual void HideCaret() = 0;
  virtual void PostMove() = 0;  // moves the box over its text when the queued messages are done
};

InPlaceEdit& TheInPlaceEdit();
