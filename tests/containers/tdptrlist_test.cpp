// TDPtrList: the growable array of pointers, its ownership, its cursor and its cached ends.
#include <gtest/gtest.h>

#include "frame/containers/tdptrlist.h"
#include "tests/containers/counted.h"

namespace {

std::string Values(const TDPtrList<Counted>& list) {
  std::string text;
  for (Counted* c : list) text += std::to_string(c->value) + " ";
  return text;
}

TEST(TDPtrList, IsEmptyAtFirstWithNoEnds) {
  TDPtrList<Counted> list;
  EXPECT_EQ(list.Length(), 0);
  EXPECT_EQ(list.First(), nullptr);
  EXPECT_EQ(list.Last(), nullptr);
}

TEST(TDPtrList, AnOwningListDeletesItsElements) {
  {
    TDPtrList<Counted> list(true);
    for (int i = 0; i < 20; ++i) list.Append(new Counted(i));
    list.Append(nullptr);
    EXPECT_EQ(Counted::s_live, 20);
  }
  EXPECT_EQ(Counted::s_live, 0);
}

TEST(TDPtrList, ANonOwningListLeavesItsElementsAlone) {
  Counted a(1);
  {
    TDPtrList<Counted> list(false);
    list.Append(&a);
    EXPECT_EQ(list.Remove(0), 1);
    list.Append(&a);
  }
  EXPECT_EQ(Counted::s_live, 1);
}

TEST(TDPtrList, AppendLeavesTheCursorOnePastTheLastElement) {
  TDPtrList<Counted> list;
  list.Append(new Counted(1));
  list.Append(new Counted(2));
  EXPECT_EQ(list.Cursor(), 2);
}

TEST(TDPtrList, IndexingStoresTheIndexInTheCursor) {
  TDPtrList<Counted> list;
  for (int i = 0; i < 3; ++i) list.Append(new Counted(i));
  EXPECT_EQ(list[1]->value, 1);
  EXPECT_EQ(list.Cursor(), 1);
}

TEST(TDPtrList, InsertAtCursorPutsBeforeAndStepsOver) {
  TDPtrList<Counted> list;
  list.Append(new Counted(1));
  list.Append(new Counted(4));
  list[1];
  list.InsertAtCursor(new Counted(2));
  EXPECT_EQ(list.Cursor(), 2);
  list.InsertAtCursor(new Counted(3));
  EXPECT_EQ(Values(list), "1 2 3 4 ");
}

TEST(TDPtrList, InsertAtAnInvalidCursorAppends) {
  TDPtrList<Counted> list;
  list.InsertAtCursor(new Counted(1));
  list.InsertAtCursor(new Counted(2));
  list.SetCursor(-1);
  list.InsertAtCursor(new Counted(3));
  EXPECT_EQ(Values(list), "1 2 3 ");
  EXPECT_EQ(list.Cursor(), 3);
}

TEST(TDPtrList, RemoveClosesTheGapAndReturnsWhetherTheIndexWasValid) {
  TDPtrList<Counted> list;
  for (int i = 0; i < 4; ++i) list.Append(new Counted(i));
  EXPECT_EQ(list.Remove(1), 1);
  EXPECT_EQ(Values(list), "0 2 3 ");
  EXPECT_EQ(list.Remove(3), 0);
  EXPECT_EQ(list.Remove(-1), 0);
  EXPECT_EQ(Counted::s_live, 3);
}

TEST(TDPtrList, TheCachedEndsFollowEveryChange) {
  TDPtrList<Counted> list;
  list.Append(new Counted(1));
  EXPECT_EQ(list.First(), list.Last());
  list.Append(new Counted(2));
  EXPECT_EQ(list.Last()->value, 2);
  list[0];
  list.InsertAtCursor(new Counted(0));
  EXPECT_EQ(list.First()->value, 0);
  list.Remove(2);
  EXPECT_EQ(list.Last()->value, 1);
  delete list.Detach(0);
  EXPECT_EQ(list.First()->value, 1);
  delete list.Exchange(0, new Counted(7));
  EXPECT_EQ(list.First()->value, 7);
  EXPECT_EQ(list.Last()->value, 7);
  list.Clear();
  EXPECT_EQ(list.First(), nullptr);
  EXPECT_EQ(list.Last(), nullptr);
}

TEST(TDPtrList, DetachTakesOutWithoutDeleting) {
  TDPtrList<Counted> list;
  list.Append(new Counted(5));
  Counted* taken = list.Detach(0);
  EXPECT_EQ(list.Length(), 0);
  EXPECT_EQ(taken->value, 5);
  EXPECT_EQ(list.Detach(0), nullptr);
  delete taken;
}

TEST(TDPtrList, AListSetToNotOwnHandsItsElementsOver) {
  TDPtrList<Counted> keeper;
  {
    TDPtrList<Counted> temporary;
    temporary.Append(new Counted(1));
    temporary.SetOwnsElements(false);
    keeper.Append(temporary[0]);
  }
  EXPECT_EQ(Values(keeper), "1 ");
}

TEST(TDPtrList, TakeAllMovesTheElementsAndEmptiesTheSource) {
  TDPtrList<Counted> a, b;
  a.Append(new Counted(1));
  b.Append(new Counted(2));
  b.Append(new Counted(3));
  a.TakeAll(b);
  EXPECT_EQ(Values(a), "2 3 ");
  EXPECT_EQ(b.Length(), 0);
  EXPECT_EQ(b.First(), nullptr);
  EXPECT_EQ(Counted::s_live, 2);
}

TEST(TDPtrList, TruncateDeletesAndForgetDoesNot) {
  TDPtrList<Counted> list;
  for (int i = 0; i < 4; ++i) list.Append(new Counted(i));
  Counted* last = list.Last();
  list.Forget(3);
  EXPECT_EQ(Counted::s_live, 4);
  delete last;
  list.Truncate(1);
  EXPECT_EQ(Counted::s_live, 1);
  EXPECT_EQ(Values(list), "0 ");
}

TEST(TDPtrStack, IsAPointerListThatCanBeNonOwning) {
  Counted a(1), b(2);
  TDPtrStack<Counted> stack(false);
  stack.Append(&a);
  stack.Append(&b);
  EXPECT_EQ(stack.Last(), &b);
  stack.Remove(stack.Length() - 1);
  EXPECT_EQ(stack.Last(), &a);
}

}  // namespace
