// Tells the module about drawings that open, close and change: the palette greys when the last
// drawing goes, and the per-drawing panes follow the active one. One instance, from load to unload.
#pragma once

#include "afxwin.h"

#include "acdocman.h"

class TScreenMenuReactor : public AcApDocManagerReactor {
 public:
  void documentCreated(AcApDocument* document) override;
  void documentToBeDestroyed(AcApDocument* document) override;
  void documentActivated(AcApDocument* document) override;
};
