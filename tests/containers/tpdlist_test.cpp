// TPDList: the cursor list that owns what its elements point to.
#include <gtest/gtest.h>

#include "frame/containers/tpdlist.h"
#include "tests/containers/counted.h"

namespace {

std::string Text(TPDList<Counted>& list) {
  std::string text;
  for (auto* n = list.FirstNode(); n; n = list.NextNode(n))
    text += n->value ? std::to_string(n->value->value) + " " : "- ";
  return text;
}

struct TPDListTest : testing::Test {
  void Fill(std::initializer_list<int> values) {
    for (int v : values) list.Append(new Counted(v));
  }
  ~TPDListTest() override {
    list.Clear();
    EXPECT_EQ(Counted::s_live, 0);
  }
  TPDList<Counted> list;
};

TEST_F(TPDListTest, TheDestructorDeletesTheObjects) {
  {
    TPDList<Counted> other;
    other.Append(new Counted(1));
    other.Append(nullptr);
    EXPECT_EQ(Counted::s_live, 1);
  }
  EXPECT_EQ(Counted::s_live, 0);
}

TEST_F(TPDListTest, DelCurAndClearDeleteTheObjects) {
  Fill({1, 2, 3});
  list.Del(1);
  EXPECT_EQ(Counted::s_live, 2);
  EXPECT_EQ(Text(list), "1 3 ");
  list.Clear();
  EXPECT_EQ(Counted::s_live, 0);
  EXPECT_EQ(list.GetLength(), 0);
}

TEST_F(TPDListTest, MoveKeepsTheObjectAlive) {
  Fill({1, 2, 3});
  Counted* first = list.FirstNode()->value;
  EXPECT_TRUE(list.Move(0, 3));
  EXPECT_EQ(Text(list), "2 3 1 ");
  EXPECT_EQ(list.LastNode()->value, first);
  EXPECT_EQ(list.GetCur(), 2);
  EXPECT_FALSE(list.Move(0, 1));
  EXPECT_EQ(Counted::s_live, 3);
}

TEST_F(TPDListTest, GrowingAddsEmptySlots) {
  list.SetLength(2);
  EXPECT_EQ(Text(list), "- - ");
  EXPECT_EQ(list[3], nullptr);
  EXPECT_EQ(list.GetLength(), 4);
  list.SetLength(1);
  EXPECT_EQ(Text(list), "- ");
}

TEST_F(TPDListTest, SortByOwnOrderComparesTheObjects) {
  Fill({3, 1, 2});
  list.Sort(true);
  EXPECT_EQ(Text(list), "1 2 3 ");
  list.Sort(false);
  EXPECT_EQ(Text(list), "3 2 1 ");
  EXPECT_EQ(Counted::s_live, 3);
}

TEST_F(TPDListTest, SortObjectsTakesAComparisonOfObjectsAndPutsEmptySlotsFirst) {
  Fill({3, 1});
  list.Append(nullptr);
  Fill({2});
  list.SortObjects(CompareCounted);
  EXPECT_EQ(Text(list), "- 1 2 3 ");
}

TEST_F(TPDListTest, ShrinkingDeletesFromTheEnd) {
  Fill({1, 2, 3});
  list.SetLength(1);
  EXPECT_EQ(Counted::s_live, 1);
  EXPECT_EQ(Text(list), "1 ");
}

TEST_F(TPDListTest, ObjectsWithoutAnOrderCanBeListedToo) {
  struct Unordered {};
  TPDList<Unordered> others;
  others.Append(new Unordered);
  others.Append(new Unordered);
  Unordered* first = others[0];
  others.Sort(true);
  EXPECT_EQ(others[0], first);
}

}  // namespace
