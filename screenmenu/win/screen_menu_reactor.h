// Reactor for drawings that are created, destroyed and activated: disables the palette when the
// last drawing closes, and updates the per-drawing panes. One instance, from load to unload.
#pragma once

#include "afxwin.h"

#include "acdocman.h"

class TScreenMenuReactor : public AcApDocManagerReactor {
 public:
  void documentCreated(AcApDocument* document) override;
  void documentToBeDestroyed(AcApDocument* document) override;
  void documentActivated(AcApDocument* document) override;
};
