// CArray, CList, CMap and the collections of common element types.
#include <gtest/gtest.h>

#include "afx.h"

namespace {

TEST(Array, GrowsBySetAtGrow) {
  CUIntArray array;
  array.SetAtGrow(3, 7);
  EXPECT_EQ(array.GetSize(), 4);
  EXPECT_EQ(array[0], 0u);
  EXPECT_EQ(array.GetAt(3), 7u);
  EXPECT_EQ(array.GetUpperBound(), 3);
}

TEST(Array, InsertsAndRemovesRanges) {
  CStringArray array;
  array.Add(L"a");
  array.Add(L"d");
  array.InsertAt(1, L"b", 2);
  EXPECT_EQ(array.GetCount(), 4);
  EXPECT_STREQ(array[2], L"b");
  array.RemoveAt(1, 2);
  EXPECT_STREQ(array[1], L"d");
  array.RemoveAll();
  EXPECT_TRUE(array.IsEmpty());
}

TEST(Array, AnIndexOutOfRangeThrows) {
  CPtrArray array;
  EXPECT_THROW(array.GetAt(0), CInvalidArgException*);
  EXPECT_THROW(array.SetSize(-1), CInvalidArgException*);
  EXPECT_THROW(array.RemoveAt(0, 1), CInvalidArgException*);
}

// Regression: the element was read after the storage had been reallocated.
TEST(Array, AnElementOfTheArrayItselfCanBeAdded) {
  CArray<CString> array;
  array.Add(CString(L'x', 100));
  for (int i = 0; i < 20; ++i) array.Add(array[0]);
  array.SetAtGrow(500, array[0]);
  EXPECT_EQ(array[500].GetLength(), 100);
  array.Append(array);
  EXPECT_EQ(array.GetSize(), 1002);
}

TEST(List, IsIteratedBothWays) {
  CPtrList list;
  int a, b, c;
  list.AddTail(&b);
  list.AddHead(&a);
  list.AddTail(&c);
  POSITION at = list.GetHeadPosition();
  EXPECT_EQ(list.GetNext(at), &a);
  EXPECT_EQ(list.GetNext(at), &b);
  EXPECT_EQ(list.GetNext(at), &c);
  EXPECT_EQ(at, nullptr);
  at = list.GetTailPosition();
  EXPECT_EQ(list.GetPrev(at), &c);
  EXPECT_EQ(list.GetPrev(at), &b);
}

TEST(List, InsertsAroundAPosition) {
  CStringList list;
  const POSITION middle = list.AddTail(L"m");
  list.InsertBefore(middle, L"a");
  list.InsertAfter(middle, L"z");
  EXPECT_STREQ(list.GetHead(), L"a");
  EXPECT_STREQ(list.GetTail(), L"z");
  EXPECT_EQ(list.Find(L"m"), middle);
  EXPECT_EQ(list.FindIndex(1), middle);
  EXPECT_EQ(list.FindIndex(3), nullptr);
  list.RemoveAt(middle);
  EXPECT_EQ(list.GetCount(), 2);
  EXPECT_STREQ(list.RemoveHead(), L"a");
  EXPECT_STREQ(list.RemoveTail(), L"z");
  EXPECT_TRUE(list.IsEmpty());
  EXPECT_THROW(list.RemoveHead(), CInvalidArgException*);
}

TEST(Map, FindsSetsAndRemoves) {
  CMapStringToString map;
  map[L"one"] = L"1";
  map.SetAt(L"two", L"2");
  map.SetAt(L"one", L"I");
  CString value;
  EXPECT_TRUE(map.Lookup(L"one", value));
  EXPECT_STREQ(value, L"I");
  EXPECT_FALSE(map.Lookup(L"three", value));
  EXPECT_EQ(map.GetCount(), 2);
  EXPECT_TRUE(map.RemoveKey(L"one"));
  EXPECT_FALSE(map.RemoveKey(L"one"));
  EXPECT_EQ(map.GetCount(), 1);
}

TEST(Map, IteratesOverEveryPairOnce) {
  CMapPtrToPtr map;
  int keys[50];
  for (int& key : keys) map.SetAt(&key, &key);
  map.RemoveKey(&keys[7]);
  int count = 0;
  for (POSITION at = map.GetStartPosition(); at; ++count) {
    void* key;
    void* value;
    map.GetNextAssoc(at, key, value);
    EXPECT_EQ(key, value);
    EXPECT_NE(key, &keys[7]);
  }
  EXPECT_EQ(count, 49);
}

TEST(Map, ReturnsThePairInPlace) {
  CMap<int, int, CString, LPCTSTR> map;
  map.SetAt(3, L"three");
  ASSERT_NE(map.PLookup(3), nullptr);
  map.PLookup(3)->value = L"drei";
  EXPECT_STREQ(map[3], L"drei");
  EXPECT_EQ(map.PLookup(4), nullptr);
}

}  // namespace
