// The pane with the drawing scale, first on the bar. Either button opens its menu; a line of it
// sets the scale of the selected objects or of the drawing. Its text is its only state.
#pragma once

#include "afxwin.h"

#include "acstatusbar.h"

class TPScalePane : public AcPane {
 public:
  BOOL GetToolTipText(CString& text) const override;
  void OnLButtonDown(UINT flags, CPoint point) override;
  void OnRButtonDown(UINT flags, CPoint point) override;

  // Adds the pane to the application's bar before all others, or removes it;
  // no effect without a bar.
  void Init(bool add);
  void RefreshText();

 private:
  void ShowScaleMenu();
  bool ChooseScale(UINT command);  // false: no change
};
