// TDualPtrList: the cursor list with links both ways, so that stepping back, deleting and sorting
// need no search. Same operations and results as TList.
#pragma once

#include <cstdlib>

#include "frame/containers/tlist.h"

template <class T>
struct TDualListNode : TListNode<T> {
  TDualListNode* prev = nullptr;
};

template <class T>
class TDualPtrList : public TList<T> {
 protected:
  using TList<T>::m_current;
  using TList<T>::m_length;
  using TList<T>::m_last;
  using TList<T>::m_node;
  using TList<T>::m_sentinel;
  using TList<T>::Stand;
  using TList<T>::Park;

 public:
  using Node = TListNode<T>;
  using DualNode = TDualListNode<T>;
  using Compare = typename TTable<T>::Compare;
  using TList<T>::Append;
  using TList<T>::DetachAfter;
  using TList<T>::GetLastIndex;
  using TList<T>::IsValidIndex;

  TDualPtrList() : TList<T>(new DualNode) { Dual(m_sentinel)->prev = Dual(m_sentinel); }
  ~TDualPtrList() override {
    FreeNodes();
    delete Dual(m_sentinel);
    m_sentinel = nullptr;  // nothing left for TList's destructor
  }

  void GoTo(int i) override {
    if (!IsValidIndex(i)) return Park();
    Stand(NearestTo(i), i);
  }
  void GoPrev() override {
    Node* prev = Dual(m_node)->prev;
    if (prev == m_sentinel) return Park();
    Stand(prev, m_current < 0 ? GetLastIndex() : m_current - 1);
  }
  Node* NodeAt(int i) override { return IsValidIndex(i) ? NearestTo(i) : nullptr; }
  Node* PrevNode(Node* n) override {
    if (!n || Dual(n)->prev == m_sentinel) return nullptr;
    return Dual(n)->prev;
  }
  void DelCur() override {
    if (m_current < 0) return;
    DualNode* doomed = Dual(m_node);
    DualNode* before = doomed->prev;
    before->next = doomed->next;
    Dual(doomed->next)->prev = before;
    if (m_last == doomed) m_last = before;
    --m_length;
    Stand(before, m_current - 1);
    delete doomed;
  }
  void Clear() override {
    FreeNodes();
    this->Reset();
    Dual(m_sentinel)->prev = Dual(m_sentinel);
  }
  void Sort(Compare compare) override {
    SortLinks([compare](const T& a, const T& b) { return compare(&a, &b) >= 1; });
  }
  void Sort(bool ascending) override {
    if constexpr (requires(const T& a, const T& b) { a < b; })
      SortLinks([ascending](const T& a, const T& b) { return ascending ? b < a : a < b; });
  }
  void InsertAfterCur(const T& v) override {
    auto* node = new DualNode;
    node->value = v;
    node->prev = Dual(m_node);
    Dual(m_node->next)->prev = node;
    this->LinkAfterCur(node);
  }
  Node* DetachAfter() override {
    Node* chain = TList<T>::DetachAfter();
    Dual(m_sentinel)->prev = Dual(m_last);
    return chain;
  }
  void Reverse() override {
    if (m_length < 2) return;
    TList<T>::Reverse();
    RestorePrevLinks();
  }
  void Rotate(int from, int to) override {
    if (!m_length) return;
    TList<T>::Rotate(from, to);
    RestorePrevLinks();
  }

 protected:
  static DualNode* Dual(Node* n) { return static_cast<DualNode*>(n); }

  // Insertion sort that walks back from the element to its place.
  template <class OutOfOrder>
  void SortLinks(OutOfOrder out) {
    if (m_length < 2) return;
    DualNode* n = Dual(m_sentinel->next->next);
    while (n != m_sentinel) {
      DualNode* next = Dual(n->next);
      DualNode* place = n->prev;
      while (place != m_sentinel && out(place->value, n->value)) place = place->prev;
      if (place != n->prev) MoveBehind(n, place);
      n = next;
    }
    m_last = Dual(m_sentinel)->prev;
    Park();
  }

 private:
  // Walks from the cursor or from the nearer end.
  Node* NearestTo(int i) {
    if (i == 0) return m_sentinel->next;
    DualNode* n = Dual(m_sentinel);
    int at = i < m_length - i ? -1 : m_length;
    if (m_current >= 0 && std::abs(m_current - i) < std::abs(at - i)) {
      n = Dual(m_node);
      at = m_current;
    }
    for (; at < i; ++at) n = Dual(n->next);
    for (; at > i; --at) n = n->prev;
    return n;
  }
  static void MoveBehind(DualNode* n, DualNode* place) {
    n->prev->next = n->next;
    Dual(n->next)->prev = n->prev;
    n->prev = place;
    n->next = place->next;
    Dual(place->next)->prev = n;
    place->next = n;
  }
  void RestorePrevLinks() {
    Node* n = m_sentinel;
    do {
      Dual(n->next)->prev = Dual(n);
      n = n->next;
    } while (n != m_sentinel);
  }
  void FreeNodes() {
    for (Node* n = m_sentinel->next; n != m_sentinel;) delete Dual(std::exchange(n, n->next));
  }
};
