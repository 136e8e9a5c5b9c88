#include "frame/start/load_sequence.h"

namespace {

bool Has(ShellSteps& steps, CustomFlag flag) { return (steps.CustomFlags() & flag) != 0; }

void RunCoreStart(ShellSteps& steps) {
  if (!Has(steps, kNoTipsAtStart)) steps.ShowTipsAtStart();
  steps.LoadIconLibrary();
  steps.InitContextWindow(true);
  steps.InitMessageFilter(true);
  steps.InitCommands(true);
  steps.InitScreenMenuReactor(true);
  if (!Has(steps, kNoFirstStart)) steps.RunFirstStartModules();
  steps.ReadProductFile();
  steps.SetFrameTitle();
  if (steps.HidesCaption()) steps.HideFrameCaption();
  if (steps.ReopensRecentFiles()) steps.QueueRecentFiles();
}

void AddPanes(ShellSteps& steps) {
  steps.InitPane(StatusPane::kMakeGroup, true);
  if (!Has(steps, kNoDrawingPanes)) {
    steps.InitPane(StatusPane::kBaseLine, true);
    steps.InitPane(StatusPane::kFill, true);
    steps.InitPane(StatusPane::kBoldLine, true);
    steps.InitPane(StatusPane::kDynDim, true);
  }
  if (!Has(steps, kNoScalePane)) steps.InitScalePane(true);
}

// Deliberately not the mirror of AddPanes: the base line and dynamic dimension panes are taken away
// whether or not they were ever added. The user sees nothing of it.
void RemovePanes(ShellSteps& steps) {
  steps.InitPane(StatusPane::kMakeGroup, false);
  steps.InitPane(StatusPane::kBaseLine, false);
  if (!Has(steps, kNoDrawingPanes)) {
    steps.InitPane(StatusPane::kFill, false);
    steps.InitPane(StatusPane::kBoldLine, false);
  }
  steps.InitPane(StatusPane::kDynDim, false);
  if (!Has(steps, kNoScalePane)) steps.InitScalePane(false);
}

}  // namespace

void RunLoadSequence(ShellSteps& steps) {
  steps.LoadKernel();
  steps.UnlockModule();
  steps.RegisterMdiAware();
  RunCoreStart(steps);
  steps.CreateDocTabBar();
  AddPanes(steps);
}

void RunUnloadSequence(ShellSteps& steps) {
  steps.SaveSettings();
  steps.SaveRecentCommands();
  steps.InitScreenMenuReactor(false);
  steps.RemoveScreenMenu();
  steps.InitContextWindow(false);
  steps.InitMessageFilter(false);
  steps.InitCommands(false);
  steps.FreeIconLibrary();
  steps.DestroyDocTabBar();
  RemovePanes(steps);
  steps.UnloadKernel();
}
