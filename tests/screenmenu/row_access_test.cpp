// The accessible properties of a row.
#include <gtest/gtest.h>

#include "screenmenu/row_access.h"

namespace {

using namespace qvx;

RowFacts Leaf() {
  return {L"绘制墙体", false, false, false, false, true, true, false, false, false};
}

TEST(RowAccess, TheNameOmitsTheAmpersandOfTheMnemonic) {
  EXPECT_EQ(AccessName(L"画墙(&W)"), L"画墙(W)");
  EXPECT_EQ(AccessName(L"门&&窗"), L"门&窗");
  EXPECT_EQ(AccessName(L"末尾&"), L"末尾");
  EXPECT_EQ(AccessName(L""), L"");
  EXPECT_EQ(AccessKey(L"画墙(&W)"), L"W");
  EXPECT_EQ(AccessKey(L"门&&窗(&C)"), L"C");
  EXPECT_EQ(AccessKey(L"门&&窗"), L"");
  EXPECT_EQ(AccessKey(L"末尾&"), L"");
}

TEST(RowAccess, AHeaderIsAButtonThatIsExpandedOrCollapsed) {
  RowFacts header = Leaf();
  header.header = true;
  EXPECT_EQ(AccessRole(header), kAccessPushButton);
  EXPECT_EQ(AccessStates(header), kAccessFocusable | kAccessCollapsed);
  EXPECT_STREQ(AccessAction(header), L"展开");
  header.open = true;
  EXPECT_EQ(AccessStates(header), kAccessFocusable | kAccessExpanded);
  EXPECT_STREQ(AccessAction(header), L"折叠");
}

TEST(RowAccess, ALeafIsNeitherExpandedNorCollapsed) {
  EXPECT_EQ(AccessStates(Leaf()), kAccessFocusable);
  EXPECT_STREQ(AccessAction(Leaf()), L"按下");
}

TEST(RowAccess, ADisabledRowIsUnavailableAndCannotBeFocused) {
  RowFacts row = Leaf();
  row.enabled = false;
  EXPECT_EQ(AccessStates(row), kAccessUnavailable);
}

TEST(RowAccess, ASeparatorHasItsRoleAndNoAction) {
  RowFacts row = Leaf();
  row.separator = true;
  row.enabled = false;
  EXPECT_EQ(AccessRole(row), kAccessSeparator);
  EXPECT_EQ(AccessStates(row), kAccessUnavailable);
  EXPECT_STREQ(AccessAction(row), L"");
}

TEST(RowAccess, PointerFocusPressCheckAndFoldingAreReported) {
  RowFacts row = Leaf();
  row.hot = row.focused = row.pressed = row.checked = true;
  row.visible = false;
  EXPECT_EQ(AccessStates(row), kAccessFocusable | kAccessFocused | kAccessHot | kAccessPressed |
                                   kAccessChecked | kAccessInvisible);
}

}  // namespace
