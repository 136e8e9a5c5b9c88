// The panes of the switches: three of the current drawing (fill, bold lines, base line) and three
// of the module (dynamic dimensions, grouping, dynamic input). They keep no state: after a change
// by other means a refresh reads it again.
#pragma once

#include "statusbar/win/cad_status_pane.h"
#include "statusbar/pane_rules.h"

// A pane with one icon for each state.
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

class TaKhsKsj123 : public TIconPane {  // fill of walls and columns
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

// Text only. The module does not add it to the bar; Init does so, except on hosts with
// dynamic input of their own.
class TDynPane : public CADStatusPane {
 public:
  void OnToggle() override;
  bool IsOn() override;
  void OnSetting() override;
  void Init(bool add) override;
};
