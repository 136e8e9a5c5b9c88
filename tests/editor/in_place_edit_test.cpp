// The in-place editor until it is built: it never shows and releases what it is given.
#include "editor/in_place_edit.h"

#include <gtest/gtest.h>

#include "gepnt3d.h"
#include "kernel/tsubtext.h"

namespace {

TEST(InPlaceEdit, IsNeverVisibleAndReleasesTheFragment) {
  struct Counted : TSubText {
    explicit Counted(int& live) : TSubText({}, nullptr, 0, false, false), m_live(live) { ++m_live; }
    ~Counted() override { --m_live; }
    int& m_live;
  };
  int live = 0;
  InPlaceEdit& edit = TheInPlaceEdit();
  EXPECT_FALSE(edit.IsVisible());
  auto* fragment = new Counted(live);
  EXPECT_EQ(live, 1);
  edit.BeginEdit(fragment, AcGeMatrix3d());
  EXPECT_EQ(live, 0);
  EXPECT_FALSE(edit.IsVisible());
  EXPECT_FALSE(edit.ShowInPlaceMenu({1, 2})) << "no menu was shown";
  edit.BeginEdit(nullptr, AcGeMatrix3d());
  edit.EndEdit(true);
  edit.HideCaret();
  edit.PostMove();
  EXPECT_FALSE(edit.IsVisible());
  EXPECT_EQ(&edit, &TheInPlaceEdit());
}

}  // namespace
