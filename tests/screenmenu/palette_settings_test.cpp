// The settings of the palette.
#include <gtest/gtest.h>

#include <set>

#include "kernel/globals.h"
#include "kernel/tregproperty.h"
#include "screenmenu/edge_drag.h"
#include "screenmenu/palette_settings.h"

namespace {

int ReadValue(const wchar_t* name, int otherwise) {
  CString path(GetRegLocation());
  path += L"\\Settings\\ScreenMenu";
  TRegProperty key(path, L"");
  key.GetValue(name, otherwise);
  return otherwise;
}

TEST(PaletteSettings, WhatIsSavedIsReadBackExceptTheHeight) {
  qvx::SavePaletteState({1, 0, {133, 777}, 1, 1, 1});
  qvx::PaletteSettings settings;
  qvx::LoadPaletteSettings(settings);
  EXPECT_EQ(settings.alignment, 0);
  EXPECT_EQ(settings.sizeX, 133);
  EXPECT_EQ(settings.limitHeight, 1);
  EXPECT_EQ(settings.defaultOpenFirst, 1);
  EXPECT_EQ(settings.scrollBar, 1);
  EXPECT_EQ(ReadValue(L"SizeY", -1), 777);
  EXPECT_EQ(ReadValue(L"Visible", -1), 1);
  qvx::SavePaletteState({0, 1, {76, 80}, 0, 0, 0});
}

TEST(PaletteSettings, DestroyingThePaletteSavesTheSizeOnly) {
  qvx::SavePaletteState({1, 1, {76, 80}, 0, 0, 0});
  qvx::SavePaletteSize(90, 300);
  EXPECT_EQ(ReadValue(L"SizeX", -1), 90);
  EXPECT_EQ(ReadValue(L"SizeY", -1), 300);
  EXPECT_EQ(ReadValue(L"Alignment", -1), 1);
}

TEST(PaletteSettings, AWidthTooSmallToGrabIsNotSaved) {
  EXPECT_EQ(qvx::UsableWidth(120, 1000), 120);
  EXPECT_EQ(qvx::UsableWidth(1, 1000), 1);
  EXPECT_EQ(qvx::UsableWidth(1000, 1000), 1000);
  for (int odd : {0, -1, -2147483647 - 1, 1001, 2147483647})
    EXPECT_EQ(qvx::UsableWidth(odd, 1000), 76);
}

TEST(PaletteSettings, AnyOpenIndexIsSavedUnchanged) {
  for (int value : {3, 0, -1, 4711}) {
    qvx::SaveActiveSubMenu(value);
    EXPECT_EQ(qvx::LoadActiveSubMenu(), value);
  }
}

TEST(PaletteSettings, ThePaletteBelongsToTheNearerSideAndToTheLeftOnATie) {
  const RECT frame{0, 0, 1000, 600};
  EXPECT_EQ(qvx::AlignmentOf({0, 0, 100, 600}, frame), 1);
  EXPECT_EQ(qvx::AlignmentOf({900, 0, 1000, 600}, frame), 0);
  EXPECT_EQ(qvx::AlignmentOf({300, 0, 700, 600}, frame), 1);
}

TEST(PaletteSettings, EachSideHasItsStyleAndDockBar) {
  EXPECT_EQ(qvx::DockFor(1).barStyle, 0x1420u);
  EXPECT_EQ(qvx::DockFor(1).dockBar, qvx::kDockLeft);
  EXPECT_EQ(qvx::DockFor(5).dockBar, qvx::kDockLeft) << "anything but 0 is left";
  EXPECT_EQ(qvx::DockFor(0).barStyle, 0x4120u);
  EXPECT_EQ(qvx::DockFor(0).dockBar, qvx::kDockRight);
}

TEST(PaletteSettings, TheElevenProductsHaveElevenToolIdentifiers) {
  std::set<unsigned> seen;
  for (int product = 1; product <= 11; ++product) {
    const qvx::ToolId& id = qvx::ToolIdOf(product);
    EXPECT_EQ(id.data1, 0x91239E2Fu);
    EXPECT_EQ(id.data3, 0x4165u);
    EXPECT_EQ(id.data4[7], 0xFD);
    seen.insert(id.data2);
  }
  EXPECT_EQ(seen.size(), 11u);
  EXPECT_EQ(*seen.begin(), 0x4861u);
  EXPECT_EQ(*seen.rbegin(), 0x486Bu);
}

}  // namespace

TEST(PaletteToolId, OnlyTheElevenProductsHaveOne) {
  for (int product = 1; product <= 11; ++product) EXPECT_TRUE(qvx::HasToolId(product)) << product;
  for (const int product : {-2000000000, -1, 0, 12, 17, 2000000000})
    EXPECT_FALSE(qvx::HasToolId(product)) << product;
}
