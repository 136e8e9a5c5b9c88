// The recent list, newest first. It is a bar, so that it can be the sub-menu of a line. Loading a
// menu file does not change it. Labels and icons are taken from the lines that RecentSources finds;
// without sources the label is the command.
#pragma once

#include "menu/menu_bar.h"

class RecentSources {
 public:
  virtual ~RecentSources() = default;
  virtual bool IsRunMode() = 0;        // true: labels are not looked up
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
