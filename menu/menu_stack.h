// The recent commands, most recent first, kept as a bar so that it can hang under a line as
// sub-menu. It outlives every load of a menu file. Where a command's label and icon come from is
// asked through RecentSources, which the shell implements; without one the list still works, with
// bare labels.
#pragma once

#include "menu/menu_bar.h"

class RecentSources {
 public:
  virtual ~RecentSources() = default;
  virtual bool IsRunMode() = 0;        // on: labels are not looked up
  virtual TMenuBar* ScreenRoot() = 0;  // null without a screen menu
  // The line of the menu in force that has this command; null when there is none.
  virtual TMenuItem* FindMenuLine(const wchar_t* command) = 0;
};

class TMenuStack : public TMenuBar {
 public:
  TMenuStack() { m_bOwned = 0; }
  virtual void AddRecent(const wchar_t* command);

  void SetSources(RecentSources* sources) { m_pSources = sources; }  // not owned

  int m_nMaxDepth = 10;

 private:
  TMenuItem* FindSource(const wchar_t* command);

  RecentSources* m_pSources = nullptr;
};
