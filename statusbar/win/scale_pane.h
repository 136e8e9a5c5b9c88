// The pane with the drawing scale, first on the bar. Either button opens its menu; a line of it
// sets the scale of the selected objects or of the drawing. It keeps nothing but its text.
#pragma once

#include "afxwin.h"

#include "acstatusbar.h"

class TPScalePane : public AcPane {
 public:
  BOOL GetToolTipText(CString& text) const override;
  void OnLButtonDown(UINT flags, CPoint point) override;
  void OnRButtonDown(UINT flags, CPoint point) override;

  // Onto the application's bar in front of all others, or off it; nothing without a bar.
  void Init(bool add);
  void RefreshText();

 private:
  void ShowScaleMenu();
  bool ChooseScale(UINT command);  // false: nothing was set
};
