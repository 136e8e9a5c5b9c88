// The panes of the switches: three of the current drawing (fill, bold lines, base line) and three
// of the module (dynamic dimensions, grouping, dynamic input). None of them keeps a state: after a
// change behind their back they are only told to look again.
#pragma once

#include "statusbar/win/cad_status_pane.h"
#include "statusbar/pane_rules.h"

// A pane with an icon for each state.
class TIconPane : public CADStatusPane {
 public:
  void OnRButtonDown(UINT flags, CPoint point) override;
  void Init(bool add) override;

  void ShowIcon(bool on);
  void ShowStateIcon() { ShowIcon(IsOn()); }

 protected:
  explicit TIconPane(qvx::SwitchPane pane) : m_pane(pane) {}

 private:
  qvx::SwitchPane m_pane;
};

class TaKhsKsj123
    : public TIconPane {  // fill of walls and columns; the published name says nothing
 public:
  TaKhsKsj123() : TIconPane(qvx::SwitchPane::kFill) {}
  void OnToggle() override;
  bool IsOn() override;
  void OnSetting() override;
};

class TBoldLinePane : public TIconPane {
 public:
  TBoldLinePane() : TIconPane(qvx::SwitchPane::kBoldLine) {}
  void OnToggle() override;
  bool IsOn() override;
  void OnSetting() override;
};

class TBaseLinePane : public TIconPane {
 public:
  TBaseLinePane() : TIconPane(qvx::SwitchPane::kBaseLine) {}
  void OnToggle() override;
  bool IsOn() override;
};

class TDynDimPane : public TIconPane {
 public:
  TDynDimPane() : TIconPane(qvx::SwitchPane::kDynDim) {}
  void OnToggle() override;
  bool IsOn() override;
};

class TMakeGroupPane : public TIconPane {
 public:
  TMakeGroupPane() : TIconPane(qvx::SwitchPane::kMakeGroup) {}
  void OnToggle() override;
  bool IsOn() override;
  void Init(bool add) override;
};

// Text only. The module does not put it on the bar; whoever wants it calls Init, which does nothing
// on hosts that have dynamic input themselves.
class TDynPane : public CADStatusPane {
 public:
  void OnToggle() override;
  bool IsOn() override;
  void OnSetting() override;
  void Init(bool add) override;
};
