// TArrayTable against TDualPtrList: the same random operations with a fixed seed through the base
// class; after each, content, cursor and nodes must be the same. For numbers, which it holds side
// by side, and for texts, which it holds by pointer.
#include "frame/containers/tarraytable.h"

#include <gtest/gtest.h>

#include <random>
#include <string>

#include "frame/containers/tdualptrlist.h"

namespace {

template <class T>
T ValueOf(unsigned n) {
  if constexpr (std::is_same_v<T, int>)
    return static_cast<int>(n);
  else
    return std::string(20 + n, 'x');  // on the heap, so that a leak shows
}

template <class T>
class ArrayTable : public testing::Test {
 protected:
  using Operation = void (*)(TTable<T>&, int, unsigned);

  static void Apply(TTable<T>& table, int i, unsigned n, unsigned which) {
    const T v = ValueOf<T>(n);
    static constexpr Operation kSteps[] = {
        [](TTable<T>& t, int i, unsigned) { t.GoTo(i); },
        [](TTable<T>& t, int, unsigned) { t.GoFirst(); },
        [](TTable<T>& t, int, unsigned) { t.GoLast(); },
        [](TTable<T>& t, int, unsigned) { t.GoNext(); },
        [](TTable<T>& t, int, unsigned) { t.GoPrev(); },
        [](TTable<T>& t, int, unsigned) { t.DelCur(); },
        [](TTable<T>& t, int i, unsigned) { t.Del(i); },
        [](TTable<T>& t, int i, unsigned n) { t.Move(i, static_cast<int>(n)); },
    };
    switch (which) {
      case 8:
        return table.Insert(i, v);
      case 9:
        table.Append(v);
        return;
      case 10:
        return table.InsertFirst(v);
      case 11:
        return table.InsertBeforeCur(v);
      case 12:
        if (i >= 0) table[i] = v;
        return;
      case 13:
        if (!table.IsBegin()) table.SetCurValue(v);
        return;
      case 14:
        table.Sort(n % 2 == 0);
        return table.GoTo(i);
      case 15:
        table.Sort([](const T* a, const T* b) { return *a < *b ? 1 : 0; });
        return table.GoTo(i);
      case 16:
        table.SetLength(i);
        return table.GoTo(i / 2);
      case 17:
        if (n == 0) table.Clear();
        return;
      default:
        return kSteps[which](table, i, n);
    }
  }

  static std::vector<T> Forward(TTable<T>& table) {
    std::vector<T> values;
    for (auto* n = table.FirstNode(); n; n = table.NextNode(n)) values.push_back(n->value);
    return values;
  }
  static std::vector<T> Backward(TTable<T>& table) {
    std::vector<T> values;
    for (auto* n = table.LastNode(); n; n = table.PrevNode(n)) values.push_back(n->value);
    return values;
  }
  void ExpectSame(int i, unsigned n) {
    TTable<T>&a = array, &l = list;
    ASSERT_EQ(Forward(a), Forward(l));
    ASSERT_EQ(Backward(a), Backward(l));
    ASSERT_EQ(a.GetLength(), l.GetLength());
    ASSERT_EQ(a.GetCur(), l.GetCur());
    if (!a.IsBegin()) {
      ASSERT_EQ(*a.CurValue(), *l.CurValue());
      ASSERT_EQ(array.At(a.GetCur()), *l.CurValue());
    }
    ASSERT_EQ(a.NodeAt(i) == nullptr, l.NodeAt(i) == nullptr);
    if (l.NodeAt(i)) {
      ASSERT_EQ(a.NodeAt(i)->value, l.NodeAt(i)->value);
    }
    const T v = ValueOf<T>(n);
    ASSERT_EQ(array.Find(v, i, i + 3), l.Find(v, i, i + 3));
    ASSERT_EQ(a.Find(v), l.Find(v));
    ASSERT_EQ(array.Find(v), l.Find(v));
  }

  TArrayTable<T> array;
  TDualPtrList<T> list;
};

using Values = testing::Types<int, std::string>;
TYPED_TEST_SUITE(ArrayTable, Values);

TYPED_TEST(ArrayTable, AgreesWithTheLinkedListOverRandomOperations) {
  for (unsigned seed = 1; seed <= 20; ++seed) {
    std::mt19937 random(seed);
    this->array.Clear();
    this->list.Clear();
    for (int step = 0; step < 500; ++step) {
      const int i = static_cast<int>(random() % 12) - 2;
      const unsigned n = random() % 5, which = random() % 18;
      this->Apply(this->array, i, n, which);
      this->Apply(this->list, i, n, which);
      this->ExpectSame(i, n);
      if (this->HasFatalFailure()) FAIL() << "seed " << seed << " step " << step << " op " << which;
    }
  }
}

TYPED_TEST(ArrayTable, CurValueBeforeTheFirstGivesAPlaceOfItsOwn) {
  this->array.SetCurValue(ValueOf<TypeParam>(3));
  EXPECT_EQ(*this->array.CurValue(), ValueOf<TypeParam>(3));
  EXPECT_EQ(this->array.GetLength(), 0);
}

TYPED_TEST(ArrayTable, AnElementOfItsOwnMayBeAppended) {
  this->array.Append(ValueOf<TypeParam>(4));
  for (int i = 0; i < 20; ++i) this->array.Append(this->array.At(0));
  EXPECT_EQ(this->array.At(20), ValueOf<TypeParam>(4));
}

TYPED_TEST(ArrayTable, ANodeReadAfterAChangeHasTheNewValue) {
  this->array.Append(ValueOf<TypeParam>(1));
  EXPECT_EQ(this->array.NodeAt(0)->value, ValueOf<TypeParam>(1));
  this->array[0] = ValueOf<TypeParam>(2);
  EXPECT_EQ(this->array.NodeAt(0)->value, ValueOf<TypeParam>(2));
  this->array.GoTo(0);
  this->array.SetCurValue(ValueOf<TypeParam>(3));
  EXPECT_EQ(this->array.NodeAt(0)->value, ValueOf<TypeParam>(3));
  EXPECT_EQ(this->array.NextNode(nullptr), nullptr);
  EXPECT_EQ(this->array.PrevNode(nullptr), nullptr);
}

TEST(ArrayTableOfNumbers, GivesItsValuesSideBySideForReadingAndWriting) {
  TArrayTable<int> table;
  for (int i = 0; i < 3; ++i) table.Append(10 * i);
  EXPECT_EQ(table.NodeAt(1)->value, 10);
  for (int& v : table.Values()) ++v;
  EXPECT_EQ(table.NodeAt(1)->value, 11);
  const TArrayTable<int>& same = table;
  EXPECT_EQ(same.Values().size(), 3u);
  EXPECT_EQ(same.Values()[2], 21);
}

}  // namespace
