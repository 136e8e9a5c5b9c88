// The order in which the module comes up and goes down. Nothing is done here: each step is one call
// on ShellSteps, which the live module implements over the host and the rooms, and tests over a
// diary. Called by the module's entry function.
#pragma once

// Bits of the custom flags that leave something out.
enum CustomFlag : int {
  kNoScalePane = 0x01,
  kNoTipsAtStart = 0x02,
  kNoFirstStart = 0x08,
  kNoViewportResize = 0x10,
  kNoDrawingPanes = 0x20,
};

enum class StatusPane { kMakeGroup, kBaseLine, kFill, kBoldLine, kDynDim };

class ShellSteps {
 public:
  virtual ~ShellSteps() = default;

  // Asked anew where it is needed: the kernel that holds them is loaded by the first step.
  virtual int CustomFlags() = 0;

  // Up, in this order.
  virtual void LoadKernel() = 0;
  virtual void UnlockModule() = 0;
  virtual void RegisterMdiAware() = 0;
  virtual void ShowTipsAtStart() = 0;
  virtual void LoadIconLibrary() = 0;  // says so when there is no menu
  virtual void RunFirstStartModules() = 0;
  virtual void ReadProductFile() = 0;  // title and help file
  virtual void SetFrameTitle() = 0;
  virtual bool HidesCaption() = 0;
  virtual void HideFrameCaption() = 0;
  virtual bool ReopensRecentFiles() = 0;
  virtual void QueueRecentFiles() = 0;
  virtual void CreateDocTabBar() = 0;

  // Up with true, down with false.
  virtual void InitContextWindow(bool create) = 0;
  virtual void InitMessageFilter(bool add) = 0;
  virtual void InitCommands(bool add) = 0;
  virtual void InitScreenMenuReactor(bool add) = 0;
  virtual void InitPane(StatusPane pane, bool add) = 0;
  virtual void InitScalePane(bool add) = 0;

  // Down.
  virtual void SaveSettings() = 0;
  virtual void SaveRecentCommands() = 0;
  virtual void RemoveScreenMenu() = 0;
  virtual void FreeIconLibrary() = 0;
  virtual void DestroyDocTabBar() = 0;
  virtual void UnloadKernel() = 0;
};

void RunLoadSequence(ShellSteps& steps);
void RunUnloadSequence(ShellSteps& steps);
