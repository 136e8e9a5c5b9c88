// TPDList: a cursor list of pointers that owns the objects. Null elements are allowed (a slot of a
// parallel list without an object). An object is released from the list only if the caller sets
// its element to null first.
#pragma once

#include "frame/containers/tdualptrlist.h"

template <class T>
class TPDList : public TDualPtrList<T*> {
  using Base = TDualPtrList<T*>;
  using Base::m_current;
  using Base::m_length;
  using Base::m_node;
  using Base::m_sentinel;

 public:
  using Node = TListNode<T*>;
  using Compare = typename TTable<T*>::Compare;
  // 1 or more: the two objects are out of order. Not called with null.
  using CompareObjects = int (*)(const T*, const T*);

  TPDList() = default;
  ~TPDList() override { DeleteObjects(); }

  void DelCur() override {
    if (m_current < 0) return;
    delete std::exchange(m_node->value, nullptr);
    Base::DelCur();
  }
  void Clear() override {
    DeleteObjects();
    Base::Clear();
  }
  bool Move(int from, int to) override {
    if (!this->MayMove(from, to)) return false;
    T* object = std::exchange(this->NodeAt(from)->value, nullptr);
    this->Insert(to, object);
    this->FinishMove(from, to);
    return true;
  }
  void Sort(Compare compare) override { Base::Sort(compare); }
  // By the objects' own order; empty slots come first.
  void Sort(bool ascending) override {
    if constexpr (requires(const T& a, const T& b) { a < b; })
      this->SortLinks([ascending](const T* a, const T* b) {
        if (!a || !b) return a && !b;
        return ascending ? *b < *a : *a < *b;
      });
  }
  // Empty slots come first.
  virtual void SortObjects(CompareObjects compare) {
    this->SortLinks([compare](const T* a, const T* b) {
      if (!a || !b) return a && !b;
      return compare(a, b) >= 1;
    });
  }

 protected:
  // New slots are empty.
  void Realloc(int n) override { Base::Realloc(n); }

 private:
  void DeleteObjects() {
    for (Node* n = m_sentinel->next; n != m_sentinel; n = n->next)
      delete std::exchange(n->value, nullptr);
  }
};
