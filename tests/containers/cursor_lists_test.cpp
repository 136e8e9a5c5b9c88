// The cursor lists: each operation of TTable, run on the singly and on the doubly linked list,
// which must give the same results.
#include <gtest/gtest.h>

#include "frame/containers/tdualptrlist.h"
#include "frame/containers/tlist.h"

namespace {

template <class L>
class CursorList : public testing::Test {
 public:
  void Fill(int n) {
    for (int i = 0; i < n; ++i) list.Append(i * 10);
  }
  std::string Text() { return TextOf(list); }
  static std::string TextOf(L& l) {
    std::string forward, backward;
    for (auto* n = l.FirstNode(); n; n = l.NextNode(n)) forward += std::to_string(n->value) + " ";
    for (auto* n = l.LastNode(); n; n = l.PrevNode(n))
      backward = std::to_string(n->value) + " " + backward;
    return forward == backward ? forward : "forward " + forward + "backward " + backward;
  }
  L list;
};

using Lists = testing::Types<TList<int>, TDualPtrList<int>>;
TYPED_TEST_SUITE(CursorList, Lists);

TYPED_TEST(CursorList, StartsEmptyBeforeTheFirstElement) {
  EXPECT_EQ(this->list.GetLength(), 0);
  EXPECT_EQ(this->list.GetLastIndex(), -1);
  EXPECT_EQ(this->list.GetCur(), -1);
  EXPECT_TRUE(this->list.IsBegin());
  EXPECT_TRUE(this->list.IsEmpty());
  EXPECT_FALSE(this->list.IsValidIndex(0));
  EXPECT_EQ(this->list.FirstNode(), nullptr);
  EXPECT_EQ(this->list.LastNode(), nullptr);
}

TYPED_TEST(CursorList, ANodePointerIsAPointerToItsValue) {
  this->Fill(1);
  auto* node = this->list.FirstNode();
  EXPECT_EQ(static_cast<void*>(node), static_cast<void*>(&node->value));
}

TYPED_TEST(CursorList, TheLastNodeClosesTheRing) {
  this->Fill(3);
  auto* sentinel = this->list.LastNode()->next;
  EXPECT_EQ(sentinel->next, this->list.FirstNode());
  this->list.GoTo(-1);
  EXPECT_EQ(this->list.GetCurPos(), sentinel);
}

TYPED_TEST(CursorList, SetLengthGrowsWithDefaultsAndShrinksFromTheEnd) {
  this->Fill(2);
  this->list.SetLength(4);
  EXPECT_EQ(this->Text(), "0 10 0 0 ");
  this->list.SetLength(1);
  EXPECT_EQ(this->Text(), "0 ");
  this->list.SetLength(-5);
  EXPECT_EQ(this->Text(), "");
  EXPECT_TRUE(this->list.IsBegin());
}

TYPED_TEST(CursorList, CurValueAndSetCurValueTouchTheCurrentElement) {
  this->Fill(3);
  this->list.GoTo(1);
  EXPECT_EQ(*this->list.CurValue(), 10);
  this->list.SetCurValue(11);
  EXPECT_EQ(this->Text(), "0 11 20 ");
}

TYPED_TEST(CursorList, CurValueBeforeTheFirstGivesTheSentinelsValue) {
  this->Fill(2);
  this->list.GoTo(99);
  EXPECT_TRUE(this->list.IsBegin());
  EXPECT_EQ(*this->list.CurValue(), 0);
}

TYPED_TEST(CursorList, GoToReachesEveryIndexFromEveryIndex) {
  this->Fill(6);
  for (int from = -1; from < 6; ++from)
    for (int to = 0; to < 6; ++to) {
      this->list.GoTo(from);
      this->list.GoTo(to);
      EXPECT_EQ(this->list.GetCur(), to);
      EXPECT_EQ(*this->list.CurValue(), to * 10);
    }
}

TYPED_TEST(CursorList, GoToWithAnInvalidIndexParksBeforeTheFirst) {
  this->Fill(2);
  for (int bad : {-1, -7, 2, 100}) {
    this->list.GoTo(1);
    this->list.GoTo(bad);
    EXPECT_EQ(this->list.GetCur(), -1);
  }
}

TYPED_TEST(CursorList, GoFirstAndGoLastOnAnEmptyListPark) {
  this->list.GoFirst();
  EXPECT_EQ(this->list.GetCur(), -1);
  this->list.GoLast();
  EXPECT_EQ(this->list.GetCur(), -1);
  this->Fill(3);
  this->list.GoFirst();
  EXPECT_EQ(this->list.GetCur(), 0);
  EXPECT_EQ(*this->list.CurValue(), 0);
  this->list.GoLast();
  EXPECT_EQ(this->list.GetCur(), 2);
  EXPECT_EQ(*this->list.CurValue(), 20);
}

TYPED_TEST(CursorList, GoNextPastTheLastParks) {
  this->Fill(2);
  this->list.GoTo(-1);
  std::vector<int> seen;
  for (int i = 0; i < 4; ++i) {
    this->list.GoNext();
    seen.push_back(this->list.GetCur());
  }
  EXPECT_EQ(seen, (std::vector<int>{0, 1, -1, 0}));
}

TYPED_TEST(CursorList, GoPrevBeforeTheFirstGoesToTheLast) {
  this->Fill(3);
  this->list.GoTo(-1);
  std::vector<int> seen;
  for (int i = 0; i < 5; ++i) {
    this->list.GoPrev();
    seen.push_back(this->list.GetCur());
  }
  EXPECT_EQ(seen, (std::vector<int>{2, 1, 0, -1, 2}));
}

TYPED_TEST(CursorList, StepsOnAnEmptyListStayBeforeTheFirst) {
  this->list.GoNext();
  EXPECT_EQ(this->list.GetCur(), -1);
  this->list.GoPrev();
  EXPECT_EQ(this->list.GetCur(), -1);
}

TYPED_TEST(CursorList, IndexingPastTheEndGrowsTheList) {
  this->Fill(1);
  EXPECT_EQ(this->list[3], 0);
  EXPECT_EQ(this->list.GetLength(), 4);
  EXPECT_EQ(this->list.GetCur(), 3);
  this->list[2] = 7;
  EXPECT_EQ(this->Text(), "0 0 7 0 ");
}

TYPED_TEST(CursorList, NodeAtLeavesTheCursorWhereItIs) {
  this->Fill(5);
  for (int cursor = -1; cursor < 5; ++cursor)
    for (int i = 0; i < 5; ++i) {
      this->list.GoTo(cursor);
      EXPECT_EQ(this->list.NodeAt(i)->value, i * 10);
      EXPECT_EQ(this->list.GetCur(), cursor);
    }
  EXPECT_EQ(this->list.NodeAt(5), nullptr);
  EXPECT_EQ(this->list.NodeAt(-1), nullptr);
}

TYPED_TEST(CursorList, NodesChainBothWaysAndEndInNull) {
  this->Fill(2);
  auto* first = this->list.FirstNode();
  auto* last = this->list.LastNode();
  EXPECT_EQ(this->list.NextNode(first), last);
  EXPECT_EQ(this->list.NextNode(last), nullptr);
  EXPECT_EQ(this->list.NextNode(nullptr), nullptr);
  for (int cursor = -1; cursor < 2; ++cursor) {
    this->list.GoTo(cursor);
    EXPECT_EQ(this->list.PrevNode(last), first);
    EXPECT_EQ(this->list.PrevNode(first), nullptr);
  }
  EXPECT_EQ(this->list.PrevNode(nullptr), nullptr);
}

TYPED_TEST(CursorList, InsertBeforeCurStepsBackAndInsertsAfter) {
  this->Fill(2);
  this->list.GoTo(1);
  this->list.InsertBeforeCur(5);
  EXPECT_EQ(this->Text(), "0 5 10 ");
  EXPECT_EQ(this->list.GetCur(), 1);
  this->list.GoTo(0);
  this->list.InsertBeforeCur(-1);
  EXPECT_EQ(this->Text(), "-1 0 5 10 ");
  EXPECT_EQ(this->list.GetCur(), 0);
}

TYPED_TEST(CursorList, InsertBeforeTheParkedCursorAppends) {
  this->Fill(2);
  this->list.GoTo(-1);
  this->list.InsertBeforeCur(5);
  EXPECT_EQ(this->Text(), "0 10 5 ");
  EXPECT_EQ(this->list.GetCur(), 2);
}

TYPED_TEST(CursorList, InsertPutsTheElementAtTheIndexAndStandsOnIt) {
  this->Fill(2);
  this->list.Insert(1, 5);
  EXPECT_EQ(this->list.GetCur(), 1);
  this->list.Insert(0, -1);
  EXPECT_EQ(this->list.GetCur(), 0);
  this->list.Insert(4, 99);
  EXPECT_EQ(this->list.GetCur(), 4);
  EXPECT_EQ(this->Text(), "-1 0 5 10 99 ");
}

TYPED_TEST(CursorList, InsertFarPastTheEndGoesToTheFront) {
  this->Fill(2);
  this->list.Insert(9, 5);
  EXPECT_EQ(this->Text(), "5 0 10 ");
}

TYPED_TEST(CursorList, InsertFirstAndAppend) {
  this->list.InsertFirst(1);
  this->list.InsertFirst(0);
  EXPECT_EQ(this->list.GetCur(), 0);
  EXPECT_EQ(this->list.Append(2), 2);
  EXPECT_EQ(this->list.GetCur(), 2);
  EXPECT_EQ(this->Text(), "0 1 2 ");
}

TYPED_TEST(CursorList, DelCurStandsOnTheElementBefore) {
  this->Fill(4);
  this->list.GoTo(2);
  this->list.DelCur();
  EXPECT_EQ(this->Text(), "0 10 30 ");
  EXPECT_EQ(this->list.GetCur(), 1);
  EXPECT_EQ(*this->list.CurValue(), 10);
  this->list.Del(2);
  EXPECT_EQ(this->Text(), "0 10 ");
  EXPECT_EQ(this->list.LastNode()->value, 10);
  this->list.Del(0);
  EXPECT_EQ(this->list.GetCur(), -1);
  EXPECT_EQ(this->Text(), "10 ");
}

TYPED_TEST(CursorList, DelCurBeforeTheFirstDeletesNothing) {
  this->Fill(2);
  this->list.Del(7);
  EXPECT_EQ(this->Text(), "0 10 ");
}

TYPED_TEST(CursorList, ClearEmptiesAndTheListLivesOn) {
  this->Fill(3);
  this->list.Clear();
  EXPECT_EQ(this->list.GetLength(), 0);
  EXPECT_EQ(this->list.GetCur(), -1);
  this->Fill(2);
  EXPECT_EQ(this->Text(), "0 10 ");
}

TYPED_TEST(CursorList, MoveToItsOwnPlaceOrBehindItselfDoesNothing) {
  this->Fill(3);
  EXPECT_FALSE(this->list.Move(1, 1));
  EXPECT_FALSE(this->list.Move(1, 2));
  EXPECT_FALSE(this->list.Move(5, 0));
  EXPECT_FALSE(this->list.Move(0, 9));
  EXPECT_EQ(this->Text(), "0 10 20 ");
}

TYPED_TEST(CursorList, MoveStandsOnTheMovedElement) {
  this->Fill(4);
  EXPECT_TRUE(this->list.Move(3, 0));
  EXPECT_EQ(this->Text(), "30 0 10 20 ");
  EXPECT_EQ(this->list.GetCur(), 0);
  EXPECT_TRUE(this->list.Move(0, 4));
  EXPECT_EQ(this->Text(), "0 10 20 30 ");
  EXPECT_EQ(this->list.GetCur(), 3);
  EXPECT_TRUE(this->list.Move(0, 2));
  EXPECT_EQ(this->Text(), "10 0 20 30 ");
  EXPECT_EQ(*this->list.CurValue(), 0);
}

TYPED_TEST(CursorList, SortByOwnOrderRunsBothWays) {
  for (int v : {3, 1, 2, 3, 0}) this->list.Append(v);
  this->list.Sort(true);
  EXPECT_EQ(this->Text(), "0 1 2 3 3 ");
  this->list.Sort(false);
  EXPECT_EQ(this->Text(), "3 3 2 1 0 ");
  this->list.Append(9);
  EXPECT_EQ(this->Text(), "3 3 2 1 0 9 ");
}

TYPED_TEST(CursorList, SortByComparisonKeepsTheOrderOfEqualElements) {
  for (int v : {31, 12, 30, 11, 10}) this->list.Append(v);
  this->list.Sort([](const int* a, const int* b) { return *a / 10 - *b / 10; });
  EXPECT_EQ(this->Text(), "12 11 10 31 30 ");
}

TYPED_TEST(CursorList, SortTakesOnlyOneAndMoreAsOutOfOrder) {
  for (int v : {2, 1}) this->list.Append(v);
  this->list.Sort([](const int*, const int*) { return -1; });
  EXPECT_EQ(this->Text(), "2 1 ");
  this->list.Sort([](const int*, const int*) { return 0; });
  EXPECT_EQ(this->Text(), "2 1 ");
  this->list.Sort([](const int* a, const int* b) { return *a > *b ? 1 : 0; });
  EXPECT_EQ(this->Text(), "1 2 ");
}

TYPED_TEST(CursorList, SortOfFewerThanTwoElementsReturnsAtOnce) {
  this->list.Sort(true);
  this->Fill(1);
  this->list.GoTo(0);
  this->list.Sort(true);
  EXPECT_EQ(this->list.GetCur(), 0);
}

TYPED_TEST(CursorList, InsertAfterCurBecomesCurrent) {
  this->list.InsertAfterCur(1);
  this->list.InsertAfterCur(3);
  this->list.GoTo(0);
  this->list.InsertAfterCur(2);
  EXPECT_EQ(this->list.GetCur(), 1);
  EXPECT_EQ(this->list.LastNode()->value, 3);
  EXPECT_EQ(this->Text(), "1 2 3 ");
}

TYPED_TEST(CursorList, DetachAfterCutsTheRingAndLeavesTheNodesToTheCaller) {
  this->Fill(4);
  auto* chain = this->list.DetachAfter(1);
  EXPECT_EQ(this->Text(), "0 10 ");
  EXPECT_EQ(this->list.GetCur(), 1);
  std::string cut;
  while (chain) {
    cut += std::to_string(chain->value) + " ";
    delete std::exchange(chain, chain->next);
  }
  EXPECT_EQ(cut, "20 30 ");
  EXPECT_EQ(this->list.DetachAfter(), nullptr);
}

TYPED_TEST(CursorList, TheNodesThatDetachAfterLeavesAreThoseThatStoodInTheList) {
  this->Fill(3);
  auto* second = this->list.NodeAt(1);
  auto* third = this->list.NodeAt(2);
  EXPECT_EQ(this->list.DetachAfter(0), second);
  EXPECT_EQ(second->value, 10);
  EXPECT_EQ(second->next, third);
  EXPECT_EQ(third->next, nullptr);
  delete second;
  delete third;
  this->list.Append(7);
  EXPECT_EQ(this->Text(), "0 7 ");
}

TYPED_TEST(CursorList, AppendMovesTheTailOfAnotherList) {
  TypeParam other;
  for (int v : {1, 2, 3}) other.Append(v);
  this->Fill(2);
  this->list.GoTo(0);
  this->list.Append(other, 1);
  EXPECT_EQ(this->Text(), "0 10 2 3 ");
  EXPECT_EQ(this->list.GetCur(), 0);
  EXPECT_EQ(this->TextOf(other), "1 ");
  this->list.Append(other, 5);
  this->list.Append(this->list, 0);
  EXPECT_EQ(this->Text(), "0 10 2 3 ");
  this->list.Append(other, 0);
  EXPECT_TRUE(other.IsEmpty());
  EXPECT_EQ(this->Text(), "0 10 2 3 1 ");
}

TYPED_TEST(CursorList, ReverseSwapsFirstAndLast) {
  this->Fill(3);
  this->list.GoTo(0);
  this->list.Reverse();
  EXPECT_EQ(this->Text(), "20 10 0 ");
  EXPECT_EQ(this->list.GetCur(), 2);
  EXPECT_EQ(*this->list.CurValue(), 0);
  this->list.Append(9);
  EXPECT_EQ(this->Text(), "20 10 0 9 ");
}

TYPED_TEST(CursorList, RotateBringsTheElementAtTheDifferenceToTheFront) {
  for (int from = 0; from < 4; ++from)
    for (int to = 0; to < 4; ++to) {
      this->list.Clear();
      this->Fill(4);
      this->list.Rotate(from, to);
      EXPECT_EQ(this->list.GetCur(), 0);
      EXPECT_EQ(*this->list.CurValue(), (from - to + 4) % 4 * 10);
      EXPECT_EQ(this->list.NodeAt(to)->value, from * 10);
      EXPECT_EQ(this->list.LastNode()->value, (from - to + 3 + 4) % 4 * 10);
    }
}

TYPED_TEST(CursorList, RotateOfAnEmptyListDoesNothing) {
  this->list.Rotate(2, 1);
  EXPECT_EQ(this->list.GetCur(), -1);
}

TYPED_TEST(CursorList, FindLooksBetweenFirstAndLastInclusive) {
  for (int v : {5, 6, 5, 7}) this->list.Append(v);
  EXPECT_EQ(this->list.Find(5), 0);
  EXPECT_EQ(this->list.Find(5, 1), 2);
  EXPECT_EQ(this->list.Find(7, 0, 2), -1);
  EXPECT_EQ(this->list.Find(7, 0, 3), 3);
  EXPECT_EQ(this->list.Find(7, 0, 99), 3);
  EXPECT_EQ(this->list.Find(7, 0, -9), 3);
  EXPECT_EQ(this->list.Find(5, -1), -1);
  EXPECT_EQ(this->list.Find(5, 4), -1);
}

}  // namespace
