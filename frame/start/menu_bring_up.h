// The end of the start-up, run from a timer when the host's message loop is free: looking for the
// menu, bringing up the screen menu and the recent commands, and the one text that is sent when all
// of it stands. Also the command TLoadMenu. Decides only; the steps are the caller's.
#pragma once

#include "kernel/twcstring.h"

class BringUpSteps {
 public:
  virtual ~BringUpSteps() = default;

  virtual bool FindMenu(TWCString& base) = 0;  // drive, folder and name, no extension
  virtual bool FindFile(const wchar_t* name, TWCString& path) = 0;
  virtual int ScreenMenuSetting(const wchar_t* name, int otherwise) = 0;
  virtual void CreateScreenMenu(bool show) = 0;
  virtual void LoadMenuFile(const wchar_t* path) = 0;
  virtual void PublishLispPath() = 0;
  virtual void RefreshDocStatus() = 0;
  virtual void RestoreRecentCommands() = 0;

  virtual bool ScreenMenuHasWindow() = 0;
  virtual bool IsLimitedProduct() = 0;  // product 17 from version 7 on has no QMNLOAD to point to
  virtual void Print(const wchar_t* text) = 0;
  virtual void StopReadinessTimer() = 0;
  virtual void SendToHost(const wchar_t* text) = 0;
};

class MenuBringUp {
 public:
  // Runs once per load of the module; a second call returns at once. With the screen menu switched
  // off in the settings nothing is done and nothing remembered, so the readiness timer calls here
  // for as long as the host runs: that is how the setting works.
  void Run(BringUpSteps& steps);

  // One firing of the readiness timer.
  void StepReadiness(BringUpSteps& steps);

  bool IsDone() const { return m_done; }

 private:
  bool m_done = false;
  bool m_showBarPending = true;
  // Nothing sets it, so its message is never printed; that is meant to stay.
  bool m_firstRun = false;
};

constexpr const wchar_t* kNoMenuFound = L"\n未找到所需的qmn菜单文件!请重新安装奇维软件。";
constexpr const wchar_t* kNoMenuFoundUseQmnLoad =
    L"\n未找到所需的qmn菜单文件!请重新安装奇维软件，或在命令行运行<QMNLOAD>命令加载菜单文件。";
