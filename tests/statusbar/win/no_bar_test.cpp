// The panes on a host without a status bar: no effect, no failure.
#include <gtest/gtest.h>

#include "afxext.h"

#include "acstatusbar.h"
#include "kernel/globals.h"
#include "statusbar/win/scale_pane.h"
#include "statusbar/status_bar_door.h"
#include "statusbar/win/status_panes.h"
#include "statusbar/win/switch_panes.h"

TEST(WithoutABar, NoPaneIsAddedOrRemoved) {
  ASSERT_EQ(acedGetApplicationStatusBar(), nullptr);
  TaKhsKsj123 fill;
  TDynDimPane dynDim;
  TPScalePane scale;
  fill.Init(true);
  dynDim.Init(true);
  scale.Init(true);
  fill.Init(false);
  dynDim.Init(false);
  scale.Init(false);
  CString text;
  scale.GetText(text);
  EXPECT_TRUE(text.IsEmpty());
}

TEST(WithoutABar, RefreshingAndTogglingStillWork) {
  UpdateStatusPanes();
  RefreshDrawingPanes();
  RefreshScaleText();
  EXPECT_TRUE(ShownPanes().empty());
  TDynDimPane dynDim;
  g_bDynamicCoord = 1;
  dynDim.OnLButtonDown(0, CPoint(0, 0));
  EXPECT_EQ(g_bDynamicCoord, 0);
  EXPECT_EQ(dynDim.GetStyle(), 2);
  CMenu menu;
  EXPECT_EQ(dynDim.DisplayPopupPaneMenu(menu), 0u);
}
