// The host's drawings through its published interface.
#pragma once

#include "doctabs/drawing_tabs.h"

class HostDrawings final : public DrawingHost {
 public:
  AcApDocument* Current() override;
  AcApDocument* MdiActive() override;
  int Count() override;
  std::vector<AcApDocument*> Documents() override;
  CString FileName(AcApDocument* document) override;
  std::optional<int> CountOtherThanBlocks(AcApDocument* document) override;
  void ClearModified(AcApDocument* document) override;
  void Close(AcApDocument* document) override;
  void Activate(AcApDocument* document) override;
  void Post(const wchar_t* text) override;
  CString FullCommandName(const wchar_t* name) override;
};

// The host lets the user change the active drawing.
bool MayActivateDrawings();
