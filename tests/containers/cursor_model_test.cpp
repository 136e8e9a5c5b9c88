// The cursor lists against a std::vector: thousands of random operations with a fixed seed; after
// each, content, cursor and both directions of the links must match the model.
#include <gtest/gtest.h>

#include <algorithm>
#include <random>
#include <vector>

#include "frame/containers/tdualptrlist.h"
#include "frame/containers/tlist.h"

namespace {

struct Model {
  std::vector<int> values;
  int cur = -1;
  int Length() const { return static_cast<int>(values.size()); }
  bool Valid(int i) const { return i >= 0 && i < Length(); }
  void GoTo(int i) { cur = Valid(i) ? i : -1; }
  void InsertAfterCur(int v) { values.insert(values.begin() + ++cur, v); }
  void DelCur() {
    if (cur >= 0) values.erase(values.begin() + cur--);
  }
  bool Move(int from, int to) {
    if (!Valid(from) || to < 0 || to > Length() || from == to || from == to - 1) return false;
    int v = values[static_cast<size_t>(from)];
    values.insert(values.begin() + to, v);
    values.erase(values.begin() + (from < to ? from : from + 1));
    cur = from < to ? to - 1 : to;
    return true;
  }
};

template <class L>
class CursorModel : public testing::Test {
 public:
  void Step(std::mt19937& random) {
    int i = static_cast<int>(random() % 12) - 2;
    int v = static_cast<int>(random() % 5);
    switch (random() % 14) {
      case 0:
        list.GoTo(i), model.GoTo(i);
        break;
      case 1:
        list.GoNext(), model.GoTo(model.cur + 1);
        break;
      case 2:
        list.GoPrev(), model.GoTo(model.cur < 0 ? model.Length() - 1 : model.cur - 1);
        break;
      case 3:
        list.InsertAfterCur(v), model.InsertAfterCur(v);
        break;
      case 4:
        list.DelCur(), model.DelCur();
        break;
      case 5:
        list.Insert(i, v), model.GoTo(i - 1), model.InsertAfterCur(v);
        break;
      case 6:
        list.Append(v), model.GoTo(model.Length() - 1), model.InsertAfterCur(v);
        break;
      case 7:
        EXPECT_EQ(list.Move(i, v), model.Move(i, v));
        break;
      case 8:
        Sort(random() % 2 == 0);
        break;
      case 9:
        Reverse();
        break;
      case 10:
        Rotate(i, v);
        break;
      case 11:
        SetLength(i);
        break;
      case 12:
        FindIt(v, i);
        break;
      case 13:
        list.GoLast(), model.GoTo(model.Length() - 1);
        break;
    }
  }
  void Sort(bool ascending) {
    list.Sort(ascending);
    if (ascending)
      std::stable_sort(model.values.begin(), model.values.end());
    else
      std::stable_sort(model.values.begin(), model.values.end(), std::greater<int>());
    list.GoTo(0), model.GoTo(0);
  }
  void Reverse() {
    list.Reverse();
    if (model.Length() < 2) return;
    std::reverse(model.values.begin(), model.values.end());
    if (model.cur >= 0) model.cur = model.Length() - 1 - model.cur;
  }
  void Rotate(int from, int to) {
    list.Rotate(from, to);
    if (!model.Length()) return;
    int shift = ((from - to) % model.Length() + model.Length()) % model.Length();
    std::rotate(model.values.begin(), model.values.begin() + shift, model.values.end());
    model.cur = 0;
  }
  void SetLength(int n) {
    list.SetLength(n);
    model.values.resize(static_cast<size_t>(std::max(n, 0)));
    list.GoTo(n / 2), model.GoTo(n / 2);
  }
  void FindIt(int v, int first) {
    int expected = -1;
    for (int i = first; model.Valid(first) && i < model.Length() && expected < 0; ++i)
      if (model.values[static_cast<size_t>(i)] == v) expected = i;
    EXPECT_EQ(list.Find(v, first), expected);
  }
  void Check() {
    std::vector<int> forward, backward;
    for (auto* n = list.FirstNode(); n; n = list.NextNode(n)) forward.push_back(n->value);
    for (auto* n = list.LastNode(); n; n = list.PrevNode(n)) backward.push_back(n->value);
    std::reverse(backward.begin(), backward.end());
    ASSERT_EQ(forward, model.values);
    ASSERT_EQ(backward, model.values);
    ASSERT_EQ(list.GetLength(), model.Length());
    ASSERT_EQ(list.GetCur(), model.cur);
    if (model.cur >= 0) {
      ASSERT_EQ(list.GetCurPos(), list.NodeAt(model.cur));
    }
  }
  L list;
  Model model;
};

using Lists = testing::Types<TList<int>, TDualPtrList<int>>;
TYPED_TEST_SUITE(CursorModel, Lists);

TYPED_TEST(CursorModel, AgreesWithAVectorOverRandomOperations) {
  for (unsigned seed = 1; seed <= 20; ++seed) {
    std::mt19937 random(seed);
    for (int step = 0; step < 500; ++step) {
      this->Step(random);
      this->Check();
      if (this->HasFatalFailure()) FAIL() << "seed " << seed << " step " << step;
    }
  }
}

}  // namespace
