#include "kernel/trblist.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <cstring>
#include <utility>

#include "kernel/tpushacadundo.h"

TEST(TRBList, AppendsTypedNodesInOrder) {
  TRBList list;
  list.AppendString(0, L"QVX_WALL");
  list.AppendString(8, L"墙线");
  list.AppendShort(62, -3);
  list.AppendReal(40, 2.5);
  list.AppendLong(90, 70000);
  const TGroups* node = list.Head();
  ASSERT_NE(node, nullptr);
  EXPECT_STREQ(node->resval.rstring, L"QVX_WALL");
  node = node->Next();
  EXPECT_EQ(node->restype, 8);
  EXPECT_STREQ(node->resval.rstring, L"墙线");
  node = node->Next();
  EXPECT_EQ(node->resval.rint, -3);
  node = node->Next();
  EXPECT_EQ(node->resval.rreal, 2.5);
  node = node->Next();
  EXPECT_EQ(node->resval.rlong, 70000);
  EXPECT_EQ(node->Next(), nullptr);
}

TEST(TRBList, SetHeadTakesTheChainAndFreesTheOldOne) {
  TRBList list, other;
  list.AppendString(0, L"old");
  other.AppendString(0, L"new");
  list.SetHead(other.Detach());
  EXPECT_TRUE(other.IsEmpty());
  EXPECT_STREQ(list.Head()->resval.rstring, L"new");
  list.SetHead(list.Head());
  EXPECT_STREQ(list.Head()->resval.rstring, L"new");
  list.SetHead(nullptr);
  EXPECT_TRUE(list.IsEmpty());
}

TEST(TRBList, MovingLeavesTheSourceEmpty) {
  TRBList list;
  list.AppendShort(70, 1);
  TRBList moved(std::move(list));
  EXPECT_TRUE(list.IsEmpty());
  list = std::move(moved);
  EXPECT_EQ(list.Head()->resval.rint, 1);
}

TEST(TRBList, AVeryLongChainIsFreedWithoutRecursion) {
  TGroups* head = nullptr;
  for (int i = 0; i < 300000; ++i) {
    auto* node = new TGroups(70);
    node->rbnext = head;
    head = node;
  }
  TRBList list;
  list.SetHead(head);
}

TEST(TGroups, OwnsItsTextByCodeOrByHostType) {
  auto* byCode = new TGroups(1);
  byCode->resval.rstring = static_cast<wchar_t*>(std::calloc(4, sizeof(wchar_t)));
  EXPECT_TRUE(byCode->HoldsString());
  delete byCode;
  auto* byType = new TGroups(RTSTR);
  EXPECT_TRUE(byType->HoldsString());
  delete byType;
  EXPECT_FALSE(TGroups(40).HoldsString());
}

TEST(TRBList, ATextUnderACodeThatHoldsNoneIsNotStored) {
  TRBList list;
  list.AppendString(70, L"lost");
  EXPECT_EQ(list.Head()->resval.rstring, nullptr);
}

TEST(TPushAcadUndo, ScopesNest) {
  EXPECT_EQ(TPushAcadUndo::Depth(), 0);
  {
    TPushAcadUndo outer;
    TPushAcadUndo inner;
    EXPECT_EQ(TPushAcadUndo::Depth(), 2);
  }
  EXPECT_EQ(TPushAcadUndo::Depth(), 0);
}
